"""Measures the distributions of kelpower.dist beside those of SciPy, and writes the sections of it.

Usage: scipy_distributions.py SOURCE PERFORMANCE PYTHON
(the project, and the two pages; kelpower and SciPy must be installed where this runs)

Both answer the same arrays: the references of the distributions that lie within planning, without special arguments,
such as infinite ones, and without the points that were found by searching for the largest errors of kelpower.
"""

import csv
import platform
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

import numpy as np
import page
import scipy
import sections
import timing
from kelpower import dist
from machine import machine
from scipy import special, stats

LEAST_PROBABILITY = 1e-12  # whose relative error counts
OFF = 1e-9
REPEATED_TO = 2000  # elements a call


@dataclass
class Compared:
    """A function of either; `reference` names that of the library, and `theirs` takes its arguments."""

    name: str
    reference: str
    arguments: int
    theirs_is: str
    theirs: Callable
    whole_numbers: int = 0  # how many of the first arguments SciPy takes as whole numbers only
    is_probability: bool = True
    is_beta: bool = False  # between 0 and 1, with shapes above 0


COMPARED = [
    Compared("norm_cdf", "CdfStdNorm", 1, "special.ndtr", special.ndtr),
    Compared("norm_ppf", "IdfStdNorm", 1, "special.ndtri", special.ndtri, is_probability=False),
    Compared("t_ppf", "IdfT", 2, "special.stdtrit", lambda p, df: special.stdtrit(df, p), is_probability=False),
    Compared("nct_cdf", "NonCentralCdfT", 3, "special.nctdtr", lambda x, df, nc: special.nctdtr(df, nc, x)),
    Compared("f_ppf", "IdfF", 3, "special.fdtri", lambda p, dfn, dfd: special.fdtri(dfn, dfd, p), is_probability=False),
    Compared("ncf_cdf", "NonCentralCdfF", 4, "special.ncfdtr",
             lambda x, dfn, dfd, nc: special.ncfdtr(dfn, dfd, nc, x)),
    Compared("beta_cdf", "CdfBeta", 3, "special.betainc", lambda x, a, b: special.betainc(a, b, x),
             is_beta=True),
    Compared("beta_ppf", "IdfBeta", 3, "special.betaincinv", lambda p, a, b: special.betaincinv(a, b, p),
             is_probability=False, is_beta=True),
    Compared("binom_cdf", "CdfBin", 3, "stats.binom.cdf", stats.binom.cdf, whole_numbers=2),
    Compared("binom_pmf", "PdfBin", 3, "stats.binom.pmf", stats.binom.pmf, whole_numbers=2),
    Compared("nbinom_pmf", "PdfNegBin", 3, "stats.nbinom.pmf", stats.nbinom.pmf, whole_numbers=1),
    Compared("gammaln", "orvadnlgam", 1, "special.gammaln", special.gammaln, is_probability=False),
]


@dataclass
class Measured:
    points: int
    error: float  # the largest
    off: int  # how many points have none or a wrong answer
    seconds: float  # an element


def references(folder):
    """The arguments and the value of each function, by its name."""
    found = {}
    for path in sorted(folder.glob("*.csv")):
        if path.stem.startswith(("worst", "achieved", "searched")):
            continue
        with path.open() as file:
            for row in csv.DictReader(file):
                if not (row.get("region") or "").startswith("beyond"):
                    cells = [float(row[f"a{i}"] or "nan") for i in range(1, 6)]
                    found.setdefault(row["function"], []).append([*cells, float(row["value"])])
    return {name: np.array(rows) for name, rows in found.items()}


