"""The answers to many designs."""

from __future__ import annotations

import html
import operator
import sys
import warnings
from collections.abc import Mapping
from typing import TYPE_CHECKING, Any

import numpy as np
from numpy.typing import NDArray

from ._catalogue import TARGETS
from ._errors import KelpowerError, NoSolutionWarning
from ._many import Many, Outcome
from ._result import Result

if TYPE_CHECKING:
    from matplotlib.axes import Axes

    from ._curve import Curve, Curves, Surface


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
        warnings.warn(text, NoSolutionWarning, stacklevel=_levels_of_the_package())

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
        given = {TARGETS.get(name, name): value for name, value in self._many.given.items()}
        return {**self._outcome.inputs, **given}

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

        place = tuple(map(operator.index, index if isinstance(index, tuple) else (index,)))
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

    def curve(self, chart: str, **options: Any) -> Curve | Curves | Surface:
        """A curve for each value of the argument that has several.

        Parameters
        ----------
        chart : str
            As of `Result.curve`.
        **options
            As of `Result.curve`.

        Returns
        -------
        Curves
            A `Curve` for each value.

        Raises
        ------
        InputError
            More than one argument has several values.

        """
        from ._curve import curve

        return curve(self.test, self._many.given, chart, **options)

    def plot(self, chart: str = "n", *, ax: Axes | None = None, **options: Any) -> Axes:
        """Draw a curve for each value of the argument that has several.

        Parameters
        ----------
        chart : str
            As of `Result.curve`.
        ax : matplotlib.axes.Axes, optional
            Where to draw; a new figure without it.
        **options
            As of `Result.curve`.

        Returns
        -------
        matplotlib.axes.Axes
            What was drawn on.

        """
        from ._plot import draw

        return draw(self.curve(chart, **options), ax)

    def to_dict(self) -> dict[str, NDArray[Any]]:
        """Columns of equal length, a row a design: the arguments that were given, the results, the status."""
        results, sizes = self._result_columns()
        whole = {name: _whole(values) if name in sizes else values for name, values in results.items()}
        return {**self._given_columns(), **whole, "status": self.status.ravel()}

    def _given_columns(self) -> dict[str, NDArray[Any]]:
        """What was given by the names of columns: lists as an entry each, targets as such."""
        columns: dict[str, Any] = {}
        for name, value in self._many.given.items():
            columns |= self._given_column(TARGETS.get(name, name), name, value)
        return {name: np.broadcast_to(np.asarray(values), self.shape).ravel() for name, values in columns.items()}

    def _given_column(self, shown: str, name: str, value: Any) -> dict[str, Any]:
        many = self._many
        if name in many.choices:
            return {shown: many.choices[name]}
        if name not in many.fixed:
            kind = np.int64 if np.asarray(value).dtype.kind in "iu" else np.float64
            return {shown + each.number: each.values.astype(kind) for each in many.columns if each.name == name}
        fixed = many.fixed[name]
        if isinstance(fixed, list):
            return {f"{shown}{i}": each for i, each in enumerate(fixed, 1)}
        return {} if fixed is None else {shown: fixed}

    def _result_columns(self) -> tuple[dict[str, NDArray[np.float64]], set[str]]:
        """The results as doubles by the names of columns, and which of them are sizes."""
        columns: dict[str, NDArray[np.float64]] = {}
        sizes: set[str] = set()
        for name, values in self._outcome.results.items():
            spread = self._spread(name, values)
            columns |= spread
            sizes |= spread.keys() if name in self._many.test.sizes else set()
        return columns, sizes

    def _spread(self, name: str, values: NDArray[np.float64]) -> dict[str, NDArray[np.float64]]:
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
            The arguments that were given, the results, and the status. Targets are ``target_power`` and so on. Sizes
            are integers of 64 bits, missing where there is none; a design whose size is larger than these counts as one
            without a solution.

        """
        from ._frames import frame_of_columns
        from ._rows import leave_too_large

        results, sizes = self._result_columns()
        results = {name: values.copy() for name, values in results.items()}
        status = self.status.flatten()
        leave_too_large(results, sizes, status)
        return frame_of_columns({**self._given_columns(), **results, "status": status}, engine, sizes)

    def _repr_html_(self) -> str:
        try:
            text: str = self.to_frame()._repr_html_()
        except ImportError:
            return f"<pre>{html.escape(str(self))}</pre>"
        return text

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
        return _restored, (self.test, self._many.given, self._outcome)


def _levels_of_the_package() -> int:
    """How many calls lie between a warning and the line of the user."""
    frame, levels = sys._getframe(1), 1
    while frame.f_back is not None and frame.f_globals.get("__name__", "").partition(".")[0] == "kelpower":
        frame, levels = frame.f_back, levels + 1
    return levels


def _restored(test: str, given: Mapping[str, Any], outcome: Outcome) -> Results:
    """The same answers, not computed again."""
    results = object.__new__(Results)
    results._many = Many(test, given)
    results._outcome = outcome
    return results


def _shown(value: Any) -> str:
    return f"{value:.4g}" if isinstance(value, (float, np.floating)) else str(value)
