#!/usr/bin/env python3
"""Applies the deliberate faults of mutants.toml one at a time and demands that a test fails for each.

Works in a copy of the sources under WORK with one build directory, so that a fault costs the compilation of one file.
The tests nearest to a fault come first, then all. A fault that does not compile is an error of the list; one that makes
a test run forever counts as noticed. Exit status 1 when a fault survives or is in error.

Usage: run.py SOURCE WORK [TEXT...]   faults whose file or reason contains one of the texts; without texts all
       run.py --check SOURCE          only checks the list against the sources
"""

import os
import re
import shutil
import signal
import subprocess
import sys
import time
import tomllib
from dataclasses import dataclass
from pathlib import Path

# The tests that look first at what is in a folder or file; the first entry that fits counts.
NEAREST = [
    ("kelcommon/", ["kelcommon_references", "kelcommon_contract", "kelcommon_identities", "kelcommon_t_and_f",
                    "kelcommon_gamma", "kelcommon_chi_integral", "kelcommon_several_means"]),
    ("src/chi_square/", ["chi_square_core_test", "cases_goodness-of-fit", "cases_contingency"]),
    ("src/comparisons/", ["comparisons_test", "cases_tukey", "cases_dunnett"]),
    ("src/variances/", ["variances_core_test", "cases_variance", "cases_two-variances"]),
    ("src/anova/", ["vectors_anova", "anova_test", "anova_core_test"]),
    ("src/exports/anova/", ["vectors_anova", "anova_test"]),
    ("src/means/crossover", ["means_core_test", "cases_crossover"]),
    ("src/means/equivalence", ["means_core_test", "cases_crossover"]),
    ("src/means/margins", ["means_core_test", "cases_two-means"]),
    ("src/means/", ["vectors_means", "means_test", "means_core_test"]),
    ("src/exports/means/", ["vectors_means", "means_test"]),
    ("src/proportions/independent", ["vectors_proportions_independent", "independent_proportions_test",
                                     "proportions_core_test"]),
    ("src/exports/proportions/independent", ["vectors_proportions_independent", "independent_proportions_test"]),
    ("src/proportions/", ["vectors_proportions_one_sample", "vectors_proportions_related", "proportions_test",
                          "proportions_core_test"]),
    ("src/exports/proportions/", ["vectors_proportions_one_sample", "vectors_proportions_related", "proportions_test"]),
    ("src/correlation/", ["vectors_correlation", "correlation_test", "correlation_core_test"]),
    ("src/exports/correlation/", ["vectors_correlation", "correlation_test"]),
    ("src/regression/", ["vectors_regression", "regression_test", "regression_core_test"]),
    ("src/ranks/", ["ranks_test", "cases_mann-whitney", "cases_ordinal", "cases_signed-rank"]),
    ("src/exports/regression/", ["vectors_regression", "regression_test"]),
    ("src/exports/", ["exports_test"]),
    ("src/frame/", ["frame_test", "vectors_anova", "vectors_correlation", "vectors_means"]),
    ("planner/", ["planner_tests"]),
    ("cli/", ["cli_tests"]),
]
# A copy of the sources is no installation, and its text is not what a fault changes.
LEFT_OUT = "install|header_checks|documentation|linker_lists|check_layering.*|check_arithmetic.*|mutants.*|coverage.*"
SLOWER = 10  # a test that takes this many times as long as without the fault, and HANG seconds more, is stopped
HANG = 20


class ListError(Exception):
    """The list does not fit the sources."""


@dataclass
class Mutant:
    file: str
    why: str
    old: str
    new: str

    def name(self):
        return f"{self.file}: {self.why}"

    def applied_to(self, text):
        count = text.count(self.old)
        if count != 1:
            raise ListError(f"{self.name()}: its old text occurs {count} times")
        if self.old == self.new:
            raise ListError(f"{self.name()}: changes nothing")
        return text.replace(self.old, self.new)


def read_mutants(path):
    with open(path, "rb") as file:
        return [Mutant(**entry) for entry in tomllib.load(file)["mutant"]]


def check(source, mutants):
    """The sentences that say where the list does not fit the sources."""
    wrong = []
    for mutant in mutants:
        try:
            mutant.applied_to((source / mutant.file).read_text())
        except (ListError, OSError) as error:
            wrong.append(str(error))
    return wrong


def copy_sources(source, tree):
    """Copies the files under version control that have changed, so that a second run builds little."""
    names = subprocess.run(["git", "-C", source, "ls-files", "-z"], stdout=subprocess.PIPE, check=True).stdout
    wanted = {Path(name) for name in names.decode().split("\0") if name and (source / name).is_file()}
    for name in wanted:
        target = tree / name
        if target.is_file() and target.read_bytes() == (source / name).read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source / name, target)
    for path in list(tree.rglob("*")):
        if path.is_file() and path.relative_to(tree) not in wanted:
            path.unlink()


