#!/usr/bin/env python3
"""Writes CdfCorrelation.csv, SfCorrelation.csv and IdfCorrelation.csv: the distribution of the correlation r of a sample
of n pairs from a bivariate normal distribution with correlation rho.

The values integrate Hotelling's density (1953, New light on the correlation coefficient and its transforms, Journal of
the Royal Statistical Society B 15, equation 25) over z = atanh(r),

    f(r) = (n - 2) Gamma(n - 1) / (sqrt(2 pi) Gamma(n - 1/2)) (1 - rho^2)^((n - 1) / 2) (1 - r^2)^((n - 4) / 2)
           (1 - rho r)^(-(n - 3/2)) 2F1(1/2, 1/2; n - 1/2; (1 + rho r) / 2).

Up to `LARGEST_OF_SECOND_WAY` pairs every eighth one is computed in a second way and must agree. With independent Z
standard normal and X, Y chi of n - 1 and n - 2 degrees of freedom, r / sqrt(1 - r^2) = (Z + X rho / sqrt(1 - rho^2)) / Y
(Ruben 1966, Some new results on the distribution of the sample correlation coefficient, ibid. 28, 513-525). By the angle
of (X, Y) the probability is a mean of those of t with 2 n - 3 degrees of freedom.

Usage: sample_correlation.py [folder]        (needs mpmath and gmpy2)
"""
import math
import random
import sys
from functools import lru_cache

from mpmath import mp, mpf
from mpmath.calculus.quadrature import GaussLegendre

from multiprecision import log_uniform, output_folder, write

mp.dps = 25
AGREEMENT = mpf(10) ** -18
LARGEST_OF_SECOND_WAY = 120
PANELS = 40
FUNCTIONS = ("CdfCorrelation", "SfCorrelation")
NEGLIGIBLE = -48  # natural logarithm of what is left out, relative to the value


# Gauss and Legendre's rule with 24 nodes, which errs by 1e-25 where a panel holds two powers of e.
RULE = GaussLegendre(mp).calc_nodes(4, mp.prec)


@lru_cache
def log_factor(n, rho):
    return (mp.log(n - 2) + mp.loggamma(n - 1) - mp.loggamma(n - mpf(1) / 2) - mp.log(2 * mp.pi) / 2
            + (n - 1) / 2 * mp.log(1 - rho**2))


def log_density(z, n, rho):
    """log of the density of z = atanh(r)."""
    r = mp.tanh(z)
    series = mp.hyp2f1(0.5, 0.5, n - 0.5, (1 + rho * r) / 2)
    return (log_factor(n, rho) - (n - 2) * mp.log(mp.cosh(z)) - (n - mpf(3) / 2) * mp.log(1 - rho * r)
            + mp.log(series))


def tail_beyond(z, n, rho, side):
    """The probability below z for side -1, above it for side 1; z lies on that side of the mode or a little inside."""
    near = 1 / (1000 * mp.sqrt(n))
    here = level = log_density(z, n, rho)
    ends, width = [z], 1 / mp.sqrt(n)
    while len(ends) == 1 or level > here + NEGLIGIBLE:
        decay = (level - log_density(ends[-1] + side * near, n, rho)) / near
        width = min(3 * width / 2, 2 / abs(decay))
        ends.append(ends[-1] + side * width)
        level = log_density(ends[-1], n, rho)
    total = mpf(0)
    for start, end in zip(ends, ends[1:]):
        half, middle = (end - start) / 2, (end + start) / 2
        total += abs(half) * sum(weight * mp.exp(log_density(middle + half * node, n, rho) - here) for node, weight in RULE)
    return total * mp.exp(here)


def tails(r, n, rho):
    r, n, rho = mpf(r), mpf(n), mpf(rho)
    z = mp.atanh(r)
    if r < rho:
        lower = tail_beyond(z, n, rho, -1)
        return lower, 1 - lower
    upper = tail_beyond(z, n, rho, 1)
    return 1 - upper, upper


