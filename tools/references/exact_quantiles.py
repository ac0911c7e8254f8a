"""Quantiles of beta, F and t in ball arithmetic: Newton's method on the logarithm of the smaller tail, in the log-odds.

Newton's last step is no proof of the last digit; `is_nearest_...` shows that the quantile lies between the points
half-way to the doubles beside it.
"""
import math
from statistics import NormalDist

from flint import arb, ctx

from exact import beta_ball

FIRST_BITS = 96
LEAST_TAIL_BITS = 70


def log_density(a, b, c):
    """Logarithm of the density of the log-odds log c."""
    return a * c.log() - (a + b) * c.log1p() + (a + b).lgamma() - a.lgamma() - b.lgamma()


def tail(a, b, c, is_lower):
    x, y = c / (1 + c), 1 / (1 + c)
    return beta_ball(a, b, x, y) if is_lower else beta_ball(b, a, y, x)


def newton_step(a, b, v, p, is_lower):
    """From the log-odds v towards those at which the tail is p; the logarithm of a tail is concave, so it converges."""
    c = v.exp()
    value = tail(a, b, c, is_lower)
    step = (p / value).log() * value / log_density(a, b, c).exp()
    return step if is_lower else -step


def log_odds(a, b, p, is_lower, start):
    """The log-odds at which that tail of beta(a, b) is p; all are functions of nothing, called at each precision."""
    bits = FIRST_BITS
    v = start
    for _ in range(500):
        ctx.prec = bits
        step = newton_step(a(), b(), arb(v), p(), is_lower)
        if not step.is_finite() or (step.rel_accuracy_bits() < 60 and step.rad() > arb(2) ** -LEAST_TAIL_BITS):
            bits *= 2
            if bits > 20000:
                raise ArithmeticError("no quantile")
            continue
        v = (v + step).mid()
        if abs(step) < 1e-13:
            return v
    raise ArithmeticError("no quantile")


def normal_start(a, b, lower, upper):
    """The log-odds of shapes above 1 are about normal with variance 1/a + 1/b."""
    z = NormalDist().inv_cdf(min(lower, upper)) if a > 1 and b > 1 and min(lower, upper) > 0 else 0
    return math.log(a / b) + (z if lower < upper else -z) * math.sqrt(1 / a + 1 / b)


def beta_log_odds(a, b, lower, upper, start=None):
    """The log-odds at which the lower tail is lower() and the upper is upper() = 1 - lower()."""
    ctx.prec = FIRST_BITS
    if start is None or not math.isfinite(start):
        start = normal_start(float(a()), float(b()), float(lower()), float(upper()))
    is_lower = bool(lower() < upper())
    return log_odds(a, b, lower if is_lower else upper, is_lower, arb(start))


def beta_quantile(p, a, b, near=None):
    """The quantile; `near` saves steps and does not change it."""
    start = math.log(near) - math.log1p(-near) if near and 0 < near < 1 else None
    v = beta_log_odds(lambda: arb(a), lambda: arb(b), lambda: arb(p), lambda: 1 - arb(p), start)
    return float(1 / (1 + (-v).exp()))


def f_quantile(p, df1, df2, near=None):
    start = math.log(near) + math.log(df1) - math.log(df2) if near and 0 < near < math.inf else None
    v = beta_log_odds(lambda: arb(df1) / 2, lambda: arb(df2) / 2, lambda: arb(p), lambda: 1 - arb(p), start)
    return float(v.exp() * arb(df2) / arb(df1))


def t_quantile(p, df, near=None):
    """t^2 / df has the odds distribution of beta(1/2, df/2)."""
    if p == 0.5:
        return 0.0
    start = 2 * math.log(abs(near)) - math.log(df) if near and abs(near) < math.inf else None
    v = beta_log_odds(lambda: arb(0.5), lambda: arb(df) / 2, lambda: abs(2 * arb(p) - 1),
                      lambda: 2 * min(arb(p), 1 - arb(p)), start)
    root = float((v.exp() * arb(df)).sqrt())
    return root if p > 0.5 else -root


def is_below(a, b, odds, lower, upper):
    """Whether the quantile lies above these odds; all are functions of nothing."""
    bits = FIRST_BITS
    while bits < 20000:
        ctx.prec = bits
        is_lower = bool(lower() < upper())
        difference = tail(a(), b(), odds(), is_lower) - (lower() if is_lower else upper())
        if not difference.contains(0):
            return bool(difference < 0) == is_lower
        bits *= 2
    raise ArithmeticError("not decided")


def is_nearest(value, a, b, odds, lower, upper):
    """Whether the quantile lies between the points half-way to the doubles beside `value`, of which odds(x) takes one.

    The odds of a beta variable end at 1, beyond which they are negative.
    """
    below = (arb(value) + arb(math.nextafter(value, -math.inf))) / 2
    above = (arb(value) + arb(math.nextafter(value, math.inf))) / 2
    return ((below <= 0 or is_below(a, b, lambda: odds(below), lower, upper)) and
            (odds(above) < 0 or not is_below(a, b, lambda: odds(above), lower, upper)))


def is_nearest_beta(value, p, a, b):
    return is_nearest(value, lambda: arb(a), lambda: arb(b), lambda x: x / (1 - x), lambda: arb(p), lambda: 1 - arb(p))


def is_nearest_f(value, p, df1, df2):
    return is_nearest(value, lambda: arb(df1) / 2, lambda: arb(df2) / 2, lambda x: x * arb(df1) / arb(df2),
                      lambda: arb(p), lambda: 1 - arb(p))


def is_nearest_t(value, p, df):
    if p == 0.5:
        return value == 0
    return is_nearest(abs(value), lambda: arb(0.5), lambda: arb(df) / 2, lambda x: x * x / arb(df),
                      lambda: abs(2 * arb(p) - 1), lambda: 2 * min(arb(p), 1 - arb(p)))
