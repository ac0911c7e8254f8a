"""The range and the studentized range in 38 digits, by the trapezoidal rule, which converges geometrically for analytic
integrands over the whole line (Trefethen and Weideman, The exponentially convergent trapezoidal rule, SIAM Review 56,
2014). Not proven: with a `refinement` of 2 both steps are halved, and the results must agree.

The range by its maximum x (Tippett 1925, On the extreme individuals and the range of samples, Biometrika 17); the
studentized one as its mean over v = log u, u the estimated standard deviation in units of the true one.
"""
import functools
import math

from flint import arb, ctx

BITS = 128
NEGLIGIBLE = arb(2) ** -90
LAST_STEP = 1e-19
ENDLESS = 1e30  # degrees of freedom


def upper_normal(x):
    return (x / arb(2).sqrt()).erfc() / 2


def outwards(term, start):
    """The sum of term(i) over all whole numbers, of a term with one peak, found from the start uphill."""
    known = {}

    def at(i):
        if i not in known:
            known[i] = term(i)
        return known[i]

    stride = 16
    while stride:
        if at(start + stride) > at(start):
            start += stride
        elif at(start - stride) > at(start):
            start -= stride
        else:
            stride //= 2
    total = at(start)
    for direction in (1, -1):
        i = start
        while True:
            i += direction
            total += at(i)
            if not total.is_finite():
                raise ArithmeticError("digits are lost")
            if at(i) < total * NEGLIGIBLE and at(i) <= at(i - direction):
                break
    return total


class Range:
    """Of k normal variables. The normal probabilities at the nodes of the upper tail are computed once."""

    def __init__(self, k, refinement):
        self.k = k
        self.m = arb(k) - 1
        self.step = arb(1) / (1.8 * refinement * (1.1 + 1.15 * math.log(k)))
        self.refinement = refinement
        self.node = functools.cache(self.node)

    def node(self, i):
        """Lower probability, its logarithm, and the logarithm of the weight."""
        x = i * self.step
        below = upper_normal(-x)
        return below, below.log() if x < 0 else (-upper_normal(x)).log1p(), -x * x / 2

    def sum(self, term, start, step):
        first = round(float(start) / float(step))
        return arb(self.k) * step / (2 * arb.pi()).sqrt() * outwards(term, first)

    def above(self, w):
        if w < 1:
            return 1 - self.below(w)

        def term(i):
            below, log_below, weight = self.node(i)
            ratio = upper_normal(w - i * self.step) / below
            return (self.m * log_below + weight).exp() * -(self.m * (-ratio).log1p()).expm1()
        return self.sum(term, w / 2, self.step)

    def below(self, w):
        step = min(self.step, arb(0.4 / self.refinement / math.sqrt(curvature(float(w), self.k))))

        def term(i):
            x = i * step
            return (self.m * log_between(x - w, x, w) - x * x / 2).exp()
        return self.sum(term, min(w / 2, arb(8)), step)


def curvature(w, k):
    """Of the logarithm of the integrand of the lower probability, at its peak for a small range."""
    return 1 + (k - 1) * (w * 0.4 * math.exp(-w * w / 8) / math.erf(w / 2.83) if w > 1e-300 else 1)


def log_between(x, y, width):
    """log(Phi(y) - Phi(x)), y = x + width; for a small width by the first two terms of a series."""
    if width < 1e-12:
        centre = (x + y) / 2
        return (width * (1 + (centre ** 2 - 1) * width ** 2 / 24)).log() - centre ** 2 / 2 - (2 * arb.pi()).log() / 2
    if x + y > 0:
        return (upper_normal(x) - upper_normal(y)).log()
    return (upper_normal(-y) - upper_normal(-x)).log()


@functools.lru_cache(64)
def range_of(k, refinement):
    return Range(k, refinement)


def mean_over_v(height, log_height, q, k, df, refinement):
    """Integral of height(q e^v) times the density of v."""
    b = arb(df) / 2
    inner = 1 / (1.1 + 1.15 * math.log(k))
    is_stretched = df < 3.6
    width = 1 / math.sqrt(2 * df + 4)
    usual = min(0.3 * width, inner / (2 * math.sqrt(2 * math.log(k)) + 1), 0.07) / refinement
    step = arb(usual * (0.45 if is_stretched else 1))
    centre = arb(peak_of_mean(lambda v: log_height(float(q) * math.exp(v)), df))

    def term(i):
        x = i * step
        v = centre + (x.sinh() if is_stretched else x)
        value = (-b * ((2 * v).exp() - 1 - 2 * v)).exp() * height(arb(q) * v.exp())
        return value * x.cosh() if is_stretched else value

    factor = 2 * (b * b.log() - b - b.lgamma()).exp()
    return factor * step * outwards(term, 0)


def log_above(w, k):
    """About the logarithm of the probability above, by Bonferroni's inequality."""
    return min(0.0, math.log(k * (k - 1) / 2) - w * w / 4 - math.log(1 + w / 2))


def log_below(w, k):
    """About the logarithm of the probability below: as if each variable were within w / 2 of 0."""
    return (k - 1) * math.log(max(math.erf(w / 2.83), 1e-300))


def peak_of_mean(log_height, df):
    """Uphill in ever smaller steps."""
    def level(v):
        return -df / 2 * (math.expm1(2 * v) - 2 * v) + log_height(v)

    v, stride = 0.0, 4.0
    here = level(v)
    while stride > 0.1 / math.sqrt(2 * df + 4):
        for candidate in (v + stride, v - stride):
            if candidate < 100 and (there := level(candidate)) > here:
                v, here = candidate, there
                break
        else:
            stride /= 2
    return v


def studentized_range_ball(q, k, df, is_upper, refinement=1):
    """The probability, with the relative accuracy of the smaller tail."""
    ctx.prec = BITS
    if df < 1:
        refinement *= 2  # what changes may be far from where the nodes are close
    normal = range_of(k, refinement)

    def tail(upper):
        height, about = (normal.above, log_above) if upper else (normal.below, log_below)
        return height(arb(q)) if df > ENDLESS else mean_over_v(height, lambda w: about(w, k), q, k, df, refinement)

    above = tail(True)
    if is_upper:
        return above if above < 0.999 else 1 - tail(False)
    return 1 - above if above < 0.999 else tail(False)


def studentized_range(q, k, df, is_upper):
    return float(studentized_range_ball(q, k, df, is_upper).mid())


def studentized_range_quantile(p, k, df, is_upper, start):
    """From any start, at first with a coarse rule, and then to the last digit from there."""
    ctx.prec = BITS
    small, upper = (arb(p), is_upper) if p <= 0.5 else (1 - arb(p), not is_upper)

    def excess(v, refinement):
        return (studentized_range_ball(v.exp(), k, df, upper, refinement) / small).log().mid()

    near = root(lambda v: excess(v, 0.5), arb(start).log().mid(), 1e-3, 1e-7)
    return root(lambda v: excess(v, 1), near, 1e-9, LAST_STEP).exp()


def root(f, before, first_step, last_step):
    """The secant method; what the next step would add is the product of a step with the value before it, nearly."""
    value_before = f(before)
    now = (before + arb(first_step)).mid()
    for _ in range(100):
        value = f(now)
        change = (-value * (now - before) / (value - value_before)).mid()
        step = abs(float(now - before))
        change = max(min(change, arb(1)), arb(-1))
        before, value_before = now, value
        now = (now + change).mid()
        if abs(change) < last_step or (step < 1e-6 and abs(change) * step < last_step):
            return now
    raise ArithmeticError("no quantile")
