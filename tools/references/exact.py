"""Distribution functions in ball arithmetic: each value comes with a proven bound of its error.

A ball is a number with a radius that holds all rounding and truncation (F. Johansson, Arb: efficient arbitrary-precision
midpoint-radius interval arithmetic, IEEE Transactions on Computers 66, 2017). `nearest_double` raises the precision
until the whole ball rounds to one double, so that no cancellation is too deep for it.

Needs python-flint (pip install python-flint).
"""
from flint import arb, ctx

FIRST_BITS = 96
MOST_BITS = 50000

# A value that is so near to the middle of two doubles lies exactly there, as sums of binomial coefficients may.
TIE_BITS = 2000


def nearest_double(evaluate, bits=FIRST_BITS):
    """The double nearest to evaluate(), which gives a ball at the precision that is set."""
    while bits <= MOST_BITS:
        ctx.prec = bits
        ball = evaluate()
        low, high = float(ball.lower()), float(ball.upper())
        if low == high:
            return low
        if ball.rel_accuracy_bits() > TIE_BITS:
            return float(ball.mid())
        bits *= 2
    raise ArithmeticError(f"not decided at {bits} bits")


def beta_ball(a, b, x, y):
    """I_x(a, b) of balls, y = 1 - x.

    For x near 1 the hypergeometric series takes long, and the other tail is better even if more bits are lost.
    """
    if x < y:
        return x.beta_lower(a, b, regularized=True)
    bits = ctx.prec
    value = 1 - y.beta_lower(b, a, regularized=True)
    lost = bits - value.rel_accuracy_bits()
    if 30 < lost < 10 * bits:
        ctx.prec = bits + lost + 30
        value = 1 - y.beta_lower(b, a, regularized=True)
        ctx.prec = bits
    return value if value.rel_accuracy_bits() > bits - 40 else x.beta_lower(a, b, regularized=True)


def beta_cdf(x, a, b):
    if x <= 0 or x >= 1:
        return float(x >= 1)
    return nearest_double(lambda: beta_ball(arb(a), arb(b), arb(x), 1 - arb(x)))


def binomial_cdf(x, n, p):
    """With fractional trials, the incomplete beta function between them."""
    count = x // 1
    if count < 0 or count >= n:
        return float(count >= n)
    return nearest_double(lambda: beta_ball(arb(n) - arb(count), arb(count) + 1, 1 - arb(p), arb(p)))


def binomial_mass(x, n, p):
    if not 0 <= x <= n:
        return 0.0

    def evaluate():
        count, trials, success = arb(x), arb(n), arb(p)
        return ((trials + 1).lgamma() - (count + 1).lgamma() - (trials - count + 1).lgamma() +
                count * success.log() + (trials - count) * (-success).log1p()).exp()
    return nearest_double(evaluate)


def negative_binomial_mass(x, r, p):
    if x < 0:
        return 0.0

    def evaluate():
        failures, successes, success = arb(x), arb(r), arb(p)
        return ((successes + failures).lgamma() - (failures + 1).lgamma() - successes.lgamma() +
                successes * success.log() + failures * (-success).log1p()).exp()
    return nearest_double(evaluate)


def normal_cdf_ball(z):
    return (-z / arb(2).sqrt()).erfc() / 2


def normal_cdf(z):
    return nearest_double(lambda: normal_cdf_ball(arb(z)))


def normal_quantile(p):
    if p == 0.5:
        return 0.0
    return nearest_double(lambda: -arb(2).sqrt() * (2 * arb(p)).erfcinv())


def log_gamma(x):
    """log |Gamma(x)|."""
    if x in (1, 2):
        return 0.0
    if x > 0:
        return nearest_double(lambda: arb(x).lgamma())
    return nearest_double(lambda: (arb.pi() / abs(arb(x).sin_pi())).log() - (1 - arb(x)).lgamma())