def chosen(rows, compared):
    """The rows whose value has a relative error to speak of, and whose arguments are ordinary."""
    values = rows[:, -1]
    is_chosen = np.isfinite(values) & (np.abs(values) < 1e300)
    is_chosen &= np.abs(values) > (LEAST_PROBABILITY if compared.is_probability else 1e-25)
    arguments = rows[:, : compared.arguments]
    sizes = np.abs(arguments)
    is_chosen &= ((sizes < 1e290) & ((sizes > 1e-290) | (sizes == 0))).all(axis=1)
    whole = arguments[:, : compared.whole_numbers]
    is_chosen &= (whole == np.floor(whole)).all(axis=1)
    if compared.is_beta:
        is_chosen &= (arguments > 0).all(axis=1) & (arguments[:, 0] < 1)
    rows = rows[is_chosen]
    return list(rows[:, : compared.arguments].T.copy()), rows[:, -1]


def error(answers, values, compared):
    absolute = np.abs(answers - values)
    relative = absolute / np.abs(values)
    # Near its zeros the logarithm of the gamma function is as good as the function itself.
    error_of_each = np.minimum(absolute, relative) if compared.name == "gammaln" else relative
    return np.where(np.isfinite(error_of_each), error_of_each, np.inf)


def measured(function, arguments, values, compared):
    with np.errstate(all="ignore"):
        errors = error(function(*arguments), values, compared)
        many = [np.resize(argument, max(REPEATED_TO, len(values))) for argument in arguments]
        seconds = timing.seconds_per_call(lambda: function(*many)) / len(many[0])
    return Measured(len(values), errors.max(), int((errors > OFF).sum()), seconds)


def rows_of(folder):
    found = references(folder)
    rows = []
    for compared in COMPARED:
        print(f"measuring: {compared.name}", flush=True)
        arguments, values = chosen(found[compared.reference], compared)
        ours = measured(getattr(dist, compared.name), arguments, values, compared)
        theirs = measured(compared.theirs, arguments, values, compared)
        rows.append((compared, ours, theirs))
    return rows


def shown(value):
    return "none" if np.isinf(value) else f"{value:.0e}".replace("e-0", "e-").replace("e+0", "e+")


def context():
    return (f"{machine()}; Python {platform.python_version()}, NumPy {np.__version__}, SciPy {scipy.__version__}")


def speed_section(rows):
    table = page.table(
        ["kelpower.dist", "SciPy", "kelpower", "SciPy", "Times as long"],
        [[f"`{compared.name}`", f"`{compared.theirs_is}`", page.duration(ours.seconds), page.duration(theirs.seconds),
          page.times(theirs.seconds / ours.seconds)] for compared, ours, theirs in rows])
    text = f"""The distributions as NumPy ufuncs beside those of SciPy, an element of an array, in one run of
        `tools/peers/scipy_distributions.py` ({context()}). The points are the references of the distributions within
        planning. docs/python-lib.md has the errors of both."""
    return f"## Distributions in Python\n\n{page.paragraph(text)}\n{table}\n"


def accuracy_table(rows):
    table = page.table(
        ["kelpower.dist", "SciPy", "Points", "Largest error of kelpower", "of SciPy", f"SciPy off by more than {shown(OFF)}",
         "SciPy takes"],
        [[f"`{compared.name}`", f"`{compared.theirs_is}`", str(ours.points), shown(ours.error), shown(theirs.error),
          str(theirs.off) if theirs.off else "–", f"{page.times(theirs.seconds / ours.seconds)} times as long"]
         for compared, ours, theirs in rows])
    text = f"""Errors are relative, of probabilities above 1e-12, against references in multiple precision; "none" stands
        where a point has no finite answer. Measured in one run of `tools/peers/scipy_distributions.py` ({context()})."""
    return f"{page.paragraph(text)}\n{table}\n"


def main():
    source, performance, python = map(Path, sys.argv[1:])
    rows = rows_of(source / "tests/kelcommon/references")
    performance.write_text(sections.replaced(performance.read_text(), "scipy", speed_section(rows)))
    begin, end = sections.marks("scipy")
    before, _, rest = python.read_text().partition(begin)
    python.write_text(before + begin + accuracy_table(rows) + end + rest.partition(end)[2])
    print(accuracy_table(rows))


if __name__ == "__main__":
    main()
