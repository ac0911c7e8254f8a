#!/usr/bin/env python3
"""Writes CdfCorrelation.csv, SfCorrelation.csv and IdfCorrelation.csv: the distribution of the correlation r of a sample
of n pairs from a bivariate normal distribution with correlation rho.

The values integrate Hotelling's density (1953, New light on the correlation coefficient and its transforms, Journal of
the Royal Statistical Society B 15, equation 25) over z = atanh(r),

    f(r) = (n - 2) Gamma(n - 1) / (sqrt(2 pi) Gamma(n - 1/2)) (1 - rho^2)^((n - 1) / 2) (1 - r^2)^((n - 4) / 2)
           (1 - rho r)^(-(n - 3/2)) 2F1(1/2, 1/2; n - 1/2; (1 + rho r) / 2).

Up to `LARGEST_OF_SECOND_WAY` pairs every fourth design is computed in a second way and must agree. With independent Z
standard normal and X, Y chi of n - 1 and n - 2 degrees of freedom, r / sqrt(1 - r^2) = (Z + X rho / sqrt(1 - rho^2)) / Y
(Ruben 1966, Some new results on the distribution of the sample correlation coefficient, ibid. 28, 513-525). By the angle
of (X, Y) the probability is a mean of those of t with 2 n - 3 degrees of freedom.

Usage: sample_correlation.py [folder]        (needs mpmath, gmpy2 and python-flint)
"""
import math
import random
import sys

from flint import arb, ctx
from mpmath import mp, mpf
from mpmath.calculus.quadrature import GaussLegendre

from multiprecision import log_uniform, output_folder, write

mp.dps = 36
ctx.dps = 40
AGREEMENT = 1e-18
LARGEST_OF_SECOND_WAY = 120
PANELS = 40
FUNCTIONS = ("CdfCorrelation", "SfCorrelation")
NEGLIGIBLE = -48  # natural logarithm of what is left out, relative to the value


def to_arb(x):
    """A double as it is, a number of mpmath to its digits."""
    return arb(mp.nstr(x, 38)) if isinstance(x, mpf) else arb(x)


def to_mpf(x):
    return mpf(x.mid().str(36, radius=False))


def middle(x):
    """Without the radius of the ball: what follows only says where to look."""
    return x.mid()


# Gauss and Legendre's rule with 24 nodes, which errs by 1e-25 where a panel holds two powers of e.
RULE = [(to_arb(node), to_arb(weight)) for node, weight in GaussLegendre(mp).calc_nodes(4, mp.prec)]


def integral(height, ends):
    total = arb(0)
    for start, end in zip(ends, ends[1:]):
        half, centre = (end - start) / 2, (end + start) / 2
        total += half * sum((weight * height(centre + half * node) for node, weight in RULE), arb(0))
    return abs(total)


def log_factor(n, rho):
    return ((n - 2).log() + (n - 1).lgamma() - (n - arb(1) / 2).lgamma() - (2 * arb.pi()).log() / 2
            + (n - 1) / 2 * ((1 - rho) * (1 + rho)).log())


def hypergeometric(c, x):
    """2F1(1/2, 1/2; c; x). For a large c, of which arb makes nothing, the series itself."""
    if c < 12:
        return x.hypgeom_2f1(arb(1) / 2, arb(1) / 2, c)
    term = total = arb(1)
    k = 0
    while term > 1e-36:
        term = (term * x * (arb(k) + arb(1) / 2) ** 2 / (c + k) / (k + 1)).mid()
        total += term
        k += 1
    return total


def log_density(z, n, rho, factor):
    """log of the density of z = atanh(r)."""
    r = z.tanh()
    series = hypergeometric(n - arb(1) / 2, (1 + rho * r) / 2)
    return factor - (n - 2) * z.cosh().log() - (n - arb(3) / 2) * (1 - rho * r).log() + series.log()


