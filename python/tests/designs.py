"""Strategies of Hypothesis for the arguments of every test, made from the description alone."""

import json
import math
from decimal import Decimal
from fractions import Fraction
from functools import cache

import kelpower
import numpy as np
from hypothesis import strategies as st

DESCRIPTION = json.loads(kelpower._core.describe())
TESTS = {test["name"]: test for test in DESCRIPTION["tests"]}
LARGEST = {"number": 1e6, "per-group": 1e6, "list": 1e6}  # where the description has no limit
MOST_GROUPS = 5
TARGETS = {"power": "power", "sample-size": "power", "sample-size-for-half-width": "half-width"}


def python_name(name):
    return name.replace("-", "_")


def parameters_of(test):
    return {parameter["name"]: parameter for parameter in test["parameters"]}


@cache
def numbers(lowest, highest, whole, without_lowest, without_highest):
    """Numbers within limits, the limits themselves among them, and as many small as large ones."""
    if whole:
        exponents = st.floats(math.log(max(lowest, 1)), math.log(highest))
        spread = exponents.map(lambda x: min(max(round(math.exp(x)), lowest), highest))
        return st.one_of(st.integers(int(lowest), int(min(highest, lowest + 100))), spread, spread.map(float))
    return st.one_of(
        st.floats(lowest, highest, exclude_min=without_lowest, exclude_max=without_highest),
        st.floats(max(lowest, -3.0), min(highest, 3.0), exclude_min=without_lowest and lowest >= -3,
                  exclude_max=without_highest and highest <= 3))


def allowed_number(parameter):
    limits = parameter["limits"]
    lowest = limits.get("minimum", limits.get("exclusive-minimum", -LARGEST[parameter["kind"]]))
    highest = limits.get("maximum", limits.get("exclusive-maximum", LARGEST[parameter["kind"]]))
    return numbers(lowest, highest, limits.get("whole", False), "exclusive-minimum" in limits,
                   "exclusive-maximum" in limits)


def allowed(parameter, groups):
    """Values that the description allows for a parameter."""
    if parameter["kind"] == "flag":
        return st.booleans()
    if parameter["kind"] == "choice":
        return st.sampled_from([python_name(choice) if parameter["name"] == "solve" else choice
                                for choice in parameter["choices"]])
    if parameter["kind"] == "number":
        return allowed_number(parameter)
    length = parameter.get("length", 2 if parameter["kind"] == "list" else groups)
    entries = st.tuples(*[allowed_number(parameter)] * length)
    return st.one_of(entries, allowed_number(parameter)) if parameter.get("spreads") else entries


def nested(depth):
    """A list of a list of a list ..., with a number inside."""
    value = 0.5
    for _ in range(depth):
        value = [value]
    return value


NONSENSE = st.one_of(
    st.sampled_from([None, math.nan, math.inf, -math.inf, -0.0, 5e-324, 1.7976931348623157e308, 10**400, -(10**400), "",
                     "0.5", "abc", "\x00", "\ud800", "z" * 100_000, b"0.5", 1j, Decimal("0.5"), Fraction(1, 3), (), [],
                     {}, set(), {"a": 1}, object(), int, lambda: 0, ..., NotImplemented, [[]], [[[1.0]]], [None],
                     [math.nan], ["a"], [0.5, "b"], (0.5, None), range(3), True, False, [True, False]]),
    st.sampled_from([np.float64(0.5), np.float32(0.5), np.float16(0.5), np.longdouble(0.5), np.int8(2),
                     np.uint64(2**63), np.bool_(True), np.str_("z"), np.complex128(1j), np.array(0.5), np.ma.masked,
                     np.datetime64("2026-01-01"), np.array([]), np.array([0.5, np.nan]), np.array(["a"]),
                     np.array([None]), np.zeros((2, 3)), np.zeros((2, 0)), np.array([1j]),
                     np.array([0.5, 0.2])[::-1]]),
    st.sampled_from([nested(30), nested(100), nested(5000), ["a"] * 100_000, [math.nan] * 20_000, [[0.5]] * 20_000]),
    st.floats(), st.integers(), st.text(max_size=5), st.lists(st.floats(), max_size=4))


@st.composite
def designs(draw, name, with_nonsense=False):
    """Arguments of a call of one test: those of one of its routes, with some left out or replaced by nonsense."""
    test = TESTS[name]
    parameters = parameters_of(test)
    route = draw(st.sampled_from(test["routes"]))
    groups = draw(st.integers(2, MOST_GROUPS)) if test["groups"] == "k" else int(test["groups"])
    names = set(route["needs"])
    names |= draw(st.sets(st.sampled_from(sorted(route["accepts"])), max_size=3)) if route["accepts"] else set()
    names |= question_names(route["question"])
    if draw(st.booleans()):
        names.add("alpha")
    if draw(st.sampled_from([True, False, False, False])) and "solve" in parameters:
        names |= {"solve", "n", "power"}
    arguments = {}
    for one in sorted(names & set(parameters)):
        value = allowed(parameters[one], groups)
        if parameters[one]["kind"] == "flag" and one in route["needs"]:
            value = st.just(True)
        arguments[python_name(one)] = draw(value)
    if "groups" in arguments:
        arguments["groups"] = groups
    if "coefficients" in arguments:  # they must sum to zero
        weights = draw(st.tuples(*[st.integers(-9, 9)] * (groups - 1)))
        arguments["coefficients"] = (*weights, -sum(weights))
    if "pair" in arguments:  # groups that there are
        arguments["pair"] = tuple(draw(st.permutations(range(1, groups + 1)))[:2])
    if "half_width" in arguments and "power" in arguments:
        del arguments["power"]
    if with_nonsense:
        spoilt = draw(st.sets(st.sampled_from([python_name(one) for one in parameters] + ["unknown"]), min_size=1,
                              max_size=2))
        arguments |= {one: draw(NONSENSE) for one in sorted(spoilt)}
    return arguments


def question_names(question):
    """What asks for the question of a route."""
    if question == "half-width":
        return {"interval"}
    return {TARGETS[question]} if question.startswith("sample-size") else set()
