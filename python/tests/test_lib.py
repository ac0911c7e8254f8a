"""kelpower.lib: the exports of the C++ library."""

import copy
import doctest
import inspect
import itertools
import pickle
import signal
import subprocess
import sys
import textwrap
import time
from concurrent.futures import ThreadPoolExecutor

import kelpower
import numpy as np
import pytest
from kelpower import lib
from reference_cases import DOUBLE_CHARTS, MISSING, ROOT, all_cases, differences, number, numbers, signatures

SIGNATURES = signatures()
EXPORTS = [name for name in (ROOT / "src/exports.txt").read_text().split("\n") if name and not name.startswith("#")]
CALLED = [name for name in EXPORTS if not name.startswith("FreeMem")]
UFUNCS = [name for name in CALLED if isinstance(getattr(lib, name), np.ufunc)]

# Arguments that Python has no use for.
LEFT_OUT = {"v": "a vector for results", "s": "a request to stop", "n": "unused"}


def types_of(name):
    return [kind for _, kind in SIGNATURES[name][1]]


def can_be_asked(case):
    """Whether Python can ask it: without a request to stop, and without earlier content of a vector."""
    return all(
        not (kind == "s" and argument is not None) and not (kind == "v" and argument)
        for kind, argument in zip(types_of(case.function), case.arguments, strict=True)
    )


def converted(kind, argument):
    if kind == "d":
        return number(argument)
    return numbers(argument) if kind in "pP" else argument


def arguments_of(case):
    kinds = types_of(case.function)
    return [
        converted(kind, argument) for kind, argument in zip(kinds, case.arguments, strict=True) if kind not in LEFT_OUT
    ]


def asked_cases(name):
    return [case for case in all_cases()[name] if can_be_asked(case)]


def wrong_of_ufunc(name):
    """All cases in one call, and each in one of its own."""
    cases = asked_cases(name)
    function = getattr(lib, name)
    columns = [np.array(column) for column in zip(*map(arguments_of, cases), strict=True)]
    answers = function(*columns)
    together = np.column_stack(answers if function.nout == 2 else [answers])
    wrong = []
    for case, row in zip(cases, together, strict=True):
        alone = np.atleast_1d(function(*arguments_of(case)))
        assert np.array_equal(alone, row, equal_nan=True), case.place
        place = types_of(name).index("v") if function.nout == 2 else None
        expected = [case.result] if place is None else case.outputs.get(place)
        if case.is_compared:
            wrong += differences(case, "the answer", row, expected)
    return wrong


def wrong_of_chart(case, answer):
    kind = "value" if case.function in DOUBLE_CHARTS else "single"
    expected = case.result
    if isinstance(answer, lib.XYPlot):
        return differences(case, "x", answer.x, expected["x"], "grid") + differences(
            case, "y", answer.y, expected["y"], kind
        )
    assert answer.z.shape == (len(answer.x), len(answer.y))
    return (
        differences(case, "x", answer.x, expected["x"], "grid")
        + differences(case, "y", answer.y, expected["y"], "grid")
        + differences(case, "z", answer.z, expected["z"], kind)
    )


def wrong_of_arrays(case, answer):
    kinds = types_of(case.function)
    if "v" not in kinds:
        return differences(case, "the answer", answer, [case.result])
    sizes = case.outputs.get(kinds.index("v"), [])
    return differences(case, "total", answer.total, [case.result]) + differences(
        case, "groupSizes", answer.groupSizes, sizes
    )


def wrong_of_function(name):
    wrong = []
    function, kinds = getattr(lib, name), types_of(name)
    for case in asked_cases(name):
        arguments = arguments_of(case)
        before = copy.deepcopy(arguments)
        if "P" in kinds:
            place = kinds.index("P")
            repaired = numbers(case.arguments[place])
            answer = function(*arguments, repaired=repaired)
        else:
            answer = function(*arguments)
        assert all(np.array_equal(a, b, equal_nan=True) for a, b in zip(arguments, before, strict=True)), case.place
        if not case.is_compared:
            continue
        wrong += wrong_of_chart(case, answer) if hasattr(answer, "x") else wrong_of_arrays(case, answer)
        if "P" in kinds:
            wrong += differences(case, "repaired", repaired, case.outputs.get(place, case.arguments[place]))
    return wrong


def test_every_export_is_there_once():
    others = {"MISSING", "Sizes", "XYPlot", "XYZPlot"}
    assert sorted(EXPORTS) == sorted(set(lib.__all__) - others)
    assert len(EXPORTS) == 165


