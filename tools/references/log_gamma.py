#!/usr/bin/env python3
"""Writes orvadnlgam.csv: the logarithm of the absolute value of the gamma function.

Usage: log_gamma.py [folder]     (needs mpmath and gmpy2)
"""
import random
import sys

from mpmath import mp

from multiprecision import log_uniform, output_folder, write


def log_gamma(x):
    return mp.re(mp.loggamma(mp.mpf(x)))


def rows(rng):
    for i in range(1, 101):
        yield i / 2, "half and whole numbers"
    for _ in range(120):
        yield log_uniform(rng, 1e-3, 100), "ordinary"
    for centre in (1, 2):
        for _ in range(50):
            yield centre + rng.choice([-1, 1]) * log_uniform(rng, 1e-15, 0.3), "near its zeros 1 and 2"
    for _ in range(80):
        yield log_uniform(rng, 100, 1e9), "large"
    for _ in range(30):
        yield log_uniform(rng, 1e9, 2e305), "huge"
    for _ in range(40):
        yield log_uniform(rng, 1e-300, 1e-3), "near 0"
    for _ in range(40):
        yield -(rng.randrange(0, 50) + rng.uniform(0.1, 0.4)), "negative"
    for _ in range(40):
        yield -(rng.randrange(0, 50) + rng.uniform(0.5, 0.95)), "negative"
    for _ in range(40):
        yield -log_uniform(rng, 1e-307, 0.5), "negative near 0"
    for x in (5e-324, -5e-324, 3e-320, -3e-320, 2.0 ** -1022, -2.0 ** -1022):
        yield x, "denormal arguments"
    for x in (1 - 2.0 ** -53, 1 + 2.0 ** -52, 2 - 2.0 ** -52, 2 + 2.0 ** -51):
        yield x, "near its zeros 1 and 2"
    for x in (4 - 2.0 ** -51, 16 - 2.0 ** -49, 2.55e305):
        yield x, "ordinary" if x < 100 else "huge"


def main():
    rng = random.Random(20261122)
    write(output_folder(sys.argv) / "orvadnlgam.csv",
          [("orvadnlgam", [x], log_gamma(x), None, region) for x, region in rows(rng)])


main()
