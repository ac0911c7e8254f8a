#!/usr/bin/python3
"""Writes reference values of the distribution of the squared multiple correlation with random predictors.

With a = df1 / 2, e = df2 / 2, h = a + e and c = F / (df2 / df1 + F),

    P(R^2 <= c) = sum_k w_k sum_{j >= k} g_j = sum_j g_j sum_{k <= j} w_k,
    w_k = Gamma(h + k) / (k! Gamma(h)) rho^2k (1 - rho^2)^h,
    g_j = Gamma(h + j) / (Gamma(a + j + 1) Gamma(e)) c^(a + j) (1 - c)^e,

summed upwards at 200 bits from where w is below exp(-300) of its largest value, or from 0. The arguments are the doubles
in the file, taken as exact.

    multiple_correlation.py > tests/regression/references/multiple_correlation.csv
"""

import gmpy2
import mpmath
from gmpy2 import mpfr

BITS = 200
gmpy2.get_context().precision = BITS
mpmath.mp.prec = BITS


def to_mpfr(x):
    return mpfr(mpmath.nstr(x, 60))


def cdf(df1, df2, critical, rho2):
    """P(R^2 <= c) for doubles df1, df2, critical and rho2."""
    a, e = mpmath.mpf(df1) / 2, mpmath.mpf(df2) / 2
    h = a + e
    f, r = mpmath.mpf(critical), mpmath.mpf(rho2)
    c = f / (mpmath.mpf(df2) / df1 + f)

    f2 = r / (1 - r)
    mean = h * f2
    spread = mpmath.sqrt(mean * (1 + f2))
    start = max(0, int(mean - 25 * spread))

    lg = mpmath.loggamma
    w = mpmath.exp(lg(h + start) - lg(start + 1) - lg(h) + start * mpmath.log(r) + h * mpmath.log(1 - r))
    g = mpmath.exp(lg(h + start) - lg(a + start + 1) - lg(e) + (a + start) * mpmath.log(c) + e * mpmath.log(1 - c))

    w, g, a, h, c, r = map(to_mpfr, (w, g, a, h, c, r))
    weights, total, k = w, w * g, start
    while True:
        grow = c * (h + k) / (a + k + 1)
        if grow < 1 and g * grow <= (1 - grow) * total * mpfr("1e-25"):
            return float(total)
        g *= grow
        w *= r * (h + k) / (k + 1)
        k += 1
        weights += w
        total += g * weights


def rows():
    # Designs of every day, around the F that makes the probability neither 0 nor 1.
    for df1, df2 in [(1, 1), (1, 2), (1, 30), (2, 9.25), (5, 94), (5, 194), (9, 80), (30, 40.5), (100, 100), (300, 20)]:
        for rho2 in [1e-12, 1e-4, 0.05, 0.3, 0.7, 0.95, 0.9999]:
            f2 = rho2 / (1 - rho2)
            centre = 1 + (df1 + df2) * f2 / df1
            for factor in [0.2, 0.9, 1.3, 4]:
                yield df1, df2, centre * factor, rho2
    # Large samples: sums of many terms, and mixtures too wide to be summed.
    for df1, df2, rho2 in [(5, 1e5, 0.3), (1, 1e6, 0.5), (20, 1e6, 1e-5), (5, 1e8, 1e-6), (3, 1e12, 1e-9),
                           (2, 1e16, 1e-15), (1e5, 1e6, 1e-3), (1e6, 10, 0.5), (5, 1e6, 0.9), (1000, 1e7, 0.2)]:
        f2 = rho2 / (1 - rho2)
        centre = 1 + (df1 + df2) * f2 / df1
        width = max((2 / df1) ** 0.5, (2 / df2) ** 0.5, 2 * (f2 / df1) ** 0.5 * ((df1 + df2) / df1) ** 0.5 / centre)
        for shift in [-2, 0, 1, 3]:
            yield df1, df2, centre * max(0.01, 1 + shift * width), rho2
    # Correlations near 1 with hardly any error degrees of freedom, and far-off critical values.
    for df1, df2 in [(1, 1), (1, 2), (3, 1), (10, 1.5)]:
        for rho2 in [0.99999, 0.999999]:
            for critical in [18.51282051282051, 161.4476387975881, 9e4]:
                yield df1, df2, critical, rho2


def terms(df1, df2, critical, rho2):
    """About how many terms the sum has."""
    f2 = rho2 / (1 - rho2)
    spread = ((df1 + df2) / 2 * f2 * (1 + f2)) ** 0.5
    return 50 * spread + 60 * (1 + critical * df1 / df2)


print("df1,df2,critical,rhoSquared,cdf")
for row in rows():
    row = [float(x) for x in row]
    if terms(*row) > 4e5:
        continue
    print(",".join(repr(x) for x in row + [cdf(*row)]), flush=True)