def tail_beyond(z, n, rho, side):
    """The probability below z for side -1, above it for side 1; z lies on that side of the mode or a little inside."""
    factor = log_factor(n, rho)
    near = 1 / (1000 * n.sqrt())
    here = level = log_density(z, n, rho, factor)
    ends, width = [z], 1 / n.sqrt()
    while len(ends) == 1 or level > here + NEGLIGIBLE:
        decay = abs(level - log_density(ends[-1] + side * near, n, rho, factor)) / near
        width = middle(min(3 * width / 2, 2 / decay))
        ends.append(ends[-1] + side * width)
        level = log_density(ends[-1], n, rho, factor)
    return integral(lambda at: (log_density(at, n, rho, factor) - here).exp(), ends) * here.exp()


def tails(r, n, rho):
    below = r < rho
    r, n, rho = to_arb(r), to_arb(n), to_arb(rho)
    tail = to_mpf(tail_beyond(r.atanh(), n, rho, -1 if below else 1))
    return (tail, 1 - tail) if below else (1 - tail, tail)


def lower_of_t(t, df):
    tail = (df / (df + t * t)).beta_lower(df / 2, arb(1) / 2, regularized=True) / 2
    return tail if t < 0 else 1 - tail


def lower_tail_by_angle(r, n, rho):
    """The second way."""
    r, n, rho = to_arb(r), to_arb(n), to_arb(rho)
    reach, centre = r / ((1 - r) * (1 + r)).sqrt(), rho / ((1 - rho) * (1 + rho)).sqrt()
    root = (2 * n - 3).sqrt()
    factor = 2 * (n - arb(3) / 2).gamma() / ((n - 1) / 2).gamma() / ((n - 2) / 2).gamma()

    def height(angle):
        sine, cosine = angle.sin(), angle.cos()
        return cosine ** (n - 2) * sine ** (n - 3) * lower_of_t(root * (reach * sine - centre * cosine), 2 * n - 3)

    return to_mpf(factor * integral(height, [k * arb.pi() / 2 / PANELS for k in range(PANELS + 1)]))


def check(r, n, rho, lower):
    second = lower_tail_by_angle(r, n, rho)
    if abs(second - lower) > AGREEMENT * lower:
        raise ArithmeticError(f"the two ways differ at {r} {n} {rho}: {lower} {second}")


def quantile(p, n, rho):
    """From the double-precision quantile of Fisher's z by Newton's method for the logarithm of the smaller tail."""
    p, n, rho = mpf(p), mpf(n), mpf(rho)
    z = mp.atanh(rho) + mp.sqrt(2) * mp.erfinv(2 * p - 1) / mp.sqrt(n - 1)
    factor = log_factor(to_arb(n), to_arb(rho))
    for _ in range(60):
        lower, upper = tails(mp.tanh(z), n, rho)
        small, wanted, side = (lower, p, 1) if p < 0.5 else (upper, 1 - p, -1)
        density = mp.exp(to_mpf(log_density(to_arb(z), to_arb(n), to_arb(rho), factor)))
        step = side * mp.log(wanted / small) * small / density
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
        if region == "designs" and i % 4 == 0 and n <= LARGEST_OF_SECOND_WAY and abs(r) < 0.99:
            check(r, n, rho, both[0])
        yield FUNCTIONS[which], (r, n, rho), both[which], None, region


def quantile_rows(rng, count):
    levels = [0.0005, 0.005, 0.01, 0.025, 0.05, 0.1, 0.3, 0.5, 0.8, 0.9, 0.95, 0.975, 0.99, 0.995, 0.9995]
    for n, rho, _, region in designs(rng, count):
        p = rng.choice(levels)
        if region != "designs" or (p == 0.5 and rho == 0):
            continue  # the inverse of what the probabilities measure there; or 0 itself
        yield "IdfCorrelation", (p, n, rho), quantile(p, n, rho), None, region


def main():
    folder = output_folder(sys.argv)
    write(folder / "CdfCorrelation.csv", probability_rows(random.Random(11), 120, 0))
    write(folder / "SfCorrelation.csv", probability_rows(random.Random(12), 60, 1))
    write(folder / "IdfCorrelation.csv", quantile_rows(random.Random(13), 110))


if __name__ == "__main__":
    sys.exit(main())
