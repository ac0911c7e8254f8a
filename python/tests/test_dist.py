"""kelpower.dist: the distributions."""

import csv
import inspect
import math
import pickle
from collections import defaultdict

import numpy as np
import pytest
from kelpower import dist, lib
from reference_cases import MISSING, ROOT

FOLDER = ROOT / "tests" / "kelcommon" / "references"

# What gives the same as the function of the reference, the number of its arguments, and what it is.
SAME = {
    "IdfF": (dist.f_ppf, 3, "t and F quantile"),
    "NonCentralCdfF": (dist.ncf_cdf, 4, "probability"),
    "IdfT": (dist.t_ppf, 2, "t and F quantile"),
    "NonCentralCdfT": (dist.nct_cdf, 3, "probability"),
    "CdfStdNorm": (dist.norm_cdf, 1, "probability"),
    "IdfStdNorm": (dist.norm_ppf, 1, "quantile"),
    "CdfBeta": (dist.beta_cdf, 3, "probability"),
    "IdfBeta": (dist.beta_ppf, 3, "quantile"),
    "CdfBin": (dist.binom_cdf, 3, "probability"),
    "IdfBin": (dist.binom_lower_critical, 3, "count"),
    "PdfBin": (dist.binom_pmf, 3, "probability"),
    "PdfNegBin": (dist.nbinom_pmf, 3, "probability"),
    "orvadnlgam": (dist.gammaln, 1, "logarithm"),
}

# What docs/accuracy.md promises.
RELATIVE = {"probability": 1e-12, "quantile": 1e-13, "t and F quantile": 1e-15, "logarithm": 1e-14, "count": 0.0}
ABSOLUTE_OF_PROBABILITY = 1e-14
LEAST_PROBABILITY = 1e-12  # above which the relative error is promised

UFUNCS = [getattr(dist, name) for name in dist.__all__]
NAMES = dist.__all__


def read_references():
    """The arguments and values of each function, in and beyond planning."""
    found = defaultdict(list)
    for path in sorted(FOLDER.glob("*.csv")):
        with path.open() as file:
            rows = csv.DictReader(file)
            if not rows.fieldnames or rows.fieldnames[:2] != ["function", "a1"]:
                continue
            for row in rows:
                if not (row.get("region") or "").startswith("beyond"):
                    found[row["function"]].append((path.stem, row))
    return found


REFERENCES = read_references()


def columns(name, rows):
    count = SAME[name][1]
    arguments = [np.array([float(row[f"a{i}"]) for _, row in rows]) for i in range(1, count + 1)]
    values = np.array([float(row["value"]) for _, row in rows])
    failed = np.array([row["err"] not in ("", "0") for _, row in rows])
    # Where the library has no value the ufunc gives NaN.
    return arguments, np.where(failed | (values == MISSING), np.nan, values)


def is_noise(rows, values):
    """Where the independent set has only the noise of its forty digits."""
    independent = np.array([stem == "distributions" for stem, _ in rows])
    return independent & (np.abs(values) < 1e-25)


def wrong(name):
    function, _, kind = SAME[name]
    rows = REFERENCES[name]
    arguments, values = columns(name, rows)
    answers = function(*arguments)
    with np.errstate(all="ignore"):
        absolute = np.abs(answers - values)
        relative = absolute / np.abs(values)
    special = ~np.isfinite(values)
    right = np.where(special, (answers == values) | (np.isnan(answers) & np.isnan(values)), False)
    if kind == "probability":
        is_close = (absolute <= ABSOLUTE_OF_PROBABILITY) & (
            (relative <= RELATIVE[kind]) | (values <= LEAST_PROBABILITY)
        )
    elif kind == "logarithm":
        is_close = np.fmin(absolute, relative) <= RELATIVE[kind]
    else:
        is_close = (relative <= RELATIVE[kind]) | (answers == values)
    right |= ~special & (is_close | is_noise(rows, values))
    return [f"{[argument[i] for argument in arguments]}: {answers[i]!r}, {values[i]!r}" for i in np.flatnonzero(~right)]


@pytest.mark.parametrize("name", SAME)
def test_references(name):
    assert len(REFERENCES[name]) >= 100
    assert wrong(name) == []


