#!/usr/bin/env python3
"""Writes tests/cases/tukey.jsonl and dunnett.jsonl.

Usage: cases_comparisons.py folder [tukey] [dunnett]      (needs python-flint and mpmath; takes some minutes)

Powers and critical values are integrals over u, the estimated standard deviation in units of the true one, and over the
least group mean (Hartley 1942, Biometrika 32) or the control's mean (Dunnett 1955, JASA 50), by the rules of Gauss and
Legendre on pieces, in 36 digits.
"""
import functools
import json
import sys
from pathlib import Path

from flint import arb, ctx
from mpmath import mp, mpf

ctx.prec = 120
mp.dps = 40
COUNT = 22


def exact(value):
    """A decimal number or a number of mpmath as a ball without radius."""
    return arb(mp.nstr(mpf(value), 38)).mid()


@functools.lru_cache(None)
def rule():
    """Nodes and weights of Gauss and Legendre on [-1, 1]."""
    pairs = []
    for i in range(1, COUNT + 1):
        x = mp.cos(mp.pi * (i - mpf(1) / 4) / (COUNT + mpf(1) / 2))
        for _ in range(12):
            before, now = mpf(1), x
            for k in range(1, COUNT):
                before, now = now, ((2 * k + 1) * x * now - k * before) / (k + 1)
            slope = COUNT * (x * now - before) / (x * x - 1)
            x -= now / slope
        pairs.append((exact(x), exact(2 / ((1 - x * x) * slope**2))))
    return pairs


def pieces(points):
    for left, right in zip(points, points[1:]):
        half, centre = (right - left) / 2, (right + left) / 2
        for x, weight in rule():
            yield (centre + half * x).mid(), (half * weight).mid()


ROOT_HALF = exact(mp.sqrt(mpf(1) / 2))
ROOT_TWO_PI = exact(mp.sqrt(2 * mp.pi))


def below(z):
    return ((-z * ROOT_HALF).erfc() / 2).mid()


def density(z):
    return ((-z * z / 2).exp() / ROOT_TWO_PI).mid()


@functools.lru_cache(None)
def u_nodes(df):
    deviation = 1 / mp.sqrt(2 * mpf(df))
    if df > 3:
        points = sorted({max(mpf(0), 1 + s * deviation) for s in (-11, -4.5, 0, 4.5, 11, 17)})
    else:
        points = [mpf(x) for x in (0, 0.1, 0.5, 1.2, 2.2, 4, 7, 12)]
    constant = 2 * (mpf(df) / 2) ** (mpf(df) / 2) / mp.gamma(mpf(df) / 2)
    nodes = []
    for u, weight in pieces([exact(p) for p in points]):
        factor = (exact(constant) * u ** (df - 1) * (-u * u * df / 2).exp() * weight).mid()
        if factor > 1e-34:
            nodes.append((u, factor))
    return nodes


def mean_over_u(function, df):
    return sum((weight * function(u) for u, weight in u_nodes(df)), arb(0)).mid()


def root(function, start):
    """The secant method."""
    x, y = arb(start), arb(start) * arb("1.00001")
    fx, fy = function(x), function(y)
    while abs(y - x) > arb(10) ** -11:
        x, y, fx = y, (y - fy * (y - x) / (fy - fx)).mid(), fy
        fy = function(y)
    return y


def wide_nodes(low, high):
    return list(pieces([arb(low) + 3 * arb(i) for i in range(int((high - low) / 3) + 1)]))


# Tukey: the least mean is at x.
def range_accepts(means, critical, df):
    means = [exact(m) - exact(min(means)) for m in means]
    nodes = []
    for x, weight in wide_nodes(-9, 9):
        nodes.append((x, [below(x - m) for m in means], [density(x - m) * weight for m in means]))

    def accepts(u):
        w = critical * u
        total = arb(0)
        for x, lower, heights in nodes:
            intervals = [below(x + w - m) - b for m, b in zip(means, lower)]
            for i, height in enumerate(heights):
                product = height
                for j, interval in enumerate(intervals):
                    if j != i:
                        product = product * interval
                total += product
        return total.mid()

    return mean_over_u(accepts, df)


@functools.lru_cache(None)
def critical_range(k, df, alpha):
    nodes = [(x, (density(x) * weight).mid(), below(x)) for x, weight in wide_nodes(-9, 9)]

    def accepts(w):
        return sum((k * height * (below(x + w) - lower) ** (k - 1) for x, height, lower in nodes), arb(0)).mid()

    target = 1 - exact(mpf(str(alpha)))
    start = 3.5 + 0.1 * k + 8 / df**1.5
    return root(lambda q: mean_over_u(lambda u: accepts(q * u), df) - target, start)


