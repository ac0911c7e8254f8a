#!/usr/bin/env python3
"""Writes goodness-of-fit.jsonl and contingency.jsonl: powers and sizes in 40 digits.

Usage: cases_chi_square.py [folder]      (needs mpmath)

The noncentral chi-square is summed as a Poisson mixture of incomplete gamma functions (Johnson, Kotz and Balakrishnan,
Continuous Univariate Distributions 2 (1995), equation 29.3), the effects of tables in the plainest form.
"""
import json
import pathlib
import sys
from functools import lru_cache

from mpmath import mp, mpf

mp.dps = 40
WITHIN = 1e-13


def upper(x, df):
    return mp.gammainc(mpf(df) / 2, mpf(x) / 2, mp.inf, regularized=True)


@lru_cache(maxsize=None)
def critical(df, alpha):
    """The chi-square with the upper probability alpha, by Newton's method from Wilson and Hilferty's approximation."""
    from statistics import NormalDist
    z = NormalDist().inv_cdf(1 - alpha)
    x = mpf(df) * max(1 - mpf(2) / (9 * df) + z * mp.sqrt(mpf(2) / (9 * df)), mpf("0.05")) ** 3
    half = mpf(df) / 2
    for _ in range(200):
        density = mp.exp((half - 1) * mp.log(x / 2) - x / 2 - mp.loggamma(half)) / 2
        step = (upper(x, df) - mpf(alpha)) / density
        x = x + step if x + step > 0 else x / 2
        if abs(step) < mpf(10) ** -32 * x:
            return x
    raise ArithmeticError("no critical value")


def power(df, alpha, noncentrality):
    """P(chi-square' > critical value), from the mode of the weights in both directions."""
    x, m, a = critical(df, alpha) / 2, mpf(noncentrality) / 2, mpf(df) / 2
    if m == 0:
        return upper(2 * x, df)
    mode = int(mp.floor(m))
    total = mpf(0)
    first_weight = mp.exp(mode * mp.log(m) - m - mp.loggamma(mode + 1))
    first_tail = mp.gammainc(a + mode, x, mp.inf, regularized=True)
    first_step = mp.exp((a + mode) * mp.log(x) - x - mp.loggamma(a + mode + 1))
    weight, tail, step, j = first_weight, first_tail, first_step, mode
    while weight > mpf(10) ** -38:
        total += weight * tail
        tail += step
        j += 1
        step *= x / (a + j)
        weight *= m / j
    weight, tail, step, j = first_weight, first_tail, first_step, mode
    while j > 0 and weight > mpf(10) ** -38:
        step *= (a + j) / x
        tail -= step
        weight *= j / m
        j -= 1
        total += weight * tail
    return total


def first_size(df, alpha, effect, target):
    """The first whole n from 2 on that reaches the target."""
    low, high = 1, 2
    while power(df, alpha, high * effect) < target:
        low, high = high, 2 * high
    while high - low > 1:
        middle = (low + high) // 2
        if power(df, alpha, middle * effect) < target:
            low = middle
        else:
            high = middle
    return high


def proportions(values):
    values = [mpf(v) for v in values]
    return [v / mp.fsum(values) for v in values]


def divergence(null, expected, is_ratio):
    if is_ratio:
        return 2 * mp.fsum(q * mp.log(q / p) for p, q in zip(null, expected) if q > 0)
    return mp.fsum((q - p) ** 2 / p for p, q in zip(null, expected))


def fit_effect(null, expected, is_ratio=False):
    return divergence(proportions(null), proportions(expected), is_ratio)


def table_effect(table, rows, is_ratio=False):
    joint = proportions(table)
    columns = len(joint) // rows
    row_sums = [mp.fsum(joint[i * columns:(i + 1) * columns]) for i in range(rows)]
    column_sums = [mp.fsum(joint[j::columns]) for j in range(columns)]
    return divergence([r * c for r in row_sums for c in column_sums], joint, is_ratio)


def profiles_table(profiles, rows, ratios):
    columns = len(profiles) // rows
    table = []
    for i in range(rows):
        table += [p * mpf(ratios[i]) for p in proportions(profiles[i * columns:(i + 1) * columns])]
    return table