def run(command, seconds=None):
    """Exit status and output; status None when it took longer than that and was stopped."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                               start_new_session=True)
    try:
        output, _ = process.communicate(timeout=seconds)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output, _ = process.communicate()
        return None, output


def build(directory, targets):
    status, output = run(["cmake", "--build", str(directory), "--target", *targets])
    return None if status == 0 else output


class Tests:
    """The tests of a build directory, with their usual times."""

    def __init__(self, directory):
        self.directory = directory
        self.seconds = {}

    def measure(self):
        """Runs all tests on the sources as they are."""
        status, output = run(["ctest", "--output-on-failure", "--test-dir", str(self.directory),
                              "-E", f"^({LEFT_OUT})$"])
        if status != 0:
            raise ListError(f"the tests fail without any fault:\n{output}")
        for name, seconds in re.findall(r"Test +#\d+: (\S+) \.+ +Passed +([\d.]+) sec", output):
            self.seconds[name] = float(seconds)

    def all(self):
        return sorted(self.seconds, key=self.seconds.get)

    def first_failing(self, names):
        """The first of the tests that fails, with how; None when all pass."""
        for name in names:
            allowed = SLOWER * self.seconds[name] + HANG
            status, output = run(["ctest", "--test-dir", str(self.directory), "-R", f"^{name}$"], allowed)
            if status is None:
                return f"{name} (stopped after {allowed:.0f} s)"
            if status != 0:
                crash = re.search(r"\*\*\*(Exception\S*)", output)
                return name + (f" ({crash.group(1)})" if crash else "")
        return None


def nearest_tests(mutant):
    return next(tests for start, tests in NEAREST if mutant.file.startswith(start))


def targets_of(tests):
    """What to build for the tests: those of reference cases share a program, and ctest's names lack an ending."""
    targets = {"kelpower_vectors" if test.startswith("vectors_") else test for test in tests}
    return sorted(target + "_test" if target.startswith("kelcommon_") else target for target in targets)


def killer(mutant, directory, tests):
    """The test that notices the fault in the tree, or None. Raises a ListError when it does not compile."""
    nearest = nearest_tests(mutant)
    rest = [name for name in tests.all() if name not in nearest]
    for names, targets in ((nearest, targets_of(nearest)), (rest, ["all"])):
        output = build(directory, targets)
        if output is not None:
            raise ListError(f"{mutant.name()}: does not build:\n{output[-2000:]}")
        failing = tests.first_failing(names)
        if failing:
            return failing
    return None


def try_mutant(mutant, tree, directory, tests):
    """A line of the table: whether the fault was noticed, and by what."""
    path = tree / mutant.file
    original = path.read_text()
    path.write_text(mutant.applied_to(original))
    try:
        found = killer(mutant, directory, tests)
        return ("killed", found) if found else ("SURVIVED", "")
    except ListError as error:
        return "ERROR", str(error)
    finally:
        path.write_text(original)


def prepare(source, work):
    tree, directory = work / "tree", work / "build"
    tree.mkdir(parents=True, exist_ok=True)
    copy_sources(source, tree)
    # Optimized a little: the tests of the exact methods count for more than the compilation.
    status, output = run(["cmake", "-G", "Ninja", "-S", str(tree), "-B", str(directory), "-Wno-dev",
                          "-DCMAKE_BUILD_TYPE=Mutants", "-DCMAKE_CXX_FLAGS=-O1 -w",
                          "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"])
    if status != 0:
        raise ListError(output)
    output = build(directory, ["all"])
    if output is not None:
        raise ListError(output)
    tests = Tests(directory)
    tests.measure()
    return tree, directory, tests


def main(arguments):
    if arguments[:1] == ["--check"]:
        source = Path(arguments[1]).resolve()
        mutants = read_mutants(source / "tools/mutants/mutants.toml")
        wrong = check(source, mutants)
        print("\n".join(wrong) or f"{len(mutants)} faults fit the sources")
        return 1 if wrong else 0

    source, work = Path(arguments[0]).resolve(), Path(arguments[1]).resolve()
    mutants = read_mutants(source / "tools/mutants/mutants.toml")
    chosen = [m for m in mutants if not arguments[2:] or any(text in m.name() for text in arguments[2:])]
    start = time.monotonic()
    tree, directory, tests = prepare(source, work)
    print(f"built and passed without a fault in {time.monotonic() - start:.0f} s", flush=True)
    counts = {"killed": 0, "SURVIVED": 0, "ERROR": 0}
    for mutant in chosen:
        begun = time.monotonic()
        verdict, note = try_mutant(mutant, tree, directory, tests)
        counts[verdict] += 1
        print(f"{verdict:9} {time.monotonic() - begun:5.1f} s  {mutant.name()}" + (f"  [{note}]" if note else ""),
              flush=True)
    print(f"{counts['killed']} of {len(chosen)} faults killed, {counts['SURVIVED']} survived, {counts['ERROR']} in "
          f"error, in {(time.monotonic() - start) / 60:.0f} minutes")
    return 0 if counts["killed"] == len(chosen) else 1


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except ListError as problem:
        sys.exit(str(problem))
