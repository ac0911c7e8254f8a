"""Charts with matplotlib."""

import subprocess
import sys

import kelpower
import numpy as np
import pytest
from kelpower import InputError

matplotlib = pytest.importorskip("matplotlib")
matplotlib.use("Agg")

from matplotlib import pyplot  # noqa: E402
from matplotlib.colors import to_hex  # noqa: E402
from matplotlib.figure import Figure  # noqa: E402

D = {"effect_d": 0.5, "power": 0.8}


@pytest.fixture(autouse=True)
def closed_figures():
    """Each test leaves no figure behind, and no changed setting."""
    before = dict(matplotlib.rcParams)
    yield
    pyplot.close("all")
    assert dict(matplotlib.rcParams) == before


def own_axes():
    """Axes that pyplot does not know."""
    return Figure(layout="constrained").subplots()


def legend_of(ax):
    legend = ax.get_legend() or ax.figure.legends[0]
    return [text.get_text() for text in legend.get_texts()]


def lines_of(ax):
    """The lines of data, without those across the axes."""
    return [line for line in ax.lines if line.get_transform() == ax.transData]


def texts_of(ax):
    return [text.get_text() for text in ax.texts]


def test_a_curve():
    answer = kelpower.anova(means=[10, 12, 15], sd=6, n=20)
    ax = answer.plot("n", ax=own_axes())
    curve, design = lines_of(ax)
    expected = answer.curve("n")
    assert curve.get_xdata().tolist() == expected.x.tolist()
    assert curve.get_ydata().tolist() == expected.power.tolist()
    assert (design.get_xdata().tolist(), design.get_ydata().tolist()) == ([20], [answer.power])
    assert to_hex(curve.get_color()) == "#0072b2"
    assert to_hex(design.get_color()) == "#b03a2e"
    assert ax.get_xlabel() == "sample size per group (observations)"
    assert ax.get_ylabel() == "power"
    assert ax.get_title() == "One-way analysis of variance: overall F test"
    assert "; ".join(reversed(texts_of(ax))) == "group means 10, 12, 15; standard deviation 6; significance level 0.05"
    assert legend_of(ax) == ["design: n per group = 20, power 0.63"]
    assert ax.get_ylim() == (0, 1)
    assert ax.get_xlim() == (expected.x[0], expected.x[-1])


def test_the_usual_target_is_a_line():
    ax = kelpower.two_means(**D).plot(ax=own_axes())
    (target,) = [line for line in ax.lines if line not in lines_of(ax)]
    assert list(target.get_ydata()) == [0.8, 0.8]
    ax = kelpower.mean(sd=5, n=50, interval=True).plot(ax=own_axes())
    assert lines_of(ax) == list(ax.lines)


def test_several_curves_differ_in_more_than_colour():
    ax = kelpower.two_means(effect_d=[0.2, 0.5, 0.8], power=0.8).plot("n", ax=own_axes())
    *curves, designs = lines_of(ax)
    assert legend_of(ax) == ["effect size d 0.2", "effect size d 0.5", "effect size d 0.8", "designs"]
    assert len({to_hex(curve.get_color()) for curve in curves}) == 3
    assert (
        len({curve.get_linestyle() if curve.get_linestyle() == "-" else str(curve._dash_pattern) for curve in curves})
        == 3
    )
    assert designs.get_xdata().tolist() == [394, 64, 26]


def test_many_curves_all_look_different():
    ax = kelpower.two_means(effect_d=np.linspace(0.2, 0.8, 20), power=0.8).plot("n", ax=own_axes())
    looks = {(to_hex(line.get_color()), str(line._unscaled_dash_pattern)) for line in lines_of(ax)[:-1]}
    assert len(looks) == 20


def test_sizes_and_half_widths_begin_at_zero():
    ax = kelpower.two_means(**D).plot("effect_d", y="n", ax=own_axes())
    assert ax.get_ylim()[0] == 0
    assert ax.get_ylim()[1] > 100
    assert ax.get_ylabel() == "sample size per group (observations)"
    ax = kelpower.mean(sd=5, n=50, interval=True).plot(ax=own_axes())
    assert ax.get_ylabel() == "half-width"
    assert ax.get_ylim()[0] == 0


def test_a_surface():
    answer = kelpower.two_means(**D)
    ax = answer.plot("n-effect_d", ax=own_axes())
    surface = answer.curve("n-effect_d")
    (mesh,) = ax.collections
    assert mesh.get_array().reshape(surface.power.T.shape).tolist() == surface.power.T.tolist()
    assert mesh.get_clim() == (0, 1)
    assert legend_of(ax) == ["power 0.5", "power 0.8", "power 0.9", "power 0.95", "design"]
    *levels, design = lines_of(ax)
    for line, level in zip(levels, surface.levels, strict=True):
        assert np.nanmin(line.get_xdata()) == min(x.min() for x, _ in level.lines)
    assert (design.get_xdata()[0], design.get_ydata()[0]) == (64, 0.5)
    assert (ax.get_xlabel(), ax.get_ylabel()) == ("sample size per group (observations)", "effect size d")
    assert ax.figure.axes[-1].get_ylabel() == "power"
    assert "design: n per group = 64, effect size d = 0.5, power 0.80" in texts_of(ax)