class Cases:
    def __init__(self, test):
        self.test = test
        self.lines = []

    def add(self, inputs, result, value, within, source="own, multiple precision"):
        request = {"test": self.test, "inputs": inputs}
        line = {"request": request, "result": result, "value": value, "within": within, "source": source}
        self.lines.append(json.dumps(line))

    def design(self, inputs, df, effect, n, alpha=0.05):
        given = dict(inputs, n=n) if alpha == 0.05 else dict(inputs, n=n, alpha=alpha)
        self.add(given, "power", float(power(df, alpha, n * effect)), WITHIN)

    def size(self, inputs, df, effect, target, alpha=0.05):
        given = dict(inputs, power=target) if alpha == 0.05 else dict(inputs, power=target, alpha=alpha)
        self.add(given, "n", first_size(df, alpha, effect, target), 0)

    def figure(self, inputs, n, name, value):
        self.add(dict(inputs, n=n), name, float(value), WITHIN)

    def write(self, path):
        path.write_text("\n".join(self.lines) + "\n")


def of_effects(cases):
    """Both tests from w and the degrees of freedom."""
    for w, df, n in [(0.1, 1, 50), (0.1, 4, 785), (0.3, 1, 88), (0.3, 5, 100), (0.5, 2, 40), (0.5, 12, 60), (0.9, 3, 12),
                     (0.02, 30, 5000), (0.289, 3, 100), (0.001, 1, 1000), (1.4, 6, 15), (0.05, 99, 20000),
                     (0.2, 1000, 3000), (0, 3, 50), (0.3, 1, 1000000)]:
        cases.design({"effect-w": w, "df": df}, df, mpf(w) ** 2, n)
    for alpha in (1e-8, 0.001, 0.01, 0.1, 0.5, 0.9):
        cases.design({"effect-w": 0.25, "df": 4}, 4, mpf(0.25) ** 2, 150, alpha)
    for w, df, target in [(0.1, 20, 0.8), (0.3, 5, 0.95), (0.3, 1, 0.8), (0.5, 3, 0.9), (0.01, 2, 0.8), (0.8, 10, 0.99),
                          (0.1, 4, 0.1), (1, 1, 0.8)]:
        cases.size({"effect-w": w, "df": df}, df, mpf(w) ** 2, target)
    cases.size({"effect-w": 0.2, "df": 6}, 6, mpf(0.2) ** 2, 0.9, 0.001)
    cases.add({"effect-w": 0.289, "df": 3, "n": 100}, "power", 0.675077657003721, 1e-13,
              "Cohen (1988), table 7.3 and p. 249 with w 0.289; R package pwr 1.3")
    cases.add({"effect-w": 0.1, "df": 20, "power": 0.8}, "n", 2097, 0, "Cohen (1988), example 7.8; pwr 2096.0792")
    cases.add({"effect-w": 0.3, "df": 5, "power": 0.95}, "n", 220, 0, "G*Power 3.1")
    cases.add({"effect-w": 0.3, "df": 5, "power": 0.95}, "power", 0.950215501897016, 1e-13, "G*Power 3.1: 0.9502")


FITS = [
    ([0.28, 0.72], None), ([0.5, 0.3, 0.2], None), ([0.5, 0.25, 0.15, 0.1], [9, 3, 3, 1]), ([30, 25, 20, 15, 10], None),
    ([0.55, 0.2, 0.2, 0.05], [9, 3, 3, 1]), ([0.4, 0.4, 0.2, 0], None), ([1, 0], None),
    ([0.001, 0.999], [0.002, 0.998]), ([5, 4, 3, 2, 1, 1, 1, 1], [4, 4, 3, 3, 1, 1, 1, 1]),
    ([0.2501, 0.2499, 0.25, 0.25], None),
]


def goodness_of_fit(folder):
    cases = Cases("goodness-of-fit")
    of_effects(cases)
    for expected, null in FITS:
        p0 = null or [1] * len(expected)
        inputs = {"proportions": expected, **({"null-proportions": null} if null else {})}
        df = len(expected) - 1
        for n in (20, 150):
            cases.design(inputs, df, fit_effect(p0, expected), n)
        cases.design(dict(inputs, **{"likelihood-ratio": True}), df, fit_effect(p0, expected, True), 80)
        cases.figure(inputs, 20, "effect-w", mp.sqrt(fit_effect(p0, expected)))
    for expected, null in FITS[:6]:
        p0 = null or [1] * len(expected)
        inputs = {"proportions": expected, **({"null-proportions": null} if null else {})}
        cases.size(inputs, len(expected) - 1, fit_effect(p0, expected), 0.8)
        cases.size(dict(inputs, **{"likelihood-ratio": True}), len(expected) - 1, fit_effect(p0, expected, True), 0.9)
    five = [0.3, 0.25, 0.2, 0.15, 0.1]
    for estimated in (1, 2, 3):
        cases.design({"proportions": five, "estimated": estimated}, 4 - estimated, fit_effect([1] * 5, five), 90)
    cases.add({"proportions": [0.28, 0.72], "n": 41}, "power", 0.804391908651569, 1e-13, "R package pwrss, its tests")
    cases.write(folder / "goodness-of-fit.jsonl")


