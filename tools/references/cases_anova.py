#!/usr/bin/python3
"""Writes reference cases of the factorial analysis, the analysis of covariance and that of repeated measures.

    cases_anova.py tests/cases [NAME...]    writes factorial.jsonl, ancova.jsonl and
                                              repeated-measures.jsonl, or those named

Powers are mixtures of beta tails with Poisson weights, in multiple precision. The noncentrality of a table of means is
that of the matrices: C diag(1/n) C' is inverted as it stands. The mean over the covariates is an integral over B itself.
"""

import itertools
import json
import sys
from functools import lru_cache
from pathlib import Path

from mpmath import mp, mpf

mp.dps = 32


def beta_tail(a, b, x):
    """P(B > x) of a beta variable; a continued fraction would do less well near the ends."""
    return mp.betainc(a, b, x, 1, regularized=True)


@lru_cache(maxsize=None)
def critical_beta(alpha, df1, df2):
    """x = df1 F / (df1 F + df2) at the critical value of F, by bisection and secants."""
    a, b = mpf(df1) / 2, mpf(df2) / 2
    low, high = mpf(0), mpf(1)
    for _ in range(20):
        middle = (low + high) / 2
        low, high = (middle, high) if beta_tail(a, b, middle) > alpha else (low, middle)
    return mp.findroot(lambda x: mp.log(beta_tail(a, b, x) / alpha), (low, high), solver="secant", tol=1e-50)


class NoncentralF:
    """The power at any noncentrality, with the tails of the beta distribution computed once each."""

    def __init__(self, alpha, df1, df2):
        self.a, self.b = mpf(df1) / 2, mpf(df2) / 2
        self.x = critical_beta(mpf(alpha), mpf(df1), mpf(df2))
        self.tails = {}
        self.steps = {}

    def tail(self, j):
        """P(B > x) with a + j; the recurrence adds x^(a+j-1) (1-x)^b / ((a+j-1) B(a+j-1, b)), of one sign."""
        if not self.tails:
            self.tails[0] = beta_tail(self.a, self.b, self.x)
            self.steps[0] = mp.exp(self.a * mp.log(self.x) + self.b * mp.log1p(-self.x) -
                                   mp.log(self.a) - mp.log(mp.beta(self.a, self.b)))
        for i in range(len(self.tails), j + 1):
            self.tails[i] = self.tails[i - 1] + self.steps[i - 1]
            self.steps[i] = self.steps[i - 1] * self.x * (self.a + self.b + i - 1) / (self.a + i)
        return self.tails[j]

    def power(self, noncentrality):
        half = mpf(noncentrality) / 2
        if half == 0:
            return self.tail(0)
        weight, total, j = mp.exp(-half), mpf(0), 0
        while j < half or weight > mpf(10) ** -30:
            total += weight * self.tail(j)
            j += 1
            weight *= half / j
        return total


@lru_cache(maxsize=None)
def test_of(alpha, df1, df2):
    return NoncentralF(alpha, df1, df2)


def power_of(alpha, df1, df2, noncentrality):
    return test_of(mpf(alpha), mpf(df1), mpf(df2)).power(noncentrality)


def power_over_covariates(alpha, groups, total, covariates, noncentrality):
    """Over B = 1 - v^2, whose density has no singular end in v; in pieces around its top."""
    test = test_of(mpf(alpha), mpf(groups - 1), mpf(total - groups - covariates))
    a, b = mpf(total - 1 - covariates) / 2, mpf(covariates) / 2
    top = mp.sqrt((2 * b - 1) / (2 * a + 2 * b - 3)) if a > 1 else mpf(1) / 2
    width = 1 / mp.sqrt(2 * a + 2 * b)
    points = sorted({min(mpf(1), max(mpf(0), top + k * width)) for k in (-12, -6, -3, 0, 3, 6, 12)} |
                    ({mpf(1)} if a < 20 else set()))

    def height(v):
        """Relative to that at the top."""
        if not 0 < v < 1:
            return mpf(0)
        logarithm = (a - 1) * (mp.log1p(-v * v) - mp.log1p(-top * top))
        return mp.exp(logarithm + ((2 * b - 1) * mp.log(v / top) if 2 * b > 1 else 0))

    def integral(f):
        method = "tanh-sinh" if a < 5 else "gauss-legendre"  # the former where the end v = 1 is no power of 1 - v
        value, error = mp.quad(f, points, method=method, error=True)
        assert error < mpf(10) ** -18 * value, (alpha, groups, total, covariates, noncentrality, error)
        return value

    return integral(lambda v: height(v) * test.power(noncentrality * (1 - v * v))) / integral(height)


