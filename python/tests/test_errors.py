"""What is wrong is said in one sentence, in Python's names."""

import pickle
from decimal import Decimal

import kelpower
import numpy as np
import pytest


def problem(**inputs):
    with pytest.raises(kelpower.InputError) as caught:
        kelpower.two_means(**inputs)
    return caught.value


def test_an_argument_out_of_range():
    error = problem(effect_d=0.5, power=80)
    assert (error.parameter, error.value, error.allowed) == (
        "power", 80, "a number between 0 and 1, neither included")  # fmt: skip
    assert str(error) == "power is 80, but must be a number between 0 and 1, neither included."
    assert error.code == "not-allowed"
    assert isinstance(error, ValueError)


def test_names_are_those_of_python():
    assert "effect_d" in str(problem(effect_d="large", n=20))
    assert "effect-d" not in str(problem(effect_d="large", n=20))
    assert set(problem(effect_d=0.5, means=[1, 2], sd=1, n=20).parameters) >= {"effect_d", "means"}
    assert problem(n=30, power=0.8, sd=10, solve="nothing").allowed.startswith("effect_d, mean_difference")


NO_NUMBERS = [
    float("nan"), float("inf"), -float("inf"), 10**400, 1e300, type(None), "x", b"x", {}, object(), 1j, Decimal("NaN"),
    np.float64("nan"), np.datetime64("NaT", "s"),
]  # fmt: skip
HALVES = [0.5, np.float32(0.5), np.float64(0.5), np.array(0.5), Decimal("0.5"), np.longdouble(0.5)]


@pytest.mark.parametrize("value", NO_NUMBERS)
def test_what_is_no_number_is_refused_by_name(value):
    assert "effect_d" in str(problem(effect_d=value, n=20))


@pytest.mark.parametrize("value", HALVES)
def test_what_is_like_a_number_is_one(value):
    assert kelpower.two_means(effect_d=value, n=np.int64(64)).power == kelpower.two_means(effect_d=0.5, n=64).power


def test_no_solution_says_why():
    with pytest.raises(kelpower.NoSolution, match="The effect size is zero") as caught:
        kelpower.two_means(effect_d=0, power=0.8)
    assert caught.value.code == "no-effect"
    assert caught.value.parameters == ("effect_d",)
    assert isinstance(caught.value, ArithmeticError)


def test_errors_survive_pickling():
    error = pickle.loads(pickle.dumps(problem(effect_d=0.5, power=80)))
    assert (type(error), error.parameter, str(error)) == (
        kelpower.InputError, "power", str(problem(effect_d=0.5, power=80)))  # fmt: skip
    with pytest.raises(kelpower.NoSolution) as caught:
        kelpower.two_means(effect_d=0, power=0.8)
    assert pickle.loads(pickle.dumps(caught.value)).code == "no-effect"


def test_all_errors_have_one_base():
    assert issubclass(kelpower.InputError, kelpower.KelpowerError)
    assert issubclass(kelpower.NoSolution, kelpower.KelpowerError)
