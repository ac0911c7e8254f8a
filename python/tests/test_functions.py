"""Each test as a function: the answers are the program's, and the functions are what the descriptions say."""

import inspect
import json

import kelpower
import pytest
from kelpower import _core


def examples():
    for test in json.loads(_core.describe())["tests"]:
        for example in test["examples"]:
            yield pytest.param(test, example, id=example["arguments"])


def function_of(test):
    return getattr(kelpower, test["name"].replace("-", "_"))


def in_python(inputs):
    return {name.replace("-", "_"): value for name, value in inputs.items()}


@pytest.mark.parametrize(("test", "example"), list(examples()))
def test_examples_give_the_sentences_of_the_description(test, example):
    answer = function_of(test)(**in_python(example["inputs"]))
    assert answer.sentence.startswith(example["sentence"])


def test_what_is_generated_is_current():
    write = pytest.importorskip("write", reason="the generator is not part of an sdist")
    assert write.outdated(write.PACKAGE) == []


def test_each_test_has_a_function_with_its_inputs(description):
    for test in description["tests"]:
        signature = inspect.signature(function_of(test))
        assert list(signature.parameters) == list(in_python({each["name"]: 0 for each in test["parameters"]}))
        for each in test["parameters"]:
            parameter = signature.parameters[each["name"].replace("-", "_")]
            assert parameter.kind is inspect.Parameter.KEYWORD_ONLY
            assert parameter.default == each.get("default")
            assert parameter.name in function_of(test).__doc__


def test_what_is_left_out_is_solved_for():
    assert kelpower.two_means(effect_d=0.5, power=0.8).n == (64, 64)
    assert kelpower.two_means(effect_d=0.5, n=64).power == pytest.approx(0.80145955792225, abs=1e-13)
    detected = kelpower.two_means(n=64, power=0.8).effect_d
    assert kelpower.two_means(effect_d=detected, n=64).power == pytest.approx(0.8, abs=1e-12)
    assert kelpower.two_means(sd=10, n=30, power=0.8, solve="mean_difference").mean_difference > 0
    assert kelpower.two_means(sd=10, n=30, interval=True).half_width > 0


def test_what_is_planned_for_before_the_study():
    answer = kelpower.two_means(effect_d=0.5, power=0.8, cluster_size=20, icc=0.05, dropout=0.15)
    assert answer.enrol == (160, 160)
    assert answer.clusters == (8, 8)
    assert answer.design_effect == pytest.approx(1.95)
    assert kelpower.mean(sd=10, half_width=3, assurance=0.9).assurance >= 0.9


def test_a_default_that_is_given_does_not_exclude_what_it_has_no_part_in():
    ratio = kelpower.two_means.__kwdefaults__["ratio"]
    assert kelpower.two_means(effect_d=0.5, n=64, ratio=ratio).power > 0.8


@pytest.mark.parametrize("name", ["mean", "proportion"])
def test_a_function_may_have_an_argument_of_its_own_name(name):
    assert name in inspect.signature(getattr(kelpower, name)).parameters


def test_positional_arguments_are_refused():
    with pytest.raises(TypeError):
        kelpower.two_means(0.5)
    with pytest.raises(TypeError, match="effct_d"):
        kelpower.two_means(effct_d=0.5)
