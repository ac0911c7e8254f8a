"""Charts as arrays."""

import json
import pickle

import kelpower
import numpy as np
import pandas as pd
import pytest
from kelpower import Curve, Curves, InputError, NoSolution, Surface, _core
from kelpower._curve import curve

D = {"effect_d": 0.5, "power": 0.8}


def charts():
    """Every axis of every test, with an example that has it."""
    for test in json.loads(_core.describe())["tests"]:
        for axis in test["axes"]:
            yield test, axis["name"]


# What an axis takes besides the inputs of an example.
PLANNED = {
    "comparisons": {"comparisons": 3},
    "population": {"population": 500},
    "effect-sd": {"effect-sd": 0.1},
    "cluster-size": {"cluster-size": 10, "icc": 0.05},
    "icc": {"cluster-size": 10, "icc": 0.05},
    "cluster-cv": {"cluster-size": 10, "icc": 0.05, "cluster-cv": 0.4},
}

# Designs by an effect that no example has.
FURTHER = {
    "anova": {"eta-squared": 0.1, "groups": 3, "n": 20},
    "pairwise": {"pair": [1, 2], "effect-d": 0.5, "groups": 3, "n": 30},
    "paired-means": {"effect-d": 0.5, "n": 30},
}


def drawn(test, axis):
    """A design of a test, and its chart over an axis."""
    designs = [example["inputs"] for example in test["examples"]]
    designs += [FURTHER[test["name"]]] if test["name"] in FURTHER else []
    for inputs in [*designs, *({**each, **PLANNED[axis]} for each in designs if axis in PLANNED)]:
        try:
            return inputs, curve(test["name"], inputs, axis)
        except (InputError, NoSolution):
            continue
    raise AssertionError("no design has this axis")


def test_a_curve_has_the_answers_of_its_designs():
    power = curve("two-means", D, "n", start=10, stop=100)
    assert isinstance(power, Curve)
    assert power.x.tolist() == list(range(10, 101))
    answers = [kelpower.two_means(effect_d=0.5, n=n).power for n in power.x]
    assert power.power.tolist() == answers


def test_a_curve_tells_what_it_is():
    power = kelpower.two_means(**D).curve("n")
    assert (power.test, power.chart, power.quantity) == ("two-means", "n", "power")
    assert power.axis.name == "n"
    assert power.axis.title == "sample size per group (observations)"
    assert power.title == "Independent-samples t test of two means"
    assert power.fixed == ("effect size d 0.5", "two-sided", "significance level 0.05")
    assert power.value_title == "power"
    assert power.inputs["n"] == (64, 64)
    assert power.description.startswith("Power over sample size per group (observations) from 2 to ")
    assert repr(power).startswith("<Curve of two-means: power over sample size")


def test_the_design_is_marked():
    design = kelpower.two_means(**D).curve("n").design
    assert (design.x, design.y) == (64, None)
    assert design.power == kelpower.two_means(**D).power
    assert str(design) == "n per group = 64, power 0.80"
    assert kelpower.two_means(**D).curve("n", start=2, stop=20).design is None


def test_half_widths():
    answer = kelpower.mean(sd=5, n=50, interval=True)
    width = answer.curve("n")
    assert width.quantity == "half_width"
    assert width.half_width[width.x == 50] == answer.half_width == width.design.half_width
    with pytest.raises(AttributeError, match="this chart has no 'power'; it shows half_width"):
        width.power  # noqa: B018


def test_sizes():
    sizes = kelpower.two_means(**D).curve("effect_d", y="n", start=0.2, stop=0.8)
    assert sizes.quantity == "sizes"
    assert sizes.design.sizes == 64
    for x, size in zip(sizes.x[::40], sizes.sizes[::40], strict=True):
        assert kelpower.two_means(effect_d=x, power=0.8).n == (size, size)
    assert list(sizes.to_frame()) == ["effect_d", "n"]


def test_points_without_an_answer_are_nan():
    curve = kelpower.two_means(**D).curve("effect_d", y="n", start=0, stop=1)
    assert np.isnan(curve.sizes[0])
    assert np.isfinite(curve.sizes[-1])


def test_a_step_is_a_share_of_the_range():
    x = kelpower.two_means(effect_d=0.5, n=50).curve("effect-d", start=0.2, stop=0.6, step=0.25).x
    np.testing.assert_allclose(x, [0.2, 0.3, 0.4, 0.5, 0.6], rtol=1e-15)


def test_several_values_make_several_curves():
    curves = kelpower.two_means(effect_d=[0.2, 0.5], power=0.8).curve("n")
    assert isinstance(curves, Curves)
    assert (curves.varied, curves.alternatives) == ("effect_d", (0.2, 0.5))
    assert len(curves) == 2
    assert [each.label for each in curves] == ["effect size d 0.2", "effect size d 0.5"]
    assert curves[1].design.x == 64
    assert curves[:1] == curves.curves[:1]
    one = kelpower.two_means(**D).curve("n", start=curves.x[0], stop=curves.x[-1])
    both, at_one, at_both = np.intersect1d(one.x, curves.x, return_indices=True)
    assert len(both) == len(curves.x)
    assert one.power[at_one].tolist() == curves[1].power[at_both].tolist()


def test_lists_may_vary():
    curves = kelpower.anova(means=[[10, 12, 15], [10, 12, 16]], sd=6, n=20).curve("n")
    assert curves.alternatives == ((10, 12, 15), (10, 12, 16))
    frame = curves.to_frame()
    assert list(frame) == ["means1", "means2", "means3", "n", "power"]
    assert frame["means3"].unique().tolist() == [15, 16]


def test_arrays_are_values_like_lists():
    curves = curve(kelpower.two_means, {"effect_d": np.array([0.2, 0.5]), "power": np.float32(0.75)}, "n")
    assert curves.alternatives == (0.2, 0.5)


