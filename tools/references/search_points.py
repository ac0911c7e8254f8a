"""Points of a region of the search: arguments of a call from numbers in [0, 1], and how wrong the call is there."""
import math
from dataclasses import dataclass

from search_regions import LEAST

# The bounds of the absolute error of probabilities, and below what the digits of a double thin out.
PROBABILITY_ABSOLUTE = 1e-14
LEAST_RELATIVE = 1e-290
LEAST_QUANTILE = 1e-300


@dataclass
class Finding:
    """A call with its error in units of the promised bound; negative where the region does not count it."""
    score: float
    arguments: tuple = ()
    got: float = math.nan
    reference: float = math.nan

    @property
    def absolute(self):
        return abs(self.got - self.reference)

    @property
    def relative(self):
        return self.absolute / abs(self.reference) if self.reference else math.inf


OUTSIDE = Finding(-1)

# For the probabilities of distributions.h the quantile that finds the place.
QUANTILES = {"Cdf" + name: "Idf" + name for name in ("Gamma", "ChiSquare", "StudentizedRange", "Correlation")}
QUANTILES.update({name.replace("Cdf", "Sf"): quantile for name, quantile in QUANTILES.items()})


def bisect(is_low, low, high):
    for _ in range(50):
        middle = (low + high) / 2
        if is_low(middle):
            low = middle
        else:
            high = middle
    return high


def invert(functions, name, p, rest):
    """About the first argument with lower probability p; what the library gives is good enough to find a place."""
    call = functions[name].call
    if name == "NonCentralCdfF":
        return math.exp(bisect(lambda v: call(math.exp(v), *rest) < p, -700, 700))
    if name == "NonCentralCdfT":
        return math.sinh(bisect(lambda v: call(math.sinh(v), *rest) < p, -300, 300))
    if name in QUANTILES:
        return functions[QUANTILES[name]].call(p, *rest)
    if name in ("NonCentralCdfChiSquare", "NonCentralSfChiSquare"):
        return math.exp(bisect(lambda v: functions["NonCentralCdfChiSquare"].call(math.exp(v), *rest) < p, -700, 700))
    if name in ("PdfPoisson", "CdfPoisson", "SfPoisson"):
        return math.floor(functions["IdfGamma"].call(p, rest[0] + 1))
    if name == "CdfBeta":
        return functions["IdfBeta"].call(p, *rest)
    if name in ("CdfBin", "PdfBin"):
        n, success = rest
        return max(0, math.floor(bisect(lambda x: functions["CdfBin"].call(x, n, success) < p, -1, n)))
    if name == "PdfNegBin":
        r, success = rest
        upper = 100 + 1e3 * (r + 1) / success
        return max(0, math.floor(bisect(lambda x: functions["CdfBeta"].call(success, r, x + 1) < p, -1, upper)))
    return p


def to_arguments(functions, region, point, whole):
    """`whole` says of each coordinate whether it is rounded, as degrees of freedom and trials often are."""
    values = {}
    for (axis, range_), u, rounds in zip(region.ranges.items(), point, whole):
        value = range_.at(u)
        whole_value = float(round(value))
        may_round = rounds and range_.may_be_whole and range_.low <= whole_value <= range_.high
        values[axis] = whole_value if may_round else value
    axis = next(iter(values))
    first = values.pop(axis)
    rest = list(values.values())
    if axis == "from_half":
        return (0.5 + first, *rest)
    if axis == "tail":
        return wrong_side(functions, first, *rest)
    if "distance" in region.ranges:
        return near_line(first, *rest)
    if axis == "p" and region.function == "NonCentralityChiSquare":
        return above_central(functions, first, *rest)
    if axis == "p":
        return (float(invert(functions, region.function, first, rest)), *rest)
    return (first, *rest)


def wrong_side(functions, tail, df, delta):
    """The noncentral t on the side of 0 away from delta, where the tail is at most that of the normal beyond delta."""
    most = functions["CdfStdNorm"].call(-abs(delta))
    x = invert(functions, "NonCentralCdfT", LEAST * (most / LEAST) ** (1 + math.log(2 * tail) / -math.log(2 * LEAST)),
               (df, abs(delta)))
    return (x if delta > 0 else -x, df, delta)


def near_line(a, distance, rho):
    """The bivariate normal distribution about where the conditional mean of Y is b."""
    return (a, rho * a + distance * math.sqrt((1 - rho) * (1 + rho)), rho)


def above_central(functions, p, level, df):
    """A power above the level of a chi-square test, at its critical value."""
    return (level + (1 - level) * p, functions["IsfChiSquare"].call(level, df), df)


def score(function, region, got, reference, relative_bound=None):
    relative_bound = relative_bound or function.bound
    absolute = abs(got - reference)
    if math.isnan(got):
        return math.inf
    if function.kind == "logarithm":
        return absolute / max(1, abs(reference)) / function.bound
    if function.kind == "quantile":
        if abs(reference) < LEAST_QUANTILE or math.isinf(reference):
            return -1 if got == reference or abs(got) < LEAST_QUANTILE else math.inf
        return absolute / abs(reference) / function.bound
    if region.is_beyond:
        return absolute / reference / function.bound if reference >= LEAST_RELATIVE else -1
    if not LEAST <= reference <= 1 - LEAST:
        return -1
    return max(absolute / PROBABILITY_ABSOLUTE, absolute / reference / relative_bound)


def difference(functions, others, region, point, whole, relative_bound=None):
    """How far another build is from this one, as an error of either: a cheap guess where to measure."""
    arguments = to_arguments(functions, region, point, whole)
    name = region.function
    if not all(math.isfinite(value) for value in arguments):
        return -1
    if functions[name].kind == "quantile" and not 0 < arguments[0] < 1:
        return -1
    got, other = functions[name].call(*arguments), others[name].call(*arguments)
    return score(functions[name], region, got, other, relative_bound) if other else 0


def measure(functions, region, point, whole, relative_bound=None):
    arguments = to_arguments(functions, region, point, whole)
    if not all(math.isfinite(value) for value in arguments):
        return OUTSIDE
    function = functions[region.function]
    if function.kind == "quantile" and not 0 < arguments[0] < 1:
        return OUTSIDE
    got = function.call(*arguments)
    reference = function.reference(*arguments, got)
    return Finding(score(function, region, got, reference, relative_bound), arguments, got, reference)
