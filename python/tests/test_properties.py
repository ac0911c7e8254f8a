"""Properties of the functions and ufuncs, with arguments drawn from the description of the tests.

Numbers go up to the limits of the description, which also bound the time of each answer. The same arguments are drawn
each time, unless KELPOWER_EXAMPLES asks for other ones and says how many for each test.
"""

import json
import math
import os
import pickle
import re
import struct
import warnings
from concurrent.futures import ThreadPoolExecutor
from threading import Barrier

import kelpower
import numpy as np
import pytest
from designs import TESTS, allowed, designs, parameters_of, python_name
from hypothesis import HealthCheck, given, settings
from hypothesis import strategies as st
from kelpower._ufunc_table import TABLE

EXAMPLES = os.environ.get("KELPOWER_EXAMPLES")
THREADS = 8
NEGATIVE_ZERO = re.compile(r"[=\[ ]-0[],)]")  # as a call has it, which Python reads as 0

every_test = pytest.mark.parametrize("name", TESTS)
draws = settings(max_examples=int(EXAMPLES or 25), derandomize=EXAMPLES is None, deadline=None, database=None,
                 suppress_health_check=list(HealthCheck))


def ask(name, arguments):
    """The answer, or the class of the documented exception in its place."""
    function = getattr(kelpower, python_name(name))
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", kelpower.NoSolutionWarning)
        try:
            return function(**arguments)
        except (kelpower.InputError, kelpower.NoSolution, TypeError) as error:
            return documented(error, arguments)


def documented(error, arguments):
    """The class of an exception that a function may raise."""
    assert str(error)
    if isinstance(error, TypeError):
        assert "unexpected keyword argument 'unknown'" in str(error)
        assert "unknown" in arguments
    return type(error)


def bits(value):
    """A number or list of numbers as its bits, all NaN being one."""
    if isinstance(value, (tuple, list, np.ndarray)):
        return tuple(map(bits, value))
    if isinstance(value, str) or value is None:
        return value
    number = float(value)
    return "nan" if math.isnan(number) else struct.pack("<d", number)


def check_result(answer):
    """What holds of every answer to one design."""
    assert answer.question
    assert answer.sentence.endswith(".")
    assert str(answer)
    assert json.loads(json.dumps(answer.to_dict())) is not None
    again = pickle.loads(pickle.dumps(answer))
    assert again == answer
    assert hash(again) == hash(answer)
    if not NEGATIVE_ZERO.search(repr(answer)):
        assert eval(repr(answer), {"kelpower": kelpower}) == answer
    if "power" in answer.results:
        assert 0 <= answer.power <= 1
    if "n" in answer.results:
        assert np.min(answer.n) >= 1


def check_results(answer):
    """What holds of every answer to many designs."""
    assert answer.status.shape == answer.shape
    assert set(answer.status.ravel()) <= {0, 2, 3}
    for values in answer.results.values():
        assert values.shape[: len(answer.shape)] == answer.shape
        assert np.isnan(values[answer.status != 0]).all()
    assert repr(answer)
    assert str(answer)


def check(answer):
    if isinstance(answer, kelpower.Result):
        check_result(answer)
    elif isinstance(answer, kelpower.Results):
        check_results(answer)


@every_test
def test_designs_are_answered_or_refused(name):
    @draws
    @given(designs(name))
    def answered_or_refused(arguments):
        check(ask(name, arguments))

    answered_or_refused()


@every_test
def test_nonsense_is_answered_or_refused(name):
    @draws
    @given(designs(name, with_nonsense=True))
    def answered_or_refused(arguments):
        check(ask(name, arguments))

    answered_or_refused()


@st.composite
def varied(draw, name):
    """Arguments of one test, and the same with other values for some of its numbers and lists: rows of an array."""
    arguments = draw(designs(name))
    parameters = {python_name(key): value for key, value in parameters_of(TESTS[name]).items()}
    numeric = sorted(key for key in arguments if parameters[key]["kind"] in ("number", "per-group", "list")
                     and key != "groups")
    if not numeric:
        return arguments, {}
    count = draw(st.integers(1, 4))
    rows = {}
    for key in sorted(draw(st.sets(st.sampled_from(numeric), min_size=1, max_size=3))):
        length = len(arguments[key]) if isinstance(arguments[key], tuple) else None
        each = allowed(parameters[key], length or 2).filter(
            lambda value, length=length: (len(value) if isinstance(value, tuple) else None) == length)
        rows[key] = [arguments[key], *draw(st.lists(each, min_size=count, max_size=count))]
    return arguments, rows


