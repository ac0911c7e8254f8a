"""Rows of frames are answered as the functions answer single designs, for arguments drawn from the description."""

import math
import warnings

import kelpower
import pytest
from designs import TESTS, designs, python_name
from hypothesis import HealthCheck, given, settings
from hypothesis import strategies as st
from kelpower._catalogue import find

pd = pytest.importorskip("pandas")
pl = pytest.importorskip("polars")
pa = pytest.importorskip("pyarrow")

# They decide what is asked, or how long lists are.
SHARED = {"interval", "solve"} | {
    python_name(parameter["name"])
    for test in TESTS.values()
    for parameter in test["parameters"]
    if parameter.get("role") == "shape"
}
TARGETS = ("power", "half_width", "assurance")

draws = settings(
    max_examples=25, derandomize=True, deadline=None, database=None, suppress_health_check=list(HealthCheck)
)


@st.composite
def questions(draw, name):
    """Arguments, and which of them are columns."""
    arguments = draw(designs(name))
    varying = draw(st.sets(st.sampled_from(sorted(arguments.keys() - SHARED) or [""])))
    return arguments, varying & arguments.keys()


def columns_of(arguments):
    """A column for each number, with the names of frames."""
    columns = {}
    for name, value in arguments.items():
        shown = f"target_{name}" if name in TARGETS else name
        entries = dict(enumerate(value, 1)) if isinstance(value, tuple) else {"": value}
        columns |= {f"{shown}{entry}": each for entry, each in entries.items()}
    return columns


def outcome(name_of_test, arguments):
    """The status of a single design, and its results by the names of columns."""
    try:
        results = getattr(kelpower, python_name(name_of_test))(**arguments).results
    except kelpower.InputError:
        return 2, {}
    except kelpower.NoSolution:
        return 3, {}
    sizes = columns_of({name: value for name, value in results.items() if name in find(name_of_test).sizes})
    if any(value is not None and value >= 2**63 for value in sizes.values()):
        return 3, {}
    columns = sizes | {name: value for name, value in results.items() if not isinstance(value, tuple)}
    return 0, {name: value for name, value in columns.items() if value is not None}


def found_in(row, columns):
    """The results of a row, but for figures that are infinite: an answer as JSON has none."""
    results = {name: value for name, value in row.items() if name not in columns and name != "status"}
    return {name: value for name, value in results.items() if not pd.isna(value) and abs(value) != math.inf}


@pytest.mark.long
@pytest.mark.parametrize("name", TESTS)
def test_rows_are_answered_as_single_designs(name):
    @draws
    @given(questions(name))
    def check(question):
        arguments, varying = question
        fixed = {each: value for each, value in arguments.items() if each not in varying}
        columns = columns_of({each: arguments[each] for each in sorted(varying)})
        status, results = outcome(name, arguments)
        rows = {each: [value, value] for each, value in columns.items()} | {"row": [1, 2]}
        try:
            frames = [
                kelpower.solve_frame(make(rows), test=name, **fixed)
                for make in (pd.DataFrame, lambda each: pl.DataFrame(each, strict=False), pa.table)
            ]
        except kelpower.InputError:
            assert status == 2, results
            return
        for frame in frames:
            last = frame.to_pandas().iloc[1] if not isinstance(frame, pd.DataFrame) else frame.iloc[1]
            assert last["status"] == status
            assert found_in(last, rows) == results

    check()


@pytest.mark.long
@pytest.mark.parametrize("name", TESTS)
def test_grids_are_answered_as_single_designs(name):
    @draws
    @given(questions(name))
    def check(question):
        arguments, varying = question
        if isinstance(arguments.get("ratios"), (int, float)):
            arguments["ratios"] = (arguments["ratios"],)  # a flat list of them is one list
        status, results = outcome(name, arguments)
        values = {
            each: [value, value] if each in varying else [value] if isinstance(value, tuple) else value
            for each, value in arguments.items()
        }
        try:
            with warnings.catch_warnings():
                warnings.simplefilter("ignore", kelpower.NoSolutionWarning)
                frame = kelpower.grid(name, **values)
        except kelpower.InputError:
            assert status == 2, results
            return
        assert len(frame) == 2 ** len(varying)
        last = frame.iloc[-1]
        assert last["status"] == status
        assert found_in(last, {*columns_of(arguments), "ratios"}) == results

    check()