def test_a_surface_with_gaps():
    ax = kelpower.two_proportions(proportions=[0.5, 0.7], n=50).plot("n-risk_difference", ax=own_axes())
    ax.figure.canvas.draw()
    assert len(ax.collections) == 1


def test_densities():
    answer = kelpower.two_means(**D)
    densities = answer.densities()
    assert np.trapezoid(densities.without_effect, densities.x) == pytest.approx(1, abs=5e-3)
    assert np.trapezoid(densities.with_effect, densities.x) == pytest.approx(1, abs=5e-3)
    assert densities.power == pytest.approx(answer.power, abs=1e-12)
    assert densities.level == pytest.approx(0.05, abs=1e-12)
    assert densities.rejects[0]
    assert not densities.rejects[200 - 60]
    ax = answer.plot("densities", ax=own_axes())
    assert legend_of(ax) == ["without the effect (level 0.05)", "with the effect (power 0.80)"]
    assert [line.get_xdata()[0] for line in ax.lines if line not in lines_of(ax)] == [
        densities.rejects_to,
        densities.rejects_from,
    ]
    assert (ax.get_xlabel(), ax.get_ylabel()) == ("t statistic", "density")


def test_shaded_areas_are_level_and_power():
    answer = kelpower.two_means(**D)
    ax = answer.plot("densities", ax=own_axes())
    without, with_effect = ([path.vertices for path in area.get_paths()] for area in ax.collections)

    def area(polygons):
        return sum(abs(np.trapezoid(points[:, 1], points[:, 0])) for points in polygons)

    # The picture ends where nearly nothing is left.
    assert area(without) == pytest.approx(0.05, abs=3e-3)
    assert area(with_effect) == pytest.approx(answer.power, abs=3e-3)


def test_densities_of_counts_are_bars():
    answer = kelpower.proportion(proportion=0.7, null=0.5, n=40, exact=True)
    densities = answer.densities()
    assert densities.statistic == "count"
    ax = answer.plot("densities", ax=own_axes())
    assert len(ax.patches) == 2 * len(densities.x)
    assert ax.get_xlabel() == "number of successes"


def test_where_there_is_no_statistic_densities_are_refused():
    answer = kelpower.mean(sd=5, n=50, interval=True)
    assert answer.densities() is None
    with pytest.raises(InputError, match="No single statistic"):
        answer.plot("densities", ax=own_axes())


def test_a_frame_of_sizes():
    frame = kelpower.grid("two-means", effect_d=[0.6, 0.4, 0.5], power=[0.8, 0.9])
    ax = kelpower.plot(frame, x="effect_d", hue="target_power", test="two-means", ax=own_axes())
    first, second = lines_of(ax)
    assert first.get_xdata().tolist() == [0.4, 0.5, 0.6]
    assert first.get_ydata().tolist() == [kelpower.two_means(effect_d=d, power=0.8).n[0] for d in (0.4, 0.5, 0.6)]
    assert second.get_ydata()[0] == kelpower.two_means(effect_d=0.4, power=0.9).n[0]
    assert legend_of(ax) == ["target power 0.8", "target power 0.9"]
    assert ax.get_xlabel() == "effect size d"
    assert ax.get_ylabel() == "sample size per group (observations)"
    assert ax.get_title() == "Independent-samples t test of two means"


def test_a_frame_of_powers():
    frame = kelpower.grid("two-means", effect_d=[0.2, 0.5], n=[20, 40, 60])
    ax = kelpower.plot(frame, "n", hue="effect_d", ax=own_axes())
    assert [line.get_xdata().tolist() for line in lines_of(ax)] == [[20, 40, 60]] * 2
    assert lines_of(ax)[1].get_ydata()[2] == kelpower.two_means(effect_d=0.5, n=60).power
    assert ax.get_ylabel() == "power"
    assert ax.get_ylim() == (0, 1)
    assert legend_of(ax) == ["effect size d 0.2", "effect size d 0.5"]


@pytest.mark.parametrize("engine", ["pandas", "polars", "arrow"])
def test_frames_of_all_kinds_give_the_same_lines(engine):
    pytest.importorskip({"arrow": "pyarrow"}.get(engine, engine))
    frame = kelpower.grid("two-means", engine, effect_d=[0.4, 0.5], power=[0.8, 0.9])
    ax = kelpower.plot(frame, "effect_d", hue="target_power", ax=own_axes())
    assert [line.get_ydata().tolist() for line in lines_of(ax)] == [[100, 64], [133, 86]]


