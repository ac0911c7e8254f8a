"""Gamma, chi-square, Poisson and noncentral chi-square distributions in ball arithmetic.

The incomplete gamma functions are summed as a series, whose precision grows until nothing is lost where the upper one is
what is left of 1. The noncentral distribution is their mixture by Poisson weights (Johnson, Kotz and Balakrishnan,
Continuous Univariate Distributions 2 (1995), equation 29.3). A bound of what is left out is in the radius of the ball.
"""
import math

from flint import arb, ctx
from mpmath import mp

from exact import nearest_double

# Newton's method ends when a step is below this.
LAST_STEP = 1e-22

QUANTILE_BITS = 192

# Of larger shapes the series takes long.
LARGEST_SERIES_SHAPE = 1e5


def lower_series_ball(a, x):
    """The lower tail by its series of positive terms, Abramowitz and Stegun 6.5.29."""
    term = total = arb(1)
    k = 0
    while True:
        k += 1
        ratio = x / (a + k)
        term *= ratio
        total += term
        if ratio < 1 and is_negligible(term * ratio / (1 - ratio), total):
            return step_ball(a, x) * (total + radius(term * ratio / (1 - ratio)))


def upper_ball(a, x):
    return 1 - lower_series_ball(a, x)


def integrated_tail(a, x, is_upper):
    """The smaller tail, or one minus it, by the integral of the density of log X over it, in 40 digits: not proven."""
    with mp.workdps(40):
        a, x = mp.mpf(a), mp.mpf(x)
        smaller_is_upper = x > a
        sign = 1 if smaller_is_upper else -1

        def height(s):
            return mp.exp(sign * a * s - x * mp.expm1(sign * s))

        scale = 1 / max(abs(x - a), mp.sqrt(a))
        edges = [k * scale for k in range(0, 15)] + [20 * scale, 40 * scale, 100 * scale]
        tail = mp.quad(height, edges) * mp.exp(a * mp.log(x) - x - mp.loggamma(a))
        return tail if smaller_is_upper == is_upper else 1 - tail


def step_ball(a, x):
    """x^a e^-x / Gamma(a + 1), by which the lower tail at x falls when the shape a grows by one."""
    return (a * x.log() - x - (a + 1).lgamma()).exp()


def weight_ball(j, m):
    return (j * m.log() - m - (j + 1).lgamma()).exp()


def radius(bound):
    return arb(0, bound.upper())


def is_negligible(bound, total):
    return bound < total * arb(2) ** -ctx.prec


def mixture_ball(a, m, x, is_upper):
    """One tail of the mixture, from the mode of the weights upwards and downwards."""
    tail = upper_ball if is_upper else lower_series_ball
    sign = 1 if is_upper else -1
    mode = math.floor(float(m.mid()))

    j, value, step, weight = mode, tail(a + mode, x), step_ball(a + mode, x), weight_ball(arb(mode), m)
    total = weight * value
    while True:
        value += sign * step
        j += 1
        step *= x / (a + j)
        weight *= m / j
        total += weight * value
        ratio = m / (j + 1)
        # The tails are at most 1.
        if ratio < 1 and is_negligible(weight * ratio / (1 - ratio), total):
            total += radius(weight * ratio / (1 - ratio))
            break

    j, value, step, weight = mode, tail(a + mode, x), step_ball(a + mode, x), weight_ball(arb(mode), m)
    while j > 0:
        step *= (a + j) / x
        value -= sign * step
        weight *= j / m
        j -= 1
        total += weight * value
        # The weights fall ever faster from here downwards, and the tails are at most 1.
        bound = weight * j
        if is_negligible(bound, total):
            total += radius(bound)
            break
    return total


def tail_ball(a, m, x, is_upper):
    if m == 0:
        return upper_ball(a, x) if is_upper else lower_series_ball(a, x)
    return mixture_ball(a, m, x, is_upper)


def gamma_tail(shape, x, is_upper):
    if shape > LARGEST_SERIES_SHAPE:
        return float(integrated_tail(shape, x, is_upper))
    return nearest_double(lambda: tail_ball(arb(shape), arb(0), arb(x), is_upper))


def noncentral_tail(x, df, noncentrality, is_upper):
    return nearest_double(lambda: tail_ball(arb(df) / 2, arb(noncentrality) / 2, arb(x) / 2, is_upper))


def poisson_mass(k, mean):
    return nearest_double(lambda: weight_ball(arb(k), arb(mean)))


def precise_tail(shape, point, is_upper):
    """The tail with all the bits of a quantile, whatever cancels on the way."""
    if shape > LARGEST_SERIES_SHAPE:
        return arb(mp.nstr(integrated_tail(shape.str(80, radius=False), point.str(80, radius=False), is_upper), 45))
    bits = ctx.prec
    value = tail_ball(shape, arb(0), point, is_upper)
    while value.rel_accuracy_bits() < QUANTILE_BITS - 40:
        ctx.prec *= 2
        value = tail_ball(shape, arb(0), point, is_upper)
    ctx.prec = bits
    return value.mid()


def gamma_quantile(probability, shape, is_upper, start):
    """The point with that tail: Newton's method for the logarithm of the smaller tail in the logarithm of the point."""
    ctx.prec = QUANTILE_BITS
    probability = arb(probability)
    if probability > 0.5:
        probability, is_upper = 1 - probability, not is_upper
    a, v = arb(shape), arb(start).log()
    for _ in range(3000):
        point = v.exp().mid()
        tail = precise_tail(a, point, is_upper)
        density = (step_ball(a, point) * a).mid()
        change = ((probability / tail).log() * tail / density).mid()
        # The logarithm of a tail is concave: a step towards its thin end may go much too far, to where series are long.
        change = max(min(-change if is_upper else change, arb(1)), -(1 + abs(v) / 2).mid())
        v = (v + change).mid()
        if abs(change) < LAST_STEP:
            return v.exp().mid()
    raise ArithmeticError(f"no quantile {probability} {shape}")


def noncentrality(q, x, df):
    """The noncentrality with upper tail q at x, by Newton's method and bisection in its logarithm."""
    ctx.prec = QUANTILE_BITS
    q, a, point = arb(q), arb(df) / 2, arb(x) / 2

    def at(m):
        return tail_ball(a, m, point, True).mid(), tail_ball(a + 1, m, point, True).mid()

    low, high = arb(0), arb(1)
    while at(high)[0] < q:
        low, high = high, high * 2
    m = ((low + high) / 2).mid()
    for _ in range(300):
        tail, next_tail = at(m)
        low, high = (low, m) if tail > q else (m, high)
        following = (m + (q - tail) / (next_tail - tail)).mid()
        if not low < following < high:
            following = ((low + high) / 2).mid()
        if abs(following - m) < LAST_STEP * m:
            return 2 * following
        m = following
    raise ArithmeticError(f"no noncentrality {q} {x} {df}")
