#!/usr/bin/python3
"""Writes reference cases of proportions against margins: non-inferiority, superiority by a margin, equivalence.

Binomial probabilities are summed, normal ones evaluated, and the most likely proportions under a limit found as roots
of the score equation, all at 40 digits. The exact unconditional test is done by its definition: all tables in the
order of the statistic, and the proportions at the limit on a fine grid. A size is the first whole one whose power
reaches the target.

    cases_proportion_margins.py proportion > tests/cases/proportion.jsonl
    cases_proportion_margins.py two-proportions > tests/cases/two-proportions.jsonl
"""

import itertools
import json
import math
import sys

from mpmath import mp, mpf

mp.dps = 40
COMPUTED = "multiple precision, tools/references/cases_proportion_margins.py"


def quantile(alpha):
    """The z with P(Z > z) = alpha."""
    return mp.sqrt(2) * mp.erfinv(1 - 2 * mpf(alpha))


def exactly(number):
    """The double that a request holds."""
    return mpf(float(number))


def at_contrast(scale, reference, limit):
    reference, limit = exactly(reference), exactly(limit)
    if scale == "ratio":
        return reference * limit
    if scale == "odds-ratio":
        odds = limit * reference / (1 - reference)
        return odds / (1 + odds)
    return reference + limit


def limits_of(inputs):
    """The lower and the upper limit of the margin or the equivalence; None where there is none."""
    if "equivalence" in inputs:
        return tuple(inputs["equivalence"])
    none = 0 if inputs.get("margin-scale", "difference") == "difference" else 1
    margin = inputs["margin"]
    is_above = margin >= none if inputs.get("superiority") else margin <= none
    return (margin, None) if is_above else (None, margin)


def power_of_parts(deviates):
    """Of the deviates of one limit or of both."""
    return max(mpf(0), sum(mp.ncdf(d) for d in deviates) - (len(deviates) - 1))


# One proportion


def binomial(n, p):
    return [mp.binomial(n, x) * p**x * (1 - p) ** (n - x) for x in range(n + 1)]


def one_exact(inputs, limits):
    n, alpha = inputs["n"], exactly(inputs["alpha"])
    least, most = 0, n
    if limits[0] is not None:
        masses, tail, least = binomial(n, limits[0]), mpf(0), n + 1
        while least > 0 and tail + masses[least - 1] <= alpha:
            least -= 1
            tail += masses[least]
    if limits[1] is not None:
        masses, tail, most = binomial(n, limits[1]), mpf(0), -1
        while most < n and tail + masses[most + 1] <= alpha:
            most += 1
            tail += masses[most]
    return sum(binomial(n, exactly(inputs["proportion"]))[least : most + 1], mpf(0))


def one_power(inputs):
    scale = inputs.get("margin-scale", "difference")
    limits = [None if m is None else at_contrast(scale, inputs["null"], m) for m in limits_of(inputs)]
    if inputs.get("exact"):
        return one_exact(inputs, limits)
    n, p, z = inputs["n"], exactly(inputs["proportion"]), quantile(exactly(inputs["alpha"]))
    correction = mpf(1) / (2 * n) if inputs.get("correction") else 0
    error = mp.sqrt(p * (1 - p) / n)

    def deviate(limit, distance):
        observed = inputs.get("standard-error") == "observed"
        null_error = error if observed else mp.sqrt(limit * (1 - limit) / n)
        return (distance - z * null_error - correction) / error

    deviates = []
    if limits[0] is not None:
        deviates.append(deviate(limits[0], p - limits[0]))
    if limits[1] is not None:
        deviates.append(deviate(limits[1], limits[1] - p))
    return power_of_parts(deviates)


# Two proportions


def constrained(scale, limit, p1, p2, ratio):
    """The most likely proportions that have the limit, by bisection of the score along them."""

    def second(q1):
        if scale == "ratio":
            return limit * q1
        if scale == "odds-ratio":
            return limit * q1 / (1 + q1 * (limit - 1))
        return q1 + limit

    def score(q1):
        q2 = second(q1)
        slope = limit if scale == "ratio" else mpf(1)
        if scale == "odds-ratio":
            slope = q2 * (1 - q2) / (q1 * (1 - q1))
        return part(p1, q1) + slope * ratio * part(p2, q2)

    def part(p, q):
        """Of the likelihood of p at q, also where q is 0 or 1 because p is."""
        return (p / q if p > 0 else 0) - ((1 - p) / (1 - q) if p < 1 else 0)

    low, high = mpf(0), mpf(1)
    if scale == "difference":
        low, high = max(low, -limit), min(high, 1 - limit)
    if scale == "ratio":
        high = min(high, 1 / limit)
    for _ in range(140):
        middle = (low + high) / 2
        if score(middle) > 0:
            low = middle
        else:
            high = middle
    return low, second(low)


