#!/usr/bin/env python3
"""Writes the references of gamma, chi-square, noncentral chi-square and Poisson.

Usage: gamma.py [folder]      (needs python-flint, mpmath and gmpy2; takes a few minutes)
"""
import math
import random
import sys

from exact_gamma import gamma_quantile, gamma_tail, noncentral_tail, noncentrality, poisson_mass
from multiprecision import log_uniform, output_folder, write

LEVELS = [1e-8, 0.0001, 0.001, 0.005, 0.01, 0.025, 0.05, 0.1, 0.2, 0.5, 0.8, 0.9, 0.95, 0.975, 0.99, 0.995, 0.999]

SHAPES = [(1e-4, 0.5, 50, "shape 0.0001 to 0.5"), (0.5, 20, 60, "shape 0.5 to 20"), (20, 1000, 50, "shape 20 to 1000"),
          (1000, 1e6, 40, "shape 1000 to 1e6"), (1e6, 1e9, 25, "shape 1e6 to 1e9")]
FAR_SHAPES = [(1e-100, 1e-4, 20, "beyond: shape below 0.0001"), (1e9, 1e15, 20, "beyond: shape above 1e9")]


def point_near(rng, mean, variance, deviations):
    """A point some deviations from the mean, on a logarithmic scale where that is far below."""
    point = mean + rng.uniform(-deviations, deviations) * math.sqrt(variance)
    return float(point) if point > mean / 50 else float(mean * log_uniform(rng, 1e-6, 1))


def gamma_points(rng, far):
    for low, high, count, region in SHAPES + (FAR_SHAPES if far else []):
        for _ in range(count):
            shape = log_uniform(rng, low, high)
            if shape < 0.5:
                yield log_uniform(rng, 1e-8, 30), shape, region
            else:
                yield point_near(rng, shape, shape, 8), shape, region
                if shape > 1000:
                    yield float(shape * rng.uniform(0.7, 1.4)), shape, region


def chi_square_points(rng):
    for x, shape, region in gamma_points(rng, False):
        yield 2 * x, 2 * shape, region.replace("shape", "half df")
    for df in range(1, 41):
        yield rng.uniform(0, 6 * df), float(df), "whole df to 40"


def quantile_points(rng, factor, name):
    for low, high, count, region in SHAPES:
        for _ in range(count):
            level = rng.choice(LEVELS + [rng.random(), log_uniform(rng, 1e-12, 1)])
            yield level, factor * log_uniform(rng, low, high), region.replace("shape", name)
    for df in range(1, 41):
        yield rng.choice(LEVELS), factor * df / 2, "whole df to 40"


def start_of(probability, shape, is_upper):
    """Wilson and Hilferty (1931), and for small shapes the power of the point at 0."""
    from statistics import NormalDist
    z = NormalDist().inv_cdf(min(max(probability, 1e-300), 1 - 1e-16))
    z = -z if is_upper else z
    cube = 1 - 1 / (9 * shape) + z / math.sqrt(9 * shape)
    if shape > 0.3 and cube > 0.3:
        return shape * cube ** 3
    if is_upper:
        lower = -math.expm1(math.log(probability))
    else:
        lower = probability
    return max(min(math.exp((math.log(lower) + math.lgamma(1 + shape)) / shape), 1.0), 1e-300)


def quantile_rows(rng, name, factor, is_upper):
    region_name = "half df" if factor == 2 else "shape"
    for p, parameter, region in quantile_points(rng, factor, region_name):
        shape = parameter / factor
        value = gamma_quantile(p, shape, is_upper, start_of(p, shape, is_upper))
        if value * factor > 1e-290:
            yield name, [p, parameter], value * factor, None, region


