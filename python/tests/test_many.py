"""Many designs as arrays: what each is alone, by NumPy's rules."""

import pickle
import warnings

import kelpower
import numpy as np
import pytest


def test_arrays_give_what_numbers_give():
    effects = np.linspace(0.1, 1.2, 23)
    answers = kelpower.two_means(effect_d=effects, power=0.9)
    alone = [kelpower.two_means(effect_d=effect, power=0.9) for effect in effects]
    assert answers.total.tolist() == [each.total for each in alone]
    assert answers.power.tolist() == [each.power for each in alone]
    assert answers.n.tolist() == [list(each.n) for each in alone]
    assert answers.total.dtype == np.int64


def test_arguments_are_broadcast():
    answers = kelpower.two_means(effect_d=[[0.2], [0.5]], power=[0.8, 0.9, 0.95], alpha=0.01)
    assert answers.shape == (2, 3)
    assert answers.n.shape == (2, 3, 2)
    assert answers[1, 2].total == kelpower.two_means(effect_d=0.5, power=0.95, alpha=0.01).total == answers.total[1, 2]
    with pytest.raises(ValueError, match="broadcast"):
        kelpower.two_means(effect_d=[0.1, 0.2], power=[0.8, 0.9, 0.95])


def test_lists_have_their_entries_along_the_last_axis():
    means = [[10, 12, 15], [10, 12, 18]]
    answers = kelpower.anova(means=means, sd=6, n=[[20, 20, 20]])
    assert answers.power.tolist() == [kelpower.anova(means=each, sd=6, n=20).power for each in means]
    over_sizes = kelpower.two_means(effect_d=0.5, n=np.arange(20, 60, 10)[:, None])
    assert over_sizes.power.tolist() == [kelpower.two_means(effect_d=0.5, n=n).power for n in range(20, 60, 10)]


def test_flags_and_words_may_vary():
    answers = kelpower.two_means(effect_d=0.5, n=64, one_sided=[False, True])
    assert answers.power.tolist() == [
        kelpower.two_means(effect_d=0.5, n=64, one_sided=each).power for each in (False, True)
    ]
    methods = np.array(["z", "arcsine", "conditional"])
    answers = kelpower.two_proportions(proportions=[0.2, 0.5], n=40, method=methods)
    assert answers.power.tolist() == [
        kelpower.two_proportions(proportions=[0.2, 0.5], n=40, method=str(each)).power for each in methods
    ]


def test_other_numbers_are_solved_for():
    answers = kelpower.two_means(n=[[20], [40]], power=0.8)
    assert answers.effect_d.tolist() == [kelpower.two_means(n=n, power=0.8).effect_d for n in (20, 40)]


def test_a_design_without_an_answer_is_nan_with_its_status_and_one_warning():
    said = r"2 designs have no answer, of 4\. At index 1: The effect"
    with pytest.warns(kelpower.NoSolutionWarning, match=said) as told:
        answers = kelpower.two_means(effect_d=[0.5, 0, 0.8, np.nan], power=0.8)
    assert len(told) == 1
    assert told[0].filename == __file__
    assert answers.status.tolist() == [0, 3, 0, 2]
    assert np.isnan(answers.power).tolist() == [False, True, False, True]
    assert answers.total.dtype == np.float64
    assert answers.problem(1).startswith("The effect size is zero")
    assert answers.problem(0) is None
    with pytest.raises(kelpower.NoSolution):
        answers[1]


def test_what_all_designs_share_must_be_right():
    with pytest.raises(kelpower.InputError, match="power is 80"):
        kelpower.two_means(effect_d=[0.2, 0.5], power=80)
    with pytest.raises(kelpower.InputError, match="effect_d has values that are not numbers"):
        kelpower.two_means(effect_d=["a", "b"], power=0.8)
    with pytest.raises(kelpower.InputError, match="different lengths"):
        kelpower.anova(means=[[1, 2], [1, 2, 3]], sd=1, n=10)


@pytest.mark.parametrize("shape", [(10**9,), (2, 10**9)])
def test_endless_lists_are_refused_at_once(shape):
    means = np.broadcast_to(1.0, shape)
    with pytest.raises(kelpower.InputError, match="means has 1000000000 entries, but at most 10000 are allowed"):
        kelpower.anova(means=means, sd=1, n=10)


def test_nothing_is_asked_of_no_designs():
    answers = kelpower.two_means(effect_d=np.array([]), power=0.8)
    assert answers.shape == answers.total.shape == (0,)


def test_answers_are_compared_pickled_and_varied():
    answers = kelpower.two_means(effect_d=[0.2, 0.5], power=0.8)
    assert answers == kelpower.two_means(effect_d=np.array([0.2, 0.5]), power=0.8)
    assert answers != kelpower.two_means(effect_d=[0.2, 0.5], power=0.9)
    assert pickle.loads(pickle.dumps(answers)) == answers
    assert answers.replace(power=0.9) == kelpower.two_means(effect_d=[0.2, 0.5], power=0.9)
    assert isinstance(answers.replace(effect_d=0.5), kelpower.Result)


def test_they_are_printed_as_a_table():
    text = str(kelpower.two_means(effect_d=np.linspace(0.2, 1, 30), power=0.8))
    assert text.splitlines()[2].split() == ["effect_d", "target_power", "n1", "n2", "total", "power", "status"]
    assert text.endswith("... and 10 more")


@pytest.mark.parametrize("array", [
    np.arange(1, 9, dtype=np.int16)[::-2], np.arange(1, 5, dtype=">f8"), np.array([1, 2, 3, 4], dtype=object),
    np.asfortranarray(np.arange(1.0, 5).reshape(2, 2)), np.broadcast_to(0.5, (3,)),
    np.frombuffer(np.arange(1.0, 5).tobytes())])  # fmt: skip
def test_any_array_of_numbers_will_do(array):
    answers = kelpower.two_means(effect_d=array, n=5)
    alone = [kelpower.two_means(effect_d=float(each), n=5).power for each in array.ravel()]
    assert answers.power.ravel().tolist() == alone


def test_no_other_warning_is_given():
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        kelpower.two_means(effect_d=[1e-3, 1e3], n=1000)
