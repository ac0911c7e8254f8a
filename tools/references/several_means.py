#!/usr/bin/env python3
"""Writes the references of the studentized range and the bivariate normal distribution.

Usage: several_means.py [file]      (needs mpmath; takes a quarter of an hour)

The studentized range is integrated over its minimum and over u, the estimated standard deviation in units of the true
one, by the rules of Gauss and Legendre on pieces (Hartley 1942, "The range in random samples", Biometrika 32). The
bivariate normal distribution is Plackett's integral over the correlation (1954, "A reduction formula for normal
multivariate integrals", Biometrika 41). The library does neither.
"""
import functools
import random
import sys

from mpmath import mp, mpf

mp.dps = 34


@functools.lru_cache(None)
def rule(count):
    """Nodes and weights of Gauss and Legendre on [-1, 1]."""
    pairs = []
    for i in range(1, count + 1):
        x = mp.cos(mp.pi * (i - mpf(1) / 4) / (count + mpf(1) / 2))
        for _ in range(12):
            before, now = mpf(1), x
            for k in range(1, count):
                before, now = now, ((2 * k + 1) * x * now - k * before) / (k + 1)
            slope = count * (x * now - before) / (x * x - 1)
            x -= now / slope
        pairs.append((x, 2 / ((1 - x * x) * slope**2)))
    return pairs


def pieces(points, count):
    for left, right in zip(points, points[1:]):
        half, centre = (right - left) / 2, (right + left) / 2
        for x, weight in rule(count):
            yield centre + half * x, half * weight


@functools.lru_cache(None)
def minimum_nodes():
    """Nodes x of the minimum with their weights times the normal density, and the normal probability below."""
    return [(x, w * mp.npdf(x), mp.ncdf(x)) for x, w in pieces([mpf(i) * 3 / 2 for i in range(-9, 7)], 26)]


def range_below(w, k):
    """P(range <= w) of k normal variables, by Hartley's integral over the minimum."""
    return k * sum(weight * (mp.ncdf(x + w) - below) ** (k - 1) for x, weight, below in minimum_nodes())


def lower(q, k, df):
    q, k, df = mpf(q), mpf(k), mpf(df)
    deviation = 1 / mp.sqrt(2 * df)
    steps = [-12, -8, -5, -3, -1, 1, 3, 5, 8, 12, 18] if df > 3 else [0, 1, 2, 3, 4.5, 6, 9, 14]
    start = 1 if df > 3 else 0
    points = sorted({max(mpf(0), start + s * deviation) for s in steps})
    if points[0] == 0:
        points[1:1] = [points[1] * mpf(c) for c in (0.03, 0.2, 0.5)]
    constant = 2 * (df / 2) ** (df / 2) / mp.gamma(df / 2)
    return constant * sum(weight * u ** (df - 1) * mp.exp(-df * u * u / 2) * range_below(q * u, k)
                          for u, weight in pieces(points, 26))


def quantile(p, k, df, start):
    """The secant method for the lower probability."""
    x, y = mpf(start), mpf(start) * mpf("1.000001")
    fx, fy = lower(x, k, df) - p, lower(y, k, df) - p
    while abs(y - x) > mpf(10) ** -19 * y and fy != fx:
        x, y, fx = y, y - fy * (y - x) / (fy - fx), fy
        fy = lower(y, k, df) - p
    return y


def bivariate(a, b, rho):
    a, b, rho = mpf(a), mpf(b), mpf(rho)
    with mp.workdps(70):
        end = mp.asin(rho)

        def integrand(t):
            return mp.exp(-(a * a + b * b - 2 * a * b * mp.sin(t)) / (2 * mp.cos(t) ** 2))

        points = [end * (1 - mpf(2) ** -i) for i in range(0, 40, 2)] + [end]
        return mp.ncdf(a) * mp.ncdf(b) + mp.quad(integrand, points) / (2 * mp.pi)


def range_points(rng):
    for q, k, df in [(3.5, 4, 20), (3, 3, 10), (5, 10, 5), (4, 8, 120), (10, 3, 2), (0.5, 2, 1), (20, 2, 1), (60, 5, 1),
                     (1, 3, 1.5), (0.05, 3, 30), (0.2, 5, 3), (12, 4, 25), (9, 12, 60), (0.01, 4, 12), (4.5, 30, 40),
                     (6, 100, 200), (5.5, 100, 15), (3.3, 3, 100000), (2.5, 6, 10000)]:
        yield q, k, df
    for _ in range(21):
        yield round(rng.uniform(0.5, 7), 3), rng.choice([2, 3, 4, 5, 7, 10, 20]), rng.choice([2, 3, 4.5, 8, 17, 36, 96, 400])


def bivariate_points(rng):
    rhos = [-0.9999999, -0.99, -0.7, -0.3, -1e-3, 1e-6, 0.2, 0.5, 0.51, 0.8, 0.95, 0.999, 0.99999999]
    for rho in rhos:
        for _ in range(6):
            yield round(rng.uniform(-4, 4), 3), round(rng.uniform(-4, 4), 3), rho
        yield -9.5, -8.25, rho
        yield 1.25, 1.25 * rho, rho
        yield -1.5, -1.5, rho


def main():
    rng = random.Random(20261122)
    out = sys.stdout if len(sys.argv) < 2 else open(sys.argv[1], "w", encoding="ascii")
    print("distribution,a,b,c,value", file=out)
    for a, b, rho in bivariate_points(rng):
        value = bivariate(a, b, rho)
        if value > mpf(10) ** -45:
            print(f"CdfBivariateNormal,{a},{b},{rho},{mp.nstr(value, 20)}", file=out, flush=True)
    for q, k, df in range_points(rng):
        value = lower(q, k, df)
        print(f"CdfStudentizedRange,{q},{k},{df},{mp.nstr(value, 20)}", file=out, flush=True)
        if 1 - value > mpf(10) ** -14:
            print(f"SfStudentizedRange,{q},{k},{df},{mp.nstr(1 - value, 18)}", file=out, flush=True)
    for p, k, df, start in [(.95, 4, 36, 3.8088), (.95, 3, 57, 3.4032), (.99, 5, 12, 5.8363), (.1, 3, 10, .75),
                            (.5, 6, 20, 2.5), (.999, 10, 60, 6.5), (.95, 3, 2, 8.3308)]:
        print(f"IdfStudentizedRange,{p},{k},{df},{mp.nstr(quantile(mpf(p), k, df, start), 20)}", file=out, flush=True)


main()
