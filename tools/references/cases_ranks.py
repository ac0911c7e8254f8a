#!/usr/bin/env python3
"""Writes the reference cases of the tests of ranks, in multiple precision and from definitions, not from closed forms.

    cases_ranks.py mann-whitney > tests/cases/mann-whitney.jsonl
    cases_ranks.py ordinal > tests/cases/ordinal.jsonl
    cases_ranks.py signed-rank > tests/cases/signed-rank.jsonl

Powers of t are integrals over the distribution of the estimated standard deviation; probabilities of shifted parents are
integrals over their densities; the variances of ordered categories are sums over pairs of categories.
"""

import json
import sys
from functools import lru_cache

from mpmath import mp, mpf

mp.dps = 34
HALF = mpf(1) / 2
SOURCE = "tools/references/cases_ranks.py"


# Parents: density, distribution, breaks of the integrals, relative efficiency.

SQRT2, SQRT3, SQRT5 = mp.sqrt(2), mp.sqrt(3), mp.sqrt(5)
LOGISTIC = SQRT3 / mp.pi


def logistic_below(x):
    return 1 / (1 + mp.exp(-x / LOGISTIC))


def clamped(x, ends):
    return min(max(x, -ends), ends)


PARENTS = {
    "normal": (mp.npdf, mp.ncdf, 14, 3 / mp.pi),
    "logistic": (lambda x: logistic_below(x) * logistic_below(-x) / LOGISTIC, logistic_below, 48, mp.pi**2 / 9),
    "laplace": (lambda x: mp.exp(-SQRT2 * abs(x)) / SQRT2,
                lambda x: mp.exp(SQRT2 * x) / 2 if x < 0 else 1 - mp.exp(-SQRT2 * x) / 2, 60, mpf(3) / 2),
    "uniform": (lambda x: 1 / (2 * SQRT3), lambda x: HALF + clamped(x, SQRT3) / (2 * SQRT3), SQRT3, mpf(1)),
    "minimum": (lambda x: 3 / (20 * SQRT5) * (5 - x * x),
                lambda x: HALF + 3 / (20 * SQRT5) * (5 * clamped(x, SQRT5) - clamped(x, SQRT5)**3 / 3), SQRT5,
                mpf(108) / 125),
}


@lru_cache(maxsize=None)
def shifted(parent, shift):
    """P(X < Y), and P(X < Y, X' < Y), of Y moved up by `shift`."""
    density, below, end, _ = PARENTS[parent]
    inner = [p for p in (-shift, mpf(0), -shift + end, -shift - end) if -end < p < end]
    pieces = sorted({mpf(-end), *inner, mpf(end), *(mpf(end) * k / 8 for k in range(-7, 8))})
    one = mp.quad(lambda x: below(x + shift) * density(x), pieces)
    both = mp.quad(lambda x: below(x + shift)**2 * density(x), pieces)
    return one, both


# The distributions of the statistics.

def z_quantile(tail):
    return SQRT2 * mp.erfinv(1 - 2 * tail)


def t_upper(t, df):
    value = mp.betainc(df / 2, HALF, 0, df / (df + t * t), regularized=True) / 2
    return value if t > 0 else 1 - value


@lru_cache(maxsize=None)
def t_quantile(tail, df):
    low, high = mpf(0), mpf(1)
    while t_upper(high, df) > tail:
        low, high = high, high * 2
    return mp.findroot(lambda t: t_upper(t, df) / tail - 1, (low, high), solver="anderson", tol=mpf(10)**-56)


def t_power(df, shift, alpha, sides):
    """Over the logarithm of the chi of the sample, where the trapezoidal rule converges geometrically."""
    critical = t_quantile(alpha / sides, df)
    log_constant = df / 2 * mp.log(df / 2) - mp.loggamma(df / 2) + mp.log(2)

    def at(y):
        power = mp.ncdf(shift - critical * mp.exp(y))
        if sides == 2:
            power += mp.ncdf(-shift - critical * mp.exp(y))
        return power * mp.exp(log_constant + df * y - df * mp.exp(2 * y) / 2)

    low, high = -80 / df - 12 / mp.sqrt(2 * df), 9 / mp.sqrt(df) + mpf("0.5") / df
    step = 1 / (mp.sqrt(2 * df) * 7)
    return step * mp.fsum(at(low + k * step) for k in range(int((high - low) / step) + 1))


