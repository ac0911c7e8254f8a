#!/usr/bin/env python3
"""Writes reference cases of the exact test of a correlation and of the tests of two correlations.

    cases_correlations.py tests/cases    writes pearson, two-correlations and dependent-correlations.jsonl

Powers are tails of the normal distribution in multiple precision; those of the exact test are integrals of Hotelling's
density at quantiles of the same (sample_correlation.py). Sizes are the first ones whose power reaches the target. The
correlation of two Fisher's z is Steiger's, with the common variable as one that occurs twice: its formula for four
variables, with 1 for the correlation of the variable with itself. Needs mpmath, gmpy2 and
python-flint.
"""
import itertools
import json
import math
import pathlib
import sys

from mpmath import mp, mpf

import sample_correlation

COMPUTED = "multiple precision, tools/references/cases_correlations.py"


def row(test, inputs, result, value, within=1e-13, source=COMPUTED):
    request = {"test": test, "inputs": inputs}
    return {"request": request, "result": result, "value": value, "within": within, "source": source}


def first_size(power_at, target, start, smallest=4):
    """The first whole size from `smallest` on, found from a guess."""
    n = max(start, smallest)
    if power_at(n) >= target:
        while n > smallest and power_at(n - 1) >= target:
            n -= 1
        return n
    while power_at(n) < target:
        n += 1
    return n


def upper(x):
    return mp.erfc(x / mp.sqrt(2)) / 2


def critical_z(alpha, one_sided):
    tail = mpf(alpha) / (1 if one_sided else 2)
    return mp.sqrt(2) * mp.erfinv(1 - 2 * tail)


def normal_power(difference, at_null, error, alpha, one_sided):
    z = critical_z(alpha, one_sided) * at_null
    distance = abs(difference)
    towards = upper((z - distance) / error)
    return towards if one_sided else towards + upper((z + distance) / error)


def exact_power(r, null, n, alpha, one_sided):
    tail = mpf(alpha) / (1 if one_sided else 2)
    power = mpf(0)
    if not one_sided or r > null:
        power += sample_correlation.tails(-sample_correlation.quantile(tail, n, -mpf(null)), n, r)[1]
    if not one_sided or r < null:
        power += sample_correlation.tails(sample_correlation.quantile(tail, n, null), n, r)[0]
    return power


def exact_rows():
    """Of the exact test of a correlation."""
    designs = [(r, null, n) for r, null in ((0.3, 0), (-0.5, 0), (0.65, 0.6), (0.3, 0.8), (-0.2, -0.6), (0.95, 0.9))
               for n in (4, 8, 20, 84)]
    designs += [(0.1, 0, 1000), (0.51, 0.5, 5000), (0.999, 0.998, 30), (0.2, 0.2, 12), (-0.9, 0.9, 5)]
    for (r, null, n), one_sided in itertools.product(designs, (False, True)):
        if one_sided and r == null:
            continue
        alpha = 0.01 if n == 20 else 0.05
        inputs = {"r": r, "null": null, "n": n, "alpha": alpha, "one-sided": one_sided, "exact": True}
        yield row("pearson", inputs, "power", float(exact_power(r, null, n, alpha, one_sided)))
    for r, null, power, alpha, one_sided in ((0.3, 0, 0.8, 0.05, False), (0.5, 0.2, 0.9, 0.05, True),
                                             (0.3, 0.8, 0.8, 0.05, False), (-0.4, 0, 0.95, 0.01, True)):
        z = critical_z(alpha, one_sided) + mp.sqrt(2) * mp.erfinv(2 * mpf(power) - 1)
        start = int((z / (mp.atanh(mpf(r)) - mp.atanh(mpf(null))))**2 + 3)
        n = first_size(lambda size: exact_power(r, null, size, alpha, one_sided), power, start)
        inputs = {"r": r, "null": null, "power": power, "alpha": alpha, "one-sided": one_sided, "exact": True}
        yield row("pearson", inputs, "n", n, 0)
    published = "G*Power 3.1 (Faul, Erdfelder, Buchner and Lang 2009), exact test of a correlation"
    both = {"exact": True}
    yield row("pearson", {"r": 0.65, "null": 0.6, "power": 0.95, **both}, "n", 1928, 0, published)
    yield row("pearson", {"r": 0.65, "null": 0.6, "n": 1928, **both}, "power", 0.950028, 5e-7, published)
    yield row("pearson", {"r": 0.3, "null": 0.8, "n": 8, **both}, "power", 0.482927, 5e-7, published)
    yield row("pearson", {"r": 0.2, "power": 0.8, **both}, "n", 193, 0, published)
    yield row("pearson", {"r": 0.2, "n": 193, **both}, "power", 0.80008456, 5e-9, published)
    yield row("pearson", {"r": 0.2, "power": 0.8, "one-sided": True, **both}, "n", 153, 0, published)
    yield row("pearson", {"r": 0.2, "n": 153, "one-sided": True, **both}, "power", 0.80168104, 5e-9, published)


def two_power(q, n1, n2, alpha, one_sided):
    error = mp.sqrt(1 / mpf(n1 - 3) + 1 / mpf(n2 - 3))
    return normal_power(q, error, error, alpha, one_sided)