def two_sided(critical, delta, df):
    return mean_over_u(lambda u: 1 - below(critical * u - delta) + below(-critical * u - delta), df)


def tukey_any(means, sd, n, alpha):
    k = len(means)
    df = k * (n - 1)
    scaled = [mpf(str(m)) * mp.sqrt(n) / mpf(str(sd)) for m in means]
    return 1 - range_accepts(scaled, critical_range(k, df, alpha), df)


def tukey_pair(d, sizes, pair, alpha):
    k, df = len(sizes), sum(sizes) - len(sizes)
    n1, n2 = sizes[pair[0] - 1], sizes[pair[1] - 1]
    delta = exact(mpf(d) / mp.sqrt(mpf(1) / n1 + mpf(1) / n2))
    return two_sided(critical_range(k, df, alpha) * ROOT_HALF, delta, df)


def number(value):
    return float(mpf(value.str(25, radius=False)))


def case(test, inputs, result, value, within, source):
    return {"request": {"test": test, "inputs": inputs}, "result": result, "value": value, "within": within,
            "source": source}


OWN = "cases_comparisons.py"


def tukey_designs():
    """Means, standard deviation, size of each group, level."""
    for means, sd, n in [([0, 0, 0, 1], 1, 10), ([10, 12, 15], 6, 20), ([10, 12, 15], 6, 2), ([0, 0.5], 1, 30),
                         ([1, 1, 1], 1, 12), ([0, 0.3, 0.6, 0.9, 1.2], 1.5, 25), ([5, 5, 5, 8], 2, 4),
                         ([0, 0, 0, 0, 0, 1], 1, 15), ([0, 1, 2], 1, 3), ([-3, 0, 3], 10, 60), ([0, 0, 2, 2], 3, 17),
                         ([100, 104, 109], 12, 40), ([0, 0.1, 0.25], 1, 300), ([0, 4], 1, 2), ([0, 3, 0], 1, 5)]:
        yield means, sd, n, 0.05
    for alpha in (0.01, 0.1, 0.001):
        yield [10, 12, 15], 6, 20, alpha
        yield [0, 0, 0, 1], 1, 10, alpha
    for d, k, n in [(0.8, 3, 20), (1, 4, 12), (0.5, 5, 60), (1.5, 3, 4), (0.4, 4, 100), (1, 6, 20)]:
        yield d, k, n, 0.05


def any_pair_cases():
    for design in tukey_designs():
        if isinstance(design[0], list):
            means, sd, n, alpha = design
            inputs = {"means": means, "sd": sd, "n": n, "alpha": alpha}
        else:
            d, k, n, alpha = design
            means, sd = [0] + [d / 2] * (k - 2) + [d], 1
            inputs = {"effect-d": d, "groups": k, "n": n, "alpha": alpha}
        yield case("tukey", inputs, "power", number(tukey_any(means, sd, n, alpha)), 1e-13, OWN)


def pair_cases():
    for means, sd, sizes, pair, alpha in [
            ([10, 12, 15], 6, [20, 20, 20], [1, 3], 0.05), ([10, 12, 15], 6, [20, 20, 20], [1, 2], 0.05),
            ([10, 12, 15], 6, [10, 20, 40], [1, 3], 0.05), ([10, 12, 15], 6, [10, 20, 40], [3, 2], 0.05),
            ([0, 0, 0, 1], 1, [10] * 4, [1, 4], 0.05), ([0, 0, 0, 1], 1, [10] * 4, [1, 2], 0.05),
            ([0, 0, 0, 1], 1, [2, 2, 2, 2], [1, 4], 0.05), ([0, 1, 2], 1, [3, 1, 2], [1, 3], 0.05),
            ([0, 1], 1, [8, 30], [1, 2], 0.05), ([0, 3, 6, 9, 12], 10, [25] * 5, [1, 5], 0.01),
            ([0, 3, 6, 9, 12], 10, [25] * 5, [2, 3], 0.1), ([0, 3, 6, 9, 12, 15], 10, [31] * 6, [6, 1], 0.001)]:
        d = (mpf(str(means[pair[0] - 1])) - mpf(str(means[pair[1] - 1]))) / mpf(str(sd))
        yield case("tukey", {"means": means, "sd": sd, "n": sizes, "pair": pair, "alpha": alpha}, "power",
                   number(tukey_pair(d, sizes, pair, alpha)), 1e-13, OWN)
    for d, k, n, alpha in [(0.5, 3, 64, 0.05), (-0.5, 3, 64, 0.05), (1.2, 4, 9, 0.05), (0.25, 5, 200, 0.05),
                           (2, 8, 5, 0.01), (0.9, 10, 30, 0.05)]:
        yield case("tukey", {"effect-d": d, "groups": k, "n": n, "pair": [1, 2], "alpha": alpha}, "power",
                   number(tukey_pair(mpf(str(d)), [n] * k, [1, 2], alpha)), 1e-13, OWN)
    for sd, sizes, pair, alpha in [(6, [20, 20, 20], [1, 2], 0.05), (6, [10, 20, 40], [1, 3], 0.05),
                                   (1, [2, 2, 2, 2], [1, 4], 0.05), (12.5, [31] * 6, [2, 5], 0.01)]:
        df = sum(sizes) - len(sizes)
        n1, n2 = sizes[pair[0] - 1], sizes[pair[1] - 1]
        factor = exact(mpf(str(sd)) * mp.sqrt(mpf(1) / n1 + mpf(1) / n2))
        width = number(critical_range(len(sizes), df, alpha) * ROOT_HALF * factor)
        yield case("tukey", {"sd": sd, "n": sizes, "pair": pair, "interval": True, "alpha": alpha}, "half-width", width,
                   1e-12 * width, OWN)


