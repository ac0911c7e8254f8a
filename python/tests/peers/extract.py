"""Writes the cases of statsmodels' and pingouin's own tests of power as data, beside this file.

Usage: extract.py STATSMODELS.whl PINGOUIN.tar.gz
(statsmodels' wheel and pingouin's source distribution have their tests)

Arguments and expected numbers are taken, and no code.
"""

import collections
import json
import re
import sys
import tarfile
import unittest
import warnings
import zipfile
from pathlib import Path

import numpy
from recorder import Call, Function, Module, Numpy, Pytest, Recorder, definitions, parameter_sets, signatures_of

HERE = Path(__file__).parent
ORIGINS = re.compile(r"pwr\.|R::pwr|Gplus|GPower|Stata|PASS|against R|from R|pwr R package|regression test|from blog")
PROPORTION_TESTS = ("test_samplesize_confidenceinterval_prop", "test_proportion_effect_size", "test_power_binom_tost",
                    "test_power_ztost_prop", "test_power_ztost_prop_norm", "test_power_2indep",
                    "test_samplesize_proportions_2indep_onetail_alternative")
PICTURES = {"test": "test_power_plot", "reason": "draws pictures and expects nothing of them"}
REPEATED = {"test": "test_positional", "reason": "repeats test_power with arguments by position"}
EXPECTED_FAILURE = "expected to fail there"


class Holder:
    """What statsmodels' tests keep expected numbers in."""


def origin(lines, line):
    """The nearest comment before a line, in its function or class, that says where numbers come from."""
    for text in reversed(lines[:line]):
        if ORIGINS.search(text) and re.match(r'\s*#|\s*"""|\s*Values are|.*  # PASS', text):
            return re.sub(r"^[^#]*#(?= PASS)", "", text).strip('#" >.')
        if re.match(r"(class|def|    def test_)", text):
            return None
    return None


def plain(value):
    """A value as JSON has it. A call is an object with its name and arguments."""
    if isinstance(value, Call):
        if isinstance(value.operands, dict):
            return {"call": value.operation, "arguments": {name: plain(one) for name, one in value.operands.items()}}
        return {"operation": value.operation, "operands": [plain(one) for one in value.operands]}
    if isinstance(value, (list, tuple)):
        return [plain(one) for one in value]
    return value.tolist() if isinstance(value, (numpy.ndarray, numpy.generic)) else value


def cases_of_class(recorder, case_class, lines):
    """The power, and each number solved for in turn, of a class of statsmodels' tests."""
    case_class.setup_class()
    name, given, extra = case_class.cls.name, case_class.kwds, case_class.kwds_extra
    line = next(i for i, text in enumerate(lines, 1) if text.startswith(f"class {case_class.__name__}("))
    end = next(i for i, text in enumerate(lines[line:], line) if "cls.res2 = res2" in text)
    common = {"test": case_class.__name__, "line": line, "origin": origin(lines, end), "relation": "close"}

    def without(key):
        return {other: value for other, value in {**given, **extra}.items() if other != key}

    tolerance = 1.5 * 10.0 ** -getattr(case_class, "decimal", 6)
    yield {**common, "part": "power", "question": Call(recorder, f"{name}.power", without("power")),
           "expected": case_class.res2.power, "relative": 0.0, "absolute": tolerance}
    for key in given:
        arguments = {**without(key), key: None}
        yield {**common, "part": f"solved-{key}", "question": Call(recorder, f"{name}.solve_power", arguments),
               "expected": given[key], "relative": 0.001, "absolute": 0.0}


def run(recorder, name, function):
    recorder.test = name
    for parameters in parameter_sets(function):
        function(**parameters)
        recorder.answer_alone()


