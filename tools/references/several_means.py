#!/usr/bin/env python3
"""Writes the references of the studentized range, the bivariate normal distribution and means over the chi distribution.

Many of the values are computed in a second way too and must agree: those of the bivariate normal distribution by
Plackett's integral, those of the range with both steps halved and, of two means, as Student's t, and means without a
limit as noncentral t, in ball arithmetic.

Usage: several_means.py [folder] [name...]      (writes the files of all names by default; takes a quarter of an hour;
       needs python-flint, mpmath and gmpy2)
"""
import math
import random
import sys

from flint import arb, ctx

from exact_bivariate import bivariate_normal, bivariate_normal_by_correlation
from exact_chi_mean import mean_over_chi
from exact_noncentral import noncentral_t
from exact_range import studentized_range, studentized_range_ball, studentized_range_quantile
from multiprecision import log_uniform, output_folder, write

AGREEMENT = 1e-20
LEAST = 1e-290

# Least and largest number of means and degrees of freedom, how many points, and the region.
RANGE_DESIGNS = [((2, 20), (1, 4), 24, "up to 4 df"), ((2, 20), (4, 100), 40, "up to 100 df"),
                 ((2, 20), (100, 1e9), 20, "many df"), ((20, 1000), (2, 1e4), 20, "up to 1000 means"),
                 ((2, 20), (1e-3, 1), 12, "beyond fewer than 1 df"), ((1e3, 1e6), (5, 1e4), 4, "beyond 1000 means")]
LEVELS = [1e-9, 1e-6, 0.0001, 0.001, 0.01, 0.05, 0.1, 0.3, 0.5, 0.8, 0.9, 0.95, 0.99, 0.999]


def range_designs(rng):
    for means, freedom, count, region in RANGE_DESIGNS:
        for _ in range(count):
            k, df = log_uniform(rng, *means), log_uniform(rng, *freedom)
            k = k if rng.random() < 0.1 else float(round(k))
            df = float(round(df)) if df > 1 and rng.random() < 0.7 else df
            yield k, df, region
    for k in (2, 3, 6, 30):
        yield float(k), math.inf, "known standard error"


def usual_range(k, df):
    """About the middle of the distribution."""
    return 2 * math.sqrt(2 * math.log(k)) * (1 + 1 / df) ** (2 if df > 0.3 else 4)


def check_range(q, k, df, is_upper):
    value = studentized_range_ball(q, k, df, is_upper)
    other = studentized_range_ball(q, k, df, is_upper, refinement=2)
    if k == 2 and is_upper and df < 1e6:
        other = arb(df) / (arb(df) + arb(q) ** 2 / 2)
        other = other.beta_lower(arb(df) / 2, arb(1) / 2, regularized=True)
    if abs(value - other) > AGREEMENT * value:
        raise ArithmeticError(f"the two ways differ at {q} {k} {df}: {value} {other}")


def range_rows(name, rng):
    is_upper = name.startswith("Sf")
    for i, (k, df, region) in enumerate(range_designs(rng)):
        for spread, kind in ((0.6, region), (1.6, "tails")):
            if kind == "tails" and (i % 3 or region.startswith("beyond")):
                continue
            q = round(usual_range(k, df) * math.exp(rng.uniform(-spread, spread)), 4)
            if i % 6 == 0:
                check_range(q, k, df, is_upper)
            value = studentized_range(q, k, df, is_upper)
            if value > LEAST:
                yield (q, k, df), value, kind


def range_quantile_rows(name, rng):
    for k, df, region in range_designs(rng):
        if region.startswith("beyond") or df < 1.5:
            continue
        level = rng.choice(LEVELS)
        if df < 3 and k > 20:
            continue  # takes long
        value = studentized_range_quantile(level, k, df, name.startswith("Isf"), usual_range(k, df))
        yield (level, k, df), float(value.mid()), region
    yield from pairs(name, rng)