def rows_of(name, arguments, rows):
    """The answer to each design alone."""
    count = len(next(iter(rows.values())))
    return [ask(name, {**arguments, **{key: values[i] for key, values in rows.items()}}) for i in range(count)]


def as_array(values, is_list=False):
    """Rows of numbers, or of lists, of which one number for all groups is one with a single entry."""
    array = np.array(values, dtype=float)
    return array[:, np.newaxis] if is_list and array.ndim == 1 else array


def many(name, arguments, rows):
    kinds = {python_name(key): parameter["kind"] for key, parameter in parameters_of(TESTS[name]).items()}
    return ask(name, {**arguments, **{key: as_array(values, kinds[key] != "number") for key, values in rows.items()}})


def same(alone, row):
    """Whether a result of one design is that of a row, bit for bit. An infinite one is None in JSON, which has none."""
    if alone is None:
        return not np.isfinite(row).any()
    return bits(np.broadcast_to(alone, np.shape(row))[()]) == bits(row)


@every_test
def test_vector_equals_scalars(name):
    @draws
    @given(varied(name))
    def equal(design):
        arguments, rows = design
        if not rows:
            return
        alone, together = rows_of(name, arguments, rows), many(name, arguments, rows)
        if together is kelpower.InputError:  # what all rows share is wrong
            assert set(map(type, alone)) == {type}
            return
        assert isinstance(together, kelpower.Results)
        for i, answer in enumerate(alone):
            expected = {kelpower.InputError: 2, kelpower.NoSolution: 3}.get(answer, 0)
            assert together.status[i] == expected
            for key, values in together.results.items():
                value = math.nan if expected else answer.results.get(key, math.nan)
                assert same(value, values[i])

    equal()


@pytest.mark.parametrize("name", TABLE)
def test_ufunc_equals_function(name):
    question = TABLE[name]
    parameters = {python_name(key): value for key, value in parameters_of(TESTS[question.test]).items()}
    ufunc = getattr(kelpower.ufuncs, name)

    @draws
    @given(st.data())
    def equal(data):
        drawn = {}
        for argument, given_name, _, _ in question.arguments:
            value = data.draw(allowed(parameters[given_name], 2), argument)
            if argument == given_name and isinstance(value, tuple):
                value = as_array(value)
            elif parameters[given_name]["kind"] != "number":
                value = value[0] if isinstance(value, tuple) else value
            drawn[argument] = value
        lists = [len(value) for value in drawn.values() if isinstance(value, np.ndarray)]
        inputs = dict(question.inputs)
        for argument, given_name, entry, is_list in question.arguments:
            value = drawn[argument]
            if is_list and not isinstance(value, np.ndarray):
                value = drawn[argument] = as_array([value] * (lists[0] if lists else 2))
            if entry >= 0:
                inputs.setdefault(given_name, []).append(value)
            else:
                inputs[given_name] = value.tolist() if isinstance(value, np.ndarray) else value
        with np.errstate(invalid="ignore"):
            values = ufunc(*drawn.values())
        answer = ask(question.test, inputs)
        found = values if isinstance(values, tuple) else (values,)
        for (result, entry, is_list), value in zip(question.outputs, found, strict=True):
            expected = math.nan if isinstance(answer, type) else answer.results.get(result, math.nan)
            if isinstance(expected, tuple) and not is_list:
                expected = expected[entry]
            assert same(expected, value)

    equal()


@settings(draws, max_examples=10)
@given(st.lists(st.sampled_from(sorted(TESTS)).flatmap(lambda name: st.tuples(st.just(name), varied(name))),
                min_size=THREADS, max_size=THREADS))
def test_threads_answer_as_one(cases):
    def answers(first):
        """All cases, each thread beginning with another one."""
        found = {}
        for i in [*range(first, len(cases)), *range(first)]:
            name, (arguments, rows) = cases[i]
            found[i] = [ask(name, arguments), many(name, arguments, rows) if rows else None]
        return [found[i] for i in range(len(cases))]

    barrier = Barrier(THREADS)

    def together(first):
        barrier.wait()
        return answers(first)

    expected = answers(0)
    with ThreadPoolExecutor(THREADS) as pool:
        for found in pool.map(together, range(THREADS)):
            assert found == expected


def test_rows_on_eight_threads_equal_those_on_one():
    effects = np.linspace(-1, 1, 40_001)
    sizes = np.arange(40_001) % 200 + 2
    designs_of_rows = kelpower._many.Many("two-means", {"effect_d": effects, "n": sizes[:, np.newaxis]})
    answers = [kelpower.Results(designs_of_rows, threads) for threads in (1, THREADS)]
    assert answers[0].power.tobytes() == answers[1].power.tobytes()
    assert np.isfinite(answers[0].power).all()
