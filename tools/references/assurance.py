#!/usr/bin/python3
"""Writes reference values of the assurance of intervals: the probability that the interval is at most as wide as wished.

Probabilities are integrals of densities at 30 digits, and quantiles of t solve them.

    assurance.py means > tests/assurance/references/means.csv
    assurance.py welch > tests/assurance/references/welch.csv
    assurance.py correlation > tests/assurance/references/correlation.csv
"""

import sys

from mpmath import mp, mpf

mp.dps = 30


def t_upper(t, df):
    """P(T > t) for t > 0."""
    return mp.betainc(df / 2, mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2


def t_quantile(alpha, df):
    """The t with P(|T| > t) = alpha."""
    tail = mpf(alpha) / 2
    df = mpf(df)
    start = mp.sqrt(2) * mp.erfinv(1 - 2 * tail)
    start *= 1 + (start**2 + 1) / (4 * df)
    return mp.findroot(lambda t: mp.log(t_upper(t, df) / tail), (start, start * 1.01), tol=1e-20)


def chi_square(x, df):
    """P(X <= x), by the integral of the density where the series would be long."""
    a, x = mpf(df) / 2, mpf(x) / 2
    if a < 2000:
        return mp.gammainc(a, 0, x, regularized=True)
    spread = mp.sqrt(a)
    at_mode = mp.exp((a - 1) * mp.log(a) - a - mp.loggamma(a))
    ends = [a - k * spread for k in (30, 15, 8, 4, 2, 1, 0) if a - k * spread < x] + [x]
    return at_mode * mp.quad(lambda s: mp.exp((a - 1) * mp.log(s / a) - (s - a)), ends)


def means():
    print("sd,variance,perSize,groups,halfWidth,alpha,size,assurance")
    rows = [(1, 1, 1, 1, w, alpha, n) for alpha in (0.05, 0.01, 0.5) for w, n in
            ((0.5, 2), (0.5, 5), (0.5, 16), (0.5, 25), (0.2, 120), (0.1, 400), (0.01, 38500), (2, 3))]
    rows += [(6.5, 2, 2, 2, w, 0.05, n) for w, n in ((3, 30), (3, 40), (5, 16), (1, 340))]
    rows += [(6.5, 1.5, 3, 2, w, 0.1, n) for w, n in ((3, 30), (3, 14), (5, 7.5))]
    rows += [(2, 12, 1, 4, w, 0.05, n) for w, n in ((1, 200), (2, 60), (3, 25), (4, 5))]
    for row in rows:
        sd, variance, per_size, groups, width, alpha, size = map(mpf, map(float, row))
        df = per_size * size - groups
        threshold = df * size * width**2 / (t_quantile(alpha, df) ** 2 * sd**2 * variance)
        print(",".join(repr(float(x)) for x in (*row, chi_square(threshold, df))), flush=True)


def welch():
    """Integrates over the ratio of the sample variances, which is F-distributed over that of the true ones."""
    print("sd1,sd2,halfWidth,alpha,n1,n2,assurance")
    mp.dps = 20
    for row in [(1, 1, 0.8, 0.05, 10, 20), (2, 5, 2.5, 0.05, 30, 30), (5, 2, 2.5, 0.05, 15, 45),
                (1, 3, 3, 0.1, 3, 8), (1, 10, 3, 0.01, 60, 90), (4, 1, 6, 0.05, 2, 2), (1, 1, 0.2, 0.05, 150, 400)]:
        sd1, sd2, width, alpha, n1, n2 = map(mpf, map(float, row))
        f1, f2 = n1 - 1, n2 - 1

        def integrand(y):
            ratio = mp.exp(y)  # of the chi-squares; chi-square 1 = x ratio / (1 + ratio), x their sum
            a1 = sd1**2 / n1 / f1 * ratio / (1 + ratio)
            a2 = sd2**2 / n2 / f2 / (1 + ratio)
            df = (a1 + a2) ** 2 / (a1**2 / f1 + a2**2 / f2)
            density = mp.exp(f1 / 2 * y - (f1 + f2) / 2 * mp.log1p(ratio)) / mp.beta(f1 / 2, f2 / 2)
            return density * chi_square((width / t_quantile(alpha, df)) ** 2 / (a1 + a2), f1 + f2)

        spread = mp.sqrt(2 / f1 + 2 / f2)
        centre = mp.log(f1 / f2)
        value = mp.quad(integrand, [centre + k * spread for k in (-40, -20, -8, -3, 0, 3, 8, 20, 40)], maxdegree=6)
        print(",".join(repr(float(x)) for x in (*row, value)), flush=True)


def correlation():
    """Integrates Hotelling's density of r (1953, equation 25) over what makes the interval of Fisher's z short."""
    print("correlation,size,halfWidth,alpha,assurance")
    for row in [(rho, n, w, alpha) for alpha in (0.05, 0.2) for rho in (0, 0.3, -0.6, 0.95)
                for n, w in ((4, 0.3), (5, 0.6), (12, 0.4), (60, 0.2), (300, 0.1), (900, 0.03))]:
        rho, n, width, alpha = map(mpf, map(float, row))
        h = mp.sqrt(2) * mp.erfinv(1 - alpha) / mp.sqrt(n - 3)
        excess = mp.sinh(2 * h) / width - mp.cosh(2 * h)
        edge = mp.acosh(excess) / 2 if excess > 1 else mpf(0)

        def density(z):
            r = mp.tanh(z)
            log = (mp.loggamma(n - 1) - mp.loggamma(n - 0.5) + (n - 1) / 2 * mp.log(1 - rho * rho)
                   - (n - 2) * mp.log(mp.cosh(z)) - (n - mpf(3) / 2) * mp.log(1 - rho * r))
            return ((n - 2) / mp.sqrt(2 * mp.pi) * mp.exp(log)
                    * mp.hyp2f1(0.5, 0.5, n - 0.5, (1 + rho * r) / 2))

        centre, spread = mp.atanh(rho), 1 / mp.sqrt(n - 2)
        points = sorted([centre + k * spread for k in (-60, -20, -8, -3, 0, 3, 8, 20, 60)] + [-edge, edge])
        total = mp.quad(density, points)
        assert abs(total - 1) < 1e-12, (row, total)
        value = mp.mpf(0)
        for a, b in zip(points, points[1:]):
            if b <= -edge or a >= edge:
                value += mp.quad(density, [a, b])
        print(",".join(repr(float(x)) for x in (*row, value)), flush=True)


{"means": means, "welch": welch, "correlation": correlation}[sys.argv[1]]()
