"""Quantiles of beta, F and t in ball arithmetic: Newton's method on the logarithm of the smaller tail, in the log-odds.

`proven` of a quantile shows that the points half-way to the neighbouring doubles lie on either side of it.
"""
import math

from flint import arb, ctx

from exact import beta_ball

FIRST_BITS = 128
LEAST_TAIL_BITS = 85


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


def beta_log_odds(a, b, lower, upper, start=None):
    """The log-odds at which the lower tail is lower() and the upper is upper() = 1 - lower()."""
    ctx.prec = FIRST_BITS
    if start is None or not math.isfinite(start):
        start = float((a() / b()).log())
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
