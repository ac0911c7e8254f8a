"""Noncentral t and F in ball arithmetic: mixtures of incomplete beta functions by Poisson weights.

Johnson, Kotz and Balakrishnan, Continuous Univariate Distributions 2 (1995), equations 30.10 and 31.11. The part of a
sum that is left out is bounded and added to the radius of the ball. The second method of each, to which
`check_exact.py` compares, stands in `exact_second.py`.
"""
import math

from flint import arb, ctx

from exact import beta_ball, beta_step, nearest_double, normal_cdf_ball
from exact_second import noncentral_f_tail, noncentral_t_tail

# With more degrees of freedom the mixtures take long, and the second method is taken: its digits are not proven.
LARGEST_MIXTURE_DF = 1e8
LEAST_CONTOUR_DF = 50


# From here on T is all but normal: the scaled chi variable differs from 1 by sqrt(1 / (2 df)) in the mean.
LARGEST_DF = 1e60


def radius(bound):
    """A ball around 0 of that radius."""
    return arb(0, bound.upper())


def weight(m, j, h):
    """e^-m m^(j + h) / Gamma(j + h + 1)."""
    return (-m + (j + h) * m.log() - (j + h + 1).lgamma()).exp()


def spread(m):
    """So far from its mean m has a Poisson variable no more than about 2^-bits of its probability."""
    bits = ctx.prec
    return math.sqrt(1.4 * bits * m) + 0.7 * bits


def is_negligible(bound, total):
    return bound < total * arb(2) ** -ctx.prec


def lower_mixture(a, b, m, x, y, h):
    """sum_j weight(j) I_x(a + j, b), from above downwards.

    Above the first term the rest is bounded by a geometric series, as I_x decreases in j; below the last as well, as
    I_x(a, b) is logarithmically concave in a (H. Finner and M. Roters, Distribution functions and log-concavity, 1993).
    """
    top = int(float(m.mid()) + spread(float(m.mid())))
    j = top
    lower = beta_ball(a + j, b, x, y)
    step = beta_step(a + j, b, x, y)
    w = weight(m, arb(j), h)
    term = w * lower
    ratio = m / (j + 1 + h)
    total = term + radius(term * ratio / (1 - ratio))
    while j > 0:
        step *= (a + j) / (x * (a + b + (j - 1)))
        lower += step
        w *= (j + h) / m
        j -= 1
        previous, term = term, w * lower
        total += term
        if j % 8 == 0 and j < m:
            ratio = term / previous
            if ratio < 1:
                rest = term * ratio / (1 - ratio)
                if is_negligible(rest, total):
                    return total + radius(rest)
    return total


def upper_mixture(a, b, m, x, y, h):
    """sum_j weight(j) (1 - I_x(a + j, b)), from below upwards; 1 - I_x increases in j, up to 1.

    Where the bits are too few to tell whether the rest is negligible, the terms end at `last`.
    """
    mean = float(m.mid())
    j = bottom = max(0, int(mean - spread(mean)))
    last = mean + 2 * spread(mean)
    upper = beta_ball(b, a + j, y, x)
    step = beta_step(a + j, b, x, y)
    w = weight(m, arb(j), h)
    term = w * upper
    total = term
    if bottom > 0:
        ratio = (bottom + h) / m
        total += radius(term * ratio / (1 - ratio))
    while True:
        upper += step
        step *= x * (a + b + j) / (a + (j + 1))
        j += 1
        w *= m / (j + h)
        total += w * upper
        if j % 8 == 0 and j > m:
            ratio = m / (j + 1 + h)
            rest = w * ratio / (1 - ratio)
            if is_negligible(rest, total) or j > last:
                return total + radius(rest)


def noncentral_f_ball(x, df1, df2, noncentrality, is_lower=True):
    a, b, m = arb(df1) / 2, arb(df2) / 2, arb(noncentrality) / 2
    c = arb(df1) * arb(x) / arb(df2)
    x, y = c / (1 + c), 1 / (1 + c)
    if noncentrality == 0:
        return beta_ball(a, b, x, y) if is_lower else beta_ball(b, a, y, x)
    return (lower_mixture if is_lower else upper_mixture)(a, b, m, x, y, arb(0))


def noncentral_f(x, df1, df2, noncentrality):
    """Lower probability."""
    if x <= 0:
        return 0.0
    is_lower = x < 1 + noncentrality / df1
    if noncentrality > 0 and max(df1, df2) > LARGEST_MIXTURE_DF and min(df1, df2) > LEAST_CONTOUR_DF:
        tail = noncentral_f_tail(x, df1, df2, noncentrality, is_lower)
        return float(tail if is_lower else 1 - tail)
    if is_lower:
        return nearest_double(lambda: noncentral_f_ball(x, df1, df2, noncentrality))
    return nearest_double(lambda: 1 - noncentral_f_ball(x, df1, df2, noncentrality, False))


def t_mixture(mixture, x, df, delta):
    """The even and the odd half of the mixture over |t|."""
    b, m, c = arb(df) / 2, arb(delta) ** 2 / 2, arb(x) ** 2 / arb(df)
    x, y = c / (1 + c), 1 / (1 + c)
    half = arb(0.5)
    return mixture(half, b, m, x, y, arb(0)), mixture(arb(1), b, m, x, y, half)


def noncentral_t_ball(x, df, delta, is_lower):
    """P(T <= x), or P(T > x)."""
    if df > LARGEST_DF:
        tail = normal_cdf_ball(arb(x) - arb(delta)) + radius(abs(arb(x)) / (4 * arb(df)).sqrt())
        return tail if is_lower else 1 - tail
    if delta < 0:
        return noncentral_t_ball(-x, df, -delta, not is_lower)
    if x == 0 or delta == 0:
        tail = central_t_ball(x, df) if delta == 0 else normal_cdf_ball(-arb(delta))
        return tail if is_lower else 1 - tail
    if is_lower and x > 0:
        even, odd = t_mixture(lower_mixture, x, df, delta)
        return normal_cdf_ball(-arb(delta)) + (even + odd) / 2
    even, odd = t_mixture(upper_mixture, x, df, delta)
    tail = (even + odd) / 2 if x > 0 else (even - odd) / 2
    return tail if (x < 0) == is_lower else 1 - tail


def central_t_ball(x, df):
    b, c = arb(df) / 2, arb(x) ** 2 / arb(df)
    tail = beta_ball(b, arb(0.5), 1 / (1 + c), c / (1 + c)) / 2
    return tail if x <= 0 else 1 - tail


def noncentral_t(x, df, delta):
    """Lower probability."""
    # The sum that is the smaller needs no complement; each is right.
    is_lower = x < delta or x < 0 < delta
    if delta != 0 and LARGEST_MIXTURE_DF < df < LARGEST_DF:
        tail = noncentral_t_tail(x, df, delta, is_lower)
        return float(tail if is_lower else 1 - tail)
    if is_lower:
        return nearest_double(lambda: noncentral_t_ball(x, df, delta, True))
    return nearest_double(lambda: 1 - noncentral_t_ball(x, df, delta, False))
