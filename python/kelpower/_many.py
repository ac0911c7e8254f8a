"""Many designs of one test, answered as arrays."""

from __future__ import annotations

import itertools
import os
import sys
from collections.abc import Iterator, Mapping, Sequence
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from typing import Any

import numpy as np
from numpy.typing import NDArray

from . import _catalogue, _core, _request
from ._catalogue import Parameter
from ._errors import NO_MEMORY, STOPPED, InputError

Floats = NDArray[np.float64]

# What float() would take for a number among other objects.
NO_NUMBERS = (str, bytes, bool, np.bool_, np.complexfloating, np.ndarray)

# Of a list. An array that is spread costs nothing to make one of any length.
MOST_ENTRIES = 10_000

# Fewer rows are not worth another thread.
ROWS_A_THREAD = 2048


def is_many(parameter: Parameter, value: Any) -> bool:
    """Whether a value stands for many designs: an array, where one design has a number, or an array of lists."""
    shape = shape_of(value)
    if parameter.is_list and shape and shape[-1] > MOST_ENTRIES:
        said = f"{parameter.name} has {shape[-1]} entries, but at most {MOST_ENTRIES} are allowed."
        raise InputError(said, {"parameter": parameter.name})
    return len(shape) > (1 if parameter.is_list else 0)


def shape_of(value: Any) -> tuple[int, ...]:
    """The shape of a value as an array."""
    if isinstance(value, str):
        return ()
    try:
        return np.shape(value)
    except ValueError:
        raise InputError("An argument has lists of different lengths, but arrays of designs are regular.") from None


@dataclass(frozen=True)
class Column:
    """Numbers that vary: those of an input, or of an entry of a list."""

    name: str
    entry: int | None
    values: NDArray[Any]

    @property
    def number(self) -> str:
        """What follows the name of the input in that of a column in a frame."""
        return "" if self.entry is None else str(self.entry + 1)

    @property
    def request(self) -> str | dict[str, Any]:
        """How a request names it."""
        return self.name if self.entry is None else {"name": self.name, "entry": self.entry}


@dataclass(frozen=True)
class Outcome:
    """What rows were answered, by the names of the results; sizes of groups have an axis of their own, the last one."""

    question: str
    inputs: Mapping[str, Any]
    results: Mapping[str, Floats]
    status: NDArray[np.int32]


def _numbers(name: str, value: Any) -> Floats:
    """An array of doubles, NaN where a value is missing. Only numbers are allowed, as for one design."""
    array: Any = np.asanyarray(value)
    try:
        if array.dtype == object:
            flat = np.array([_number(each) for each in array.flat], dtype=np.float64)
            numbers: Floats = flat.reshape(array.shape)
            return numbers
        if array.dtype.kind not in "iuf":
            raise TypeError(array.dtype)
        filled: Floats = np.ma.filled(array.astype(np.float64, copy=False), np.nan)
        return filled
    except (TypeError, ValueError, OverflowError):
        raise InputError(f"{name} has values that are not numbers.", {"parameter": name}) from None


def _number(value: Any) -> float:
    pandas = sys.modules.get("pandas")
    if value is None or value is np.ma.masked or (pandas is not None and value is pandas.NA):
        return np.nan
    if isinstance(value, NO_NUMBERS):
        raise TypeError(value)
    return float(value)


def _columns_of(parameter: Parameter, value: Any) -> list[Column]:
    """The columns of an input with several values. Entries of a list lie along the last axis."""
    array = _numbers(parameter.name, value)
    if not parameter.is_list:
        return [Column(parameter.name, None, array)]
    if array.shape[-1] == 0:
        raise InputError(f"{parameter.name} has no entries.", {"parameter": parameter.name})
    if array.shape[-1] == 1 and parameter.spreads:
        return [Column(parameter.name, None, array[..., 0])]
    return [Column(parameter.name, entry, array[..., entry]) for entry in range(array.shape[-1])]


