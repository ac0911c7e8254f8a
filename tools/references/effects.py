#!/usr/bin/python3
"""Writes confidence limits of noncentralities: the noncentrality at which the distribution function has a probability.

The noncentral t is the integral of the normal distribution over its chi, and the noncentral F the Poisson mixture of
beta distributions, both at 30 digits.

    effects.py t > tests/effects/references/noncentrality_t.csv
    effects.py f > tests/effects/references/noncentrality_f.csv
"""

import sys

from mpmath import mp, mpf

mp.dps = 30


def cdf_t(t, df, noncentrality):
    """E[Phi(t s - noncentrality)], s = sqrt(chi-square / df)."""
    spread = 1 / mp.sqrt(2 * df)
    log_constant = df / 2 * mp.log(df / 2) - mp.loggamma(df / 2) + mp.log(2)

    def integrand(s):
        return mp.ncdf(t * s - noncentrality) * mp.exp(log_constant + (df - 1) * mp.log(s) - df * s * s / 2)

    ends = [1 + k * spread for k in (-24, -12, -7, -4, -2, 0, 2, 4, 7, 12, 24)]
    return mp.quad(integrand, [mpf(0)] + [s for s in ends if s > 0])


def cdf_f(f, df1, df2, noncentrality):
    x = df1 * f / (df1 * f + df2)
    half = noncentrality / 2
    start = int(max(0, half - 25 * mp.sqrt(half + 1)))
    weight = mp.exp(-half + start * mp.log(half) - mp.loggamma(start + 1)) if half > 0 else mpf(1)
    total, k = mpf(0), start
    while True:
        term = weight * mp.betainc(df1 / 2 + k, df2 / 2, 0, x, regularized=True)
        total += term
        k += 1
        weight *= half / k
        if k > half and (weight == 0 or term < total * mpf(10) ** -26):
            return total


def solve(f, start, step):
    return mp.findroot(f, (start, start + step), tol=1e-18)


def bisect(f, high):
    """The root of a function that falls from above 0 at 0, to 20 digits."""
    low = mpf(0)
    while f(high) > 0:
        low, high = high, 2 * high
    while high - low > high * mpf(10) ** -20:
        middle = (low + high) / 2
        low, high = (middle, high) if f(middle) > 0 else (low, middle)
    return high


def limits_t():
    print("t,df,alpha,lower,upper")
    z = mpf("1.96")
    for t, df, alpha in [(2.83, 126, .05), (0, 10, .05), (-1.7, 18, .05), (2.5, 3, .1), (4.2, 1, .05), (30, 12, .05),
                         (2.2, 60, 1e-4), (1, 5.5, .5), (100, 400, .01), (3, 1e4, .05)]:
        exact_t, df_, p = mpf(t), mpf(df), mpf(alpha) / 2
        reach = z * mp.sqrt(1 + exact_t**2 / (2 * df_))
        upper = solve(lambda d: mp.log(cdf_t(exact_t, df_, d) / p), exact_t + reach, mpf("0.1"))
        lower = -solve(lambda d: mp.log(cdf_t(-exact_t, df_, d) / p), -exact_t + reach, mpf("0.1"))
        print(",".join(repr(float(x)) for x in (t, df, alpha, lower, upper)), flush=True)


def limits_f():
    print("f,df1,df2,alpha,lower,upper")
    for f, df1, df2, alpha in [(5, 5, 100, .05), (0.4, 3, 40, .05), (2, 3, 40, .05), (11.2213, 4, 50, .1),
                               (40.72, 2, 18, .05), (4.5, 1, 20, .05), (60, 1, 9, .05), (1.5, 30, 200, .2),
                               (3.2, 2.5, 7.5, .01), (8, 4, 1000, .05), (0.01, 2, 12, .05)]:
        f_, df1_, df2_, p = mpf(f), mpf(df1), mpf(df2), mpf(alpha) / 2
        reach = 2 * mp.sqrt(2 * f_ * df1_ + df1_)
        limits = []
        for target, start in ((1 - p, f_ * df1_ - reach), (p, f_ * df1_ + reach)):
            if cdf_f(f_, df1_, df2_, mpf(0)) <= target:
                limits.append(mpf(0))
                continue
            limits.append(bisect(lambda n: cdf_f(f_, df1_, df2_, n) - target, 2 * (abs(start) + 10)))
        print(",".join(repr(float(x)) for x in (f, df1, df2, alpha, *limits)), flush=True)


{"t": limits_t, "f": limits_f}[sys.argv[1]]()