def record(source, path, signatures, wanted=lambda _: True):
    """The cases of one test file, and what is left out of it."""
    recorder = Recorder(signatures, path)
    namespace = {**{name: Function(recorder, name) for name in signatures if "." not in name},
                 "np": Numpy(recorder), "pytest": Pytest(recorder), "Holder": Holder, "TestCase": unittest.TestCase,
                 "smp": Module(recorder), "smprop": Module(recorder), "warnings": warnings,
                 "HypothesisTestWarning": UserWarning, "ConvergenceWarning": UserWarning,
                 "assert_almost_equal": recorder.almost_equal, "assert_allclose": recorder.allclose,
                 "assert_equal": recorder.equal, "assert_array_equal": recorder.equal,
                 "assert_array_less": recorder.array_less}
    known = set(namespace)
    exec(definitions(source, path, wanted), namespace)
    lines, left_out = source.splitlines(), []
    for name, value in list(namespace.items()):
        if name in known or name == "__builtins__":
            continue
        if hasattr(value, "setup_class"):
            recorder.cases += cases_of_class(recorder, value, lines)
        elif isinstance(value, type) and issubclass(value, unittest.TestCase):
            tests = value()
            for method in [one for one in dir(tests) if one.startswith("test_")]:
                run(recorder, method, getattr(tests, method))
        elif getattr(value, "left_out", False):
            left_out.append({"test": name, "reason": EXPECTED_FAILURE})
        elif name.startswith("test_"):
            run(recorder, name, value)
    for case in recorder.cases:
        case.setdefault("origin", origin(lines, case["line"]))
    internal = [case for case in recorder.cases if case["relation"] == "internal"]
    left_out += [{"test": f"{case['test']}:{case['line']}", "reason": "about the insides of the solver there"}
                 for case in internal]
    return [case for case in recorder.cases if case not in internal], left_out


def chi_square_cases(source):
    """The table of powers of the chi-square test that statsmodels keeps apart."""
    table = collections.defaultdict(Holder)
    exec("\n".join(line for line in source.splitlines() if line.startswith("pwr_chisquare[")), {"pwr_chisquare": table})
    for i, row in table.items():
        arguments = {"effect_size": row.w, "nobs": row.N, "n_bins": row.df + 1, "alpha": row.sig_level}
        yield {"test": "test_chisquare_power", "part": i, "question": Call(None, "chisquare_power", arguments),
               "relation": "close", "expected": row.power, "relative": 0.0, "absolute": 1.5e-6,
               "origin": "numbers from R package `pwr` pwr.chisq.test"}


def named(cases):
    """Cases as JSON, each with a name of its own."""
    seen = collections.Counter()
    for case in cases:
        name = f"{case['test']}/{case['part']}" if "part" in case else f"{case['test']}:{case['line']}"
        seen[name] += 1
        case = {"id": name if seen[name] == 1 else f"{name}.{seen[name]}", **case}
        yield {key: plain(value) for key, value in case.items()
               if value is not None and key not in ("test", "part", "line")}


def write(name, about, cases, left_out):
    head = "".join(f' "{key}": {json.dumps(value)},\n' for key, value in about.items())
    skipped = ",\n  ".join(json.dumps(one) for one in left_out)
    rows = ",\n  ".join(json.dumps(case) for case in named(cases))
    text = f'{{\n{head} "left_out": [\n  {skipped}\n ],\n "cases": [\n  {rows}\n ]\n}}\n'
    (HERE / f"{name}.json").write_text(text)
    print(f"{name}: {rows.count(chr(10)) + 1} cases, {len(left_out)} left out")


def extract_statsmodels(archive):
    with zipfile.ZipFile(archive) as wheel:
        def read(path):
            return wheel.read(f"statsmodels/stats/{path}").decode()

        signatures = {**signatures_of(read("gof.py")), **signatures_of(read("proportion.py")),
                      **signatures_of(read("power.py"))}
        cases, left_out = record(read("tests/test_power.py"), "test_power.py", signatures)
        more, _ = record(read("tests/test_proportion.py"), "test_proportion.py", signatures,
                         lambda name: name in PROPORTION_TESTS)
        cases += [*more, *chi_square_cases(read("tests/results/results_power.py"))]
    files = "stats/tests/test_power.py, test_gof.py (power), test_proportion.py (" + ", ".join(PROPORTION_TESTS) + ")"
    about = {"source": f"statsmodels: {files}", "version": Path(archive).name.split("-")[1], "licence": "BSD-3-Clause"}
    write("statsmodels", about, cases, [PICTURES, REPEATED, *left_out])


def extract_pingouin(archive):
    root = Path(archive).name.removesuffix(".tar.gz")
    with tarfile.open(archive) as sources:
        def read(path):
            return sources.extractfile(f"{root}/{path}").read().decode()

        cases, left_out = record(read("tests/test_power.py"), "test_power.py",
                                 signatures_of(read("src/pingouin/power.py")))
    about = {"source": "pingouin: tests/test_power.py", "version": root.split("-")[1], "licence": "GPL-3.0"}
    write("pingouin", about, cases, left_out)


if __name__ == "__main__":
    extract_statsmodels(sys.argv[1])
    extract_pingouin(sys.argv[2])
