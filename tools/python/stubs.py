"""Stubs that tell editors and type checkers the arguments of each function."""

from distributions import Distribution
from docstrings import Documented

HEAD = """from collections.abc import Callable
from typing import {typing}

import numpy as np
from numpy.typing import ArrayLike, DTypeLike, NDArray

"""

# What all ufuncs have.
BASE = '''class _Ufunc(Protocol):
    @property
    def __name__(self) -> str: ...
    @property
    def nin(self) -> int: ...
    @property
    def nout(self) -> int: ...
    @property
    def types(self) -> list[Any]: ...
    @property
    def outer(self) -> Callable[..., Any]: ...

'''

OPTIONS = """        *,
        out: Any = ...,
        where: ArrayLike | None = ...,
        casting: Any = ...,
        order: Any = ...,
        dtype: DTypeLike = ...,
        subok: bool = ...,"""

RECORDS = '''class XYPlot(NamedTuple):
    x: NDArray[np.float64]
    y: NDArray[np.float64]

class XYZPlot(NamedTuple):
    x: NDArray[np.float64]
    y: NDArray[np.float64]
    z: NDArray[np.float64]

class Sizes(NamedTuple):
    total: float
    groupSizes: NDArray[np.float64]

'''

FLOAT, INTEGER = "float", "int"


def ufunc(name: str, arguments: list[tuple[str, str]], outputs: int, scalar: str) -> str:
    """The type of a ufunc and the ufunc; `arguments` are names with the type of one value."""
    one = scalar if outputs == 1 else f"tuple[{', '.join([scalar] * outputs)}]"
    many = "Any" if outputs == 1 else f"tuple[{', '.join(['Any'] * outputs)}]"
    scalars = "\n".join(f"        {argument}: {kind}," for argument, kind in arguments)
    arrays = "\n".join(f"        {argument}: ArrayLike," for argument, _ in arguments)
    return (f"class _{name}(_Ufunc, Protocol):\n"
            f"    @overload\n    def __call__(\n        self,\n{scalars}\n        /,\n    ) -> {one}: ...\n"
            f"    @overload\n    def __call__(\n        self,\n{arrays}\n        /,\n{OPTIONS}\n    ) -> {many}: ...\n\n"
            f"{name}: _{name}\n\n")


def function(export: Documented) -> str:
    kinds = {"double": FLOAT, "int": INTEGER, "std::uint8_t": INTEGER}
    arguments = [f"{parameter.name}: {kinds.get(parameter.type, 'ArrayLike')}" for parameter in export.parameters]
    if export.is_release:
        return f"def {export.name}(record: {export.parameters[0].type.rstrip('*')}) -> None: ...\n"
    if export.repairs:
        arguments.append("repaired: NDArray[np.float64] | None = None")
    result = "Sizes" if export.gives_sizes else {"double": FLOAT}.get(export.function.result, export.function.result)
    lines = "\n".join(f"    {argument}," for argument in arguments)
    return f"def {export.name}(\n{lines}\n) -> {result}: ...\n"


def listed(names: list[str]) -> str:
    """The names that a module offers: constants, classes, functions."""
    ordered = sorted(names, key=lambda name: (not name.isupper(), not name[0].isupper(), name))
    lines = "\n".join(f'    "{name}",' for name in ordered)
    return f"__all__ = [\n{lines}\n]\n"


def of_lib(exports: list[Documented], names: list[str]) -> str:
    text = HEAD.format(typing="Any, Final, NamedTuple, Protocol, overload") + BASE + RECORDS + "MISSING: Final[float]\n\n"
    for export in exports:
        if export.is_ufunc:
            arguments = [(parameter.name, FLOAT if parameter.type == "double" else INTEGER)
                         for parameter in export.parameters]
            text += ufunc(export.name, arguments, export.outputs, "np.float64")
        else:
            text += function(export)
    return text + "\n" + listed(names)


def of_dist(distributions: list[Distribution]) -> str:
    text = HEAD.format(typing="Any, Protocol, overload").replace("DTypeLike, NDArray", "DTypeLike") + BASE
    for distribution in distributions:
        text += ufunc(distribution.name, [(name, FLOAT) for name in distribution.names], 1, "np.float64")
    return text + listed([distribution.name for distribution in distributions])
