"""Measures the tests of comparisons.py beside other programs and writes their section into the page of measured speed.

Usage: measure_comparisons.py BUILD STATSMODELS PYSTATPOWER PAGE
(the build folder, the folder of the unpacked statsmodels, the Python environment with pystatpower, the page)

Fails, and leaves the page as it was, where answers differ or a time exceeds the one that is stated.
"""

import os
import sys
import tempfile
from pathlib import Path

import page
import sections
from comparisons import COMPARISONS
from machine import machine
from measure import BENCHMARK_OPTIONS, DEBIAN_PYTHON, TOOLS, run, statsmodels_environment

PACKAGES = ("pwr", "statsmodels", "pystatpower")


def commands(statsmodels: Path, pystatpower: Path) -> dict:
    """How the expressions of a package are run, in which environment; of those that could be had."""
    script = TOOLS / "expressions.py"
    found = {"pwr": (["Rscript", TOOLS / "expressions.R"], None)}
    if statsmodels.is_dir():
        found["statsmodels"] = ([DEBIAN_PYTHON, script], statsmodels_environment(statsmodels))
    if (pystatpower / "bin/python").exists():
        found["pystatpower"] = ([pystatpower / "bin/python", script], {**os.environ, "PYTHONDONTWRITEBYTECODE": "1"})
    return found


def text_of(package: str, command: list, environment: dict) -> str:
    """What the package answers to its expressions."""
    lines = [f"{package}\t{each.name}\t{each.peers[package]}\n" for each in COMPARISONS if package in each.peers]
    with tempfile.NamedTemporaryFile("w", suffix=".tsv") as file:
        file.write("".join(lines))
        file.flush()
        return run([*command, file.name], environment)


def our_calls(build: Path) -> dict:
    text = run([build / "tools/peers/kelpower_comparisons", *BENCHMARK_OPTIONS])
    return {b.name: page.Call(b.counters["answer"], b.seconds) for b in page.read_benchmarks(text)}


def largest_difference(comparison, ours, theirs: dict):
    """Between us and the others; none without others."""
    differences = {package: abs(call.answer - ours.answer) for package, call in theirs.items()}
    for package, difference in differences.items():
        if not difference <= comparison.tolerance:
            raise page.Disagreement(
                f"{comparison.name}: kelpower {ours.answer!r}, {package} {theirs[package].answer!r}")
    return max(differences.values(), default=None)


def answers_of_others(largest) -> str:
    if largest is None:
        return ""
    return "the same" if largest == 0 else f"the same within {page.short(largest)}"


def check_time(comparison, ours):
    if not ours.answer == ours.answer:
        raise page.FallsShort(f"{comparison.name}: kelpower has no answer")
    if comparison.seconds and ours.seconds > comparison.seconds * (1 + page.NOISE):
        raise page.FallsShort(f"{comparison.name}: {page.duration(ours.seconds)}, "
                              f"{page.duration(comparison.seconds)} are stated")


def row(comparison, ours, theirs: dict) -> list:
    check_time(comparison, ours)
    beside = [f"{page.duration(theirs[each].seconds)} ({page.times(theirs[each].seconds / ours.seconds)})"
              if each in theirs else "–" for each in PACKAGES]
    stated = page.duration(comparison.seconds) if comparison.seconds else ""
    return [comparison.title, page.number(ours.answer), page.duration(ours.seconds), stated, *beside,
            answers_of_others(largest_difference(comparison, ours, theirs))]


def calls_of_others(calls: dict, comparison) -> dict:
    keys = {package: (package, comparison.name, "answer") for package in PACKAGES}
    return {package: calls[key] for package, key in keys.items() if key in calls}


def section(ours: dict, calls: dict, versions: dict) -> str:
    rows = [row(each, ours[each.name], calls_of_others(calls, each)) for each in COMPARISONS]
    programs = ", ".join(f"{name} {version}" for name, version in versions.items())
    text = page.paragraph(f"""
        The core's functions, with nothing kept from one call to the next, beside other programs in one run of
        `make bench-peers` on one machine ({machine()}; {programs}). In parentheses how many times as long as
        kelpower. The run fails where powers differ by more than 1e-8, a size by more than 0.00025 subjects, or a time
        exceeds the stated one by more than {page.NOISE:.0%}, the noise of times.
        """)
    others = page.paragraph("""
        A dash stands where a program does not have the test in this form, or could not be had. pwr and statsmodels
        are asked for the interaction as for a regression with the same degrees of freedom and noncentrality, and for
        the non-inferiority of means as for a one-sided t test of the distance from the margin. None of the three has
        the exact power of the equivalence of two means, exact unconditional tests, or the power of Tukey's and
        Dunnett's tests: base R's `ptukey` is the distribution without differences between the means, and gives no
        power. R packages that have more of these tests, such as PowerTOST, are not in Debian and are not measured;
        programs that draw samples are not compared.
        """)
    head = ["Design", "Answer", "kelpower", "stated, at most", *PACKAGES, "Answers of the others"]
    return f"## Margins, several groups, frequencies, variances and ranks\n\n{text}\n{page.table(head, rows)}\n{others}\n"


def main():
    build, statsmodels, pystatpower, target = map(Path, sys.argv[1:])
    ours = our_calls(build)
    asked = commands(statsmodels, pystatpower)
    text = "".join(text_of(package, *asked[package]) for package in asked)
    target.write_text(sections.replaced(target.read_text(), "tests", section(ours, *page.read_calls(text))))


if __name__ == "__main__":
    try:
        main()
    except (page.Disagreement, page.FallsShort) as error:
        sys.exit(f"the page is not written: {error}")