def contrasts(levels, term):
    """The rows of C: products of differences to the first level in the factors of the term, of means over the others."""
    rows = [[mpf(1)]]
    for factor, count in enumerate(levels, 1):
        if factor in term:
            block = [[mpf((j == i) - (j == 0)) for j in range(count)] for i in range(1, count)]
        else:
            block = [[mpf(1) / count] * count]
        rows = [[x * y for x in row for y in other] for row in rows for other in block]
    return mp.matrix(rows)


def noncentrality_of_cells(levels, term, means, sizes, sd):
    c = contrasts(levels, term)
    delta = c * mp.matrix([mpf(m) for m in means])
    covariance = c * mp.diag([1 / mpf(n) for n in sizes]) * c.T
    return (delta.T * mp.lu_solve(covariance, delta))[0] / mpf(sd) ** 2


def listed(n, count):
    return n if isinstance(n, list) else [n] * count


def product(levels):
    return int(mp.fprod(levels))


def solved(inputs):
    """The power of a factorial design by its inputs."""
    levels, term = inputs["levels"], inputs["term"]
    sizes = listed(inputs["n"], product(levels))
    total = sum(sizes)
    df1 = product([levels[factor - 1] - 1 for factor in term])
    if "means" in inputs:
        noncentrality = noncentrality_of_cells(levels, term, inputs["means"], sizes, inputs["sd"])
    elif "eta-squared" in inputs:
        eta = mpf(inputs["eta-squared"])
        noncentrality = total * eta / (1 - eta)
    else:
        noncentrality = total * mpf(inputs["effect-f"]) ** 2
    return power_of(inputs.get("alpha", 0.05), df1, total - len(sizes), noncentrality)


def solved_ancova(inputs):
    sizes = listed(inputs["n"], inputs.get("groups") or len(inputs.get("means", inputs["n"])))
    total, groups, covariates = sum(sizes), len(sizes), inputs.get("covariates", 1)
    left = 1 - mpf(inputs.get("r-squared", 0))
    if "means" in inputs:
        noncentrality = noncentrality_of_cells([groups], [1], inputs["means"], sizes, inputs["sd"]) / left
    else:
        noncentrality = total * mpf(inputs["effect-f"]) ** 2 / left
    alpha = inputs.get("alpha", 0.05)
    if covariates == 0 or inputs.get("approximate"):
        return power_of(alpha, groups - 1, total - groups - covariates, noncentrality)
    return power_over_covariates(alpha, groups, total, covariates, noncentrality)


def table_noncentrality(effect, means, sizes, times, sd, correlation, epsilon):
    """From the covariance matrix of all means of the table, which compound symmetry gives, with all its correlations."""
    groups = len(sizes)
    levels = [groups, times]
    term = {"between": [1], "within": [2], "interaction": [1, 2]}[effect]
    c = contrasts(levels, term) if groups > 1 else contrasts([times], [1])
    covariance = mp.zeros(groups * times)
    for group, i, j in itertools.product(range(groups), range(times), range(times)):
        covariance[group * times + i, group * times + j] = mpf(1 if i == j else correlation) / sizes[group]
    delta = c * mp.matrix([mpf(m) for m in means])
    return (delta.T * mp.lu_solve(c * covariance * c.T, delta))[0] / mpf(sd) ** 2 * (1 if effect == "between" else epsilon)


