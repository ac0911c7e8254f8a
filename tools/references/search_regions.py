"""Where the search for the largest errors looks: for each function its regions, a range for each coordinate.

A coordinate is named after its argument. `p` is a probability, spread evenly in its logarithm towards both ends, from
which the other functions' first argument is found; `log` spreads evenly in the logarithm.
"""
import itertools
import math
from dataclasses import dataclass

LEAST = 1e-12  # probabilities of planning lie this far from 0 and 1
FAR = 1e-290


@dataclass
class Range:
    low: float
    high: float
    scale: str = "log"  # log, linear, both tails, signed log, near 1: the distance of its absolute value from 1
    may_be_whole: bool = True

    def at(self, u):
        if self.scale == "linear":
            return self.low + (self.high - self.low) * u
        if self.scale == "both tails":
            return self.tails(u)
        if self.scale == "near 1":
            u, sign = (2 * u, -1.0) if u < 0.5 else (2 * u - 1, 1.0)
            return sign * (1 - self.low * (self.high / self.low) ** u)
        if self.scale == "signed log":
            u, sign = (2 * u, -1.0) if u < 0.5 else (2 * u - 1, 1.0)
            return sign * self.low * (self.high / self.low) ** u
        return self.low * (self.high / self.low) ** u

    def tails(self, u):
        """From low to 1 - low, evenly in the logarithm of the odds."""
        end = math.log(self.low)
        v = end - 2 * end * u
        return 1 / (1 + math.exp(-v)) if v < 0 else 1 - 1 / (1 + math.exp(v))

    def __str__(self):
        if self.scale == "both tails":
            return f"{self.low:g} to 1-{self.low:g}"
        if self.scale == "near 1":
            return f"+-1-{self.high:g} to +-1-{self.low:g}"
        return f"{'+-' if self.scale == 'signed log' else ''}{self.low:g} to {self.high:g}"


@dataclass
class Region:
    function: str
    name: str
    ranges: dict
    share: float = 1  # of the usual number of points, where a reference takes long

    @property
    def is_beyond(self):
        return self.name.startswith("beyond")


def tails(low=LEAST):
    return Range(low, 1 - low, "both tails", False)


def bands(*edges, scale="log", whole=True):
    return [Range(low, high, scale, whole) for low, high in zip(edges, edges[1:])]


def product(function, first, share=1, **axes):
    """Regions for each combination of the bands of the axes."""
    for combination in itertools.product(*axes.values()):
        ranges = dict(zip(axes, combination))
        name = "; ".join(f"{axis} {band}" for axis, band in ranges.items())
        yield Region(function, name, {"p": first, **ranges}, share)


def beyond(regions):
    for region in regions:
        yield Region(region.function, "beyond planning: " + region.name, region.ranges, region.share)


def noncentral_t():
    deltas = bands(1e-6, 1, 10, 39, 100, scale="signed log", whole=False)
    freedom = bands(0.5, 2, 30, 1000, 1e7)
    yield from product("NonCentralCdfT", tails(), df=freedom, delta=deltas)
    for df in freedom:
        yield Region("NonCentralCdfT", f"wrong side; df {df}",
                     {"tail": Range(LEAST, 0.5, "log", False), "df": df,
                      "delta": Range(1e-3, 7, "signed log", False)})
        yield Region("NonCentralCdfT", f"x near 0; df {df}",
                     {"x": Range(1e-12, 0.1, "signed log", False), "df": df,
                      "delta": Range(1e-3, 7, "signed log", False)})
    every = Range(1e-3, 100, "signed log", False)
    yield from beyond(product("NonCentralCdfT", tails(), df=bands(1e-3, 0.5), delta=[every]))
    yield from beyond(product("NonCentralCdfT", tails(), df=bands(1e7, 1e15), delta=[every]))
    yield from beyond(product("NonCentralCdfT", tails(), df=bands(0.5, 1e7),
                              delta=[Range(100, 1000, "signed log", False)]))
    for df in freedom:
        yield Region("NonCentralCdfT", f"beyond planning: far tails; df {df}",
                     {"p": Range(FAR, LEAST, "log", False), "df": df, "delta": every})


