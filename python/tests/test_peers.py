"""The cases of statsmodels' and pingouin's own tests of power, asked of kelpower.

The cases are data in peers/, made by peers/extract.py. Each is compared at the tolerance of the test it comes from,
unless peers/differences.json explains why the two differ, or why kelpower has no such question. What is explained is
shown to be so.
"""

import json
import math
from pathlib import Path

import kelpower
import peers_explained
import pytest
from peers_asked import Untranslated, asked, value_of

HERE = Path(__file__).parent / "peers"
DIFFERENCES = json.loads((HERE / "differences.json").read_text())


def load(peer):
    return {f"{peer}/{case['id']}": case for case in json.loads((HERE / f"{peer}.json").read_text())["cases"]}


CASES = load("statsmodels") | load("pingouin")
EXPLAINED = {case: entry for entry in DIFFERENCES["explained"] for case in entry["cases"]}
WITHOUT = {case: entry["reason"] for entry in DIFFERENCES["without"] for case in entry["cases"]}
COMPARED = [case for case in CASES if case not in EXPLAINED and case not in WITHOUT]


def bounds(case, expected):
    """The numbers that the other package's test takes for the expected one."""
    tolerance = case.get("absolute", 0.0) + case.get("relative", 0.0) * abs(expected)
    return expected - tolerance, expected + tolerance


def agrees(case):
    """Whether our answer is what the case expects. A size agrees if it is one within the tolerance, rounded up."""
    question, relation = case["question"], case["relation"]
    if relation == "raises":
        with pytest.raises((kelpower.InputError, kelpower.NoSolution, TypeError)):
            asked(question).answer()
        return True
    if relation == "close":
        low, high = bounds(case, value_of(case["expected"]))
        one = asked(question) if "call" in question else None
        if one is not None and one.unrounded is not None:
            size = one.unrounded(one.number(one.answer()))
            return math.ceil(one.unrounded(low) - 1e-9) <= round(size, 6) <= math.ceil(one.unrounded(high) - 1e-9)
        return low <= value_of(question) <= high
    value = value_of(question)
    if relation in ("isnan", "warns"):  # there a warning stands in place of an answer
        return math.isnan(value)
    if relation in ("answers", "isfinite"):
        return math.isfinite(value)
    expected = value_of(case["expected"])
    return {"equal": value == expected, "less": value < expected, "greater": value > expected}[relation]


@pytest.mark.parametrize("name", COMPARED)
def test_agrees(name):
    assert agrees(CASES[name])


@pytest.mark.parametrize("name", EXPLAINED)
def test_differs_for_the_reason_that_is_given(name):
    entry, case = EXPLAINED[name], CASES[name]
    assert entry["reason"]
    assert getattr(peers_explained, entry["check"])(case)


@pytest.mark.parametrize("name", [name for name, entry in EXPLAINED.items() if entry.get("differs", True)])
def test_what_is_explained_does_differ(name):
    try:
        agreed = agrees(CASES[name])
    except (kelpower.InputError, kelpower.NoSolution, pytest.fail.Exception):
        agreed = False
    assert not agreed


@pytest.mark.parametrize("name", WITHOUT)
def test_has_no_counterpart(name):
    """The reason is given, and it is the translation that says so."""
    assert WITHOUT[name]
    question = CASES[name]["question"]
    with pytest.raises(Untranslated):
        (asked if "call" in question else value_of)(question)


def test_lists_name_cases_that_exist():
    assert set(EXPLAINED) | set(WITHOUT) <= set(CASES)
    assert not set(EXPLAINED) & set(WITHOUT)
    assert len(COMPARED) > 150