def test_all_references_are_asked():
    # Those of the second header of distributions are not in the package.
    assert set(SAME) <= set(REFERENCES)
    header = (ROOT / "kelcommon/include/kelcommon/kel_dist_fun.h").read_text()
    assert {name for name in REFERENCES if f" {name}(" in header} == set(SAME)


X = np.array([-np.inf, -40.0, -8.5, -1.0, -1e-9, 0.0, 1e-300, 0.3, 1.0, 7.5, 60.0, np.inf])
P = np.array([0.0, 1e-300, 1e-12, 0.025, 0.3, 0.5, 0.7, 0.999, 1 - 1e-12, 1.0])


def test_upper_tails_are_lower_tails_of_the_reflection():
    assert np.array_equal(dist.norm_sf(X), dist.norm_cdf(-X))
    assert np.array_equal(dist.norm_isf(P), -dist.norm_ppf(P))
    assert np.array_equal(dist.t_sf(X, 7.5), dist.t_cdf(-X, 7.5))
    assert np.array_equal(dist.t_isf(P, 7.5), -dist.t_ppf(P, 7.5))
    assert np.array_equal(dist.nct_sf(X, 7.5, 2.0), dist.nct_cdf(-X, 7.5, -2.0))
    assert np.array_equal(dist.t_cdf(X, 7.5), dist.nct_cdf(X, 7.5, 0.0))
    assert np.array_equal(dist.f_cdf(X, 3, 7.5), dist.ncf_cdf(X, 3, 7.5, 0.0))


@pytest.mark.parametrize(("lower", "upper", "arguments"), [
    (dist.norm_cdf, dist.norm_sf, ()),
    (dist.t_cdf, dist.t_sf, (7.5,)),
    (dist.nct_cdf, dist.nct_sf, (7.5, 2.0)),
    (dist.f_cdf, dist.f_sf, (3.0, 7.5)),
    (dist.binom_cdf, dist.binom_sf, (20, 0.3)),
    (dist.binom_cdf, dist.binom_sf, (20.5, 0.3)),
])  # fmt: skip
def test_both_tails_make_one(lower, upper, arguments):
    assert np.allclose(lower(X, *arguments) + upper(X, *arguments), 1, rtol=0, atol=1e-14)


@pytest.mark.parametrize(("quantile", "probability", "arguments"), [
    (dist.norm_isf, dist.norm_sf, ()),
    (dist.t_isf, dist.t_sf, (7.5,)),
    (dist.f_isf, dist.f_sf, (3.0, 7.5)),
    (dist.f_ppf, dist.f_cdf, (3.0, 7.5)),
    (dist.beta_ppf, dist.beta_cdf, (3.0, 7.5)),
])  # fmt: skip
def test_quantiles_are_inverse(quantile, probability, arguments):
    p = np.array([1e-200, 1e-12, 0.025, 0.3, 0.5, 0.7, 0.999])
    assert np.allclose(probability(quantile(p, *arguments), *arguments), p, rtol=1e-12, atol=0)


def test_far_upper_tails_keep_their_digits():
    # 1 / (1 + x) with 2 and 2 degrees of freedom, and 0.3^20.
    assert dist.f_sf(1e40, 2, 2) == pytest.approx(1e-40, rel=1e-14)
    assert dist.f_sf([-1, 0, np.inf], 2, 2).tolist() == [1, 1, 0]
    assert dist.binom_sf(19, 20, 0.3) == pytest.approx(0.3**20, rel=1e-14)
    assert dist.binom_sf([-1, 20, 25, np.inf], 20, 0.3).tolist() == [1, 0, 0, 0]


@pytest.mark.parametrize(("n", "p"), [(1, 0.5), (20, 0.3), (20, 0.5), (200, 0.01)])
def test_binomial_quantile(n, p):
    counts = np.arange(n + 1)
    lower = dist.binom_cdf(counts, n, p)
    levels = np.concatenate([lower, lower[:-1] + np.diff(lower) / 2, [1e-6, 0.05, 0.5, 0.95]])
    levels = levels[levels < 1]
    for level in levels:
        assert dist.binom_ppf(level, n, p) == np.min(counts[lower >= level])
        assert dist.binom_lower_critical(level, n, p) == max([-1, *counts[lower <= level]])
    assert dist.binom_ppf([0, 1], n, p).tolist() == [-1, n]