@pytest.mark.parametrize("name", CALLED)
def test_reference_cases(name):
    wrong = wrong_of_ufunc(name) if name in UFUNCS else wrong_of_function(name)
    assert wrong == []


def test_which_cases_are_not_asked():
    cases = list(itertools.chain.from_iterable(all_cases().values()))
    left_out = [case for case in cases if not can_be_asked(case)]
    stopped = [case for case in left_out if "s" in types_of(case.function) and case.arguments[-1] is not None]
    assert {case.function for case in cases} == set(CALLED)
    # With a request that stops at the given question, or with earlier content of a vector of C++.
    assert (len(left_out), len(stopped)) == (728, 527)


def test_missing():
    assert lib.MISSING == kelpower.MISSING == MISSING
    assert lib.EffectSizeOneSample(5, 0, 3) == kelpower.MISSING


@pytest.mark.parametrize("name", UFUNCS)
def test_ufuncs_have_the_arguments_of_the_header(name):
    ufunc = getattr(lib, name)
    kept = [kind for kind in types_of(name) if kind not in LEFT_OUT]
    codes = {"d": "d", "i": np.dtype(np.int64).char, "b": np.dtype(np.int64).char}
    outputs = "dd" if SIGNATURES[name][0] == "void" else "d"
    assert ufunc.types == ["".join(codes[kind] for kind in kept) + "->" + outputs]


@pytest.mark.parametrize("name", [name for name in CALLED if name not in UFUNCS])
def test_functions_have_the_arguments_of_the_header(name):
    kept = [argument for argument, kind in SIGNATURES[name][1] if kind not in LEFT_OUT]
    found = list(inspect.signature(getattr(lib, name)).parameters)
    optional = ["repaired"] if "P" in types_of(name) else []
    assert found == [argument + "_" * (argument == "from") for argument in kept] + optional


def test_the_length_of_arrays_is_the_first_integer():
    for name, (_, arguments) in SIGNATURES.items():
        if {"p", "P"} & {kind for _, kind in arguments}:
            assert next(argument for argument, kind in arguments if kind == "i") == "numGroups", name


@pytest.mark.parametrize("name", EXPORTS)
def test_docstrings_name_every_argument(name):
    doc = inspect.getdoc(getattr(lib, name))
    listed = doc.split("Parameters\n----------\n")[1].split("\n\n")[0].splitlines()
    names = ", ".join(line.split(" : ")[0] for line in listed if not line.startswith(" "))
    documented = names.replace("from_", "from").split(", ")
    for argument, kind in SIGNATURES[name][1]:
        if kind not in LEFT_OUT:
            assert argument in documented


def test_ufuncs_broadcast():
    sizes = np.array([10, 20, 40])
    effects = np.array([[0.2], [0.5]])
    powers = lib.PowerOneSampleNondirectionalES(sizes, effects, 0.05)
    assert powers.shape == (2, 3)
    assert powers[1, 2] == lib.PowerOneSampleNondirectionalES(40, 0.5, 0.05)
    first, second = lib.PowerReverseIndependentNondirectionalES(0.8, [1, 2], 0.5, 0.05)
    assert first.tolist() == [64, 48]
    assert second.tolist() == [64, 96]


def test_ufuncs_take_out_and_where():
    out = np.zeros(3)
    answer = lib.InvTanh([0.1, 0.2, 0.3], out=out, where=[True, False, True])
    assert answer is out
    assert out.tolist() == [np.arctanh(0.1), 0.0, lib.InvTanh(0.3)]


def test_ufuncs_keep_what_pandas_has():
    pandas = pytest.importorskip("pandas")
    series = pandas.Series([0.1, 0.2], index=["a", "b"], name="r")
    answer = lib.InvTanh(series)
    assert isinstance(answer, pandas.Series)
    assert answer["b"] == lib.InvTanh(0.2)
    first, second = lib.PowerReverseIndependentNondirectionalES(0.8, 1, series, 0.05)
    assert first.index.tolist() == second.index.tolist() == ["a", "b"]


@pytest.mark.parametrize("kind", [np.int8, np.int16, np.int32, np.int64, np.uint8, np.uint32, np.bool_])
def test_flags_are_any_integers(kind):
    expected = lib.PowerOneSampBinom(50, 0.7, 0.5, 1, 1, 0.05, 1)
    one = np.array([1], dtype=kind)
    assert lib.PowerOneSampBinom(50, 0.7, 0.5, one, one, 0.05, one).tolist() == [expected]
    assert lib.PowerOneSampBinom(50, 0.7, 0.5, True, True, 0.05, True) == expected


