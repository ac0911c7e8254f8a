"""The distribution functions of a built libkelcommon, called by their mangled names, and their references."""
import ctypes
from dataclasses import dataclass
from typing import Callable

import exact
import exact_noncentral
import exact_quantiles

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


def bind(library, name):
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
