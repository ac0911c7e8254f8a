#!/usr/bin/env python3
"""Writes CdfStdNorm.csv and IdfStdNorm.csv.

Usage: normal.py [folder]        (needs mpmath and gmpy2)
"""
import math
import random
import sys

from mpmath import mp

from multiprecision import log_uniform, output_folder, write

LEVELS = [0.001, 0.0025, 0.005, 0.01, 0.025, 0.05, 0.1, 0.2, 0.5, 0.8, 0.9, 0.95, 0.975, 0.99, 0.995, 0.999]


def cdf(z):
    return mp.ncdf(mp.mpf(z)) if z > -1 else mp.erfc(-mp.mpf(z) / mp.sqrt(2)) / 2


def quantile(p):
    p = mp.mpf(p)
    if p == 0.5:
        return mp.mpf(0)
    upper = p > 0.5
    tail = 1 - p if upper else p
    z = -mp.sqrt(-2 * mp.log(tail)) if tail < 0.1 else -(mp.mpf(0.5) - tail) * 2.5
    for _ in range(200):
        value = mp.erfc(-z / mp.sqrt(2)) / 2
        step = mp.log(tail / value) * value / (mp.exp(-z * z / 2) / mp.sqrt(2 * mp.pi))
        z += step
        if abs(step) < mp.mpf(10) ** -50 * max(1, abs(z)) or step == 0:
            return -z if upper else z
    raise ArithmeticError(p)


def cdf_rows(rng):
    for i in range(-80, 81):
        yield i / 10, "centre"
    for _ in range(150):
        yield rng.uniform(-8, 8), "centre"
    for _ in range(150):
        yield rng.uniform(-37.5, -8), "lower tail"
    for _ in range(20):
        yield rng.uniform(-38.4, -37.52), "denormal results"
    for _ in range(30):
        yield rng.choice([-1, 1]) * log_uniform(rng, 1e-300, 1e-3), "near 0"


def quantile_rows(rng):
    for level in LEVELS:
        yield level, "levels"
    for _ in range(150):
        yield rng.random(), "centre"
    for _ in range(100):
        yield 0.5 + rng.choice([-1, 1]) * log_uniform(rng, 2.0 ** -53, 0.1), "near one half"
    for _ in range(120):
        yield log_uniform(rng, 1e-307, 1e-3), "lower tail"
    for _ in range(60):
        yield 1 - log_uniform(rng, 2.0 ** -52, 1e-3), "upper tail"
    for p in [5e-324, 1e-320, 3e-310, 2.0 ** -1022]:
        yield p, "denormal arguments"
    # On both sides of where one approximation follows another, and in each of them.
    for s in [2.8, 5, 9, 18]:
        for factor in [1 - 1e-9, 1 + 1e-9]:
            yield math.exp(-(s * factor) ** 2 / 2), "joints"
    for p in [0.25, 0.25 + 2.0 ** -54, 0.75, 0.75 + 2.0 ** -53]:
        yield p, "joints"
    for _ in range(100):
        yield log_uniform(rng, 1e-3, 0.3), "joints"


def main():
    folder = output_folder(sys.argv)
    rng = random.Random(20261121)
    write(folder / "CdfStdNorm.csv", [("CdfStdNorm", [z], cdf(z), None, region) for z, region in cdf_rows(rng)])
    write(folder / "IdfStdNorm.csv", [("IdfStdNorm", [p], quantile(p), None, region) for p, region in quantile_rows(rng)])


main()
