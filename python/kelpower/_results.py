"""The answers to many designs."""

from __future__ import annotations

import warnings
from collections.abc import Mapping
from typing import Any

import numpy as np
from numpy.typing import NDArray

from ._errors import KelpowerError, NoSolutionWarning
from ._many import Many
from ._result import Result


def _whole(values: NDArray[np.float64]) -> NDArray[Any]:
    """Sizes as integers, where all are there."""
    if np.isfinite(values).all() and (np.abs(values) < 2.0**53).all():
        return values.astype(np.int64)
    return values


class Results:
    """The answers to many designs: results are attributes, arrays of the shape that the arguments make together.

    A design without an answer has NaN and its status. Sizes are integers unless one is missing; those of several groups
    have the groups along the last axis.

    Attributes
    ----------
    status : numpy.ndarray of int32
        0 answered, 2 refused (an argument is wrong, or arguments do not go together), 3 without a solution.

    Examples
    --------
    >>> import kelpower
    >>> answers = kelpower.two_means(effect_d=[0.2, 0.4, 0.6, 0.8], power=0.9)
    >>> answers.total
    array([1054,  266,  120,   68])
    >>> answers[2].sentence[:48]
    'To detect an effect size d of 0.6 with a power o'

    """

    __slots__ = ("_many", "_outcome")

    def __init__(self, many: Many, threads: int | None = None) -> None:
        self._many = many
        self._outcome = many.answer(threads)
        self._warn()

    def _warn(self) -> None:
        unanswered = int(np.count_nonzero(self.status))
        if not unanswered:
            return
        first = int(np.flatnonzero(self.status)[0])
        some = "1 design has" if unanswered == 1 else f"{unanswered} designs have"
        text = f"{some} no answer, of {self.status.size}. At index {first}: {self.problem(first)}"
        warnings.warn(text, NoSolutionWarning, stacklevel=4)

    @property
    def test(self) -> str:
        """The name of the test, such as ``two-means``."""
        return self._many.test.name

    @property
    def question(self) -> str:
        """What was asked, as of `Result`."""
        return self._outcome.question

    @property
    def status(self) -> NDArray[np.int32]:
        """How each design ended."""
        return self._outcome.status

    @property
    def shape(self) -> tuple[int, ...]:
        """The shape of the designs."""
        return self._many.shape

    @property
    def inputs(self) -> dict[str, Any]:
        """The arguments as they were given, and the defaults."""
        return {**self._outcome.inputs, **self._many.given}

    @property
    def results(self) -> dict[str, NDArray[Any]]:
        """All results by name."""
        return {name: self._result(name) for name in self._outcome.results}

    def _result(self, name: str) -> NDArray[Any]:
        values = self._outcome.results[name]
        return _whole(values) if name in self._many.test.sizes else values

    def __getattr__(self, name: str) -> Any:
        if name.startswith("_"):
            raise AttributeError(name)
        if name in self._outcome.results:
            return self._result(name)
        if name in self.inputs:
            return self.inputs[name]
        known = ", ".join([*self._outcome.results, *self.inputs])
        raise AttributeError(f"these answers have no {name!r}; they have {known}")

    def __dir__(self) -> list[str]:
        return sorted({*super().__dir__(), *self.inputs, *self._outcome.results})

    def __len__(self) -> int:
        if not self.shape:
            raise TypeError("answers without an axis have no length")
        return self.shape[0]

    def __getitem__(self, index: int | tuple[int, ...]) -> Result:
        """The whole answer to one design. Raises what its problem is, if it has none."""
        from ._ask import answer

        place = index if isinstance(index, tuple) else (index,)
        if len(place) != len(self.shape):
            raise IndexError(f"{len(self.shape)} indices are expected, one for each axis")
        result: Result = answer(self.test, self._many.design(place))
        return result

    def problem(self, index: int | tuple[int, ...]) -> str | None:
        """Why a design has no answer, as a sentence; a single index counts through all designs."""
        place = index if isinstance(index, tuple) else tuple(map(int, np.unravel_index(index, self.shape)))
        try:
            self[place]
        except KelpowerError as error:
            return str(error)
        return None

    def replace(self, **changes: Any) -> Any:
        """Ask the same with some arguments changed; None takes one away."""
        from ._ask import answer

        kept = {name: value for name, value in self._many.given.items() if name not in changes}
        return answer(self.test, kept | {name: value for name, value in changes.items() if value is not None})

    def to_dict(self) -> dict[str, NDArray[Any]]:
        """Columns of equal length, a row a design: the inputs that were given, the results, the status."""
        columns = {name: self._column(values) for name, values in self._given_columns().items()}
        for name, values in self._outcome.results.items():
            columns |= self._spread(name, _whole(values) if name in self._many.test.sizes else values)
        columns["status"] = self.status.ravel()
        return columns

    def _given_columns(self) -> Mapping[str, Any]:
        """What was given by the names of columns: lists as an entry each, targets as such."""
        many = self._many
        columns: dict[str, Any] = {**many.choices}
        for name, value in many.fixed.items():
            entries = {f"{name}{i}": each for i, each in enumerate(value, 1)} if isinstance(value, list) else None
            columns |= entries or {name: value}
        for column in many.columns:
            name = column.name if column.entry is None else f"{column.name}{column.entry + 1}"
            columns[name] = column.values
        targets = {"power", "half_width"} & set(self._outcome.results)
        return {f"target_{name}" if name in targets else name: value for name, value in columns.items()}

    def _column(self, values: Any) -> NDArray[Any]:
        return np.broadcast_to(np.asarray(values), self.shape).ravel()

    def _spread(self, name: str, values: NDArray[Any]) -> dict[str, NDArray[Any]]:
        if values.ndim == len(self.shape):
            return {name: values.ravel()}
        rows = values.reshape(-1, values.shape[-1])
        return {f"{name}{i + 1}": rows[:, i] for i in range(rows.shape[1])}

    def to_frame(self, engine: str = "pandas") -> Any:
        """The designs as a frame, a row each.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            The inputs that were given, the results, and the status.

        """
        from ._frames import frame_of_columns

        return frame_of_columns(self.to_dict(), engine)

    def _repr_html_(self) -> str:
        html: str = self.to_frame()._repr_html_()
        return html

    def __str__(self) -> str:
        columns = self.to_dict()
        shown = [[name, *(_shown(value) for value in values[:20])] for name, values in columns.items()]
        widths = [max(map(len, column)) for column in shown]
        rows = zip(*shown, strict=True)
        lines = ["  ".join(cell.rjust(width) for cell, width in zip(row, widths, strict=True)) for row in rows]
        rest = self.status.size - 20
        return "\n".join([self._many.test.title, "", *lines, *([f"... and {rest} more"] if rest > 0 else [])])

    def __repr__(self) -> str:
        arguments = ", ".join(f"{name}={value!r}" for name, value in self._many.given.items())
        return f"kelpower.{self._many.test.function}({arguments})"

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Results):
            return NotImplemented
        mine, others = self.to_dict(), other.to_dict()
        return (
            self.test == other.test
            and self.shape == other.shape
            and mine.keys() == others.keys()
            and all(np.array_equal(mine[name], others[name], equal_nan=mine[name].dtype.kind == "f") for name in mine)
        )

    __hash__ = None  # type: ignore[assignment]

    def __reduce__(self) -> tuple[Any, ...]:
        return _again, (self.test, self._many.given)


def _again(test: str, given: Mapping[str, Any]) -> Results:
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", NoSolutionWarning)
        return Results(Many(test, given))


def _shown(value: Any) -> str:
    return f"{value:.4g}" if isinstance(value, (float, np.floating)) else str(value)


