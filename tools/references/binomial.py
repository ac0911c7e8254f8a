#!/usr/bin/env python3
"""Writes CdfBin.csv, IdfBin.csv, PdfBin.csv and PdfNegBin.csv.

Usage: binomial.py [folder]      (needs mpmath and gmpy2; takes a few minutes)
"""
import math
import random
import sys

from mpmath import mp

from multiprecision import beta_tails, log_uniform, output_folder, write

LEVELS = [0.001, 0.005, 0.01, 0.025, 0.05, 0.5, 0.95, 0.975, 0.99, 0.995, 0.999]


def cdf(k, n, p):
    """Lower probability at the whole number k for n trials, which may be fractional."""
    if k < 0:
        return mp.mpf(0)
    if k >= n:
        return mp.mpf(1)
    p = mp.mpf(p)
    return beta_tails(mp.mpf(n) - k, mp.mpf(k) + 1, 1 - p, p)[0]


def quantile(prob, n, p):
    """The largest whole k whose lower probability does not exceed prob, -1 when there is none.

    They may be equal, as at the middle of a symmetric distribution, but for the last of the digits computed.
    """
    low, high = -1, math.ceil(n)
    while high - low > 1:
        middle = (low + high) // 2
        if cdf(middle, n, p) - prob < mp.mpf(10) ** -60:
            low = middle
        else:
            high = middle
    return low


def mass(x, n, p):
    x, n, p = mp.mpf(x), mp.mpf(n), mp.mpf(p)
    return mp.exp(mp.loggamma(n + 1) - mp.loggamma(x + 1) - mp.loggamma(n - x + 1) + x * mp.log(p) +
                  (n - x) * mp.log(1 - p))


def negative_mass(x, r, p):
    x, r, p = mp.mpf(x), mp.mpf(r), mp.mpf(p)
    return mp.exp(mp.loggamma(r + x) - mp.loggamma(x + 1) - mp.loggamma(r) + r * mp.log(p) + x * mp.log(1 - p))


def count_near_mean(rng, n, p, deviations):
    count = round(n * p + rng.uniform(-deviations, deviations) * math.sqrt(n * p * (1 - p)))
    return float(min(max(count, 0), math.floor(n)))


def designs(rng):
    """Trials and success probability by region."""
    for _ in range(100):
        yield float(rng.randrange(1, 200)), rng.choice([0.5, rng.uniform(0.01, 0.99)]), "up to 200 trials"
    for _ in range(60):
        yield log_uniform(rng, 1, 500), rng.uniform(0.01, 0.99), "fractional trials"
    for _ in range(60):
        yield float(rng.randrange(200, 10000)), rng.uniform(0.01, 0.99), "up to 10000 trials"
    for _ in range(40):
        yield float(rng.randrange(100, 100000)), log_uniform(rng, 1e-6, 1e-2), "rare successes"
    for _ in range(40):
        yield float(rng.randrange(10 ** 4, 10 ** 7)), rng.uniform(0.01, 0.99), "up to ten million trials"


def huge_designs(rng):
    for _ in range(25):
        yield float(math.floor(log_uniform(rng, 1e11, 1e15))), rng.uniform(0.05, 0.95), "up to 1e15 trials"


def cdf_rows(rng):
    for n, p, region in designs(rng):
        yield count_near_mean(rng, n, p, 5), n, p, region
        if n < 10000:
            yield float(rng.randrange(0, math.ceil(n))), n, p, region
    for n, p, region in huge_designs(rng):
        yield count_near_mean(rng, n, p, 6), n, p, region


def quantile_rows(rng):
    for n, p, region in designs(rng):
        if n < 1e5:
            yield rng.choice(LEVELS + [rng.random()]), n, p, region


def mass_rows(rng):
    for n, p, region in designs(rng):
        yield count_near_mean(rng, n, p, 5), n, p, region
        yield float(rng.randrange(0, math.ceil(n))), n, p, region
        if region == "fractional trials":
            yield rng.uniform(0, n), n, p, "fractional count"
            yield n, n, p, region
    for n, p, region in huge_designs(rng):
        yield count_near_mean(rng, n, p, 6), n, p, region


def negative_rows(rng):
    for _ in range(150):
        r, p = log_uniform(rng, 0.5, 500), rng.uniform(0.02, 0.98)
        mean = r * (1 - p) / p
        count = float(max(0, round(mean + rng.uniform(-4, 6) * math.sqrt(mean / p))))
        yield count, r, p, "up to 500"
        yield float(rng.randrange(0, 300)), r, p, "up to 500"
    for _ in range(60):
        r, p = log_uniform(rng, 500, 1e8), rng.uniform(0.02, 0.98)
        mean = r * (1 - p) / p
        yield float(max(0, round(mean + rng.uniform(-5, 5) * math.sqrt(mean / p)))), r, p, "large"
    for _ in range(30):
        yield float(rng.randrange(0, 50)), log_uniform(rng, 1e-3, 5), log_uniform(rng, 1e-5, 1), "small"
    for _ in range(30):
        r, p = log_uniform(rng, 1e9, 1e15), rng.uniform(0.02, 0.98)
        mean = r * (1 - p) / p
        yield float(max(0, round(mean + rng.uniform(-5, 5) * math.sqrt(mean / p)))), r, p, "huge"


def main():
    folder = output_folder(sys.argv)
    rng = random.Random(20261124)
    for name, function, rows in (("PdfBin", mass, mass_rows), ("PdfNegBin", negative_mass, negative_rows),
                                 ("CdfBin", cdf, cdf_rows), ("IdfBin", quantile, quantile_rows)):
        write(folder / f"{name}.csv",
              [(name, [x, n, p], function(x, n, p), 0, region) for x, n, p, region in rows(rng)])


main()