@pytest.mark.parametrize("kind", [np.float16, np.float32, np.int8, np.uint16, np.int64])
def test_numbers_are_computed_in_double(kind):
    sizes = np.array([20, 40], dtype=kind)
    powers = lib.PowerOneSampleNondirectionalES(sizes, 0.5, 0.05)
    assert powers.dtype == np.float64
    assert powers.tolist() == lib.PowerOneSampleNondirectionalES(sizes.astype(float), 0.5, 0.05).tolist()


def test_flags_are_no_fractions():
    with pytest.raises(TypeError):
        lib.PowerOneSampBinom(50, 0.7, 0.5, 1.5, 1, 0.05, 1)


@pytest.mark.parametrize("yes", [1, 2, 255, 256, 512, -1, -256, 2**40, -(2**62)])
def test_a_flag_of_one_byte_stays_a_yes(yes):
    # Newcombe's interval is corrected for every value but 0.
    corrected = lib.HalfCIIndSampBinom(50, 60, 0.3, 0.5, 5, 0.05, 1)
    assert corrected != lib.HalfCIIndSampBinom(50, 60, 0.3, 0.5, 5, 0.05, 0)
    assert lib.HalfCIIndSampBinom(50, 60, 0.3, 0.5, 5, 0.05, yes) == corrected


@pytest.mark.parametrize("code", [7, 2**31, 2**32, 2**62, -(2**31) - 1, -(2**32)])
def test_a_code_stays_another_one(code):
    assert lib.HalfCIOneSampBinom(50, 0.3, code, 0.05, 0) == 0


@pytest.mark.parametrize("groups", [2**31, 2**32 + 2, 2**70])
def test_numbers_of_groups_do_not_wrap(groups):
    with pytest.raises(ValueError, match="numGroups"):
        lib.SampleSizeTotal(groups, [1.0, 2.0])
    assert lib.SampleSizeTotal(-groups, [1.0, 2.0]) == 0


SPECIAL = [np.nan, np.inf, -np.inf, 0.0, -0.0, -1.0, 1.0, 5e-324, 1e-300, 1e300, -1e300, MISSING, 2.0**31, 1e17]


def is_exact_test(case):
    names = [argument for argument, _ in SIGNATURES[case.function][1]]
    choice = "exact" if "exact" in names else "method"
    return choice in names and case.arguments[names.index(choice)] != 0


@pytest.mark.parametrize("name", UFUNCS)
def test_ufuncs_answer_any_number(name):
    """And without a warning, which would be an error here. Unreachable exact tests may search without an end."""
    ufunc = getattr(lib, name)
    kinds = [kind for kind in types_of(name) if kind not in LEFT_OUT]
    case = next(case for case in asked_cases(name) if not is_exact_test(case))
    usual = arguments_of(case)
    for place, kind in enumerate(kinds):
        if kind != "d":
            continue
        varied = [*usual[:place], np.array(SPECIAL), *usual[place + 1 :]]
        for answer in np.atleast_2d(ufunc(*varied)):
            assert answer.shape == (len(SPECIAL),)
        for index, special in enumerate(SPECIAL):
            alone = np.atleast_1d(ufunc(*usual[:place], special, *usual[place + 1 :]))
            together = np.atleast_2d(ufunc(*varied))[:, index]
            assert np.array_equal(alone, together, equal_nan=True)


def test_nothing_is_computed_for_empty_arrays():
    assert lib.InvTanh(np.empty(0)).shape == (0,)
    assert lib.PowerOneSampleNondirectionalES(np.empty((0, 3)), 0.5, 0.05).shape == (0, 3)


def test_groups():
    power = lib.PowerOverallTest(3, [10, 12, 15], 6, [20, 20, 20], 0.05)
    assert power == lib.PowerOverallTest(
        numGroups=3, groupMeans=(10, 12, 15), pooledSD=6, groupSizes=np.full(3, 20), alpha=0.05
    )
    sizes = lib.PowerReverseOverallTest(3, [10, 12, 15], 6, [1, 1, 2], 0.8, 0.05)
    assert isinstance(sizes, lib.Sizes)
    assert sizes.total == sum(sizes.groupSizes)
    assert lib.PowerOverallTest(3, [10, 12, 15], 6, sizes.groupSizes, 0.05) >= 0.8


