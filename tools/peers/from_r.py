"""Measures the R package beside pwr and writes its section into the page of measured speed.

Usage: from_r.py LIBRARY PAGE (the R library that the package is installed in, the page)
"""

import statistics
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path

import page
import sections


STATED_LEAST = 20  # times as long as kelpower for one design of many, of pwr one by one


@dataclass
class Row:
    design: str
    question: str
    ours: float  # seconds a design, with a vector
    one_by_one: float  # of pwr
    vector: float  # of pwr, NaN where it takes none
    single: float  # of a call of ours for one design


def read_rows(text):
    rows = []
    for line in text.splitlines():
        design, question, *seconds = line.split("\t")
        rows.append(Row(design, question, *(float("nan" if each == "NA" else each) for each in seconds)))
    return rows


def beside(seconds, ours):
    if seconds != seconds:
        return "–"
    return f"{page.duration(seconds)} ({page.times(seconds / ours)})"


def spread(rows, question):
    """From the least to the most, and the median."""
    ratios = [row.one_by_one / row.ours for row in rows if row.question == question]
    least, median, most = map(page.times, (min(ratios), statistics.median(ratios), max(ratios)))
    return f"{least} to {most} (in the median {median})"


def check_stated(rows):
    least = {"pwr one by one": min(row.one_by_one / row.ours for row in rows)}
    short_ones = page.shortfalls(least, {"pwr one by one": STATED_LEAST})
    if short_ones:
        raise page.FallsShort("; ".join(short_ones))


def section(rows):
    lines = [[row.design, page.QUESTIONS[row.question].lower(), page.duration(row.ours),
              beside(row.one_by_one, row.ours), beside(row.vector, row.ours), page.duration(row.single)] for row in rows]
    head = ["Design", "question", "kelpower, a vector", "pwr, one by one", "pwr, a vector", "kelpower, a single call"]
    text = page.paragraph(f"""
        The functions of the R package with a vector of 2000 effect sizes, beside pwr in the same session; times are those
        of one design. In parentheses how many times as long as kelpower. Beside calls of pwr one by one, powers are
        {spread(rows, "power")} times as fast, sizes {spread(rows, "size")} times; stated are at least {STATED_LEAST}. pwr takes a vector for a power, which is
        then R's own distribution over a vector, though not for a size. The answers are the same, but for those of
        correlations, which pwr approximates in another way. A single call is mostly R's own work.
        """)
    return f"## Called from R\n\n{text}\n{page.table(head, lines)}\n"


def main():
    library, target = map(Path, sys.argv[1:])
    script = Path(__file__).parent / "r_package.R"
    print("measuring: the R package", flush=True)
    text = subprocess.run(["Rscript", "--vanilla", script, library], check=True, stdout=subprocess.PIPE, text=True).stdout
    rows = read_rows(text)
    check_stated(rows)
    target.write_text(sections.replaced(target.read_text(), "r", section(rows)))


if __name__ == "__main__":
    try:
        main()
    except page.FallsShort as error:
        sys.exit(f"the page is not written: {error}")
