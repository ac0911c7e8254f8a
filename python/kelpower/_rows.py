"""A question whose arguments are columns: which column is what, and the answers to its rows."""

from __future__ import annotations

import itertools
from collections import Counter
from collections.abc import Iterable, Iterator, Mapping, Sequence
from dataclasses import dataclass
from typing import Any, NamedTuple

import numpy as np
from numpy.typing import NDArray

from . import _catalogue, _request
from ._catalogue import Parameter
from ._errors import BAD_INPUT, NO_SOLUTION, InputError, NoSolution
from ._many import Floats, is_many, run

Codes = NDArray[np.int64]
Share = NDArray[np.intp] | slice

# The arguments that targets are.
_ARGUMENTS = {target: name for name, target in _catalogue.TARGETS.items()}

# They decide what is asked, which is the same for all rows of a frame.
DECIDING = ("solve", "interval")

# No integer of 64 bits holds a size from here on.
TOO_LARGE = 2.0**63


class Use(NamedTuple):
    """A column that is an argument, or an entry of one; `allowed` are the values of a flag or a word."""

    column: str
    parameter: Parameter
    entry: int | None
    allowed: tuple[bool | str, ...] = ()

    @property
    def request(self) -> str | dict[str, Any]:
        """How a request names it."""
        return self.parameter.name if self.entry is None else {"name": self.parameter.name, "entry": self.entry}


@dataclass(frozen=True)
class Answers:
    """Results by the names of their columns, NaN where there is none, and the status of each row."""

    results: dict[str, Floats]
    sizes: frozenset[str]
    status: NDArray[np.int32]


def integers_of(values: Any) -> tuple[NDArray[np.int64], NDArray[np.bool_]]:
    """Whole numbers as integers, and where there is none, or none of 64 bits."""
    numbers = np.array(values, dtype=np.float64)
    missing = ~(np.abs(numbers) < TOO_LARGE)
    numbers[missing] = 0
    return numbers.astype(np.int64), missing


def leave_too_large(results: Mapping[str, Floats], sizes: Iterable[str], status: NDArray[np.int32]) -> None:
    """Take the answers of rows with a size that no integer of 64 bits holds: they count as without a solution."""
    for name in sizes:
        rows = np.flatnonzero(np.abs(results[name]) >= TOO_LARGE)
        if len(rows):
            status[rows] = NO_SOLUTION
            for values in results.values():
                values[rows] = np.nan


def place(test: _catalogue.Test, name: str) -> tuple[Parameter, int | None] | None:
    """The argument that a name stands for, and the entry: ``n1`` and ``mean1`` are the first of ``n`` and ``means``."""
    name = _ARGUMENTS.get(name, name)
    if name in test.parameters:
        return test.parameters[name], None
    stem = name.rstrip("0123456789")
    digits = name[len(stem) :]
    if not digits or digits[0] == "0":
        return None
    for given in (stem, stem + "s"):
        if given in test.parameters and test.parameters[given].is_list:
            return test.parameters[given], int(digits) - 1
    return None


class _Plan(NamedTuple):
    """How the rows with the same flags and words are answered: by a batch, or by the status of its refusal."""

    batch: object
    results: tuple[str, ...]
    status: int


