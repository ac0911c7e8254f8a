#!/usr/bin/python3
"""Writes reference values of the expected power of t tests of one mean: the integral of the power over a normal belief.

    expected_power.py > tests/expected_power/references/t_test.csv
"""

from mpmath import mp, mpf

mp.dps = 20


def t_upper(t, df):
    """P(T > t) for t > 0."""
    return mp.betainc(df / 2, mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2


def t_quantile(tail, df):
    start = mp.sqrt(2) * mp.erfinv(1 - 2 * tail)
    start *= 1 + (start**2 + 1) / (4 * df)
    return mp.findroot(lambda t: mp.log(t_upper(t, df) / tail), (start, start * 1.01), tol=1e-16)


def trapezoidal(f, low, high, step):
    """The integral of a smooth function that vanishes at both ends, for which this rule converges geometrically."""
    count = int(mp.ceil((high - low) / step))
    return step * mp.fsum(f(low + k * step) for k in range(count + 1))


def expected(mean, sd, size, tail, sides, finer):
    """Over the logarithm of the chi of the sample, and for each over the effect."""
    df = size - 1
    critical = t_quantile(tail, df)
    root = mp.sqrt(size)
    log_constant = df / 2 * mp.log(df / 2) - mp.loggamma(df / 2) + mp.log(2)

    def power_given(s):
        def at(effect):
            power = mp.ncdf(effect * root - critical * s)
            if sides == 2:
                power += mp.ncdf(-effect * root - critical * s)
            return power * mp.npdf(effect, mean, sd)

        return trapezoidal(at, mean - 9 * sd, mean + 9 * sd, min(sd, 1 / root) / (3 * finer))

    def over_log_chi(y):
        return power_given(mp.exp(y)) * mp.exp(log_constant + df * y - df * mp.exp(2 * y) / 2)

    return trapezoidal(over_log_chi, -40 / df - 9 / mp.sqrt(2 * df), 6 / mp.sqrt(df), 1 / (mp.sqrt(2 * df) * 3 * finer))


print("mean,sd,size,tail,sides,expected")
for row in [(0.5, 0.2, 20, 0.05, 1), (0.5, 0.2, 20, 0.025, 2), (0, 0.3, 60, 0.025, 2), (-0.2, 0.4, 10, 0.05, 1),
            (0.3, 0.05, 100, 0.005, 1), (1, 2, 5, 0.1, 2)]:
    exact = [mpf(float(x)) for x in row[:4]]
    value, check = (expected(*exact, row[4], finer) for finer in (mpf(1), mpf("1.3")))
    assert abs(value - check) < mpf(10) ** -14, (row, value, check)
    print(",".join(repr(float(x)) for x in (*row, value)), flush=True)