def first_size(power_at, target, guess):
    n = guess
    while power_at(n) < target:
        n += 1
    while n > 2 and power_at(n - 1) >= target:
        n -= 1
    return n


def tukey_sizes():
    for means, sd, target, guess in [([10, 12, 15], 6, 0.8, 26), ([0, 0, 0, 1], 1, 0.9, 21), ([0, 1], 1, 0.8, 17),
                                     ([0, 3, 0], 1, 0.95, 6), ([0, 0.3, 0.6, 0.9, 1.2], 1.5, 0.8, 47)]:
        n = first_size(lambda n: tukey_any(means, sd, n, 0.05), target, guess)
        yield case("tukey", {"means": means, "sd": sd, "power": target}, "n", [n] * len(means), 0, OWN)
    for d, k, target, guess in [(0.5, 3, 0.8, 79), (1, 4, 0.9, 27), (0.9, 5, 0.8, 28)]:
        n = first_size(lambda n: tukey_pair(mpf(str(d)), [n] * k, [1, 2], 0.05), target, guess)
        yield case("tukey", {"effect-d": d, "groups": k, "pair": [1, 2], "power": target}, "n", [n] * k, 0, OWN)


def tukey_pairs_of_one_study():
    for sd in (4, 8):
        for pair in ([1, 2], [2, 3]):
            d = mpf([10, 12, 15][pair[0] - 1] - [10, 12, 15][pair[1] - 1]) / sd
            inputs = {"means": [10, 12, 15], "sd": sd, "n": [20] * 3, "pair": pair}
            yield case("tukey", inputs, "power", number(tukey_pair(d, [20] * 3, pair, 0.05)), 1e-13, OWN)


# Dunnett: the control's mean is at y.
def dunnett_shape(sizes):
    control = mpf(sizes[0])
    shared = [exact(mp.sqrt(n / (n + control))) for n in map(mpf, sizes[1:])]
    own = [exact(mp.sqrt(control / (n + control))) for n in map(mpf, sizes[1:])]
    return shared, own


def rejections(critical, deltas, sizes, one_sided, df, which):
    shared, own = dunnett_shape(sizes)
    groups = {}
    for key in zip(deltas, map(str, shared)):
        groups[key] = groups.get(key, 0) + 1
    kinds = [(exact(mpf(str(key[0]))) if not isinstance(key[0], mpf) else exact(key[0]), shared[i], own[i], count)
             for key, count in groups.items() for i in [list(zip(deltas, map(str, shared))).index(key)]]
    nodes = [(y, (density(y) * weight).mid()) for y, weight in wide_nodes(-9, 9)]

    def given(u):
        c = critical * u
        total = arb(0)
        for y, height in nodes:
            product = height
            for delta, slope, rest, count in kinds:
                centre = delta + slope * y
                rejects = below((centre - c) / rest)
                if not one_sided:
                    rejects = rejects + below((-c - centre) / rest)
                share = (rejects if which == "all" else 1 - rejects).mid()
                for _ in range(count):  # arb's power is NaN for a ball about zero
                    product = product * share
            total += product
        return total.mid()

    return mean_over_u(given, df)


@functools.lru_cache(None)
def dunnett_critical(sizes, one_sided, alpha):
    df = sum(sizes) - len(sizes)
    target = 1 - exact(mpf(str(alpha)))
    start = (2.1 if one_sided else 2.4) + 0.03 * len(sizes) + 2 / df
    return root(lambda c: rejections(c, [mpf(0)] * (len(sizes) - 1), sizes, one_sided, df, "any") - target, start)