def normal_power(effect, threshold, sd, sides):
    power = mp.ncdf((effect - threshold) / sd)
    return power + mp.ncdf((-effect - threshold) / sd) if sides == 2 else power


# The tests.

def two_group_power(inputs, n1, n2):
    alpha, sides = mpf(inputs.get("alpha", 0.05)), 1 if inputs.get("one-sided") else 2
    parent = inputs.get("parent", "normal")
    method = inputs.get("method", "are" if "effect-d" in inputs else "noether")
    n1, n2 = mpf(n1), mpf(n2)
    if method == "are":
        k = PARENTS[parent][3]
        return t_power(k * (n1 + n2) - 2, abs(mpf(inputs["effect-d"])) * mp.sqrt(k * n1 * n2 / (n1 + n2)), alpha, sides)
    z = z_quantile(alpha / sides)
    if "superiority" in inputs:
        p = mpf(inputs["superiority"])
    else:
        p, both = shifted(parent, abs(mpf(inputs["effect-d"])))
    if method == "noether":
        total, share = n1 + n2, n1 / (n1 + n2)
        return normal_power(mp.sqrt(12 * total * share * (1 - share)) * abs(p - HALF), z, 1, sides)
    pairs = n1 * n2
    variance = pairs * p * (1 - p) + pairs * (n1 + n2 - 2) * (both - p * p)
    threshold = HALF + z * mp.sqrt(pairs * (n1 + n2 + 1) / 12)
    return normal_power(pairs * (p - HALF), threshold, mp.sqrt(variance), sides)


def two_group_moments(first, second, w1):
    """The superiority of the first, the variances of its shares above the second and of those of the second below the
    first, and that of the ranks of the mixture."""
    def share(i, categories):
        return mp.fsum(categories[:i]) + categories[i] / 2

    def variance(own, other):
        mean = mp.fsum(f * share(i, other) for i, f in enumerate(own))
        return mp.fsum(f * (share(i, other) - mean)**2 for i, f in enumerate(own))

    mixture = [w1 * a + (1 - w1) * b for a, b in zip(first, second)]
    above = mp.fsum(f * share(i, second) for i, f in enumerate(first))
    return above, variance(first, second), variance(second, first), variance(mixture, mixture), mixture


def by_odds(first, odds_ratio):
    """Proportional odds: those of a category above j, in the second group over the first."""
    below = [mp.fsum(first[:j]) for j in range(len(first) + 1)]
    moved = [b / (b + (1 - b) * odds_ratio) for b in below]
    return [b - a for a, b in zip(moved, moved[1:])]


def ordinal_power(inputs, n1, n2):
    alpha, sides = mpf(inputs.get("alpha", 0.05)), 1 if inputs.get("one-sided") else 2
    first = [mpf(p) for p in inputs["probabilities1"]]
    first = [p / mp.fsum(first) for p in first]
    if "odds-ratio" in inputs:
        second = by_odds(first, mpf(inputs["odds-ratio"]))
    else:
        second = [mpf(p) for p in inputs["probabilities2"]]
        second = [p / mp.fsum(second) for p in second]
    n1, n2 = mpf(n1), mpf(n2)
    total, w1 = n1 + n2, n1 / (n1 + n2)
    p, own, other, null, mixture = two_group_moments(first, second, w1)
    z = z_quantile(alpha / sides)
    method = inputs.get("method", "obrien-castelloe")
    if method == "whitehead":
        information = n1 * n2 / (3 * total) * (1 - mp.fsum(m**3 for m in mixture))
        return normal_power(abs(mp.log(mpf(inputs["odds-ratio"]))) * mp.sqrt(information), z, 1, sides)
    sd = mp.sqrt(own / w1 + other / (1 - w1))
    null_sd = mp.sqrt(null / w1 + null / (1 - w1))
    effect = abs(p - HALF)
    if method == "obrien-castelloe":
        sd, null_sd, effect = sd / (p * (1 - p)), 4 * null_sd, abs(mp.log(p / (1 - p)))
    return normal_power(mp.sqrt(total) * effect, z * null_sd, sd, sides)