def pairs(name, rng):
    """Two means, of which the quantile follows from that of t in other programs too."""
    for _ in range(12):
        level, df = rng.choice(LEVELS), float(rng.randint(2, 200))
        value = studentized_range_quantile(level, 2.0, df, name.startswith("Isf"), 3.0)
        yield (level, 2.0, df), float(value.mid()), "two means"


def bivariate_points(rng):
    for rho in [-0.99, -0.7, -0.3, -1e-3, 1e-6, 0.2, 0.5, 0.51, 0.8, 0.95]:
        for _ in range(6):
            yield round(rng.uniform(-4, 4), 3), round(rng.uniform(-4, 4), 3), rho, "usual"
        yield -9.5, -8.25, rho, "tails"
        yield rng.uniform(-35, 5), rng.uniform(-35, 35), rho, "tails"
        yield 1.25, 1.25 * rho, rho, "usual"
    for _ in range(40):
        rho = rng.choice([-1, 1]) * (1 - log_uniform(rng, 1e-15, 1e-2))
        a = rng.uniform(-6, 6)
        yield a, rho * a + rng.uniform(-5, 5) * math.sqrt((1 - rho) * (1 + rho)), rho, "near 1"
    for rho in (-1.0, 0.0, 1.0):
        for _ in range(4):
            yield rng.uniform(-4, 4), rng.uniform(-4, 4), rho, "no or full correlation"


def check_bivariate(a, b, rho, value):
    ctx.prec = 256
    other = bivariate_normal_by_correlation(a, b, rho)
    if other.rel_accuracy_bits() < 60 or float(other.mid()) != value:
        raise ArithmeticError(f"the two ways differ at {a} {b} {rho}: {value} {other}")


def bivariate_rows(_, rng):
    for i, (a, b, rho, region) in enumerate(bivariate_points(rng)):
        value = bivariate_normal(a, b, rho)
        if i % 4 == 0 and region == "usual":
            check_bivariate(a, b, rho, value)
        if value > LEAST or value == 0:
            yield (a, b, rho), value, region


def mean_points(rng):
    for freedom, count, region in [((1, 4), 30, "up to 4 df"), ((4, 100), 40, "up to 100 df"), ((100, 1e9), 30, "many df"),
                                   ((1e-3, 1), 20, "beyond fewer than 1 df")]:
        for _ in range(count):
            df = log_uniform(rng, *freedom)
            df = float(round(df)) if df > 1 and rng.random() < 0.7 else df
            slope = rng.choice([-1, 1, 1]) * log_uniform(rng, 0.1, 20)
            limit = rng.choice([math.inf, 1 + rng.uniform(-3, 3) / math.sqrt(2 * df + 5), log_uniform(rng, 0.1, 10)])
            yield slope, slope + rng.uniform(-5, 5), df, limit, region


def mean_rows(_, rng):
    for slope, shift, df, limit, region in mean_points(rng):
        if limit <= 0 or (value := mean_over_chi(slope, shift, df, limit)) <= LEAST:
            continue
        if limit == math.inf and df < 1e6 and noncentral_t(slope, df, shift) != value:
            raise ArithmeticError(f"the two ways differ at {slope} {shift} {df}: {value}")
        yield (slope, shift, df, limit), value, region


ROWS = {"CdfStudentizedRange": range_rows, "SfStudentizedRange": range_rows,
        "IdfStudentizedRange": range_quantile_rows, "IsfStudentizedRange": range_quantile_rows,
        "CdfBivariateNormal": bivariate_rows, "MeanOverChi": mean_rows}


def main():
    folder = output_folder(sys.argv)
    for name in sys.argv[2:] or ROWS:
        rows = ROWS[name](name, random.Random(name + " 20261122"))
        write(folder / f"{name}.csv", ((name, arguments, value, None, region) for arguments, value, region in rows))


if __name__ == "__main__":
    sys.exit(main())