def two_part(inputs, limit, sign):
    scale = inputs.get("margin-scale", "difference")
    method = inputs.get("margin-method", "farrington-manning")
    n1, n2 = (mpf(n) for n in inputs["n"])
    p1, p2 = (exactly(p) for p in inputs["proportions"])
    limit = exactly(limit)
    z = quantile(exactly(inputs["alpha"]))

    def error_at(q1, q2):
        v1, v2 = q1 * (1 - q1), q2 * (1 - q2)
        if scale == "odds-ratio":
            return mp.sqrt(1 / (n1 * v1) + 1 / (n2 * v2))
        if scale == "ratio" and method == "wald":
            return mp.sqrt((1 - q1) / (n1 * q1) + (1 - q2) / (n2 * q2))
        return mp.sqrt((limit**2 if scale == "ratio" else 1) * v1 / n1 + v2 / n2)

    if scale == "difference":
        distance = p2 - p1 - limit
    elif scale == "ratio":
        distance = mp.log(p2 / p1 / limit) if method == "wald" else p2 - limit * p1
    else:
        distance = mp.log(p2 / (1 - p2) / (p1 / (1 - p1)) / limit)
    error = error_at(p1, p2)
    if method == "wald":
        null_error = error
    elif method == "pooled":
        mean = (n1 * p1 + n2 * p2) / (n1 + n2)
        null_error = error_at(mean, mean)
    else:
        null_error = error_at(*constrained(scale, limit, p1, p2, n2 / n1))
        if method == "miettinen-nurminen":
            null_error *= mp.sqrt((n1 + n2) / (n1 + n2 - 1))
    correction = (1 / n1 + 1 / n2) / 2 if inputs.get("correction") else 0
    return (sign * distance - z * null_error - correction) / error


def score_order(n1, n2, limit):
    """All tables, those that are rejected first in front, with those that tie together."""
    tables = []
    for x1, x2 in itertools.product(range(n1 + 1), range(n2 + 1)):
        p1, p2 = mpf(x1) / n1, mpf(x2) / n2
        if limit == 0:
            q1 = q2 = mpf(x1 + x2) / (n1 + n2)
        else:
            q1, q2 = constrained("difference", limit, p1, p2, mpf(n2) / n1)
        variance = q1 * (1 - q1) / n1 + q2 * (1 - q2) / n2
        tables.append((float((p2 - p1 - limit) / mp.sqrt(variance)) if variance > 1e-30 else 0.0, x1, x2))
    tables.sort(reverse=True)
    groups = []
    for table in tables:
        if groups and groups[-1][-1][0] - table[0] < 1e-9:
            groups[-1].append(table)
        else:
            groups.append([table])
    return groups


def masses(n, p):
    return [math.comb(n, x) * p**x * (1 - p) ** (n - x) for x in range(n + 1)]


def score_region(n1, n2, limit, alpha):
    """The tables that show that p2 - p1 is above the limit."""
    points = 1500
    low = max(0.0, -float(limit))
    width = 1 - abs(float(limit))
    grid = []
    for i in range(points + 1):
        q1 = min(1.0, low + width * i / points)
        grid.append((masses(n1, q1), masses(n2, min(1.0, max(0.0, q1 + float(limit))))))
    level = [0.0] * len(grid)
    region = set()
    for group in score_order(n1, n2, limit):
        for j, (first, second) in enumerate(grid):
            level[j] += sum(first[x1] * second[x2] for _, x1, x2 in group)
        highest = max(level)
        if abs(highest / float(alpha) - 1) < 1e-5:
            raise ValueError("the grid does not tell whether the level is kept")
        if highest > float(alpha):
            break
        region |= {(x1, x2) for _, x1, x2 in group}
    return region


def two_exact(inputs):
    n1, n2 = inputs["n"]
    alpha = exactly(inputs["alpha"])
    lower, upper = limits_of(inputs)
    region = set(itertools.product(range(n1 + 1), range(n2 + 1)))
    if lower is not None:
        region &= score_region(n1, n2, exactly(lower), alpha)
    if upper is not None:
        region &= {(n1 - x1, n2 - x2) for x1, x2 in score_region(n1, n2, -exactly(upper), alpha)}
    p1, p2 = (exactly(p) for p in inputs["proportions"])
    first, second = binomial(n1, p1), binomial(n2, p2)
    return sum((first[x1] * second[x2] for x1, x2 in region), mpf(0))


def two_power(inputs):
    if inputs.get("exact"):
        return two_exact(inputs)
    lower, upper = limits_of(inputs)
    deviates = []
    if lower is not None:
        deviates.append(two_part(inputs, lower, 1))
    if upper is not None:
        deviates.append(two_part(inputs, upper, -1))
    return power_of_parts(deviates)