def test_coefficients_are_repaired_for_whom_wants_it():
    given = np.array([1.0, 0.0, 0.0])
    repaired = np.zeros(3)
    assert lib.EffectSizeSC(3, [10, 12, 15], 6, given) == lib.EffectSizeSC(3, [10, 12, 15], 6, given, repaired=repaired)
    assert given.tolist() == [1, 0, 0]
    assert repaired.tolist() == [1, 0, -1]
    for wrong in ([0.0] * 3, np.zeros(3, int), np.zeros(2), np.zeros(6)[::2], np.broadcast_to(0.0, 3)):
        with pytest.raises(TypeError, match="repaired"):
            lib.EffectSizeSC(3, [10, 12, 15], 6, given, repaired=wrong)
        with pytest.raises(TypeError, match="repaired"):
            lib.PlotNSC(3, [10, 12, 15], 6, [20] * 3, given, 0, 0, 0, 0.05, repaired=wrong)
    assert lib.EffectSizeSC(3, [10, 12, 15], 6, given, repaired=None) == lib.EffectSizeSC(3, [10, 12, 15], 6, given)


def test_charts():
    curve = lib.PlotNOneSampleFES(0.5, 10, 20, 0, 0.05)
    assert isinstance(curve, lib.XYPlot)
    assert curve.x.tolist() == list(range(10, 21))
    assert curve.y.tolist() == lib.PowerOneSampleNondirectionalES(curve.x, 0.5, 0.05).astype(np.float32).tolist()
    surface = lib.PlotNaESOneSample(10, 20, 0.1, 0.9, 0, 0.05, 0.25)
    assert surface.z.shape == (len(surface.x), len(surface.y))
    powers = lib.PowerOneSampleNondirectionalES(surface.y, surface.x[:, None], 0.05)
    assert np.allclose(surface.z, powers, rtol=1e-6, atol=0)
    assert lib.FreeMemXYPlot(curve) is None
    assert lib.FreeMemXYZPlot(surface) is None
    assert curve.y[0] > 0
    empty = lib.PlotNOneSampleFES(0.5, 20, 10, 0, 0.05)
    assert (len(empty.x), len(empty.y)) == (0, 0)
    assert lib.PlotNaESOneSample(20, 10, 0.1, 0.9, 0, 0.05, 0.25).z.shape == (0, 0)
    with pytest.raises(TypeError):
        lib.FreeMemXYPlot(surface)


@pytest.mark.parametrize(
    ("arguments", "error", "text"),
    [
        ((3, [1, 2], 6, [20] * 3, 0.05), ValueError, "groupMeans has 2 numbers, but numGroups is 3"),
        ((3, [1, 2, 3], 6, [20] * 2, 0.05), ValueError, "groupSizes has 2 numbers"),
        ((3, [1, 2, 3], 6, [20] * 3), TypeError, "needs the argument 'alpha'"),
        ((3, [1, 2, 3], 6, [20] * 3, 0.05, 1), TypeError, "takes 5 arguments, but 6 were given"),
        ((3, ["a", "b", "c"], 6, [20] * 3, 0.05), ValueError, "a"),
        ((3, [[1, 2, 3]], 6, [20] * 3, 0.05), ValueError, "a sequence of numbers is expected"),
        ((3, 1.0, 6, [20] * 3, 0.05), ValueError, "a sequence of numbers is expected"),
        ((3, [1j, 2, 3], 6, [20] * 3, 0.05), TypeError, "complex"),
        ((3, None, 6, [20] * 3, 0.05), ValueError, "a sequence of numbers is expected"),
        ((3.0, [1, 2, 3], 6, [20] * 3, 0.05), TypeError, "integer"),
        ((3, [1, 2, 3], "6", [20] * 3, 0.05), TypeError, "real number"),
    ],
)
def test_wrong_arguments_of_functions(arguments, error, text):
    with pytest.raises(error, match=text):
        lib.PowerOverallTest(*arguments)


def test_wrong_names_of_arguments():
    with pytest.raises(TypeError, match="no argument 'beta'"):
        lib.PowerOverallTest(3, [1, 2, 3], 6, [20] * 3, 0.05, beta=0.2)
    with pytest.raises(TypeError, match="'alpha' twice"):
        lib.PowerOverallTest(3, [1, 2, 3], 6, [20] * 3, 0.05, alpha=0.2)


@pytest.mark.parametrize("name", ["InvTanh", "PowerOverallTest", "PlotNSC"])
def test_functions_are_pickled_by_name(name):
    function = getattr(lib, name)
    assert pickle.loads(pickle.dumps(function)) is function


def test_answers_are_pickled():
    curve = pickle.loads(pickle.dumps(lib.PlotNOneSampleFES(0.5, 10, 12, 0, 0.05)))
    assert isinstance(curve, lib.XYPlot)
    assert curve.x.tolist() == [10, 11, 12]


