"""Answers to many designs: what they keep, and what they say."""

import pickle
import sys

import kelpower
import numpy as np
import pytest


@pytest.mark.parametrize(
    "ask",
    [
        lambda: kelpower.two_means(effect_d=[0.0, 0.5], power=0.9),
        lambda: kelpower.grid("two-means", effect_d=[0.0, 0.5], power=0.9),
        lambda: kelpower.two_means(effect_d=0.5, power=0.9).replace(effect_d=[0.0]),
    ],
    ids=["function", "grid", "replace"],
)
def test_a_warning_names_the_line_that_asked(ask):
    pytest.importorskip("pandas")
    with pytest.warns(kelpower.NoSolutionWarning, match="1 design has no answer") as caught:
        ask()
    assert [each.filename for each in caught] == [__file__]


def test_answers_keep_the_designs_that_were_asked():
    effects = np.array([0.5, 0.8])
    answers = kelpower.two_means(effect_d=effects, power=0.9)
    effects[:] = 0.1
    assert answers[0].total == answers.total[0] == 172
    assert answers.effect_d.tolist() == [0.5, 0.8]


def test_answers_are_pickled_as_they_are():
    answers = kelpower.two_means(effect_d=[0.5, 0.8], power=0.9, one_sided=[True, False])
    answers._outcome.results["power"][0] = 0.123  # what no computation gives
    again = pickle.loads(pickle.dumps(answers))
    assert again == answers
    assert again.power[0] == 0.123
    assert again[1].total == answers.total[1]


def test_a_single_design_is_taken_by_whole_numbers():
    answers = kelpower.two_means(effect_d=[[0.5, 0.8]], power=0.9)
    assert answers[0, -1].total == 68
    assert answers[np.int64(0), np.uint8(1)].total == 68
    for wrong in ((0, slice(None)), (0, 0.0), ("0", 0)):
        with pytest.raises(TypeError, match="cannot be interpreted as an integer"):
            answers[wrong]
    with pytest.raises(IndexError, match="2 indices are expected"):
        answers[0]
    with pytest.raises(IndexError):
        answers[0, 2]


@pytest.mark.parametrize("threads", [0, -3])
def test_no_threads_are_refused(threads):
    with pytest.raises(ValueError, match="must be at least 1"):
        kelpower.grid("two-means", threads=threads, effect_d=[0.5], power=0.9)


def test_notebooks_show_answers_without_pandas(monkeypatch):
    answers = kelpower.two_means(effect_d=[0.5, 0.8], power=0.9)
    monkeypatch.setitem(sys.modules, "pandas", None)
    assert answers._repr_html_() == f"<pre>{answers}</pre>"


def test_groups_of_flags_and_words_lie_where_they_belong():
    answers = kelpower.two_proportions(
        proportions=[0.2, 0.4], power=0.8, method=np.array([["z"], ["arcsine"]]), one_sided=[False, True, False]
    )
    assert answers.shape == (2, 3)
    for i, method in enumerate(("z", "arcsine")):
        for j, side in enumerate((False, True, False)):
            single = kelpower.two_proportions(proportions=[0.2, 0.4], power=0.8, method=method, one_sided=side)
            assert tuple(answers.n[i, j]) == single.n
            assert answers.power[i, j] == single.power
            assert answers[i, j] == single


def test_a_size_of_a_frame_is_an_integer_or_missing():
    pd = pytest.importorskip("pandas")
    usual = kelpower.two_means(effect_d=0.5, power=0.9).to_frame()
    huge = kelpower.two_means(effect_d=1e-12, power=0.9).to_frame()
    assert huge.dtypes.equals(usual.dtypes)
    assert huge["n1"].isna().tolist() == [True]
    assert isinstance(huge["power"][0], float)
    assert pd.api.types.is_float_dtype(kelpower.contrast(coefficients=[1, -1], means=[0, 1], sd=5e-324, power=0.5)
                                       .to_frame()["effect_d"])  # fmt: skip
