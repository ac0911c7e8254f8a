"""The distribution functions of a built libkelcommon, called by their mangled names, and their references."""
import ctypes
from dataclasses import dataclass
from typing import Callable

import exact
import exact_bivariate
import exact_chi_mean
import exact_gamma
import exact_noncentral
import exact_quantiles
import exact_range
import sample_correlation

DOUBLE = ctypes.c_double
POINTER = ctypes.POINTER(ctypes.c_double)
TUNING = {"NonCentralCdfF": [1e-12], "NonCentralCdfT": [1e-12], "IdfT": [1e-40, 1e-30]}


@dataclass
class Function:
    """`call` takes the arguments without the tuning ones; so does `reference`, and a result from which to start."""
    name: str
    kind: str  # probability, quantile or logarithm
    bound: float  # of the relative error
    call: Callable
    reference: Callable

    def all_arguments(self, arguments):
        return list(arguments) + TUNING.get(self.name, [])


def without_start(reference):
    return lambda *arguments: reference(*arguments[:-1])


REFERENCES = {
    "IdfF": ("quantile", 1e-15, exact_quantiles.f_quantile),
    "NonCentralCdfF": ("probability", 1e-12, without_start(exact_noncentral.noncentral_f)),
    "IdfT": ("quantile", 1e-15, exact_quantiles.t_quantile),
    "NonCentralCdfT": ("probability", 1e-12, without_start(exact_noncentral.noncentral_t)),
    "CdfStdNorm": ("probability", 1e-12, without_start(exact.normal_cdf)),
    "IdfStdNorm": ("quantile", 1e-13, without_start(exact.normal_quantile)),
    "CdfBeta": ("probability", 1e-12, without_start(exact.beta_cdf)),
    "IdfBeta": ("quantile", 1e-13, exact_quantiles.beta_quantile),
    "CdfBin": ("probability", 1e-12, without_start(exact.binomial_cdf)),
    "PdfBin": ("probability", 1e-12, without_start(exact.binomial_mass)),
    "PdfNegBin": ("probability", 1e-12, without_start(exact.negative_binomial_mass)),
    "orvadnlgam": ("logarithm", 1e-14, without_start(exact.log_gamma)),
}


def gamma_reference(kind, is_upper, scale):
    """Of the gamma distribution with scale 1, of chi-square with 2."""
    if kind == "quantile":
        return lambda p, shape, near: float(scale * exact_gamma.gamma_quantile(
            p, shape / scale, is_upper, near / scale if near and 0 < near < float("inf") else shape / scale))
    return lambda x, shape, near: exact_gamma.gamma_tail(shape / scale, x / scale, is_upper)


def noncentral_reference(is_upper):
    return lambda x, df, noncentrality, near: exact_gamma.noncentral_tail(x, df, noncentrality, is_upper)


def noncentrality_reference(q, x, df, near):
    return float(exact_gamma.noncentrality(q, x, df))


def range_reference(kind, is_upper):
    if kind == "quantile":
        return lambda p, k, df, near: float(exact_range.studentized_range_quantile(
            p, k, df, is_upper, near if near and 0 < near < float("inf") else 3.5).mid())
    return lambda q, k, df, near: exact_range.studentized_range(q, k, df, is_upper)


def correlation_reference(which):
    if which is None:
        return lambda p, n, rho, near: float(sample_correlation.quantile(p, n, rho))
    return lambda r, n, rho, near: float(sample_correlation.tails(r, n, rho)[which])


for name, scale in (("Gamma", 1), ("ChiSquare", 2)):
    for is_upper, letters in ((False, ("Cdf", "Idf")), (True, ("Sf", "Isf"))):
        REFERENCES[letters[0] + name] = ("probability", 1e-12, gamma_reference("probability", is_upper, scale))
        REFERENCES[letters[1] + name] = ("quantile", 1e-13, gamma_reference("quantile", is_upper, scale))
REFERENCES.update({
    "NonCentralCdfChiSquare": ("probability", 1e-12, noncentral_reference(False)),
    "NonCentralSfChiSquare": ("probability", 1e-12, noncentral_reference(True)),
    "NonCentralityChiSquare": ("quantile", 1e-13, noncentrality_reference),
    "PdfPoisson": ("probability", 1e-12, without_start(exact_gamma.poisson_mass)),
    "CdfPoisson": ("probability", 1e-12, lambda x, mean, near: exact_gamma.gamma_tail(x + 1, mean, True)),
    "SfPoisson": ("probability", 1e-12, lambda x, mean, near: exact_gamma.gamma_tail(x + 1, mean, False)),
    "CdfStudentizedRange": ("probability", 1e-12, range_reference("probability", False)),
    "SfStudentizedRange": ("probability", 1e-12, range_reference("probability", True)),
    "IdfStudentizedRange": ("quantile", 1e-13, range_reference("quantile", False)),
    "IsfStudentizedRange": ("quantile", 1e-13, range_reference("quantile", True)),
    "CdfBivariateNormal": ("probability", 1e-12, without_start(exact_bivariate.bivariate_normal)),
    "CdfCorrelation": ("probability", 1e-12, correlation_reference(0)),
    "SfCorrelation": ("probability", 1e-12, correlation_reference(1)),
    "IdfCorrelation": ("quantile", 1e-13, correlation_reference(None)),
    "MeanOverChi": ("probability", 1e-12, without_start(exact_chi_mean.mean_over_chi)),
})