def test_one_value_in_an_array_is_one_curve():
    assert isinstance(kelpower.two_means(effect_d=[0.5], power=0.8).curve("n"), Curve)


def test_a_surface():
    surface = kelpower.two_means(**D).curve("n-effect_d", start=(10, 0.2), stop=(40, 1.2))
    assert isinstance(surface, Surface)
    assert surface.power.shape == (len(surface.x), len(surface.y))
    for i, j in ((0, 0), (5, 20), (30, 100)):
        answer = kelpower.two_means(effect_d=surface.y[j], n=surface.x[i])
        assert surface.power[i, j] == pytest.approx(answer.power, rel=1e-12)
    assert [axis.name for axis in surface.axes] == ["n", "effect_d"]
    assert surface.note is None
    whole = kelpower.two_means(**D).curve("n-effect_d")
    assert (whole.design.x, whole.design.y) == (64, 0.5)
    assert "149 x 101 points" in repr(whole)


def test_lines_of_equal_power_have_that_power():
    surface = kelpower.two_means(**D).curve("n-effect_d")
    assert [level.power for level in surface.levels] == [0.5, 0.8, 0.9, 0.95]
    for level in surface.levels:
        for x, y in level.lines:
            size, effect = round(x[len(x) // 2]), np.interp(round(x[len(x) // 2]), x[np.argsort(x)], y[np.argsort(x)])
            assert kelpower.two_means(effect_d=effect, n=size).power == pytest.approx(level.power, abs=2e-3)


def test_where_power_jumps_a_note_says_so():
    surface = kelpower.proportion(proportion=0.7, null=0.5, n=40, exact=True).curve("n-proportion")
    assert surface.note == "the power jumps: beyond its line it stays at or above a level"


def test_frames():
    power = kelpower.two_means(**D).curve("n", start=60, stop=62)
    expected = pd.DataFrame({"n": [60.0, 61, 62], "power": power.power})
    pd.testing.assert_frame_equal(power.to_frame(), expected)
    curves = kelpower.two_means(effect_d=[0.2, 0.5], power=0.8).curve("n", start=60, stop=61)
    assert curves.to_frame()["effect_d"].tolist() == [0.2, 0.2, 0.5, 0.5]
    surface = kelpower.two_means(**D).curve("n-effect_d", start=(60, 0.4), stop=(61, 0.5), step=0.5)
    frame = surface.to_frame()
    assert list(frame) == ["n", "effect_d", "power"]
    np.testing.assert_allclose(frame["effect_d"], [0.4, 0.45, 0.5] * 2)
    assert frame["power"].tolist() == surface.power.ravel().tolist()


def test_frames_of_other_kinds():
    pytest.importorskip("pyarrow")
    table = kelpower.two_means(**D).curve("n", start=60, stop=62).to_frame("arrow")
    assert table.column_names == ["n", "power"]


def test_charts_do_not_change():
    power = kelpower.two_means(**D).curve("n")
    with pytest.raises(AttributeError):
        power.x = 1
    with pytest.raises(ValueError, match="read-only"):
        power.power[0] = 1


@pytest.mark.parametrize("chart", ["n", "n-effect_d"])
def test_charts_can_be_pickled(chart):
    drawn = kelpower.two_means(**D).curve(chart)
    again = pickle.loads(pickle.dumps(drawn))
    assert again.power.tolist() == drawn.power.tolist()
    assert (again.design, again.fixed, repr(again)) == (drawn.design, drawn.fixed, repr(drawn))


@pytest.mark.parametrize(
    ("options", "parameters", "message"),
    [
        ({"start": 5}, ("start", "stop"), "start and stop go together: give both or neither."),
        ({"start": 5, "stop": 3}, ("start", "stop"), "start is 5, but must be below stop, which is 3."),
        ({"start": "x", "stop": 3}, ("start",), "start is 'x', but must be a number, or one for each axis."),
        ({"step": 0.1}, ("step", "chart"), "step has no use with chart n: whole numbers go by ones."),
        ({"chart": "sigma"}, ("chart",), 'chart is "sigma", but must be n, total, n1, n2'),
        ({"y": "total"}, (), '"y" is "total", but must be "n".'),
    ],
)
def test_errors_have_the_names_of_arguments(options, parameters, message):
    with pytest.raises(InputError) as caught:
        curve("two-means", D, options.pop("chart", "n"), **options)
    assert str(caught.value).startswith(message)
    assert caught.value.parameters == parameters


def test_two_inputs_with_several_values_are_refused():
    with pytest.raises(InputError, match="several values"):
        kelpower.two_means(effect_d=[0.2, 0.5], power=[0.8, 0.9]).curve("n")
    with pytest.raises(InputError, match="must be a number"):
        kelpower.two_means(effect_d=[[0.2], [0.5]], power=0.8).curve("n")


def test_a_design_without_solution_raises():
    with pytest.raises(NoSolution):
        curve("two-means", {"effect_d": 0, "power": 0.8}, "n")


@pytest.mark.parametrize(
    ("test", "axis"), list(charts()), ids=lambda each: each if isinstance(each, str) else each["name"]
)
def test_every_axis_is_drawn(test, axis):
    inputs, chart = drawn(test, axis)
    answer = getattr(kelpower, test["name"].replace("-", "_"))(
        **{name.replace("-", "_"): each for name, each in inputs.items()}
    )
    assert isinstance(chart, Curve)
    assert np.isfinite(chart.values).any()
    assert (np.diff(chart.x) > 0).all()
    if chart.design is not None and chart.quantity == "power":
        expected = answer.results.get("power", answer.results.get("expected_power"))
        assert chart.design.power == pytest.approx(expected, rel=1e-12)