def test_results_know_their_test():
    results = kelpower.two_means(effect_d=[0.4, 0.5], power=0.8)
    ax = kelpower.plot(results, "effect_d", ax=own_axes())
    assert ax.get_title() == "Independent-samples t test of two means"
    assert lines_of(ax)[0].get_ydata().tolist() == [100, 64]


def test_unequal_groups_are_shown_by_their_total():
    frame = kelpower.two_means(effect_d=[0.4, 0.5], power=0.8, ratio=2).to_frame()
    ax = kelpower.plot(frame, "effect_d", ax=own_axes())
    assert ax.get_ylabel() == "total sample size"
    assert lines_of(ax)[0].get_ydata().tolist() == frame["total"].tolist()
    ax = kelpower.plot(frame, "effect_d", "n2", ax=own_axes())
    assert lines_of(ax)[0].get_ydata().tolist() == frame["n2"].tolist()


def test_several_columns_may_tell_lines_apart():
    frame = kelpower.grid("two-means", effect_d=[0.4, 0.5], power=[0.8, 0.9], alpha=[0.01, 0.05])
    ax = kelpower.plot(frame, "effect_d", hue=["target_power", "alpha"], ax=own_axes())
    assert legend_of(ax)[1] == "target power 0.8, significance level 0.05"
    assert len(lines_of(ax)) == 4


def test_designs_without_an_answer_are_gaps():
    with pytest.warns(kelpower.NoSolutionWarning):
        frame = kelpower.grid("two-means", effect_d=[-0.5, 0, 0.5], power=0.8)
    ax = kelpower.plot(frame, "effect_d", ax=own_axes())
    assert np.isnan(lines_of(ax)[0].get_ydata()).tolist() == [False, True, False]


def test_what_else_varies_must_be_told():
    frame = kelpower.grid("two-means", effect_d=[0.4, 0.5], power=[0.8, 0.9])
    with pytest.raises(InputError, match=r"several values of n1 at one effect_d\. target_power vary, too"):
        kelpower.plot(frame, "effect_d", ax=own_axes())
    with pytest.raises(InputError, match="There is no column 'd'; there are effect_d, target_power"):
        kelpower.plot(frame, "d", ax=own_axes())
    with pytest.raises(InputError, match="y is needed"):
        kelpower.plot(frame[["effect_d"]], "effect_d", ax=own_axes())
    with pytest.raises(TypeError, match="a frame of pandas, polars or Arrow is expected"):
        kelpower.plot([1, 2], "effect_d")


def test_without_axes_there_is_a_new_figure():
    ax = kelpower.two_means(**D).plot()
    assert pyplot.gcf() is ax.figure
    assert kelpower.two_means(**D).plot() is not ax


def test_given_axes_leave_pyplot_alone():
    kelpower.two_means(**D).plot(ax=own_axes())
    kelpower.two_means(**D).plot("n-effect_d", ax=own_axes())
    assert pyplot.get_fignums() == []


def test_subplots_keep_to_themselves():
    figure = Figure(layout="constrained")
    left, right = figure.subplots(1, 2)
    assert kelpower.two_means(**D).plot(ax=left) is left
    assert not right.lines
    assert right.get_title() == ""
    assert figure.legends == []
    kelpower.two_means(**D).plot("densities", ax=right)
    figure.canvas.draw()


def test_text_stays_inside_the_figure():
    for chart in ("n", "n-effect_d", "densities"):
        ax = kelpower.two_means(effect_d=0.5, power=0.8, ratio=2).plot(chart)
        ax.figure.canvas.draw()
        box = ax.figure.bbox
        for text in (*ax.texts, ax.title, ax.xaxis.label, ax.yaxis.label, *ax.figure.legends[0].get_texts()):
            extent = text.get_window_extent()
            assert box.x0 <= extent.x0, (chart, text)
            assert extent.x1 <= box.x1, (chart, text)
            assert box.y0 <= extent.y0, (chart, text)
            assert extent.y1 <= box.y1, (chart, text)


def test_without_matplotlib_the_error_names_the_extra():
    code = """
import sys
sys.modules["matplotlib"] = None
import kelpower
try:
    kelpower.two_means(effect_d=0.5, power=0.8).plot()
except ImportError as error:
    print(error)
"""
    done = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True, check=True)
    assert done.stdout == 'Pictures need matplotlib, which is not installed: pip install "kelpower[plot]".\n'


def test_matplotlib_is_not_imported_before_it_is_needed():
    code = "import sys, kelpower as k; k.two_means(effect_d=0.5, n=9).curve('n'); print('matplotlib' in sys.modules)"
    assert subprocess.run([sys.executable, "-c", code], capture_output=True, text=True, check=True).stdout == "False\n"
