#!/usr/bin/env python3
"""Writes variance.jsonl and two-variances.jsonl: powers and sizes in 40 digits.

Usage: cases_variances.py [folder]      (needs mpmath)

The distributions of chi-square and F are the incomplete gamma and beta functions of mpmath; quantiles are bisected.
"""
import json
import pathlib
import sys

from mpmath import mp, mpf

mp.dps = 40
WITHIN = 1e-13


def chi_square_tail(x, df, is_upper):
    half, point = mpf(df) / 2, mpf(x) / 2
    if is_upper:
        return mp.gammainc(half, point, mp.inf, regularized=True)
    return mp.gammainc(half, 0, point, regularized=True)


def f_tail(x, df1, df2, is_upper):
    whole = df1 * mpf(x) + df2
    if is_upper:
        return mp.betainc(mpf(df2) / 2, mpf(df1) / 2, 0, df2 / whole, regularized=True)
    return mp.betainc(mpf(df1) / 2, mpf(df2) / 2, 0, df1 * mpf(x) / whole, regularized=True)


def quantile(tail, mean, probability, is_upper):
    """The point with that tail: the root of the logarithms of tail and point, within a bracket about the mean."""
    target = mp.log(mpf(probability))

    def excess(v):
        value = mp.log(tail(mean * mp.exp(v), is_upper)) - target
        return -value if is_upper else value

    low, high = mpf(-0.1), mpf(0.1)
    while excess(low) > 0:
        low *= 2
    while excess(high) < 0:
        high *= 2
    return mean * mp.exp(mp.findroot(excess, (low, high), solver="anderson", tol=mpf(10) ** -64, verify=False, maxsteps=200))


def power(tail, mean, ratio, alpha, is_one_sided):
    share = mpf(alpha) if is_one_sided else mpf(alpha) / 2
    ratio = mpf(ratio)
    total = mpf(0)
    if not is_one_sided or ratio >= 1:
        total += tail(quantile(tail, mean, share, True) / ratio, True)
    if not is_one_sided or ratio < 1:
        total += tail(quantile(tail, mean, share, False) / ratio, False)
    return total


def power_of_one(n, ratio, alpha=0.05, is_one_sided=False):
    return power(lambda x, is_upper: chi_square_tail(x, n - 1, is_upper), mpf(n - 1), ratio, alpha, is_one_sided)


def power_of_two(n1, n2, ratio, alpha=0.05, is_one_sided=False):
    return power(lambda x, is_upper: f_tail(x, n1 - 1, n2 - 1, is_upper), mpf(1), ratio, alpha, is_one_sided)


def first_size(reaches):
    low, high = 1, 2
    while not reaches(high):
        low, high = high, 2 * high
    while high - low > 1:
        middle = (low + high) // 2
        low, high = (low, middle) if reaches(middle) else (middle, high)
    return high


class Cases:
    def __init__(self, test):
        self.test = test
        self.lines = []

    def add(self, inputs, result, value, within, source="own, multiple precision"):
        request = {"test": self.test, "inputs": inputs}
        line = {"request": request, "result": result, "value": value, "within": within, "source": source}
        self.lines.append(json.dumps(line))

    def write(self, path):
        path.write_text("\n".join(self.lines) + "\n")


def options(alpha, is_one_sided):
    return {**({} if alpha == 0.05 else {"alpha": alpha}), **({"one-sided": True} if is_one_sided else {})}


LEVELS = [(0.05, False), (0.05, True), (0.001, False), (0.2, True)]
RATIOS = [0.25, 0.8, 1.1, 1.5, 4.0]


