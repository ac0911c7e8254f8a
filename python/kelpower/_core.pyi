from typing import Any

import numpy as np
from numpy.typing import NDArray

version: str
lib_functions: dict[str, Any]
dist_functions: dict[str, Any]

def describe() -> str: ...
def solve(request: bytes, /) -> tuple[int, str]: ...
def draw(request: bytes, /) -> tuple[int, str]: ...
def convert(request: bytes, /) -> tuple[int, str]: ...
def prepare(request: bytes, /) -> tuple[int, str, Any]: ...
def run(
    batch: Any,
    columns: tuple[NDArray[np.float64], ...],
    results: tuple[NDArray[np.float64] | None, ...],
    status: NDArray[np.int32],
    stop: NDArray[np.int32],
    /,
) -> int: ...
def question_ufunc(
    name: str,
    doc: str,
    signature: str,
    request: str,
    arguments: tuple[tuple[str, int, int], ...],
    outputs: tuple[tuple[str, int, int], ...],
    /,
) -> np.ufunc: ...
