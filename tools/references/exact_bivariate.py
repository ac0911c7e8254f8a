"""The bivariate normal distribution in ball arithmetic, with proven bounds; and in a second way, to compare with.

Given X = z, Y is normal with mean rho z and standard deviation r = sqrt(1 - rho^2). The integral of phi(z)
Phi((b - rho z) / r) up to a (Owen 1956, Tables for computing bivariate normal probabilities, Annals of Mathematical
Statistics 27) is enclosed by flint's integration of analytic functions.
"""
import math

from flint import acb, arb, ctx

from exact import nearest_double, normal_cdf_ball

def lower(z):
    """Phi of a complex ball."""
    return (-z / acb(2).sqrt()).erfc() / 2


def least_square(a, b, rho, r):
    """Twice the exponent at the point of the quadrant nearest to the centre."""
    if a >= 0 and b >= 0:
        return 0.0
    candidates = [a * a + max(0.0, (rho * a - b) / r) ** 2] if rho * a >= b or b >= 0 else []
    candidates += [b * b + max(0.0, (rho * b - a) / r) ** 2] if rho * b >= a or a >= 0 else []
    return min(candidates, default=((a * a - 2 * rho * a * b + b * b) / (r * r)))


def peak(a, b, rho):
    """Where X is at the nearest point of the quadrant, nearly."""
    if a >= 0 and b >= 0:
        return 0.0
    return rho * b if b < 0 and rho * b <= a else a


def quadrant_ball(a, b, rho):
    """P(X <= a, Y <= b) for -1 < rho < 1."""
    r = ((1 - arb(rho)) * (1 + arb(rho))).sqrt()
    square = least_square(a, b, rho, float(r))
    reach = math.ceil(math.sqrt(square + 1.4 * ctx.prec + 80))
    least = arb(-square / 2).exp() * arb(2) ** (-ctx.prec * 3 // 4)

    def height(z, _):
        return (-z * z / 2).exp() * lower((arb(b) - arb(rho) * z) / r)

    total = arb(0)
    last = min(a, float(reach))
    inner = {peak(a, b, rho), *((b + change * float(r)) / rho for change in (-8, 0, 8))}
    ends = [-float(reach), *sorted(z for z in inner if -reach < z < last), last]
    for start, end in zip(ends, ends[1:]):
        total += acb.integral(height, acb(start), acb(end), abs_tol=least).real
    left_out = 2 * normal_cdf_ball(arb(-reach))
    return total / (2 * arb.pi()).sqrt() + arb(0, left_out.upper())


def bivariate_normal(a, b, rho):
    """The double nearest to P(X <= a, Y <= b); the bounds of doubles hold for |a| and |b| below 40."""
    if rho == 0:
        return nearest_double(lambda: normal_cdf_ball(arb(a)) * normal_cdf_ball(arb(b)))
    if rho == 1:
        return nearest_double(lambda: normal_cdf_ball(arb(min(a, b))))
    if rho == -1:
        return max(0.0, nearest_double(lambda: normal_cdf_ball(arb(a)) - normal_cdf_ball(-arb(b)))) if a > -b else 0.0
    return nearest_double(lambda: quadrant_ball(a, b, rho))


def bivariate_normal_by_correlation(a, b, rho):
    """The second way: Plackett's integral over the correlation (1954, A reduction formula for normal multivariate
    integrals, Biometrika 41), a ball at the present precision."""
    a, b = arb(a), arb(b)

    def height(t, _):
        return (-(a * a + b * b - 2 * a * b * t.sin()) / (2 * t.cos() ** 2)).exp()

    more = acb.integral(height, acb(0), acb(arb(rho).asin())).real / (2 * arb.pi())
    return normal_cdf_ball(a) * normal_cdf_ball(b) + more