# Sizes


def first_size(power_at, target):
    """The first whole size of an even power."""
    above = 2
    while power_at(above) < target:
        above *= 2
    below = 1
    while above - below > 1:
        middle = (above + below) // 2
        if power_at(middle) < target:
            below = middle
        else:
            above = middle
    return above


def row(test, inputs, result, value, within, source=COMPUTED):
    request = {"test": test, "inputs": inputs}
    print(json.dumps({"request": request, "result": result, "value": value, "within": within, "source": source}))


def power_row(test, inputs, within=1e-13):
    power = one_power(inputs) if test == "proportion" else two_power(inputs)
    row(test, inputs, "power", float(power), within)


WAYS = [
    {"margin": -0.1, "non-inferiority": True},
    {"margin": 0.08, "non-inferiority": True},
    {"margin": 0.05, "superiority": True},
    {"margin": -0.05, "superiority": True},
    {"margin": 0.0, "non-inferiority": True},
    {"equivalence": [-0.15, 0.1]},
]
RATIOS = [
    {"margin": 0.8, "non-inferiority": True},
    {"margin": 1.25, "non-inferiority": True},
    {"margin": 1.1, "superiority": True},
    {"equivalence": [0.7, 1.4]},
]


def one_cases():
    designs = [(0.85, 0.85, 0.025), (0.3, 0.35, 0.05), (0.7, 0.5, 0.01), (0.18, 0.2, 0.1)]
    for (proportion, null, alpha), way, n in itertools.product(designs, WAYS, (15, 120)):
        inputs = {"proportion": proportion, "null": null, "alpha": alpha, "n": n, **way}
        power_row("proportion", inputs)
        power_row("proportion", {**inputs, "exact": True})
        if n == 120:
            power_row("proportion", {**inputs, "correction": True})
            power_row("proportion", {**inputs, "standard-error": "observed"})
    for way, scale in itertools.product(RATIOS, ("ratio", "odds-ratio")):
        inputs = {"proportion": 0.42, "null": 0.4, "alpha": 0.05, "n": 200, "margin-scale": scale, **way}
        power_row("proportion", inputs)
        power_row("proportion", {**inputs, "exact": True})
    extreme = [(0.02, 0.01, 0.05, 1e-6, 900), (0.999, 0.99, -0.02, 0.001, 400), (0.5, 0.5, -0.3, 0.4, 3)]
    for proportion, null, margin, alpha, n in extreme:
        for exact in (False, True):
            inputs = {"proportion": proportion, "null": null, "margin": margin, "non-inferiority": True}
            power_row("proportion", {**inputs, "alpha": alpha, "n": n, **({"exact": True} if exact else {})})
    one_sizes()


def one_sizes():
    pass_2025 = "PASS 2025 and multiple precision"
    for p, n in ((0.71, 16386), (0.75, 638), (0.80, 168), (0.85, 316), (0.89, 7248)):
        design = {"proportion": p, "null": 0.8, "equivalence": [-0.1, 0.1], "alpha": 0.025}
        row("proportion", {**design, "power": 0.8}, "n", n, 0, pass_2025)
    printed = {
        (False, "limit"): (563, 133, 54),
        (True, "limit"): (582, 142, 61),
        (False, "observed"): (503, 101, 32),
        (True, "observed"): (523, 110, 38),
    }
    for (corrected, error), sizes in printed.items():
        for p, n in zip((0.80, 0.85, 0.90), sizes):
            design = {"proportion": p, "null": 0.85, "margin": -0.1, "non-inferiority": True, "alpha": 0.025}
            design.update({"standard-error": error} | ({"correction": True} if corrected else {}))
            assert first_size(lambda m: one_power({**design, "n": m}), mpf("0.8")) == n
            row("proportion", {**design, "power": 0.8}, "n", n, 0, "PASS 15 and multiple precision")
    powers = {0.60: 0.996492413122482, 0.63: 0.94824150777044, 0.65: 0.758279839373494, 0.69: 0.113891899567308}
    for p, power in powers.items():
        inputs = {"proportion": p, "null": 0.6, "equivalence": [-0.1, 0.1], "exact": True, "n": 500, "alpha": 0.05}
        row("proportion", inputs, "power", power, 1e-13, "statsmodels and PASS, four digits; multiple precision")
    for alpha, n, power in ((0.05, 110, 0.8096740681167), (0.025, 136, 0.81267606309345)):
        inputs = {"proportion": 0.25, "null": 0.15, "margin": 0.0, "superiority": True, "exact": True, "alpha": alpha}
        row("proportion", {**inputs, "n": n}, "power", power, 1e-12, "lrstat 0.2.15")