def signed_rank_power(inputs, n):
    alpha, sides = mpf(inputs.get("alpha", 0.05)), 1 if inputs.get("one-sided") else 2
    parent = inputs.get("parent", "normal")
    method = inputs.get("method", "are" if "effect-d" in inputs else "noether")
    n = mpf(n)
    if method == "are":
        k = PARENTS[parent][3]
        return t_power(k * n - 1, abs(mpf(inputs["effect-d"])) * mp.sqrt(k * n), alpha, sides)
    z = z_quantile(alpha / sides)
    if "positive-average" in inputs:
        p2 = mpf(inputs["positive-average"])
    else:
        d = abs(mpf(inputs["effect-d"]))
        p1, (p2, p3) = PARENTS[parent][1](d), shifted(parent, 2 * d)
    if method == "noether":
        return normal_power(mp.sqrt(3 * n) * abs(p2 - HALF), z, 1, sides)
    mean = n * p1 + n * (n - 1) / 2 * p2
    variance = (n * p1 * (1 - p1) + n * (n - 1) / 2 * (2 * (p1 - p2)**2 + 3 * p2 * (1 - p2)) +
                n * (n - 1) * (n - 2) * (p3 - p2**2))
    return normal_power(mean - n * (n + 1) / 4, z * mp.sqrt(n * (n + 1) * (2 * n + 1) / 24), mp.sqrt(variance), sides)


# The cases.

def number(value):
    """The double nearest to `value`, in the digits that a power is known to."""
    return float(mp.nstr(value, 17))


def write(test, inputs, result, value, within, source=SOURCE):
    print(json.dumps({"request": {"test": test, "inputs": inputs}, "result": result, "value": value, "within": within,
                      "source": source}))


def sizes_of(inputs):
    n = inputs["n"]
    return n if isinstance(n, list) else [n, n]


def write_power(test, power, inputs, **published):
    sizes = [inputs["n"]] if test == "signed-rank" else sizes_of(inputs)
    write(test, inputs, "power", number(power(inputs, *sizes)), 1e-13)
    for source, (value, within) in published.items():
        write(test, inputs, "power", value, within, source.replace("_", " "))


def first_size(reaches, low, high):
    """The first whole size that reaches the power, which rises: `low` does not."""
    while not reaches(high):
        low, high = high, 2 * high
    while high - low > 1:
        middle = (low + high) // 2
        low, high = (low, middle) if reaches(middle) else (middle, high)
    return high


def write_sizes(test, power, inputs, low, source=SOURCE):
    target = mpf(inputs["power"])
    if test == "signed-rank":
        size = first_size(lambda n: power(inputs, n) >= target, low, 2 * low)
        write(test, inputs, "n", size, 0, source)
        return
    ratio = mpf(inputs.get("ratio", 1))

    def sizes(n):
        return n, int(mp.ceil(n * ratio))

    first = first_size(lambda n: power(inputs, *sizes(n)) >= target, low, 2 * low)
    write(test, inputs, "total", sum(sizes(first)), 0, source)


