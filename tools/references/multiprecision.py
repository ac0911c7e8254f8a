"""Distribution functions in multiple precision (75 digits), written for correctness and not for speed.

The incomplete beta function is the continued fraction of Press, Teukolsky, Vetterling and Flannery, Numerical Recipes
(3rd ed. 2007), section 6.4, and above `CONTINUED_FRACTION_LIMIT` an integral of the density over its tail. Both differ
from what the library does.
"""
import csv

import gmpy2
from gmpy2 import mpfr
from mpmath import mp

mp.dps = 75
gmpy2.get_context().precision = 260

MISSING = -1.7976931348623157e308
CONTINUED_FRACTION_LIMIT = 1e9


def to_mpfr(value):
    """The mpmath number `value` as a gmpy2 number."""
    return mpfr(mp.nstr(value, 78, strip_zeros=False))


def log_beta_factor(a, b, x, y):
    """log of x^a y^b / B(a, b)."""
    return a * mp.log(x) + b * mp.log(y) + mp.loggamma(a + b) - mp.loggamma(a) - mp.loggamma(b)


def beta_fraction(a, b, x):
    """The continued fraction of I_x(a, b), by the modified Lentz method; for x below (a + 1) / (a + b + 2)."""
    a, b, x = to_mpfr(a), to_mpfr(b), to_mpfr(x)
    total, up, down = a + b, a + 1, a - 1
    c = mpfr(1)
    d = 1 / (1 - total * x / up)
    value = d
    tolerance = mpfr(10) ** -45
    m = 0
    while True:
        m += 1
        term = m * (b - m) * x / ((down + 2 * m) * (a + 2 * m))
        d = 1 / (1 + term * d)
        c = 1 + term / c
        value *= d * c
        term = -(a + m) * (total + m) * x / ((a + 2 * m) * (up + 2 * m))
        d = 1 / (1 + term * d)
        c = 1 + term / c
        change = d * c
        value *= change
        if abs(change - 1) < tolerance:
            return mp.mpf(str(value))


def tail_integral(a, b, x, y):
    """Integral of the density relative to its height at x from x down to 0, in the logit of x."""
    def height(s):
        return mp.exp(-a * s - (a + b) * mp.log1p(x * mp.expm1(-s)))

    scale = 1 / max(a - (a + b) * x, mp.sqrt((a + b) * x * y))
    return mp.quad(height, [k * scale for k in range(0, 15)] + [20 * scale, 40 * scale, 100 * scale])


def beta_tails(a, b, x, y):
    """Lower and upper probability of the beta distribution at x = 1 - y; all exact mpmath numbers."""
    if x * (a + b + 2) > a + 1:
        upper, lower = beta_tails(b, a, y, x)
        return lower, upper
    factor = mp.exp(log_beta_factor(a, b, x, y))
    if min(a, b) > CONTINUED_FRACTION_LIMIT:
        lower = factor * tail_integral(a, b, x, y)
    else:
        lower = factor * beta_fraction(a, b, x) / a
    return lower, 1 - lower


def beta_quantile(p, a, b):
    """The x with lower probability p, by Newton's method on the logarithm of the smaller tail, in the logit of x."""
    logit = mp.log(a / b)
    low, high = mp.mpf(-20000), mp.mpf(20000)
    for _ in range(400):
        x, y = 1 / (1 + mp.exp(-logit)), 1 / (1 + mp.exp(logit))
        lower, upper = beta_tails(a, b, x, y)
        density = mp.exp(log_beta_factor(a, b, x, y))
        if p <= 0.5:
            step = mp.log(p / lower) * lower / density
        else:
            step = -mp.log((1 - p) / upper) * upper / density
        if step > 0:
            low = logit
        else:
            high = logit
        following = logit + step
        if not low < following < high:
            following = (low + high) / 2
        if abs(following - logit) < mp.mpf(10) ** -35:
            return 1 / (1 + mp.exp(-following))
        logit = following
    raise ArithmeticError(f"no quantile: {p} {a} {b}")


def shortest(value):
    """The shortest decimal that reads back as the double nearest to `value`."""
    return repr(float(value))


def write(path, rows):
    """Writes rows (function, arguments, value, error code or None, region)."""
    with open(path, "w", newline="") as file:
        out = csv.writer(file, lineterminator="\n")
        out.writerow(["function", "a1", "a2", "a3", "a4", "a5", "value", "err", "region"])
        for function, arguments, value, err, region in rows:
            cells = [repr(float(x)) for x in arguments] + [""] * (5 - len(arguments))
            out.writerow([function] + cells + [shortest(value), "" if err is None else err, region])


def log_uniform(rng, low, high):
    return float(low * (high / low) ** rng.random())


def output_folder(arguments):
    """The folder to write to: the only argument on the command line, by default the one the tests read."""
    import pathlib
    if len(arguments) > 1:
        return pathlib.Path(arguments[1])
    return pathlib.Path(__file__).resolve().parents[2] / "tests" / "kelcommon" / "references"
