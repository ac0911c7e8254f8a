"""All combinations of the values of arguments."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any

import numpy as np
from numpy.typing import NDArray

from . import _catalogue
from ._catalogue import Parameter
from ._errors import InputError
from ._many import Many, shape_of
from ._results import Results


def grid(test: Any, engine: str = "pandas", threads: int | None = None, **values: Any) -> Any:
    """Answer all combinations of the values of arguments, and give them as a frame.

    Parameters
    ----------
    test : str or function
        The test, such as ``"two-means"`` or `two_means`.
    engine : {"pandas", "polars", "arrow"}
        What kind of frame.
    threads : int, optional
        How many threads to use; all cores without it.
    **values
        The arguments. One with several values, as a list, a range or an array, gives alternatives. An alternative of an
        argument with an entry for each group is a list of its own, as in ``means=[[10, 12, 15], [10, 12, 18]]``; of
        ``n`` and of standard deviations it may also be one number for all groups. ``means=[10, 12, 15]`` and
        ``ratios=[2, 1, 1]`` are one list.

    Returns
    -------
    pandas.DataFrame, polars.DataFrame or pyarrow.Table
        A row for each combination, the last argument varying fastest: the arguments, the results and ``status``, 0 for
        an answer, 2 and 3 for none as in `Results`. Targets are called ``target_power``, ``target_half_width`` and
        ``target_assurance``; what is reached has the plain name.

    Raises
    ------
    InputError
        The arguments do not make a question, or a value that all rows share is wrong.

    Warns
    -----
    NoSolutionWarning
        Rows have no answer; it tells how many.

    Examples
    --------
    >>> import kelpower
    >>> kelpower.grid(kelpower.two_means, effect_d=[0.2, 0.8], power=[0.8, 0.9])
       effect_d  target_power   n1   n2  total     power  status
    0       0.2           0.8  394  394    788  0.800593       0
    1       0.2           0.9  527  527   1054  0.900360       0
    2       0.8           0.8   26   26     52  0.807487       0
    3       0.8           0.9   34   34     68  0.901502       0

    """
    asked = _catalogue.find(test)
    alternatives = {name: _alternatives(asked.parameters[name], value) for name, value in values.items()
                    if name in asked.parameters}  # fmt: skip
    return Results(Many(asked.name, _crossed(values, alternatives)), threads).to_frame(engine)


def _spreads(parameter: Parameter) -> bool:
    """Whether one number has a meaning of its own for all groups. Equal ratios are what is meant without any."""
    return parameter.spreads and parameter.name != "ratios"


def _alternatives(parameter: Parameter, value: Any) -> NDArray[Any] | None:
    """The values along the first axis, or nothing where there is one."""
    dimensions = len(shape_of(value))
    array: NDArray[Any] = np.asanyarray(value)
    own = 1 if parameter.is_list else 0
    if dimensions > own + 1:
        raise InputError(f"{parameter.name} has more axes than alternatives have.", {"parameter": parameter.name})
    if dimensions == own + 1:
        return array
    if dimensions == 1 and _spreads(parameter):
        return array[:, np.newaxis]
    return None


def _crossed(values: Mapping[str, Any], alternatives: Mapping[str, NDArray[Any] | None]) -> dict[str, Any]:
    """The values with an axis for each argument that has alternatives, in their order."""
    several = [name for name, array in alternatives.items() if array is not None]
    crossed = dict(values)
    for axis, name in enumerate(several):
        array = alternatives[name]
        assert array is not None
        own = array.shape[1:]
        before, after = (1,) * axis, (1,) * (len(several) - axis - 1)
        crossed[name] = array.reshape(before + array.shape[:1] + after + own)
    return crossed