class Question:
    """What is asked of rows whose columns have these names.

    Everything about it follows from the names and the fixed arguments: the results are the same for any rows, and an
    exception says that no row could be answered.
    """

    def __init__(
        self,
        test: object,
        names: Iterable[Any],
        renamed: Mapping[str, str | None] | None,
        fixed: Mapping[str, Any],
    ) -> None:
        self.test = _catalogue.find(test)
        self.names = list(names)
        self.fixed = self._plain(fixed)
        uses = self._uses(renamed or {})
        self.numbers = [use for use in uses if not use.allowed]
        self.choices = [use for use in uses if use.allowed]
        self.sizes: frozenset[str] = frozenset()
        self._plans = self._prepared()
        self.results = tuple(dict.fromkeys(name for plan in self._plans for name in plan.results))
        self._check_results()

    def _plain(self, fixed: Mapping[str, Any]) -> dict[str, Any]:
        for name, value in fixed.items():
            if name in self.test.parameters and is_many(self.test.parameters[name], value):
                raise InputError(f"{name} is one for all rows here; what varies is a column.", {"parameter": name})
        return {name: _request.plain(value) for name, value in fixed.items() if value is not None}

    def _uses(self, renamed: Mapping[str, str | None]) -> list[Use]:
        for column in renamed:
            if column not in self.names:
                raise InputError(f"There is no column {column!r} to rename.")
        uses = []
        for column in self.names:
            argument = renamed.get(column, column) if isinstance(column, str) else None
            found = place(self.test, argument) if argument is not None else None
            if found:
                uses.append(Use(column, *found, self._allowed(found[0])))
            elif column in renamed and argument is not None:
                known = ", ".join(self.test.parameters)
                raise InputError(f"{argument!r} is no argument of {self.test.function}; there are {known}.")
        self._check_uses(uses)
        return uses

    def _allowed(self, parameter: Parameter) -> tuple[bool | str, ...]:
        if parameter.kind == "flag":
            return (False, True)
        if parameter.kind != "choice":
            return ()
        raw = self.test.raw["parameters"]
        return next(tuple(each["choices"]) for each in raw if _catalogue.underscored(each["name"]) == parameter.name)

    def _check_uses(self, uses: Sequence[Use]) -> None:
        given = Counter((use.parameter.name, use.entry) for use in uses)
        whole = {use.parameter.name for use in uses if use.entry is None} | self.fixed.keys()
        for use in uses:
            name = use.parameter.name
            if given[name, use.entry] > 1 or (name in whole and use.entry is not None) or name in self.fixed:
                raise InputError(f"{name} is given twice: the column {use.column!r} gives it as well.")
            if name in DECIDING:
                raise InputError(f"The column {use.column!r} cannot decide what is asked: give {name} for all rows.")

    def _prepared(self) -> list[_Plan]:
        """A plan for each combination of flags and words, whether there are such rows or not."""
        combinations = itertools.product(*(use.allowed for use in self.choices))
        plans, errors = [], []
        for values in combinations:
            chosen = {use.parameter.name: value for use, value in zip(self.choices, values, strict=True)}
            try:
                plans.append(self._plan(chosen))
            except (InputError, NoSolution) as error:
                errors.append(error)
                plans.append(_Plan(None, (), NO_SOLUTION if isinstance(error, NoSolution) else BAD_INPUT))
        if len(errors) == len(plans):
            raise errors[0]
        return plans

    def _plan(self, chosen: Mapping[str, Any]) -> _Plan:
        reply, batch = _request.prepare(self.test.name, {**self.fixed, **chosen}, [use.request for use in self.numbers])
        columns = [(self._column(each), each["kind"]) for each in reply["results"]]
        self.sizes |= {name for name, kind in columns if kind in ("size", "sizes")}
        return _Plan(batch, tuple(name for name, _ in columns), 0)

    def _column(self, result: Mapping[str, Any]) -> str:
        """The name of the column of a result. What is reached gives way to a column that has its name as a target."""
        name: str = result["name"]
        if name in _catalogue.TARGETS and name in self.names:
            return f"achieved_{name}"
        return f"{name}{result['entry'] + 1}" if "entry" in result else name

    def _check_results(self) -> None:
        for name in (*self.results, "status"):
            if name in self.names:
                raise InputError(f"The frame has a column {name!r} already, which is a result: rename it, or drop it.")

    def answer(self, numbers: Sequence[Floats], codes: Sequence[Codes], count: int, threads: int | None) -> Answers:
        """The answers to rows: their numbers, and their flags and words as places in what is allowed, -1 for none."""
        status = np.full(count, BAD_INPUT, dtype=np.int32)
        results = {name: np.full(count, np.nan) for name in self.results}
        for plan, rows in self._shares(codes, count):
            if plan.batch is None:
                status[rows] = plan.status
                continue
            part = tuple(np.full(len(status[rows]), np.nan) for _ in plan.results)
            status[rows] = run(plan.batch, tuple(each[rows] for each in numbers), part, len(status[rows]), threads)
            for name, values in zip(plan.results, part, strict=True):
                results[name][rows] = values
        leave_too_large(results, self.sizes, status)
        return Answers(results, self.sizes, status)

    def _shares(self, codes: Sequence[Codes], count: int) -> Iterator[tuple[_Plan, Share]]:
        """The plans with the rows that each answers. Rows without a flag or a word that is allowed have none."""
        if not codes:
            yield self._plans[0], slice(None)
            return
        place = np.zeros(count, dtype=np.int64)
        known = np.ones(count, dtype=bool)
        for use, code in zip(self.choices, codes, strict=True):
            known &= code >= 0
            place = place * len(use.allowed) + code
        place[~known] = -1
        for each in np.unique(place[known]):
            yield self._plans[each], np.flatnonzero(place == each)
