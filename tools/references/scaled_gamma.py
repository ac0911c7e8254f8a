#!/usr/bin/env python3
"""Writes scaled_gamma.inc of the tests: the logarithm of Gamma(x) over Stirling's sqrt(2 pi / x) (x / e)^x.

Usage: scaled_gamma.py [file]    (needs mpmath)
"""
import pathlib
import random
import sys

from mpmath import log, mp, mpf, pi

mp.dps = 700  # terms of 1e311 leave 1e-310


def scaled(x):
    return mp.loggamma(x) - (x - mpf(1) / 2) * log(x) + x - log(2 * pi) / 2


def main():
    default = pathlib.Path(__file__).resolve().parents[2] / "tests" / "kelcommon" / "scaled_gamma.inc"
    rng = random.Random(20261123)
    points = [i / 2 for i in range(1, 34)]
    points += [rng.uniform(1, 2) for _ in range(40)] + [rng.uniform(2, 20) for _ in range(40)]
    points += [rng.random() for _ in range(40)] + [10 ** rng.uniform(-307, 0) for _ in range(20)]
    points += [10 ** rng.uniform(1.3, 300) for _ in range(20)]
    points += [5e-324, 2.0 ** -1022, 1 - 2.0 ** -53, 1 + 2.0 ** -52, 2 - 2.0 ** -52, 2 + 2.0 ** -51, 1.5e308]
    with open(sys.argv[1] if len(sys.argv) > 1 else default, "w") as file:
        for x in points:
            file.write(f"{{{x!r}, {float(scaled(mpf(x)))!r}}},\n")


main()