def two_cases():
    designs = [((0.85, 0.85), (200, 200), 0.025), ((0.3, 0.36), (40, 90), 0.05), ((0.05, 0.02), (500, 250), 0.01)]
    methods = ("farrington-manning", "miettinen-nurminen", "wald", "pooled")
    for (proportions, n, alpha), way, method in itertools.product(designs, WAYS, methods):
        inputs = {"proportions": list(proportions), "n": list(n), "alpha": alpha, "margin-method": method, **way}
        power_row("two-proportions", inputs)
        if method != "miettinen-nurminen":
            power_row("two-proportions", {**inputs, "correction": True})
    for (proportions, n, alpha), way, scale in itertools.product(designs, RATIOS, ("ratio", "odds-ratio")):
        inputs = {"proportions": list(proportions), "n": list(n), "alpha": alpha, "margin-scale": scale, **way}
        for method in ("farrington-manning", "wald") + (("miettinen-nurminen",) if scale == "ratio" else ()):
            power_row("two-proportions", {**inputs, "margin-method": method})
    small = [((0.6, 0.7), (12, 15), 0.05), ((0.9, 0.85), (20, 14), 0.025), ((0.2, 0.25), (16, 16), 0.1)]
    for (proportions, n, alpha), way in itertools.product(small, WAYS + [{"equivalence": [-0.4, 0.45]}]):
        inputs = {"proportions": list(proportions), "n": list(n), "alpha": alpha, "exact": True, **way}
        power_row("two-proportions", inputs, 1e-12)
    extreme = [((1e-4, 3e-4), (20000, 9000), 0.025, 0.001), ((0.999, 0.998), (300, 900), 1e-6, -0.01)]
    for proportions, n, alpha, margin in extreme:
        inputs = {"proportions": list(proportions), "n": list(n), "alpha": alpha, "margin": margin}
        power_row("two-proportions", {**inputs, "non-inferiority": True})
    two_sizes()


def two_sizes():
    def sizes(inputs, expected, source=COMPUTED):
        ratio = inputs.get("ratio", 1)
        plain = {k: v for k, v in inputs.items() if k not in ("ratio", "power")}

        def power_at(n):
            return two_power({**plain, "n": [n, math.ceil(n * ratio)]})

        first = first_size(power_at, mpf(inputs["power"]))
        found = [first, math.ceil(first * ratio)]
        assert expected in (None, found), (found, expected)
        row("two-proportions", inputs, "n", found, 0, source)

    ni = {"margin": -0.1, "non-inferiority": True, "alpha": 0.025}
    for p, target, expected in ((0.85, 0.8, 207), (0.9, 0.8, 155), (0.9, 0.9, 205)):
        sizes({"proportions": [p, p], **ni, "power": target}, [expected, expected])
    for method in ("miettinen-nurminen", "wald"):
        sizes({"proportions": [0.7, 0.75], **ni, "power": 0.9, "margin-method": method, "ratio": 2}, None)
    farrington = "Farrington and Manning 1990, page 1451, unrounded in gsDesign"
    superiority = {"proportions": [0.05, 0.40], "margin": 0.2, "superiority": True, "alpha": 0.05}
    sizes({**superiority, "power": 0.8}, [80, 80], farrington)
    for scale, way in (("ratio", RATIOS[0]), ("odds-ratio", RATIOS[3])):
        inputs = {"proportions": [0.4, 0.42], "margin-scale": scale, "alpha": 0.05, "power": 0.85, **way}
        sizes({**inputs, "ratio": 1.5}, None)
    wald = {"proportions": [0.5, 0.5], "equivalence": [-0.1, 0.1], "alpha": 0.05, "margin-method": "wald"}
    sizes({**wald, "power": 0.8}, [429, 429], "powertools, TOSTER 428.19; multiple precision")
    sizes({**wald, "power": 0.9}, [542, 542], "powertools, TOSTER 541.1; multiple precision")
    pooled = {"alpha": 0.025, "margin": -0.1, "non-inferiority": True, "margin-method": "pooled"}
    printed = ((0.8, (78, 39), 0.8049820844), (0.9, (212, 106), 0.80014845438), (0.95, (624, 312), 0.80045202219))
    for reference, n, power in printed:
        inputs = {"proportions": [reference, 0.9], "n": list(n), **pooled}
        row("two-proportions", inputs, "power", power, 1e-9, "PASS 15")
    unconditional = {"proportions": [0.25, 0.6], "margin": 0.0, "superiority": True, "exact": True}
    for n, alpha, power, within in ((25, 0.025, 0.69461121704002, 1e-13), (34, 0.05, 0.9052923215996, 1e-12)):
        inputs = {**unconditional, "n": [n, n], "alpha": alpha}
        row("two-proportions", inputs, "power", power, within, "lrstat 0.2.15")


if __name__ == "__main__":
    {"proportion": one_cases, "two-proportions": two_cases}[sys.argv[1]]()