def noncentral_f():
    yield from product("NonCentralCdfF", tails(), df1=bands(0.5, 10, 1e4, 1e7), df2=bands(0.5, 4, 1000, 1e7),
                       noncentrality=bands(1e-6, 1, 100, 1e4, whole=False))
    every = Range(1e-3, 1e4, "log", False)
    for df1, df2 in (((1e-3, 0.5), (0.5, 1e7)), ((0.5, 1e7), (1e-3, 0.5)), ((1e7, 1e12), (0.5, 1e7)),
                     ((0.5, 1e7), (1e7, 1e12))):
        yield from beyond(product("NonCentralCdfF", tails(), df1=bands(*df1), df2=bands(*df2), noncentrality=[every]))
    yield from beyond(product("NonCentralCdfF", tails(), df1=bands(0.5, 1e7), df2=bands(0.5, 1e7),
                              noncentrality=bands(1e4, 1e6, 1e8)))
    yield Region("NonCentralCdfF", "beyond planning: far tails",
                 {"p": Range(FAR, LEAST, "log", False), "df1": Range(0.5, 1e7), "df2": Range(0.5, 1e7),
                  "noncentrality": every})


def beta(function):
    edges = (1e-3, 0.5, 20, 1500, 1e7)
    yield from product(function, tails(), a=bands(*edges), b=bands(*edges))
    every = Range(1e-3, 1e7)
    yield from beyond(product(function, tails(), a=bands(1e-5, 1e-3), b=[every]))
    yield from beyond(product(function, tails(), a=[every], b=bands(1e-5, 1e-3)))
    yield from beyond(product(function, tails(), a=bands(1e7, 1e12), b=[every]))
    yield from beyond(product(function, tails(), a=[every], b=bands(1e7, 1e12)))
    yield Region(function, "beyond planning: far tails",
                 {"p": Range(FAR, LEAST, "log", False), "a": Range(0.1, 1e7), "b": Range(0.1, 1e7)})


def f_quantiles():
    yield from product("IdfF", tails(), df1=bands(0.5, 4, 60, 1e4, 1e7), df2=bands(0.5, 4, 60, 1e4, 1e7))
    for df1, df2 in itertools.product(bands(0.5, 60, 1e7), repeat=2):
        yield Region("IdfF", f"near the median; df1 {df1}; df2 {df2}",
                     {"from_half": Range(1e-12, 0.1, "signed log", False), "df1": df1, "df2": df2})
    every = Range(0.5, 1e7)
    yield from beyond(product("IdfF", tails(), df1=bands(1e-3, 0.5), df2=[every]))
    yield from beyond(product("IdfF", tails(), df1=[every], df2=bands(1e-3, 0.5)))
    yield from beyond(product("IdfF", tails(), df1=bands(1e7, 1e12), df2=[every]))
    yield from beyond(product("IdfF", tails(), df1=[every], df2=bands(1e7, 1e12)))
    yield Region("IdfF", "beyond planning: far tails",
                 {"p": Range(FAR, LEAST, "log", False), "df1": every, "df2": every})


def t_quantiles():
    freedom = bands(0.5, 1, 2, 30, 1e4, 1e7)
    yield from product("IdfT", tails(), df=freedom)
    for df in freedom:
        yield Region("IdfT", f"near the median; df {df}",
                     {"from_half": Range(1e-12, 0.3, "signed log", False), "df": df})
    yield from beyond(product("IdfT", tails(), df=bands(1e-3, 0.5)))
    yield from beyond(product("IdfT", tails(), df=bands(1e7, 1e15)))
    yield Region("IdfT", "beyond planning: far tails", {"p": Range(FAR, LEAST, "log", False), "df": Range(0.5, 1e7)})


def binomials():
    trials = bands(1, 53, 1000, 1e5, 1e7)
    yield from product("CdfBin", tails(), n=trials, success=[tails(1e-6)])
    yield from product("PdfBin", tails(), n=trials, success=[tails(1e-6)])
    yield from product("PdfNegBin", tails(), r=bands(0.5, 50, 1000, 1e7), success=[tails(1e-3)])
    yield from beyond(product("CdfBin", tails(), n=bands(1e7, 1e12), success=[tails(1e-6)]))
    yield from beyond(product("PdfBin", tails(), n=bands(1e7, 1e15), success=[tails(1e-6)]))
    yield from beyond(product("PdfNegBin", tails(), r=bands(1e-3, 0.5), success=[tails(1e-3)]))