def two_rows():
    """Of two independent correlations."""
    def q_of(pair):
        return mp.atanh(mpf(pair[0])) - mp.atanh(mpf(pair[1]))

    pairs = ((0.5, 0.3), (0.75, 0.88), (-0.2, 0.4), (0.99, 0.98), (0.1, 0.1))
    sizes = ((4, 4), (10, 30), (51, 260), (200, 150), (5000, 4))
    for pair, n, one_sided in itertools.product(pairs, sizes, (False, True)):
        if one_sided and pair[0] == pair[1]:
            continue
        alpha = 0.01 if n[0] == 10 else 0.05
        inputs = {"correlations": pair, "n": n, "alpha": alpha, "one-sided": one_sided}
        yield row("two-correlations", inputs, "power", float(two_power(q_of(pair), *n, alpha, one_sided)))
    for q, n in ((0.3, (100, 100)), (-0.1, (50, 2000)), (2.5, (5, 6)), (1e-3, (30, 30))):
        yield row("two-correlations", {"effect-q": q, "n": n}, "power", float(two_power(mpf(q), *n, 0.05, False)))
    for pair, power, one_sided in itertools.product(pairs[:4], (0.8, 0.95), (False, True)):
        n = first_size(lambda size: two_power(q_of(pair), size, size, 0.05, one_sided), power, 4)
        inputs = {"correlations": pair, "power": power, "one-sided": one_sided}
        yield row("two-correlations", inputs, "n", [n, n], 0)
    published = "G*Power 3.1 manual, test of two independent Pearson r's"
    example = {"correlations": [0.75, 0.88]}
    yield row("two-correlations", {**example, "n": [51, 260]}, "power", 0.726352, 5e-7, published)


def correlation_of_z(pair, r13, r14, r23, r24):
    """Of the correlations of variables 1 and 2, and 3 and 4."""
    r12, r34 = pair
    total = ((r13 - r12 * r23) * (r24 - r23 * r34) + (r14 - r13 * r34) * (r23 - r12 * r13) +
             (r13 - r14 * r34) * (r24 - r12 * r14) + (r14 - r12 * r24) * (r23 - r24 * r34))
    return total / 2 / ((1 - r12**2) * (1 - r34**2))


def dependent_power(first, second, others, n, alpha, one_sided, null):
    """`others` holds r23 where variable 1 is in common, else r13, r14, r23 and r24."""
    first, second = mpf(first), mpf(second)
    others = [mpf(r) for r in others]

    def error(pair):
        if len(others) == 1:
            c = correlation_of_z(pair, 1, pair[1], pair[0], others[0])
        else:
            c = correlation_of_z(pair, *others)
        return mp.sqrt((2 - 2 * c) / (n - 3))

    both = {"first": first, "average": (first + second) / 2}.get(null)
    at_null = error((first, second) if both is None else (both, both))
    return normal_power(mp.atanh(first) - mp.atanh(second), at_null, error((first, second)), alpha, one_sided)


def dependent_inputs(first, second, others):
    names = ["r12", "r13", "r23"] if len(others) == 1 else ["r12", "r34", "r13", "r14", "r23", "r24"]
    return dict(zip(names, [first, second, *others]))


def dependent_rows():
    """Of two dependent correlations."""
    designs = [(0.4, 0.2, (0.5,)), (0.2, 0.4, (0.5,)), (-0.3, 0.3, (-0.6,)), (0.8, 0.7, (0.9,)), (0.1, 0.6, (0.0,)),
               (0.1, 0.2, (0.5, 0.4, -0.4, 0.8)), (0.5, 0.3, (0.2, 0.2, 0.2, 0.2)), (0.6, 0.7, (0.5, 0.3, 0.3, 0.5)),
               (-0.2, 0.3, (0, 0, 0, 0))]
    nulls = ("first", "average", "expected")
    for (first, second, others), null, one_sided in itertools.product(designs, nulls, (False, True)):
        for n, alpha in ((4, 0.05), (60, 0.05), (886, 0.01)):
            inputs = {**dependent_inputs(first, second, others), "n": n, "alpha": alpha, "one-sided": one_sided,
                      "null-correlations": null}
            power = dependent_power(first, second, others, n, alpha, one_sided, null)
            yield row("dependent-correlations", inputs, "power", float(power))
        def power_at(n):
            return dependent_power(first, second, others, n, 0.05, one_sided, null)

        start = 4
        while power_at(2 * start) < 0.8:
            start *= 2
        step = start
        while step >= 1:
            start += step if power_at(start + step) < 0.8 else 0
            step //= 2
        inputs = {**dependent_inputs(first, second, others), "power": 0.8, "one-sided": one_sided,
                  "null-correlations": null}
        yield row("dependent-correlations", inputs, "n", first_size(power_at, 0.8, start), 0)
    published = "G*Power 3.1 manual, test of two dependent Pearson r's"
    shared = {**dependent_inputs(*designs[0]), "one-sided": True}
    separate = {**dependent_inputs(*designs[5]), "one-sided": True}
    yield row("dependent-correlations", {**shared, "power": 0.8}, "n", 144, 0, published)
    yield row("dependent-correlations", {**separate, "power": 0.8}, "n", 886, 0, published)
    yield row("dependent-correlations", {**separate, "n": 886}, "power", 0.800156, 5e-7, published)


def main():
    folder = pathlib.Path(sys.argv[1])
    for name, rows in (("two-correlations", two_rows), ("dependent-correlations", dependent_rows),
                       ("pearson", exact_rows)):
        with open(folder / (name + ".jsonl"), "w") as file:
            for case in rows():
                if math.isnan(case["value"] if isinstance(case["value"], float) else 0):
                    raise ArithmeticError(case)
                file.write(json.dumps(case) + "\n")


if __name__ == "__main__":
    main()