# Whether a result, followed by the arguments, is the double nearest to the quantile.
PROOFS = {
    "IdfF": exact_quantiles.is_nearest_f,
    "IdfT": exact_quantiles.is_nearest_t,
    "IdfBeta": exact_quantiles.is_nearest_beta,
}

# Argument types after the mangled name: d a double, e a reference to one, l the reference to the error code.
MANGLED = {
    "IdfF": ("4IdfFEddd", "ddd"),
    "NonCentralCdfF": ("14NonCentralCdfFEddddd", "ddddd"),
    "IdfT": ("4IdfTEdddd", "dddd"),
    "NonCentralCdfT": ("14NonCentralCdfTEdddd", "dddd"),
    "CdfStdNorm": ("10CdfStdNormEd", "d"),
    "IdfStdNorm": ("10IdfStdNormEd", "d"),
    "CdfBeta": ("7CdfBetaEddd", "ddd"),
    "IdfBeta": ("7IdfBetaERKdS2_S2_", "eee"),
    "CdfBin": ("6CdfBinEdddRl", "dddl"),
    "PdfBin": ("6PdfBinEdddRl", "dddl"),
    "PdfNegBin": ("9PdfNegBinEdddRl", "dddl"),
    "orvadnlgam": ("10orvadnlgamERKd", "e"),
}


# The functions of distributions.h with the number of their arguments, all doubles.
SECOND = {
    "CdfGamma": 2, "SfGamma": 2, "IdfGamma": 2, "IsfGamma": 2,
    "CdfChiSquare": 2, "SfChiSquare": 2, "IdfChiSquare": 2, "IsfChiSquare": 2,
    "NonCentralCdfChiSquare": 3, "NonCentralSfChiSquare": 3, "NonCentralityChiSquare": 3,
    "PdfPoisson": 2, "CdfPoisson": 2, "SfPoisson": 2,
    "CdfStudentizedRange": 3, "SfStudentizedRange": 3, "IdfStudentizedRange": 3, "IsfStudentizedRange": 3,
    "CdfBivariateNormal": 3, "CdfCorrelation": 3, "SfCorrelation": 3, "IdfCorrelation": 3,
}


def bind_second(library, name):
    function = library[f"_ZN9kelcommon{len(name)}{name}E" + "d" * SECOND[name]]
    function.restype = DOUBLE
    function.argtypes = [DOUBLE] * SECOND[name]
    return function


class ChiFunction(ctypes.Structure):
    _fields_ = [("target", ctypes.c_void_p), ("call", ctypes.CFUNCTYPE(DOUBLE, ctypes.c_void_p, DOUBLE))]


class ChiRange(ctypes.Structure):
    _fields_ = [("limit", DOUBLE), ("breaks", ctypes.c_void_p), ("count", ctypes.c_int)]


def bind_mean(library):
    """Of Phi(slope u - shift), as in the tests."""
    function = library["_ZN9kelcommon11MeanOverChiENS_11ChiFunctionEdRKNS_8ChiRangeE"]
    function.restype = DOUBLE
    function.argtypes = [ChiFunction, DOUBLE, ctypes.POINTER(ChiRange)]
    normal = bind(library, "CdfStdNorm")

    def call(slope, shift, df, limit):
        height = ChiFunction._fields_[1][1](lambda _, u: normal(slope * u - shift))
        return function(ChiFunction(None, height), df, ChiRange(limit, None, 0))
    return call


def bind(library, name):
    if name == "MeanOverChi":
        return bind_mean(library)
    if name in SECOND:
        return bind_second(library, name)
    symbol, types = MANGLED[name]
    function = library["_ZN7KelMath10KelDistFun" + symbol]
    function.restype = DOUBLE
    function.argtypes = [{"d": DOUBLE, "e": POINTER, "l": ctypes.POINTER(ctypes.c_long)}[t] for t in types]
    tuning = TUNING.get(name, [])

    def call(*arguments):
        values = [*arguments, *tuning]
        if "e" in types:
            values = [DOUBLE(value) for value in values]
        if "l" in types:
            values.append(ctypes.c_long())
        return function(*values)
    return call


def load(path):
    """The functions of the library at that path, by name."""
    library = ctypes.CDLL(path)
    return {name: Function(name, kind, bound, bind(library, name), reference)
            for name, (kind, bound, reference) in REFERENCES.items()}