def deltas_of(means, sd, sizes):
    return [(mpf(str(m)) - mpf(str(means[0]))) / mpf(str(sd)) / mp.sqrt(mpf(1) / n + mpf(1) / sizes[0])
            for m, n in zip(means[1:], sizes[1:])]


def dunnett_power(means, sd, sizes, one_sided, alpha, which):
    sizes = tuple(sizes)
    critical = dunnett_critical(sizes, one_sided, alpha)
    df = sum(sizes) - len(sizes)
    deltas = deltas_of(means, sd, sizes)
    if isinstance(which, int):
        delta = exact(deltas[which - 2])
        if one_sided:
            return mean_over_u(lambda u: below(delta - critical * u), df)
        return two_sided(critical, delta, df)
    share = rejections(critical, deltas, sizes, one_sided, df, which)
    return share if which == "all" else 1 - share


def asked(which):
    if which == "all":
        return {"all-comparisons": True}
    return {"group": which} if isinstance(which, int) else {}


def dunnett_cases():
    designs = [([10, 12, 15], 6, [20, 20, 20]), ([0, 1, 1, 1], 1, [10] * 4), ([0, 0.5, 1], 1, [30, 15, 15]),
               ([10, 12, 15], 6, [40, 20, 30]), ([0, 0.6], 1, [25, 25]), ([0, 2, 3], 1, [3, 3, 3]),
               ([5, 5, 5], 2, [12, 12, 12]), ([0, 0.4, 0.4, 0.4, 0.4], 1, [100, 50, 50, 50, 50])]
    for means, sd, sizes in designs:
        for one_sided in (False, True):
            for which in ("any", "all", 2):
                inputs = {"means": means, "sd": sd, "n": sizes, **asked(which)}
                if one_sided:
                    inputs["one-sided"] = True
                yield case("dunnett", inputs, "power",
                           number(dunnett_power(means, sd, sizes, one_sided, 0.05, which)), 1e-13, OWN)
    for alpha in (0.01, 0.1):
        for which in ("any", "all", 3):
            yield case("dunnett", {"means": [10, 12, 15], "sd": 6, "n": [20, 20, 20], "alpha": alpha, **asked(which)},
                       "power", number(dunnett_power([10, 12, 15], 6, [20] * 3, False, alpha, which)), 1e-13, OWN)
    for d, k, n, which in [(0.5, 4, 40, "any"), (0.8, 4, 40, "all"), (0.8, 6, 25, 2), (1.2, 3, 6, "any")]:
        means = [0] + [d] * (k - 1)
        yield case("dunnett", {"effect-d": d, "groups": k, "n": n, **asked(which)}, "power",
                   number(dunnett_power(means, 1, [n] * k, False, 0.05, which)), 1e-13, OWN)
    for sd, sizes, group, alpha in [(6, (20, 20, 20), 2, 0.05), (6, (40, 20, 30), 3, 0.05), (1, (2, 2, 2, 2), 4, 0.01)]:
        factor = exact(mpf(str(sd)) * mp.sqrt(mpf(1) / sizes[0] + mpf(1) / sizes[group - 1]))
        width = number(dunnett_critical(sizes, False, alpha) * factor)
        yield case("dunnett", {"sd": sd, "n": list(sizes), "group": group, "interval": True, "alpha": alpha},
                   "half-width", width, 1e-12 * width, OWN)


def dunnett_sizes():
    for means, sd, one_sided, which, target, guess in [
            ([10, 12, 15], 6, False, "any", 0.8, 25), ([0, 1, 1, 1], 1, False, "all", 0.8, 26),
            ([0, 1, 1, 1], 1, True, 2, 0.9, 25)]:
        n = first_size(lambda n: dunnett_power(means, sd, [n] * len(means), one_sided, 0.05, which), target, guess)
        inputs = {"means": means, "sd": sd, "power": target, **asked(which)}
        if one_sided:
            inputs["one-sided"] = True
        yield case("dunnett", inputs, "n", [n] * len(means), 0, OWN)


def main():
    folder = Path(sys.argv[1])
    wanted = sys.argv[2:] or ["tukey", "dunnett"]
    parts = {"tukey": (any_pair_cases, pair_cases, tukey_sizes, tukey_pairs_of_one_study),
             "dunnett": (dunnett_cases, dunnett_sizes)}
    for test in wanted:
        with open(folder / f"{test}.jsonl", "w", encoding="ascii") as out:
            for part in parts[test]:
                for line in part():
                    print(json.dumps(line), file=out, flush=True)


main()