def normal():
    for name, range_ in (("lower tail", Range(-7.1, -1, "linear", False)), ("centre", Range(-1, 1, "linear", False)),
                         ("upper tail", Range(1, 7.1, "linear", False)),
                         ("beyond planning: far tails", Range(-36, -7.1, "linear", False))):
        yield Region("CdfStdNorm", name, {"x": range_})
    yield Region("IdfStdNorm", "both tails", {"p": tails()})
    yield Region("IdfStdNorm", "near the median", {"from_half": Range(1e-15, 0.3, "signed log", False)})
    yield Region("IdfStdNorm", "beyond planning: far tails", {"p": Range(FAR, LEAST, "log", False)})


def log_gamma():
    for band in bands(1e-6, 1, 10, 1e3, 1e15):
        yield Region("orvadnlgam", f"x {band}", {"x": band})
    yield Region("orvadnlgam", "beyond planning: negative", {"x": Range(-50, -0.01, "linear", False)})


def gammas():
    for name, axis in (("Gamma", "shape"), ("ChiSquare", "df")):
        for prefix in ("Cdf", "Sf", "Idf", "Isf"):
            yield from product(prefix + name, tails(), **{axis: bands(0.5, 20, 1500, 1e5)})
    for function in ("NonCentralCdfChiSquare", "NonCentralSfChiSquare"):
        yield from product(function, tails(), df=bands(0.5, 20, 1000), noncentrality=bands(1e-6, 1, 100, 1e4, whole=False))
    # A power very near the level would leave the difference of two near numbers.
    yield from product("NonCentralityChiSquare", Range(0.01, 0.99, "both tails", False),
                       level=[Range(1e-6, 0.2, "log", False)], df=bands(1, 20, 1000))
    for function in ("PdfPoisson", "CdfPoisson", "SfPoisson"):
        yield from product(function, tails(), mean=bands(0.1, 20, 1e5, whole=False))


def studentized_range():
    for function in ("SfStudentizedRange", "CdfStudentizedRange", "IsfStudentizedRange", "IdfStudentizedRange"):
        share = 0.05 if function.startswith("I") else 0.1
        yield from product(function, tails(), share, k=bands(2, 12, 1000), df=bands(1, 4, 60, 1e9))
        yield from beyond(product(function, tails(), share, k=[Range(1e3, 1e6)], df=[Range(1, 1e9)]))


def bivariate_normal():
    point = Range(-8, 8, "linear")
    for rho in (Range(-0.9, 0.9, "linear", False), Range(1e-5, 0.1, "near 1", False), Range(1e-15, 1e-5, "near 1", False),
                Range(1e-15, 0.01, "signed log", False)):
        yield Region("CdfBivariateNormal", f"rho {rho}", {"a": point, "b": point, "rho": rho})
        yield Region("CdfBivariateNormal", f"near the line; rho {rho}",
                     {"a": point, "distance": Range(-8, 8, "linear", False), "rho": rho})
    yield Region("CdfBivariateNormal", "beyond planning: far tails",
                 {"a": Range(-38, 38, "linear"), "b": Range(-38, 38, "linear"), "rho": Range(-1, 1, "linear", False)})


def correlations():
    for function in ("CdfCorrelation", "SfCorrelation", "IdfCorrelation"):
        share = 0.05 if function.startswith("I") else 0.3
        yield from product(function, tails(1e-9), share, n=bands(3, 30, 1000, 1e6), rho=[Range(-0.99, 0.99, "linear", False)])
        yield from product(function, tails(1e-9), share, n=[Range(3, 1e6)], rho=[Range(1e-9, 0.01, "near 1", False)])


def means_over_chi():
    slope, shift = Range(1e-3, 100, "signed log", False), Range(1e-3, 30, "signed log", False)
    for df in bands(1, 4, 60, 1e9):
        yield Region("MeanOverChi", f"df {df}",
                     {"slope": slope, "shift": shift, "df": df, "limit": Range(0.1, 10, "log", False)})
    yield Region("MeanOverChi", "df 0.001 to 1",
                 {"slope": slope, "shift": shift, "df": Range(1e-3, 1), "limit": Range(1e-3, 1e3, "log", False)})


def all_regions():
    yield from t_quantiles()
    yield from f_quantiles()
    yield from beta("IdfBeta")
    yield from noncentral_t()
    yield from noncentral_f()
    yield from beta("CdfBeta")
    yield from binomials()
    yield from normal()
    yield from log_gamma()
    yield from studentized_range()
    yield from bivariate_normal()
    yield from means_over_chi()
    yield from gammas()
    yield from correlations()