class Many:
    """Designs in arrays that are broadcast together by NumPy's rules.

    Numbers vary as they are. Flags and words decide which question is asked, so that the rows with the same ones are
    answered together.
    """

    def __init__(self, test: str, given: Mapping[str, Any]) -> None:
        self.test = _catalogue.find(test)
        self.given = {name: value.copy() if isinstance(value, np.ndarray) else value for name, value in given.items()}
        self.fixed: dict[str, Any] = {}
        self.choices: dict[str, NDArray[Any]] = {}
        self.columns: list[Column] = []
        for name, value in self.given.items():
            self._sort_in(name, value)
        arrays = [*self.choices.values(), *(column.values for column in self.columns)]
        try:
            self.shape = np.broadcast_shapes(*(array.shape for array in arrays))
        except ValueError:
            shapes = ", ".join(map(str, dict.fromkeys(array.shape for array in arrays)))
            raise InputError(f"Arguments of the shapes {shapes} cannot be broadcast together.") from None

    def _sort_in(self, name: str, value: Any) -> None:
        parameter = self.test.parameters.get(name)
        if parameter is None or not is_many(parameter, value):
            self.fixed[name] = _request.plain(value)
        elif parameter.is_number or parameter.is_list:
            self.columns += _columns_of(parameter, value)
        else:
            self.choices[name] = np.asarray(value)

    @property
    def size(self) -> int:
        """The number of designs."""
        return int(np.prod(self.shape, dtype=np.int64))

    def design(self, index: tuple[int, ...]) -> dict[str, Any]:
        """The arguments of one design."""
        inputs = self.fixed | self._chosen(index)
        for column in self.columns:
            number = float(np.broadcast_to(column.values, self.shape)[index])
            if column.entry is None:
                inputs[column.name] = number
            else:
                inputs.setdefault(column.name, []).append(number)
        return inputs

    def groups(self) -> Iterator[tuple[dict[str, Any], NDArray[np.intp] | slice]]:
        """The inputs that rows share, and which rows."""
        if not self.choices:
            yield self.fixed, slice(None)
            return
        codes: NDArray[np.int64] = np.zeros(self.shape, dtype=np.int64)
        for array in self.choices.values():
            _, inverse = np.unique(array.astype(str), return_inverse=True)
            codes = codes * (int(inverse.max(initial=0)) + 1) + inverse.reshape(array.shape)
        for code in np.unique(codes):
            rows = np.flatnonzero(codes == code)
            index = np.unravel_index(rows[0], self.shape)
            yield self.fixed | self._chosen(index), rows
        if not self.size:
            yield self.fixed, slice(None)

    def _chosen(self, index: tuple[Any, ...]) -> dict[str, Any]:
        """The flags and words of one design."""
        return {name: _request.plain(np.broadcast_to(array, self.shape)[index]) for name, array in self.choices.items()}

    def answer(self, threads: int | None = None) -> Outcome:
        """All rows. Raises where the inputs that they share are wrong; a wrong row has its status."""
        outcomes = [(self._ask(inputs, rows, threads), rows) for inputs, rows in self.groups()]
        if len(outcomes) == 1:
            return self._shaped(outcomes[0][0])
        return self._shaped(self._joined(outcomes))

    def _ask(self, inputs: dict[str, Any], rows: NDArray[np.intp] | slice, threads: int | None) -> Outcome:
        reply, batch = _request.prepare(self.test.name, inputs, [column.request for column in self.columns])
        flat = tuple(self._flat(column.values, rows) for column in self.columns)
        count = self.size if isinstance(rows, slice) else len(rows)
        results = {(each["name"], each.get("entry", 0)): np.full(count, np.nan) for each in reply["results"]}
        status = run(batch, flat, tuple(results.values()), count, threads)
        return Outcome(reply["question"], reply["inputs"], _with_groups(results), status)

    def _flat(self, values: Floats, rows: NDArray[np.intp] | slice) -> Floats:
        if values.size == 1:
            return values.reshape(1)
        return np.broadcast_to(values, self.shape).ravel()[rows]

    def _joined(self, outcomes: Sequence[tuple[Outcome, Any]]) -> Outcome:
        """The rows of several questions, put where they belong. A result that some lack is NaN there."""
        status = np.zeros(self.size, dtype=np.int32)
        results: dict[str, Floats] = {}
        for outcome, rows in outcomes:
            status[rows] = outcome.status
            for name, values in outcome.results.items():
                joined = results.setdefault(name, np.full((self.size, *values.shape[1:]), np.nan))
                joined[rows] = values
        first = outcomes[0][0]
        shared = {name: value for name, value in first.inputs.items() if name not in self.choices}
        return Outcome(first.question, shared, results, status)

    def _shaped(self, outcome: Outcome) -> Outcome:
        results = {name: values.reshape(self.shape + values.shape[1:]) for name, values in outcome.results.items()}
        return Outcome(outcome.question, outcome.inputs, results, outcome.status.reshape(self.shape))


def _with_groups(results: Mapping[tuple[str, int], Floats]) -> dict[str, Floats]:
    """The results by name, the sizes of several groups side by side."""
    names = [name for name, _ in results]
    return {
        name: np.stack([values for (other, _), values in results.items() if other == name], axis=-1)
        if names.count(name) > 1
        else results[name, 0]
        for name in dict.fromkeys(names)
    }


def cores() -> int:
    """The processors that this process may use, which a container may have fewer of than the machine."""
    if hasattr(os, "sched_getaffinity"):
        return len(os.sched_getaffinity(0))
    return os.cpu_count() or 1


def run(
    batch: object, columns: tuple[Floats, ...], results: tuple[Floats, ...], count: int, threads: int | None
) -> NDArray[np.int32]:
    """Answers the rows of a batch on several threads and gives their statuses."""
    status = np.full(count, STOPPED, dtype=np.int32)
    stop = np.zeros(1, dtype=np.int32)
    if threads is not None and threads < 1:
        raise ValueError(f"threads is {threads}, but must be at least 1, or None for all cores")
    workers = min(threads or cores(), max(1, count // ROWS_A_THREAD))

    def answer(first: int, last: int) -> int:
        part = tuple(column if len(column) == 1 else column[first:last] for column in columns)
        return _core.run(batch, part, tuple(each[first:last] for each in results), status[first:last], stop)

    if workers == 1:
        ended = [answer(0, count)]
    else:
        ended = _on_threads(answer, count, workers, stop)
    if NO_MEMORY in ended:
        raise MemoryError("There is not enough memory for these designs.")
    return status


def _on_threads(answer: Any, count: int, workers: int, stop: NDArray[np.int32]) -> list[int]:
    """The rows in shares, more than threads, so that none waits long for another. An exception ends all of them."""
    bounds = np.linspace(0, count, 4 * workers + 1).astype(int).tolist()
    with ThreadPoolExecutor(workers) as pool:
        futures = [pool.submit(answer, first, last) for first, last in itertools.pairwise(bounds)]
        try:
            return [future.result() for future in futures]
        except BaseException:
            stop[0] = 1
            raise