def noncentral_points(rng):
    ranges = [(0.5, 10, 0.01, 60, 80, "df to 10, noncentrality to 60"), (1, 100, 1, 2000, 60, "df to 100, noncentrality to 2000"),
              (100, 1e5, 0.01, 100, 40, "df to 1e5, noncentrality to 100"), (1, 1e5, 2000, 1e5, 40, "noncentrality to 1e5"),
              (1, 1e6, 1e5, 1e7, 15, "noncentrality to 1e7"), (0.001, 0.5, 1e-6, 1, 30, "small")]
    for df_low, df_high, low, high, count, region in ranges:
        for _ in range(count):
            df, noncentrality_ = log_uniform(rng, df_low, df_high), log_uniform(rng, low, high)
            df = float(round(df)) if df > 2 and rng.random() < 0.5 else df
            x = point_near(rng, df + noncentrality_, 2 * (df + 2 * noncentrality_), 8)
            if x < 1e-3 * (df + noncentrality_):
                x = log_uniform(rng, 1e-3, 1) * (df + noncentrality_)
            yield x, df, noncentrality_, region


def noncentrality_rows(rng):
    for df in [1, 2, 3, 4, 6, 10, 20, 47, 100, 1000, 1e4] + [log_uniform(rng, 0.3, 200) for _ in range(20)]:
        for alpha in (0.05, 0.01, 0.001, 1e-6):
            x = float(2 * gamma_quantile(alpha, df / 2, True, start_of(alpha, df / 2, True)))
            q = rng.choice([0.5, 0.8, 0.9, 0.95, 0.99, alpha + (1 - alpha) * rng.uniform(0.1, 0.99)])
            yield "NonCentralityChiSquare", [q, x, df], noncentrality(q, x, df), None, "levels and powers"


def poisson_points(rng):
    for low, high, count, region in [(1e-3, 1, 40, "mean to 1"), (1, 50, 60, "mean to 50"), (50, 1e4, 60, "mean to 1e4"),
                                     (1e4, 1e9, 40, "mean to 1e9")]:
        for _ in range(count):
            mean = log_uniform(rng, low, high)
            k = round(mean + rng.uniform(-7, 7) * math.sqrt(mean))
            yield float(k) if k >= 0 else float(rng.randrange(0, 12)), mean, region


def poisson_quantile_rows(rng):
    """Decided by the doubles nearest to the probabilities, which lie nowhere near the levels."""
    for _, mean, region in poisson_points(rng):
        p = rng.choice(LEVELS + [rng.random()])
        low, high = -1, int(mean + 12 * math.sqrt(mean) + 40)
        while high - low > 1:
            middle = (low + high) // 2
            below = gamma_tail(middle + 1, mean, True) <= p
            low, high = (middle, high) if below else (low, middle)
        yield "IdfPoisson", [p, mean], low, None, region


def main():
    folder = output_folder(sys.argv)
    rng = random.Random(20261122)
    tables = {}
    for name, is_upper in (("CdfGamma", False), ("SfGamma", True)):
        tables[name] = [(name, [x, a], gamma_tail(a, x, is_upper), None, region) for x, a, region in gamma_points(rng, True)]
    for name, is_upper in (("CdfChiSquare", False), ("SfChiSquare", True)):
        tables[name] = [(name, [x, df], gamma_tail(df / 2, x / 2, is_upper), None, region)
                        for x, df, region in chi_square_points(rng)]
    for name, factor, is_upper in (("IdfGamma", 1, False), ("IsfGamma", 1, True), ("IdfChiSquare", 2, False),
                                   ("IsfChiSquare", 2, True)):
        tables[name] = list(quantile_rows(rng, name, factor, is_upper))
    for name, is_upper in (("NonCentralCdfChiSquare", False), ("NonCentralSfChiSquare", True)):
        tables[name] = [(name, [x, df, m], noncentral_tail(x, df, m, is_upper), None, region)
                        for x, df, m, region in noncentral_points(rng)]
    tables["NonCentralityChiSquare"] = list(noncentrality_rows(rng))
    tables["PdfPoisson"] = [("PdfPoisson", [k, mean], poisson_mass(k, mean), None, region)
                            for k, mean, region in poisson_points(rng)]
    tables["CdfPoisson"] = [("CdfPoisson", [k, mean], gamma_tail(k + 1, mean, True), None, region)
                            for k, mean, region in poisson_points(rng)]
    tables["SfPoisson"] = [("SfPoisson", [k, mean], gamma_tail(k + 1, mean, False), None, region)
                           for k, mean, region in poisson_points(rng)]
    tables["IdfPoisson"] = list(poisson_quantile_rows(rng))
    for name, rows in tables.items():
        write(folder / f"{name}.csv", rows)


main()