def mann_whitney():
    def power(inputs, **published):
        write_power("mann-whitney", two_group_power, inputs, **published)

    def sizes(inputs, source=SOURCE):
        write_sizes("mann-whitney", two_group_power, inputs, 6, source)

    for parent in PARENTS:
        for method in ("are", "noether", "lehmann"):
            power({"effect-d": 0.5, "n": 50, "parent": parent, "method": method})
            power({"effect-d": -1.2, "n": [12, 9], "parent": parent, "method": method, "one-sided": True})
        power({"effect-d": 0.05, "n": [3000, 6000], "parent": parent, "method": "lehmann", "alpha": 0.01})
        power({"effect-d": 2.5, "n": 5, "parent": parent, "method": "lehmann", "alpha": 0.1})
        power({"effect-d": 3.6, "n": 6, "parent": parent, "method": "noether", "alpha": 0.01})
        power({"effect-d": 1e-3, "n": 1000000, "parent": parent})
        power({"effect-d": 1e-3, "n": [1000000, 2000000], "parent": parent, "method": "lehmann", "alpha": 1e-4})
        power({"effect-d": 0.8, "n": [20, 40], "parent": parent, "alpha": 0.001, "one-sided": True})
    power({"effect-d": 3.0, "n": [1, 60]})
    power({"effect-d": 0, "n": 15})
    power({"effect-d": 0, "n": 15, "method": "lehmann"})
    power({"effect-d": 1.4, "n": 10, "method": "lehmann"})
    for p, n in ((0.8, 10), (0.65, [40, 80]), (0.35, 200), (0.5, 30), (0.999, 5), (1, 6), (0.501, 500000)):
        power({"superiority": p, "n": n})
        power({"superiority": p, "n": n, "one-sided": True, "alpha": 0.025})
    gpower = "G*Power 3.1, manual"
    write("mann-whitney", {"effect-d": 0.375, "n": [134, 67], "parent": "laplace", "method": "lehmann"}, "power", 0.8472103,
          5e-8, gpower)
    write("mann-whitney", {"effect-d": 0.2911838, "n": [67, 134], "parent": "logistic", "method": "lehmann",
                           "one-sided": True}, "power", 0.6461275, 5e-8, gpower)
    write("mann-whitney", {"superiority": 0.8, "n": 10, "one-sided": True, "alpha": 0.025}, "power", 0.642006035603, 1e-8,
          "powertools (R), which leaves the other tail of its two-sided test out")
    pwrss = "tests of pwrss (R)"
    sizes({"effect-d": 0.25, "power": 0.8}, pwrss)
    sizes({"effect-d": 0.2, "power": 0.8}, pwrss)
    sizes({"superiority": 0.349, "power": 0.8}, "Noether's formula as in WMWssp (R): 114.74 in total")
    sizes({"superiority": 0.3, "power": 0.9}, "statpsych (R), size.test.mann: 44 in each group")
    for parent in PARENTS:
        for method in ("are", "noether", "lehmann"):
            sizes({"effect-d": 0.6, "power": 0.9, "parent": parent, "method": method, "ratio": 2})
    sizes({"superiority": 0.6, "power": 0.95, "one-sided": True, "ratio": 0.5})
    sizes({"effect-d": 0.01, "power": 0.8, "method": "lehmann"})


FIVE = [0.1, 0.2, 0.4, 0.2, 0.1]
FIVE_BETTER = [0.05, 0.1, 0.35, 0.3, 0.2]
SEVEN = [0.01, 0.04, 0.20, 0.50, 0.20, 0.04, 0.01]
SEVEN_BETTER = [0.01, 0.03, 0.15, 0.35, 0.30, 0.10, 0.06]
# The control group of Whitehead's example, and the counts of 13 values and of the same less 20.
FOUR = [0.2, 0.5, 0.2, 0.1]
VALUES = [315, 375, 356, 374, 412, 418, 445, 403, 431, 410, 391, 475, 379]


def shares_of(values, among):
    return [values.count(v) / len(values) for v in among]