def test_values():
    assert dist.norm_ppf(0.975) == pytest.approx(1.959963984540054, rel=1e-15)
    assert dist.t_cdf(1.0, 1) == pytest.approx(0.75, rel=1e-15)
    assert dist.beta_cdf(0.25, 1, 1) == 0.25
    assert dist.binom_pmf(1, 2, 0.5) == 0.5
    assert dist.nbinom_pmf(0, 2, 0.5) == 0.25
    assert dist.gammaln([1, 2, 0, -3, np.inf]).tolist() == [0, 0, np.inf, np.inf, np.inf]


@pytest.mark.parametrize("call", [
    lambda: dist.norm_ppf([-0.1, 1.1]),
    lambda: dist.t_cdf(1, [0, -1]),
    lambda: dist.t_ppf([-0.1, 1.1], 5),
    lambda: dist.nct_cdf(1, [0, -1], 1),
    lambda: dist.f_cdf(1, [0, -1], 5),
    lambda: dist.ncf_cdf(1, 5, 5, [-1, -np.inf]),
    lambda: dist.beta_cdf(0.5, [-1, 0], [1, 0]),
    lambda: dist.beta_ppf([-0.1, 1.1], 1, 1),
    lambda: dist.binom_cdf(1, [-1, np.inf], 0.5),
    lambda: dist.binom_sf(1, 10, [-0.1, 1.1]),
    lambda: dist.binom_pmf(1, 10, [-0.1, 1.1]),
    lambda: dist.binom_ppf([-0.1, 1.1], 10, 0.5),
    lambda: dist.binom_ppf(0, 10, [-0.1, 1.1]),
    lambda: dist.binom_lower_critical([-0.1, 1.1], 10, 0.5),
    lambda: dist.nbinom_pmf(1, 2, [0, 1.1]),
])  # fmt: skip
def test_nothing_outside_the_domain(call):
    assert np.isnan(call()).all()


SPECIAL = np.array(
    [np.nan, np.inf, -np.inf, 0.0, -0.0, 1.0, -1.0, 0.5, 5e-324, 1e-300, 1e300, -1e300, MISSING, 2.0**31]
)


@pytest.mark.parametrize("name", NAMES)
def test_any_numbers_have_an_answer(name):
    """Without a warning, and never the missing value of the library; a NaN gives NaN."""
    ufunc = getattr(dist, name)
    arguments = np.meshgrid(*[SPECIAL] * ufunc.nin, indexing="ij")
    answers = ufunc(*arguments)
    assert not (answers == MISSING).any()
    assert np.isnan(answers[np.isnan(arguments).any(axis=0)]).all()
    if name.endswith(("cdf", "sf")) and "i" not in name.split("_")[1]:
        known = answers[~np.isnan(answers)]
        assert ((known >= 0) & (known <= 1)).all()


@pytest.mark.parametrize("name", NAMES)
def test_types(name):
    ufunc = getattr(dist, name)
    assert ufunc.types == ["f" * ufunc.nin + "->f", "d" * ufunc.nin + "->d"]
    single = [np.array([0.25, 0.5], np.float32)] * ufunc.nin
    double = [argument.astype(float) for argument in single]
    assert ufunc(*single).dtype == np.float32
    assert np.array_equal(ufunc(*single), ufunc(*double).astype(np.float32), equal_nan=True)
    assert ufunc(*[np.array([1, 2])] * ufunc.nin).dtype == np.float64
    assert ufunc(*[1] * ufunc.nin).dtype == np.float64


@pytest.mark.parametrize("name", NAMES)
def test_docstrings(name):
    ufunc = getattr(dist, name)
    doc = inspect.getdoc(ufunc)
    for section in ("Parameters", "Returns", "References"):
        assert f"{section}\n{'-' * len(section)}\n" in doc
    assert doc.count(" : float or array_like") == ufunc.nin


def test_pickle():
    assert all(pickle.loads(pickle.dumps(ufunc)) is ufunc for ufunc in UFUNCS)


def test_the_library_uses_the_same_distributions():
    # Two-sided z test of a correlation, in the form of the library.
    power = lib.PowerbyOneSampSpearman(50, 0.3, 0.0, 1, 1, 0.05)
    shift = lib.InvTanh(0.3) / math.sqrt(1.06 / 47)
    assert power == pytest.approx(dist.norm_sf(dist.norm_isf(0.05) - shift), rel=1e-13)
