"""Statistical power analysis: power, sample size, detectable effect and precision of statistical tests.

One function for each test, in which what is left out is what is solved for:

>>> import kelpower
>>> kelpower.two_means(effect_d=0.5, power=0.8).n
(64, 64)
>>> round(kelpower.two_means(effect_d=0.5, n=64).power, 4)
0.8015

"""

from . import _functions, dist, lib, ufuncs
from ._core import version as __version__
from ._curve import Curve, Curves, Surface
from ._densities import Densities
from ._effect import effect
from ._effect_sizes import EffectSizes
from ._errors import InputError, KelpowerError, NoSolution, NoSolutionWarning
from ._frames import arrow_batches, arrow_schema, arrow_udf, frame_meta, solve_frame, spark_schema
from ._functions import *  # noqa: F403
from ._grid import grid
from ._lines import plot
from ._result import Explanation, Result
from ._results import Results
from ._ufunc import ufunc
from .lib import MISSING

__all__ = [
    "MISSING",
    "Curve",
    "Curves",
    "Densities",
    "EffectSizes",
    "Explanation",
    "InputError",
    "KelpowerError",
    "NoSolution",
    "NoSolutionWarning",
    "Result",
    "Results",
    "Surface",
    "__version__",
    "arrow_batches",
    "arrow_schema",
    "arrow_udf",
    "dist",
    "effect",
    "frame_meta",
    "grid",
    "lib",
    "plot",
    "solve_frame",
    "spark_schema",
    "ufunc",
    "ufuncs",
]
__all__ += _functions.__all__