TABLES = [
    ([0.05, 0.35, 0.10, 0.075, 0.25, 0.175], 2), ([0.3, 0.2, 0.2, 0.3], 2), ([10, 20, 30, 15, 15, 30, 25, 10, 25], 3),
    ([0.12, 0.08, 0.1, 0.05, 0.1, 0.1, 0.05, 0.1, 0.05, 0.1, 0.1, 0.05], 3), ([0.5, 0, 0, 0.5], 2),
    ([0.001, 0.499, 0.003, 0.497], 2), ([1, 2, 3, 4, 5, 5, 4, 3, 2, 1], 5), ([0.2501, 0.2499, 0.2499, 0.2501], 2),
]

PROFILES = [
    ([0.056, 0.944, 0.132, 0.868], 2, None), ([0.3, 0.5, 0.2, 0.4, 0.4, 0.2, 0.5, 0.3, 0.2], 3, [1, 1, 2]),
    ([0.2, 0.8, 0.3, 0.7, 0.25, 0.75], 3, None), ([0.7, 0.2, 0.1, 0.6, 0.2, 0.2], 2, [1, 3]),
]


def contingency(folder):
    cases = Cases("contingency")
    of_effects(cases)
    for table, rows in TABLES:
        inputs = {"table": table, "rows": rows}
        columns = len(table) // rows
        df = (rows - 1) * (columns - 1)
        effect = table_effect(table, rows)
        for n in (25, 230):
            cases.design(inputs, df, effect, n)
        cases.design(dict(inputs, **{"likelihood-ratio": True}), df, table_effect(table, rows, True), 60)
        cases.figure(inputs, 25, "effect-w", mp.sqrt(effect))
        cases.figure(inputs, 25, "cramers-v", mp.sqrt(effect / (min(rows, columns) - 1)))
        cases.figure(inputs, 25, "df", df)
        if rows == columns == 2:
            sign = 1 if mpf(table[0]) * table[3] > mpf(table[1]) * table[2] else -1
            cases.figure(inputs, 25, "phi", sign * mp.sqrt(effect))
        if effect > 1e-4:
            cases.size(inputs, df, effect, 0.8)
    for profiles, rows, ratios in PROFILES:
        inputs = {"profiles": profiles, "rows": rows, **({"ratios": ratios} if ratios else {})}
        table = profiles_table(profiles, rows, ratios or [1] * rows)
        df = (rows - 1) * (len(profiles) // rows - 1)
        effect = table_effect(table, rows)
        cases.design(inputs, df, effect, 200)
        cases.design(dict(inputs, **{"likelihood-ratio": True}), df, table_effect(table, rows, True), 200, 0.01)
        cases.figure(inputs, 200, "effect-w", mp.sqrt(effect))
        cases.size(inputs, df, effect, 0.8)
    for rows, columns in [(3, 4), (2, 2), (10, 3)]:
        shape = {"rows": rows, "columns": columns}
        df = (rows - 1) * (columns - 1)
        cases.design(dict(shape, **{"effect-w": 0.3}), df, mpf(0.3) ** 2, 150)
        v = mpf(0.2) ** 2 * (min(rows, columns) - 1)
        cases.design(dict(shape, **{"cramers-v": 0.2}), df, v, 150)
        cases.size(dict(shape, **{"cramers-v": 0.2}), df, v, 0.9)
        cases.figure(dict(shape, **{"cramers-v": 0.2}), 150, "effect-w", mp.sqrt(v))
    cases.add({"table": TABLES[0][0], "rows": 2, "n": 230}, "power", 0.802309774385927, 1e-13, "R package powertools")
    cases.add({"profiles": PROFILES[0][0], "rows": 2, "n": 463}, "power", 0.80007722028152, 1e-13,
              "R package pwrss, its tests")
    cases.write(folder / "contingency.jsonl")


def main():
    default = pathlib.Path(__file__).resolve().parents[2] / "tests" / "cases"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    goodness_of_fit(folder)
    contingency(folder)


if __name__ == "__main__":
    main()