def lower_of_t(t, df):
    tail = mp.betainc(df / 2, mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2
    return tail if t < 0 else 1 - tail


def lower_tail_by_angle(r, n, rho, unit):
    """The second way, in units that keep its terms near 1."""
    r, n, rho = mpf(r), mpf(n), mpf(rho)
    reach, centre = r / mp.sqrt(1 - r**2), rho / mp.sqrt(1 - rho**2)
    root = mp.sqrt(2 * n - 3)

    def integrand(angle):
        sine, cosine = mp.sin(angle), mp.cos(angle)
        return cosine ** (n - 2) * sine ** (n - 3) * lower_of_t(root * (reach * sine - centre * cosine), 2 * n - 3)

    ends = [k * mp.pi / 2 / PANELS for k in range(PANELS + 1)]
    factor = 2 / mp.beta((n - 1) / 2, (n - 2) / 2) / unit
    return mp.quad(lambda angle: factor * integrand(angle), ends)


def check(r, n, rho, lower):
    second = lower_tail_by_angle(r, n, rho, lower)
    if abs(second - 1) > AGREEMENT:
        raise ArithmeticError(f"the two ways differ at {r} {n} {rho}: {lower}, times {second}")


def quantile(p, n, rho):
    p, n, rho = mpf(p), mpf(n), mpf(rho)
    z = mp.atanh(rho) + mp.sqrt(2) * mp.erfinv(2 * p - 1) / mp.sqrt(n - 1)
    for _ in range(60):
        lower, upper = tails(mp.tanh(z), n, rho)
        small, wanted, side = (lower, p, 1) if p < 0.5 else (upper, 1 - p, -1)
        step = side * mp.log(wanted / small) * small / mp.exp(log_density(z, n, rho))
        z += max(-3 / mp.sqrt(n - 2), min(3 / mp.sqrt(n - 2), step))
        if abs(step) * mp.sqrt(n) < mpf(10) ** -11:  # the next one would be its square
            return mp.tanh(z)
    raise ArithmeticError((p, n, rho))


def point(rng, n, rho, spread):
    """A correlation some standard deviations of z from rho, as a double."""
    return math.tanh(math.atanh(rho) + rng.uniform(-spread, spread) / math.sqrt(n))


def designs(rng, count):
    """Arguments with their regions."""
    for i in range(count):
        n = rng.choice([3, 4, 5, 6, 8, 10, 12.25, 20, 30, 50, 84, 100, rng.randint(3, 300)])
        rho = rng.choice([0, 0.1, -0.3, 0.5, 0.7, 0.9, -0.95, round(rng.uniform(-0.99, 0.99), 3)])
        yield n, rho, 5, "designs"
    for i in range(count // 2):
        yield rng.choice([3, 5, 10, 30, 100, 500]), rng.uniform(-0.98, 0.98), 25, "tails"
    for i in range(count // 2):
        yield round(log_uniform(rng, 300, 1e9)), rng.uniform(-0.99, 0.99), 7, "many pairs"
    for i in range(count // 2):
        near = 1 - log_uniform(rng, 1e-12, 1e-2)
        yield round(log_uniform(rng, 3, 1e6)), rng.choice([-near, near]), 6, "near 1"
    for i in range(count // 6):
        yield round(log_uniform(rng, 2.01, 3), 4), rng.uniform(-0.99, 0.99), 8, "beyond fewer than 3"


def probability_rows(rng, count, which):
    for i, (n, rho, spread, region) in enumerate(designs(rng, count)):
        r = point(rng, n, rho, spread)
        if not -1 < r < 1:
            continue
        both = tails(r, n, rho)
        if i % 8 == 0 and 3 <= n <= LARGEST_OF_SECOND_WAY and abs(rho) < 0.99:
            check(r, n, rho, both[0])
        yield FUNCTIONS[which], (r, n, rho), both[which], None, region


def quantile_rows(rng, count):
    levels = [0.0005, 0.005, 0.01, 0.025, 0.05, 0.1, 0.3, 0.5, 0.8, 0.9, 0.95, 0.975, 0.99, 0.995, 0.9995]
    for n, rho, _, region in designs(rng, count):
        p = log_uniform(rng, 1e-100, 1e-3) if region == "tails" else rng.choice(levels)
        yield "IdfCorrelation", (p, n, rho), quantile(p, n, rho), None, region


def main():
    folder = output_folder(sys.argv)
    write(folder / "CdfCorrelation.csv", probability_rows(random.Random(11), 40, 0))
    write(folder / "SfCorrelation.csv", probability_rows(random.Random(12), 40, 1))
    write(folder / "IdfCorrelation.csv", quantile_rows(random.Random(13), 40))


if __name__ == "__main__":
    sys.exit(main())
