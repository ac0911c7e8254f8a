"""NumPy ufuncs of the questions to the planner: ``<test>_<question>``, each made when it is first used.

They broadcast, take ``out=`` and ``where=``, and work on what knows ufuncs: arrays, pandas, xarray, Dask, polars. Those
of tests with any number of groups are generalized ones, whose lists lie along the last axis. `kelpower.ufunc` makes
others.

Examples
--------
>>> import numpy as np
>>> from kelpower import ufuncs
>>> ufuncs.two_means_power(0.5, np.array([20, 40, 60]), 64, 0.05).round(4)
array([0.4877, 0.6905, 0.7883])

"""

from __future__ import annotations

import numpy as np

from ._ufunc import make
from ._ufunc_table import TABLE

__all__ = list(TABLE)


def __getattr__(name: str) -> np.ufunc:
    if name not in TABLE:
        raise AttributeError(f"there is no ufunc {name!r}")
    made = make(name, TABLE[name])
    globals()[name] = made
    return made


def __dir__() -> list[str]:
    return __all__