def solved_repeated(inputs):
    effect, times = inputs["effect"], inputs["measurements"]
    groups = inputs.get("groups") or (len(inputs["means"]) // times if "means" in inputs else
                                      len(inputs["n"]) if isinstance(inputs["n"], list) else 1)
    sizes = listed(inputs["n"], groups)
    total = sum(sizes)
    epsilon, rho = mpf(inputs.get("epsilon", 1)), mpf(inputs.get("correlation", 0))
    coefficients = inputs.get("coefficients")
    if coefficients:
        each = [mpf(c) / groups for c in coefficients] * groups
        effect_size = mp.fsum(c * mpf(m) for c, m in zip(each, inputs["means"]))
        variance = mp.fsum(c * c / sizes[i // times] for i, c in enumerate(each)) * (1 - rho) * mpf(inputs["sd"]) ** 2
        return power_of(inputs.get("alpha", 0.05), 1, (total - groups) * (times - 1), effect_size**2 / variance)
    df1 = {"between": mpf(groups - 1), "within": (times - 1) * epsilon,
           "interaction": (groups - 1) * (times - 1) * epsilon}[effect]
    df2 = mpf(total - groups) * (1 if effect == "between" else (times - 1) * epsilon)
    if "means" in inputs:
        noncentrality = table_noncentrality(effect, inputs["means"], sizes, times, inputs["sd"], rho, epsilon)
    else:
        eta = mpf(inputs.get("eta-squared", 0))
        square = eta / (1 - eta) if "eta-squared" in inputs else mpf(inputs["effect-f"]) ** 2
        kind = inputs.get("f-of", "means")
        if kind == "sample":
            noncentrality = square * df2
        elif kind == "cohen":
            noncentrality = square * total * (1 if effect == "between" else (times - 1) * epsilon)
        elif effect == "between":
            noncentrality = square * total * times / (1 + (times - 1) * rho)
        else:
            noncentrality = square * total * times * epsilon / (1 - rho)
    return power_of(inputs.get("alpha", 0.05), df1, df2, noncentrality)


def first_size(solve, inputs, target, start):
    """The first equal size of the groups with the power, and the power there."""
    n = start
    while True:
        power = solve({**inputs, "n": n})
        if power >= target:
            return n, power
        n += 1


def case(test, inputs, value, within, source, result="power"):
    return {"request": {"test": test, "inputs": inputs}, "result": result, "value": value, "within": within,
            "source": source}


MULTIPRECISION = "multiple precision, tools/references/cases_anova.py"


def computed(test, solve, designs):
    for inputs in designs:
        yield case(test, inputs, float(solve(inputs)), 1e-13, MULTIPRECISION)


def sizes(test, solve, groups, designs):
    """The first size with the power, found with numbers that lie near it."""
    for inputs, target, start in designs:
        n, _ = first_size(solve, inputs, target, start)
        assert n > start or start == 2, (inputs, n)
        yield case(test, {**inputs, "power": target}, n * groups(inputs), 0, MULTIPRECISION, "total")


def factorial_cases():
    table = [9.3, 8.9, 8.5, 8.7, 8.3, 7.3]
    nine = [1, 2, 3, 2, 5, 4, 0, 1, 7]
    eight = [10, 12, 11, 15, 10, 11, 13, 19]
    twelve = [5, 7, 6, 8, 5, 5, 9, 8, 4, 6, 7, 11]
    designs = [{"levels": levels, "term": term, "effect-f": f, "n": n}
               for levels, term, f, n in (
                   ([2, 3], [1, 2], 0.25, 20), ([2, 3], [1], 0.25, 20), ([2, 3], [2], 0.25, 20), ([2, 2], [1, 2], 0.1, 250),
                   ([2, 2], [1, 2], 1.5, 2), ([5, 5], [1, 2], 0.4, 2), ([4, 3, 2], [1, 3], 0.2, 10), ([7], [1], 0.3, 12),
                   ([2, 2, 2, 2], [1, 2, 3, 4], 0.15, 30), ([10, 100], [2], 0.2, 2), ([2, 3], [1, 2], 0, 5),
                   ([2, 3], [2, 1], 0.01, 1000), ([12, 12], [1, 2], 0.5, 2), ([2, 2], [2], 0.02, 1500))]
    designs += [{"levels": levels, "term": term, "eta-squared": eta, "n": n, "alpha": alpha}
                for levels, term, eta, n, alpha in (
                    ([2, 3], [1, 2], 0.06, 20, 0.05), ([3, 3], [1, 2], 0.14, 8, 0.01), ([2, 2, 2], [1, 2, 3], 0.01, 90, 0.1),
                    ([3, 4], [2], 0.3, 3, 0.001), ([2, 2], [1], 0.99, 2, 0.05), ([6, 2], [1], 0.02, 40, 0.2))]
    designs += [{"levels": [2, 3], "term": term, "means": table, "sd": sd, "n": n}
                for term in ([1], [2], [1, 2])
                for sd, n in ((2, 30), (2, [30, 20, 10, 5, 40, 25]), (0.7, [2, 1, 1, 1, 1, 2]), (3, [1000, 1, 1, 1, 1, 1000]))]
    designs += [{"levels": [3, 3], "term": term, "means": nine, "sd": sd, "n": n}
                for term in ([1], [2], [1, 2])
                for sd, n in ((6, 5), (6, [3, 4, 5, 6, 7, 8, 9, 10, 11]), (4, [2, 2, 2, 2, 2, 2, 2, 2, 3]),
                              (9, [1, 100, 1, 100, 1, 100, 1, 100, 1]))]
    designs += [{"levels": [2, 2, 2], "term": term, "means": eight, "sd": 6, "n": n}
                for term in ([1], [3], [1, 2], [2, 3], [1, 2, 3])
                for n in (8, [4, 5, 6, 7, 8, 9, 10, 11])]
    designs += [{"levels": [3, 4], "term": term, "means": twelve, "sd": 3, "n": [4, 2, 3, 5, 6, 1, 2, 2, 7, 3, 3, 4]}
                for term in ([1], [2], [1, 2], [2, 1])]
    designs += [{"levels": [2, 3, 2], "term": term, "means": twelve, "sd": 3, "n": [4, 2, 3, 5, 6, 1, 2, 2, 7, 3, 3, 4]}
                for term in ([1], [2], [1, 2], [1, 3], [2, 3], [1, 2, 3])]
    designs += [{"levels": [3, 4, 3], "term": term, "means": [((7 * i * i + 3 * i) % 11) / 2 for i in range(36)], "sd": 3,
                 "n": [1 + (5 * i) % 7 for i in range(36)]} for term in ([1, 2], [1, 3], [2, 3], [1, 2, 3])]
    yield from computed("factorial", solved, designs)
    yield from sizes("factorial", solved, lambda inputs: product(inputs["levels"]), [
        ({"levels": [2, 3], "term": [1, 2], "effect-f": 0.25}, 0.8, 20),
        ({"levels": [2, 2], "term": [1], "effect-f": 0.1}, 0.8, 190),
        ({"levels": [3, 3], "term": [1, 2], "eta-squared": 0.1}, 0.95, 10),
        ({"levels": [2, 3], "term": [1, 2], "means": table, "sd": 2}, 0.9, 400),
        ({"levels": [2, 2, 2], "term": [1, 2, 3], "effect-f": 3}, 0.8, 2),
        ({"levels": [4, 5], "term": [1, 2], "effect-f": 0.2, "alpha": 0.01}, 0.9, 35)])
    gpower = "G*Power 3.1 manual, section 11.3.1"
    for term, f, value in (([1], 0.7066856, 0.999999399395474), ([1, 2], 0.2450722, 0.475634583687473),
                           ([1, 2, 3], 0.3288016, 0.513442417273949)):
        yield case("factorial", {"levels": [3, 3, 4], "term": term, "effect-f": f, "n": 3}, value, 1e-12, gpower)
    for term, value in (([1], 0.760678373340627), ([2], 0.777471947928463), ([1, 2], 0.122504170802968)):
        yield case("factorial", {"levels": [2, 3], "term": term, "means": table, "sd": 2, "n": 30}, value, 1e-12,
                   "R package powertools, anova2way.F.bal, to its digits")


def ancova_cases():
    three = [400, 450, 500]
    designs = [{"means": three, "sd": sd, "n": n, "covariates": p, "r-squared": r2}
               for sd, n, p, r2 in (
                   (99.5, 21, 1, 0), (99.5, 24, 10, 0), (86.6, 16, 1, 0), (43.6, 6, 1, 0), (120, 21, 1, 0.3), (120, 21, 2, 0.3),
                   (150, 30, 3, 0.64), (120, [10, 20, 30], 1, 0.2), (120, [30, 20, 10], 1, 0.2), (60, [2, 2, 2], 1, 0),
                   (60, [2, 2, 3], 2, 0.5), (30, [1, 1, 2], 0, 0), (200, 100, 20, 0.1), (200, 100, 50, 0.9), (50, 20, 40, 0),
                   (50, 20, 56, 0), (500, 1000, 1, 0.25))]
    designs += [{"effect-f": f, "groups": k, "n": n, "covariates": p, "r-squared": r2, "alpha": alpha}
                for f, k, n, p, r2, alpha in (
                    (0.25, 2, 60, 1, 0, 0.05), (0.25, 2, 60, 1, 0.5, 0.05), (0.25, 2, 60, 5, 0.5, 0.01), (0.4, 4, 12, 2, 0, 0.05),
                    (0.4, 4, 12, 2, 0.2, 0.001), (0.1, 3, 300, 1, 0.36, 0.05), (1, 2, 3, 1, 0, 0.05), (1, 2, 3, 2, 0, 0.05),
                    (1, 2, 3, 3, 0, 0.1), (8, 2, 2, 1, 0, 0.05), (0, 3, 10, 2, 0.5, 0.05), (0.3, 10, 4, 6, 0.1, 0.05),
                    (0.05, 2, 1500, 3, 0.5, 0.05), (0.3, 20, 3, 1, 0, 0.2), (0.5, 2, 600, 500, 0, 0.05),
                    (0.25, 2, 900, 1000, 0, 0.05), (0.6, 5, 3, 4, 0.3, 0.05), (0.6, 5, 3, 9, 0.3, 0.05), (2, 2, 2, 1, 0.9, 0.05))]
    designs += [{"effect-f": 0.3, "n": n, "covariates": p, "r-squared": 0.2}
                for n in ([10, 50], [50, 10], [5, 5, 80], [2, 40, 40, 2]) for p in (1, 2, 7)]
    designs += [{"effect-f": 0.3, "groups": k, "n": 15, "covariates": p, "approximate": True}
                for k in (2, 3, 6) for p in (1, 4)]
    designs += [{"means": [0, 0.5], "sd": 1, "n": [n, 2 * n]} for n in (10, 20, 40)]
    yield from computed("ancova", solved_ancova, designs)
    count = lambda inputs: inputs.get("groups") or len(inputs["means"])
    yield from sizes("ancova", solved_ancova, count, [
        ({"means": three, "sd": 99.5, "covariates": 1}, 0.8, 17), ({"means": three, "sd": 99.5, "covariates": 10}, 0.8, 20),
        ({"means": three, "sd": 43.6, "covariates": 1}, 0.8, 3),
        ({"effect-f": 0.25, "groups": 2, "r-squared": 0.49, "covariates": 1}, 0.9, 40),
        ({"effect-f": 0.25, "groups": 2, "r-squared": 0.49, "covariates": 1, "approximate": True}, 0.9, 40),
        ({"effect-f": 0.1, "groups": 4, "covariates": 3, "alpha": 0.01}, 0.8, 380)])
    for variance, n, p, value in ((9900, 21, 1, 0.818508185585), (9900, 24, 10, 0.869106023), (7500, 16, 1, 0.813625007),
                                  (1900, 6, 1, 0.898966747)):
        yield case("ancova", {"means": three, "sd": variance**0.5, "n": n, "covariates": p, "approximate": True}, value, 1e-9,
                   "the designs of Shieh (2020), as G*Power 3.1 computes them")


def repeated_cases():
    designs = [{"effect": effect, "groups": g, "measurements": m, "n": n, "effect-f": f, "correlation": rho, "epsilon": eps,
                "f-of": "means"}
               for effect, g, m, n, f, rho, eps in (
                   ("within", 1, 3, 20, 0.25, 0.5, 1), ("within", 1, 2, 34, 0.25, 0.5, 1), ("within", 1, 4, 15, 0.25, 0.5, 0.7),
                   ("within", 1, 4, 15, 0.25, 0.5, 1 / 3), ("within", 2, 3, 15, 0.25, -0.3, 1), ("within", 3, 5, 6, 0.1, 0.9, 0.6),
                   ("within", 1, 2, 2, 1, 0.5, 1), ("within", 1, 1000, 2, 0.05, 0.5, 1), ("between", 2, 3, 15, 0.25, 0.5, 1),
                   ("between", 2, 3, 15, 0.25, 0, 1), ("between", 3, 10, 20, 0.3, 0.8, 1), ("between", 2, 4, 20, 0.2, -0.3, 1),
                   ("between", 2, 2, 2, 0.9, 0.99, 1), ("interaction", 2, 3, 15, 0.25, 0.5, 1), ("interaction", 4, 3, 8, 0.2, 0.3, 1),
                   ("interaction", 3, 6, 10, 0.15, 0.6, 0.45), ("interaction", 2, 2, 1000, 0.02, 0.7, 1),
                   ("interaction", 100, 3, 2, 0.2, 0.5, 1), ("interaction", 2, 3, 15, 0, 0.5, 1))]
    designs += [{"effect": effect, "groups": g, "measurements": 3, "n": n, "effect-f": f, "epsilon": eps, "f-of": kind}
                for kind in ("sample", "cohen")
                for effect, g, n, f, eps in (("within", 1, 20, 0.25, 1), ("within", 2, 15, 0.25, 0.75), ("between", 2, 15, 0.4, 1),
                                             ("between", 3, 8, 0.4, 1), ("interaction", 2, 15, 0.25, 1),
                                             ("interaction", 3, 12, 0.3, 0.6))]
    designs += [{"effect": effect, "measurements": 4, "n": n, "eta-squared": eta, "f-of": "sample", "alpha": 0.01}
                for effect, n, eta in (("within", [20, 10], 0.1), ("between", [20, 10], 0.3), ("interaction", [5, 6, 7], 0.2))]
    two = [10, 10, 11, 10, 12, 14]
    designs += [{"effect": effect, "measurements": 3, "means": two, "sd": 4, "correlation": rho, "n": n}
                for effect in ("between", "within", "interaction")
                for rho, n in ((0.5, 20), (0.5, [30, 10]), (-0.4, [3, 8]), (0.95, [2, 1]))]
    three = [3, 5, 4, 6, 2, 2, 3, 3, 5, 9, 8, 8]
    designs += [{"effect": effect, "measurements": 4, "means": three, "sd": 5, "correlation": 0.4, "epsilon": eps, "n": n}
                for effect, eps in (("between", 1), ("within", 0.7), ("interaction", 0.7), ("interaction", 1))
                for n in (9, [4, 9, 20])]
    designs += [{"effect": "within", "measurements": 4, "coefficients": c, "means": means, "sd": 5, "correlation": 0.2, "n": n}
                for c in ([1, 1, 1, -3], [-3, -1, 1, 3]) for means, n in (([1.5, 2.5, 2, 0], 71), (three, [4, 9, 20]))]
    yield from computed("repeated-measures", solved_repeated, designs)
    yield from sizes("repeated-measures", solved_repeated, lambda inputs: inputs.get("groups", 1), [
        ({"effect": "interaction", "groups": 2, "measurements": m, "effect-f": 0.25, "correlation": 0.5}, power, start)
        for m, power, start in ((2, 0.8, 10), (3, 0.8, 10), (4, 0.8, 8), (2, 0.95, 20), (4, 0.95, 10))])
    yield from sizes("repeated-measures", solved_repeated, lambda inputs: inputs.get("groups", 1), [
        ({"effect": "within", "measurements": 4, "means": [1.5, 2.5, 2, 0], "sd": 5, "correlation": 0.2}, 0.9, 70),
        ({"effect": "between", "groups": 3, "measurements": 4, "effect-f": 0.25, "correlation": 0.5}, 0.8, 30)])
    gpower = "G*Power 3.1, as cited"
    for m, n, value in ((2, 17, 0.80703671514722), (3, 14, 0.811560217661385), (4, 12, 0.815745412143212),
                        (2, 27, 0.95007725136852), (4, 18, 0.951764986860843)):
        yield case("repeated-measures", {"effect": "interaction", "groups": 2, "measurements": m, "effect-f": 0.25,
                                         "correlation": 0.5, "n": n}, value, 1e-12, gpower)
    yield case("repeated-measures", {"effect": "within", "measurements": 4, "means": [1.5, 2.5, 2, 0], "sd": 5,
                                     "correlation": 0.2, "n": 83}, 0.902733845992622, 1e-12, "R package lrstat")
    yield case("repeated-measures", {"effect": "within", "groups": 2, "measurements": 2, "eta-squared": 0.01,
                                     "correlation": 0.5, "n": 99}, 0.803608601135542, 1e-12, "R package pwrss")
    yield case("repeated-measures", {"effect": "within", "measurements": 4, "coefficients": [1, 1, 1, -3], "sd": 5,
                                     "means": [1.5, 2.5, 2, 0], "correlation": 0.2, "n": 71}, 0.901215647172193, 1e-6,
               "R package lrstat, which counts one tail at 0.025")
    for kind, value in (("means", 0.841), ("cohen", 0.374)):
        inputs = {"effect": "within", "groups": 2, "measurements": 3, "effect-f": 0.25, "n": 15, "f-of": kind}
        if kind == "means":
            inputs["correlation"] = 0.5
        yield case("repeated-measures", inputs, value, 5e-4, "G*Power 3.1, by its options")


FILES = {"factorial": factorial_cases, "ancova": ancova_cases, "repeated-measures": repeated_cases}


def main(folder, names):
    for name, cases in FILES.items():
        if names and name not in names:
            continue
        lines = set()
        with open(Path(folder) / f"{name}.jsonl", "w") as file:
            for row in cases():
                line = json.dumps(row)
                assert line not in lines, line
                lines.add(line)
                print(line, file=file, flush=True)
        print(name, len(lines))


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