def variance(folder):
    cases = Cases("variance")
    for n in (2, 5, 20, 81, 400):
        for k, ratio in enumerate(RATIOS):
            for alpha, is_one_sided in LEVELS[k % 2::2]:
                inputs = {"variance-ratio": ratio, "n": n, **options(alpha, is_one_sided)}
                cases.add(inputs, "power", float(power_of_one(n, ratio, alpha, is_one_sided)), WITHIN)
    for ratio, n in [(1.0, 30), (1e-6, 3), (1e6, 3), (1.01, 5000)]:
        cases.add({"variance-ratio": ratio, "n": n}, "power", float(power_of_one(n, ratio)), WITHIN)
    for sd, null, n in [(12, 10, 60), (8, 10, 45), (0.5, 0.4, 25)]:
        ratio = (mpf(sd) / mpf(null)) ** 2
        cases.add({"sd": sd, "null-sd": null, "n": n}, "power", float(power_of_one(n, ratio)), WITHIN)
        cases.add({"sd": sd, "null-sd": null, "n": n}, "variance-ratio", float(ratio), WITHIN)
    for ratio, target, alpha, is_one_sided in [(1.5, 0.8, 0.05, False), (1.5, 0.8, 0.05, True), (0.5, 0.9, 0.05, False),
                                               (2.0, 0.95, 0.01, True), (1.2, 0.8, 0.05, False), (10.0, 0.8, 0.05, True)]:
        size = first_size(lambda n: power_of_one(n, ratio, alpha, is_one_sided) >= target)
        cases.add({"variance-ratio": ratio, "power": target, **options(alpha, is_one_sided)}, "n", size, 0)
    third = 2 / 3
    cases.add({"variance-ratio": third, "power": 0.8, "one-sided": True}, "n", 81, 0, "G*Power 3.1, manual, section 26.3")
    cases.add({"variance-ratio": third, "n": 81, "one-sided": True}, "power", 0.803685994216161, 1e-13,
              "G*Power 3.1, manual, section 26.3: 0.803686")
    cases.add({"variance-ratio": third, "n": 80, "one-sided": True}, "power", 0.798872174185286, 1e-13, "own")
    cases.write(folder / "variance.jsonl")


def two_variances(folder):
    cases = Cases("two-variances")
    for n1, n2 in [(2, 2), (3, 40), (20, 20), (60, 15), (193, 193), (500, 300)]:
        for k, ratio in enumerate(RATIOS):
            for alpha, is_one_sided in LEVELS[k % 2::2]:
                inputs = {"variance-ratio": ratio, "n": [n1, n2], **options(alpha, is_one_sided)}
                cases.add(inputs, "power", float(power_of_two(n1, n2, ratio, alpha, is_one_sided)), WITHIN)
    for ratio, n1, n2 in [(1.0, 30, 20), (1e-6, 3, 3), (1e6, 3, 4), (1.01, 5000, 4000)]:
        cases.add({"variance-ratio": ratio, "n": [n1, n2]}, "power", float(power_of_two(n1, n2, ratio)), WITHIN)
    for sds, n in [([12, 8], 40), ([3, 4], 55)]:
        ratio = (mpf(sds[0]) / sds[1]) ** 2
        cases.add({"sd": sds, "n": n}, "power", float(power_of_two(n, n, ratio)), WITHIN)
        cases.add({"sd": sds, "n": n}, "variance-ratio", float(ratio), WITHIN)
    for ratio, share, target, alpha, is_one_sided in [(1.5, 1, 0.8, 0.05, False), (2.0, 1, 0.9, 0.05, True),
                                                      (0.5, 2, 0.8, 0.05, False), (3.0, 3, 0.95, 0.01, True)]:
        size = first_size(lambda n: power_of_two(n, share * n, ratio, alpha, is_one_sided) >= target)
        inputs = {"variance-ratio": ratio, "power": target, **options(alpha, is_one_sided)}
        cases.add({**inputs, **({} if share == 1 else {"ratio": share})}, "n", [size, share * size], 0)
    cases.add({"variance-ratio": 1.5, "power": 0.8}, "n", [193, 193], 0, "G*Power 3.1, manual, section 27.3")
    cases.add({"variance-ratio": 1.5, "n": 193}, "power", 0.800105000856821, 1e-13,
              "G*Power 3.1, manual, section 27.3: 0.800105")
    cases.write(folder / "two-variances.jsonl")


def main():
    default = pathlib.Path(__file__).resolve().parents[2] / "tests" / "cases"
    folder = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default
    variance(folder)
    two_variances(folder)


if __name__ == "__main__":
    main()