def ordinal():
    lower = [v - 20 for v in VALUES]
    among = sorted({*VALUES, *lower})
    pilot = {"probabilities1": shares_of(VALUES, among), "probabilities2": shares_of(lower, among)}
    lists = [{"probabilities1": FIVE, "probabilities2": FIVE_BETTER}, {"probabilities1": SEVEN_BETTER,
             "probabilities2": SEVEN}, {"probabilities1": [0.7, 0.3], "probabilities2": [0.4, 0.6]}, pilot,
             {"probabilities1": [0.5, 0, 0.5], "probabilities2": [0.2, 0.3, 0.5]},
             {"probabilities1": [0, 1, 0], "probabilities2": [0.1, 0.5, 0.4]},
             {"probabilities1": [0.333, 0.333, 0.333], "probabilities2": [0.25, 0.25, 0.5]}]
    odds = [{"probabilities1": FIVE, "odds-ratio": 2}, {"probabilities1": FOUR, "odds-ratio": 0.41},
            {"probabilities1": SEVEN, "odds-ratio": 12}, {"probabilities1": [0.02] * 50, "odds-ratio": 1.4},
            {"probabilities1": [0.9, 0.1], "odds-ratio": 1.001}]
    designs = ({"n": 40}, {"n": [8, 12], "one-sided": True, "alpha": 0.1}, {"n": [400, 150], "alpha": 0.001})
    for effect in lists + odds:
        for method in ("obrien-castelloe", "happ-bathke-brunner") + (("whitehead", ) if effect in odds else ()):
            for design in designs:
                write_power("ordinal", ordinal_power, {**effect, **design, "method": method})
            write_sizes("ordinal", ordinal_power, {**effect, "power": 0.85, "method": method}, 4)
    write_power("ordinal", ordinal_power, {"probabilities1": FIVE, "probabilities2": FIVE, "n": 30})
    write_power("ordinal", ordinal_power, {"probabilities1": FIVE, "odds-ratio": 1, "n": 30, "method": "whitehead"})
    write_power("ordinal", ordinal_power, {"probabilities1": FIVE, "odds-ratio": 1.01, "n": 1000000})
    for n, value in ((50, 0.651), (125, 0.939)):
        write("ordinal", {"probabilities1": SEVEN, "probabilities2": SEVEN_BETTER, "n": n, "one-sided": True}, "power",
              value, 5e-4, "SAS/STAT User's Guide, POWER procedure, Wilcoxon-Mann-Whitney example")
    write_sizes("ordinal", ordinal_power, {**pilot, "power": 0.8, "method": "happ-bathke-brunner"}, 4,
                "example of WMWssp (R): 111.371951 in total")
    write_sizes("ordinal", ordinal_power, {"probabilities1": FOUR, "odds-ratio": 0.411889, "power": 0.9,
                                           "method": "whitehead"}, 4, "Whitehead (1993), page 2260: 187 in total")


def signed_rank():
    def power(inputs):
        write_power("signed-rank", signed_rank_power, inputs)

    def sizes(inputs):
        write_sizes("signed-rank", signed_rank_power, inputs, 8)

    for parent in PARENTS:
        for method in ("are", "noether", "lehmann"):
            power({"effect-d": 0.5, "n": 35, "parent": parent, "method": method})
            power({"effect-d": -0.8, "n": 12, "parent": parent, "method": method, "one-sided": True})
            sizes({"effect-d": 0.4, "power": 0.9, "parent": parent, "method": method})
        power({"effect-d": 0.04, "n": 5000, "parent": parent, "method": "lehmann", "alpha": 0.01})
        power({"effect-d": 1.7, "n": 6, "parent": parent, "method": "lehmann", "alpha": 0.1})
        power({"effect-d": 1e-3, "n": 4000000, "parent": parent})
        power({"effect-d": 0.6, "n": 40, "parent": parent, "alpha": 0.001, "one-sided": True})
    power({"effect-d": 0, "n": 15})
    power({"effect-d": 0, "n": 15, "method": "lehmann"})
    power({"effect-d": 5, "n": 6})
    for p, n in ((0.87, 20), (0.7, 40), (0.3, 40), (0.5, 30), (0.999, 7), (1, 6), (0.501, 500000)):
        power({"positive-average": p, "n": n})
        power({"positive-average": p, "n": n, "one-sided": True, "alpha": 0.025})
    write("signed-rank", {"positive-average": 0.87, "n": 20, "one-sided": True, "alpha": 0.025}, "power", 0.817543636438,
          1e-8, "powertools (R), which leaves the other tail of its two-sided test out")
    sizes({"positive-average": 0.7, "power": 0.9})
    sizes({"positive-average": 0.45, "power": 0.95, "one-sided": True})
    sizes({"effect-d": 0.01, "power": 0.8, "method": "lehmann"})


TESTS = {"mann-whitney": mann_whitney, "ordinal": ordinal, "signed-rank": signed_rank}

if __name__ == "__main__":
    TESTS[sys.argv[1]]()
