#!/usr/bin/env python3
"""Compares the two methods for noncentral t and F at random arguments; fails when they differ by 1e-20 of the result.

Usage: check_exact.py [--seed N] [--count N]                                                  (needs python-flint)
"""
import argparse
import math
import random
import sys

from flint import ctx

from exact_noncentral import noncentral_f_ball, noncentral_t_ball
from exact_second import noncentral_f_tail, noncentral_t_tail

AGREEMENT = 1e-20


def log_uniform(rng, low, high):
    return low * (high / low) ** rng.random()


def t_case(rng):
    """Arguments within some deviations of the noncentrality, both tails."""
    df = log_uniform(rng, 0.5, 1e7)
    delta = rng.choice([-1, 1]) * log_uniform(rng, 1e-3, 100)
    x = (delta + rng.uniform(-6, 6) * math.sqrt(1 + delta * delta / (2 * df))) * rng.choice([1, 1, 0.5])
    return (x, df, delta), rng.random() < 0.5


def f_case(rng):
    df1, df2, noncentrality = log_uniform(rng, 0.5, 1e6), log_uniform(rng, 0.5, 1e6), log_uniform(rng, 1e-3, 1e4)
    mean = 1 + noncentrality / df1
    x = mean * math.exp(rng.uniform(-5, 5) * math.sqrt((2 + 4 * noncentrality / df1) / df1 / mean ** 2 + 2 / df2))
    return (x, df1, df2, noncentrality), rng.random() < 0.5


def ball_at(method, arguments, is_lower):
    """At enough bits, and mirrored the smaller tail for the larger."""
    bits = 160
    while True:
        ctx.prec = bits
        value = method(*arguments, is_lower)
        if value.rel_accuracy_bits() > 90:
            return value
        bits *= 2


def compare(name, first, second, arguments, is_lower):
    """Whether both give the same; None where the second finds no result."""
    exact = ball_at(first, arguments, is_lower)
    if exact < 1e-290:
        return None
    try:
        other = second(*arguments, is_lower)
    except ArithmeticError:
        return None
    difference = float(abs(other - exact) / exact)
    if difference > AGREEMENT:
        print(f"{name}{arguments}, {'lower' if is_lower else 'upper'}: {exact.str(25)} and {other.str(25)}")
    return difference <= AGREEMENT


def main():
    parser = argparse.ArgumentParser(description="Compares two methods for noncentral t and F.")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=200)
    options = parser.parse_args()
    rng = random.Random(options.seed)
    failed = False
    for name, first, second, case in (("t", noncentral_t_ball, noncentral_t_tail, t_case),
                                      ("F", noncentral_f_ball, noncentral_f_tail, f_case)):
        results = [compare(name, first, second, *case(rng)) for _ in range(options.count)]
        same, different = results.count(True), results.count(False)
        print(f"{name}: {same} the same, {different} different, {results.count(None)} not compared")
        failed = failed or different > 0 or same < options.count / 2
    sys.exit(failed)


if __name__ == "__main__":
    main()