def test_eight_threads_equal_one():
    names = [
        "PowerIndependentNondirectional",
        "PowerIndSampBinom",
        "PowerReversebyHalfCIOneSampPearson",
        "PowerReverseSC",
        "PlotNaESOneSample",
    ]

    def answers(name):
        found = [getattr(lib, name)(*arguments_of(case)) for case in asked_cases(name)[:60]]
        return pickle.dumps(found)

    alone = [answers(name) for name in names]
    with ThreadPoolExecutor(8) as threads:
        assert list(threads.map(answers, names * 8)) == alone * 8


# What takes long: exact searches without a question within, the exact conditional test, and an array of quick searches,
# which NumPy converts in parts.
LONG_CALLS = {
    "exact": "lib.PowerReverseIndSampBinom(0.8, np.full(1000, 0.3), 0.31, 1, 1, 0, 0, 0.05, 0, 1)",
    "one": "lib.PowerReverseIndSampBinom(0.8, 0.3, 0.301, 1, 1, 3, 0, 0.05, 0, 1)",
    "array": "lib.PowerReverseOneSampleNondirectionalES(0.8, np.full(10**7, 0.1, np.float32), 0.05)",
}


def run_until_interrupted(program):
    process = subprocess.Popen([sys.executable, "-c", textwrap.dedent(program)], stdout=subprocess.PIPE, text=True)
    assert process.stdout.readline() == "begins\n"
    time.sleep(0.5)
    process.send_signal(signal.SIGINT)
    output, _ = process.communicate(timeout=60)
    return output, process.returncode


@pytest.mark.skipif(sys.platform == "win32", reason="a process cannot be sent an interrupt alone")
@pytest.mark.parametrize("call", LONG_CALLS.values(), ids=LONG_CALLS)
def test_an_interrupt_ends_a_long_call(call):
    program = f"""
        import numpy as np
        from kelpower import lib
        try:
            print("begins", flush=True)
            {call}
            print("was not interrupted")
        except KeyboardInterrupt:
            print("interrupted", lib.InvTanh(0.0))
    """
    assert run_until_interrupted(program) == ("interrupted 0.0\n", 0)


@pytest.mark.skipif(not hasattr(signal, "setitimer"), reason="needs a timer")
@pytest.mark.parametrize("call", LONG_CALLS.values(), ids=LONG_CALLS)
def test_an_exception_of_a_signal_handler_ends_a_long_call(call):
    class TooLong(Exception):
        pass

    raised = TooLong("the very one")

    def handle(*_):
        raise raised

    before = signal.signal(signal.SIGALRM, handle)
    try:
        signal.setitimer(signal.ITIMER_REAL, 0.1)
        with pytest.raises(TooLong) as caught:
            eval(call, {"lib": lib, "np": np})
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, before)
    assert caught.value is raised


# A chart of a billion points, and the probabilities of an exact test of 400 million subjects in a ufunc.
LARGE_CALLS = {
    "chart": "lib.PlotESOneSample(20, 0, 2, 0, 0.05, 1e-9)",
    "ufunc": "lib.PowerIndSampBinom(2e8, 2e8, 0.5, 0.50001, 1, 0, 0, 0.05, 0, 1)",
}


@pytest.mark.skipif(not sys.platform.startswith("linux"), reason="tells the memory that is used as Linux does")
@pytest.mark.parametrize("call", LARGE_CALLS.values(), ids=LARGE_CALLS)
def test_memory_running_out_is_an_exception(call):
    program = f"""
        import resource
        from kelpower import lib
        with open("/proc/self/statm") as file:
            used = int(file.read().split()[0]) * resource.getpagesize()
        resource.setrlimit(resource.RLIMIT_AS, (used + 2**22, used + 2**22))
        try:
            {call}
            print("there was enough")
        except MemoryError:
            print("no memory")
    """
    command = [sys.executable, "-c", textwrap.dedent(program)]
    done = subprocess.run(command, stdout=subprocess.PIPE, text=True, timeout=60)
    assert (done.stdout, done.returncode) == ("no memory\n", 0)


def test_documentation():
    run = doctest.testfile(str(ROOT / "docs/python-lib.md"), module_relative=False)
    assert run.attempted > 10
    assert run.failed == 0


def test_generated_files_are_current():
    tool = ROOT / "tools/python/write_lib.py"
    done = subprocess.run([sys.executable, str(tool), "--check"], stdout=subprocess.PIPE, text=True)
    assert (done.stdout, done.returncode) == ("", 0)
