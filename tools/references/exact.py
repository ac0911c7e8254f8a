"""Distribution functions in ball arithmetic: each value comes with a proven bound of its error.

A ball is a number with a radius that holds all rounding and truncation (F. Johansson, Arb: efficient
arbitrary-precision midpoint-radius interval arithmetic, IEEE Transactions on Computers 66, 2017). `nearest_double`
raises the precision until the whole ball rounds to one double, so that no cancellation is too deep for it.

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


def beta_step(a, b, x, y):
    """I_x(a, b) - I_x(a + 1, b) of balls, y = 1 - x."""
    return (a * x.log() + b * y.log() + (a + b).lgamma() - b.lgamma() - (a + 1).lgamma()).exp()


def series_ball(a, b, x, y):
    """I_x(a, b) by a series of positive terms, Abramowitz and Stegun 26.5.4."""
    return beta_step(a, b, x, y) * x.hypgeom_2f1(a + b, arb(1), a + 1)


def short_series_ball(a, b, x, y, ratio):
    """The same, term by term, where the ratio of all neighbouring terms is at most `ratio`."""
    term = total = arb(1)
    k = 0
    smallest = arb(2) ** -ctx.prec * (1 - ratio)
    while term > smallest:
        term *= x * (a + b + k) / (a + (k + 1))
        total += term
        k += 1
    return beta_step(a, b, x, y) * (total + arb(0, (term * ratio / (1 - ratio)).upper()))


def complement_ball(a, b, x, y, most_bits):
    """I_x(a, b) as 1 - I_y(b, a), at so many more bits as are lost."""
    bits = wanted = ctx.prec
    value = 1 - series_ball(b, a, y, x)
    while value.rel_accuracy_bits() < bits - 30 and wanted < most_bits:
        wanted = min(most_bits, max(2 * wanted, wanted - value.rel_accuracy_bits()))
        ctx.prec = wanted
        value = 1 - series_ball(b, a, y, x)
    ctx.prec = bits
    return value


def beta_ball(a, b, x, y):
    """I_x(a, b) of balls, y = 1 - x.

    For x near 1 the hypergeometric series takes long, and the other tail is better even if more bits are lost.
    """
    if x < y:
        return series_ball(a, b, x, y)
    bits = ctx.prec
    value = complement_ball(a, b, x, y, bits)
    if value.rel_accuracy_bits() > bits - 40:
        return value
    ratio = max(x, x * (a + b) / (a + 1))
    if ratio < 0.98:
        return short_series_ball(a, b, x, y, ratio)
    value = complement_ball(a, b, x, y, 3000 if y < 0.01 else 2 * bits)
    return value if value.rel_accuracy_bits() > 20 else x.beta_lower(a, b, regularized=True)


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
