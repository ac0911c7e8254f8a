"""All combinations of values: their order, their columns and what they are equal to."""

import itertools

import kelpower
import numpy as np
import pytest

pd = pytest.importorskip("pandas")


def test_the_last_argument_varies_fastest():
    values = {"effect_d": [0.2, 0.5, 0.8], "power": [0.8, 0.9], "alpha": [0.01, 0.05]}
    frame = kelpower.grid("two-means", **values)
    rows = list(frame[["effect_d", "target_power", "alpha"]].itertuples(index=False, name=None))
    assert rows == list(itertools.product(*values.values()))
    assert list(kelpower.grid("two-means", power=[0.8, 0.9], effect_d=[0.2]))[:2] == ["target_power", "effect_d"]


def test_rows_equal_single_designs_bit_for_bit():
    values = {"effect_d": [0.2, 0.5, 0.8], "n": [[20, 20], [20, 40]], "one_sided": [False, True]}
    frame = kelpower.grid(kelpower.two_means, **values)
    for row, (effect, n, side) in enumerate(itertools.product(*values.values())):
        single = kelpower.two_means(effect_d=effect, n=n, one_sided=side)
        assert frame["power"][row] == single.power
        assert (frame["n1"][row], frame["n2"][row], frame["total"][row]) == (*n, single.total)


@pytest.mark.parametrize("engine", ["pandas", "polars", "arrow"])
def test_the_engines_give_the_same(engine):
    frame = kelpower.grid("two-means", engine=engine, effect_d=[0.2, 0.5], power=0.9, one_sided=[False, True])
    plain = frame if engine == "pandas" else frame.to_pandas()
    expected = kelpower.grid("two-means", effect_d=[0.2, 0.5], power=0.9, one_sided=[False, True])
    assert list(plain) == list(expected)
    for name in expected:
        assert plain[name].tolist() == expected[name].tolist()


@pytest.mark.parametrize(
    "sizes",
    [
        [20, 40],
        (20, 40),
        range(20, 41, 20),
        np.array([20, 40]),
        pd.Series([20, 40]),
        [[20], [40]],
        [[20, 20], [40, 40]],
    ],
    ids=lambda sizes: type(sizes).__name__,
)
def test_sizes_are_one_for_all_groups_or_a_list_each(sizes):
    expected = [kelpower.two_means(effect_d=0.5, n=each).power for each in (20, 40)]
    assert kelpower.grid("two-means", effect_d=0.5, n=sizes)["power"].tolist() == expected


def test_lists_of_groups_are_one_value():
    once = kelpower.grid("anova", means=[10, 12, 15], sd=[5, 6], ratios=[2, 1, 1], power=[0.8, 0.9])
    assert len(once) == 4
    assert once["n1"].tolist() == [
        kelpower.anova(means=[10, 12, 15], sd=sd, ratios=[2, 1, 1], power=power).n[0]
        for sd, power in itertools.product([5, 6], [0.8, 0.9])
    ]
    assert (once["ratios1"] == 2).all()
    twice = kelpower.grid("anova", means=[[10, 12, 15], [10, 12, 18]], sd=6, n=20)
    assert twice["means3"].tolist() == [15, 18]
    assert twice["power"].tolist() == [kelpower.anova(means=[10, 12, each], sd=6, n=20).power for each in (15, 18)]


def test_alternatives_of_words_and_questions():
    frame = kelpower.grid("two-proportions", proportions=[0.2, 0.4], power=0.8, method=["z", "conditional"])
    assert frame["method"].tolist() == ["z", "conditional"]
    assert frame["lasting_n1"].isna().tolist() == [True, False]
    assert frame["lasting_n1"].dtype == "Int64"


def test_one_combination_and_none():
    one = kelpower.grid("two-means", effect_d=0.5, power=0.9)
    assert one["total"].tolist() == [172]
    none = kelpower.grid("two-means", effect_d=[], power=[0.8, 0.9], one_sided=[True, False])
    assert len(none) == 0
    assert none.dtypes["total"] == one.dtypes["total"]


def test_one_warning_tells_how_many_rows_have_no_answer():
    with pytest.warns(kelpower.NoSolutionWarning, match="3 designs have no answer, of 6. At index 0: ") as caught:
        frame = kelpower.grid("two-means", effect_d=[0, 0.5], power=[0.7, 0.8, 0.9])
    assert len(caught) == 1
    assert frame["status"].tolist() == [3, 3, 3, 0, 0, 0]
    assert frame["total"].isna().tolist() == [True, True, True, False, False, False]


@pytest.mark.parametrize(
    ("values", "words"),
    [
        ({"effect_d": [[0.2, 0.5]], "power": 0.8}, "effect_d has more axes"),
        ({"means": [[[1, 2]]], "sd": 1, "power": 0.8}, "means has more axes"),
        ({"means": [[1, 2], [1, 2, 3]], "sd": 1, "power": 0.8}, "different lengths"),
        ({"effects": [0.2, 0.5], "power": 0.8}, "effects is no input"),
        ({"effect_d": ["a", "b"], "power": 0.8}, "not numbers"),
        ({"effect_d": [0.2, 0.5], "power": 8}, "power is 8"),
        ({"effect_d": [0.2, 0.5]}, "give"),
    ],
)
def test_what_is_no_grid(values, words):
    with pytest.raises(kelpower.InputError, match=words):
        kelpower.grid("two-means", **values)
    with pytest.raises(ValueError, match="engine is 'x'"):
        kelpower.grid("two-means", engine="x", effect_d=0.5, power=0.8)


@pytest.mark.long
def test_a_million_combinations():
    effects, sizes, levels = np.linspace(0.01, 2, 200), np.arange(2, 1002), [0.001, 0.01, 0.05, 0.1, 0.2]
    frame = kelpower.grid("two-means", effect_d=effects, n=sizes, alpha=levels)
    assert len(frame) == 1_000_000
    assert (frame["status"] == 0).all()
    for row in np.random.default_rng(1).integers(0, len(frame), 200):
        effect, size, level = np.unravel_index(row, (200, 1000, 5))
        single = kelpower.two_means(effect_d=effects[effect], n=int(sizes[size]), alpha=levels[level])
        assert frame["power"][row] == single.power
        assert (frame["effect_d"][row], frame["n"][row]) == (effects[effect], sizes[size])
    one = kelpower.grid("two-means", threads=1, effect_d=effects, n=sizes, alpha=levels)
    pd.testing.assert_frame_equal(one, frame, check_exact=True)
