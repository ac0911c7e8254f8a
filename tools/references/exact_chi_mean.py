"""Means over u, the square root of a chi-square variable over its degrees of freedom, in 40 digits: of the normal
probability Phi(t u - delta) over u < limit, which is Owen's Q function (1965, A special case of a bivariate non-central
t-distribution, Biometrika 52).

With u = e^v and b = df / 2 the density of v is 2 b^b / Gamma(b) exp(2 b v - b e^{2v}). The integral is the sum of those
over pieces, by the rule of Gauss and Legendre; a piece is halved until that changes nothing.
"""
import functools
import math

from flint import arb, ctx

BITS = 130
NODES = 24
AGREEMENT = 1e-22
FALL = 60  # of the logarithm of the integrand, before it is left


@functools.cache
def rule():
    return [arb.legendre_p_root(NODES, i, weight=True) for i in range(NODES)]


def over(f, left, right):
    half, centre = (right - left) / 2, (right + left) / 2
    return half * sum((weight * f(centre + half * node) for node, weight in rule()), arb(0))


def refined(f, left, right, whole, least):
    middle = (left + right) / 2
    first, second = over(f, left, middle), over(f, middle, right)
    if abs(first + second - whole) < least:
        return first + second
    return refined(f, left, middle, first, least) + refined(f, middle, right, second, least)


def integral(f, ends):
    pieces = [(x, y, over(f, x, y)) for x, y in zip(ends, ends[1:])]
    least = AGREEMENT * sum((value for _, _, value in pieces), arb(0))
    return sum((refined(f, *piece, least) for piece in pieces), arb(0))


def log_lower(z):
    """log Phi(z) as a double."""
    if z > -30:
        return math.log(math.erfc(-z / math.sqrt(2)) / 2)
    return -z * z / 2 - math.log(-z) - 0.9189385332046727


def peak(height, low, high):
    for _ in range(200):
        left, right = low + (high - low) / 3, high - (high - low) / 3
        if height(left) < height(right):
            low = left
        else:
            high = right
    return (low + high) / 2


def last_above(height, level, inside, step, end):
    """About the last point from `inside` to `end` where the height exceeds the level."""
    outside = inside + step
    while abs(outside - inside) < abs(end - inside) and height(outside) > level:
        step *= 2
        outside += step
    if abs(outside - inside) >= abs(end - inside):
        if height(end) > level:
            return end
        outside = end
    for _ in range(40):
        middle = (inside + outside) / 2
        if height(middle) > level:
            inside = middle
        else:
            outside = middle
    return outside


def mean_over_chi(slope, shift, df, limit):
    """E[Phi(slope U - shift); U < limit]."""
    ctx.prec = BITS + 2 * max(0, math.frexp(df)[1])  # what cancels in the exponent of the density
    b = df / 2
    to = min(math.log(limit), 300.0)

    def height(v):
        return -b * (math.expm1(2 * v) - 2 * v) + log_lower(slope * math.exp(v) - shift)

    middle = peak(height, -1000 - 50 / b, to)
    near = 1 / math.sqrt(4 * b + 1)
    left = last_above(height, height(middle) - FALL, middle, -near, -1e9)
    right = last_above(height, height(middle) - FALL, middle, near, to)

    shape, t, delta = arb(df) / 2, arb(slope), arb(shift)

    def density(v):
        normal = ((delta - t * v.exp()) / arb(2).sqrt()).erfc() / 2
        return (-shape * ((2 * v).exp() - 1 - 2 * v)).exp() * normal

    # The limit itself is not rounded.
    end = arb(limit).log() if right == to and limit < math.inf else arb(right)
    # Ever shorter pieces towards where all changes, lest a long one hide it.
    inner = sorted({0.0, middle, middle + 3 * near, *(middle - near * 4 ** i for i in range(20))})
    ends = [arb(left)] + [arb(v) for v in inner if left < v < right] + [end]
    factor = 2 * (shape * shape.log() - shape - shape.lgamma()).exp()
    return float((factor * integral(density, ends)).mid())
