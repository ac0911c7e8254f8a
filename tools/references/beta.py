#!/usr/bin/env python3
"""Writes CdfBeta.csv and IdfBeta.csv.

Usage: beta.py [folder]          (needs mpmath and gmpy2; takes a few minutes)
"""
import random
import sys

from mpmath import mp

from multiprecision import beta_quantile, beta_tails, log_uniform, output_folder, write

LEVELS = [0.0005, 0.001, 0.005, 0.01, 0.025, 0.05, 0.1, 0.5, 0.9, 0.95, 0.975, 0.99, 0.995, 0.999]


def cdf(x, a, b):
    x = mp.mpf(x)
    return beta_tails(mp.mpf(a), mp.mpf(b), x, 1 - x)[0]


def near_mean(rng, a, b, deviations):
    mean = a / (a + b)
    deviation = (mean * (1 - mean) / (a + b + 1)) ** 0.5
    x = mean + rng.uniform(-deviations, deviations) * deviation
    return min(max(x, mean / 100), 1 - (1 - mean) / 100, 1 - 2.0 ** -53)


def shapes(rng):
    """Pairs of shape parameters by region, with the number of rows."""
    for _ in range(80):
        yield log_uniform(rng, 0.5, 20), log_uniform(rng, 0.5, 20), "small shapes"
    for _ in range(60):
        yield 0.5 * rng.randrange(1, 20), log_uniform(rng, 1, 5000), "few numerator degrees of freedom"
    for _ in range(30):
        yield log_uniform(rng, 10, 5000), 0.5 * rng.randrange(1, 20), "few denominator degrees of freedom"
    for _ in range(80):
        yield log_uniform(rng, 10, 2000), log_uniform(rng, 10, 2000), "moderate shapes"
    for _ in range(50):
        yield log_uniform(rng, 1000, 1e6), log_uniform(rng, 1000, 1e6), "large shapes"
    for _ in range(30):
        yield log_uniform(rng, 0.5, 100), log_uniform(rng, 1e5, 1e15), "one huge shape"
    for _ in range(40):
        yield log_uniform(rng, 0.3, 1), log_uniform(rng, 0.3, 5), "shapes from 0.3 to 1"
    for _ in range(40):
        yield log_uniform(rng, 1e-4, 0.3), log_uniform(rng, 1e-4, 5), "beyond planning: shapes from 1e-4 to 0.3"


def cdf_rows(rng):
    for a, b, region in shapes(rng):
        yield near_mean(rng, a, b, 4), a, b, region
        if region not in ("moderate shapes", "large shapes", "one huge shape"):
            yield rng.random(), a, b, region
            yield log_uniform(rng, 1e-12, 0.5), a, b, region
        if region == "moderate shapes":
            yield near_mean(rng, a, b, 15), a, b, "far tails of moderate shapes"
    for _ in range(25):
        a, b = log_uniform(rng, 1e6, 1e8), log_uniform(rng, 1e6, 1e8)
        yield near_mean(rng, a, b, 6), a, b, "very large shapes"
    for _ in range(25):
        a, b = log_uniform(rng, 2e9, 1e14), log_uniform(rng, 2e9, 1e14)
        yield near_mean(rng, a, b, 6), a, b, "huge shapes"


def quantile_rows(rng):
    for a, b, region in shapes(rng):
        yield rng.choice(LEVELS), a, b, region
        if region in ("small shapes", "moderate shapes"):
            yield log_uniform(rng, 1e-12, 1), a, b, region
    for _ in range(8):
        a, b = log_uniform(rng, 1e6, 1e7), log_uniform(rng, 1e6, 1e7)
        yield rng.choice(LEVELS), a, b, "very large shapes"


def representable(value):
    """A quantile that underflows has no digits to compare."""
    return abs(value) > 1e-300


def main():
    folder = output_folder(sys.argv)
    rng = random.Random(20261123)
    write(folder / "CdfBeta.csv",
          [("CdfBeta", [x, a, b], cdf(x, a, b), None, region) for x, a, b, region in cdf_rows(rng)])
    quantiles = ((p, a, b, beta_quantile(mp.mpf(p), mp.mpf(a), mp.mpf(b)), region)
                 for p, a, b, region in quantile_rows(rng))
    write(folder / "IdfBeta.csv",
          [("IdfBeta", [p, a, b], value, None, region) for p, a, b, value, region in quantiles if representable(value)])


main()
