"""Answers in frames as lines."""

from __future__ import annotations

from collections import Counter
from collections.abc import Mapping, Sequence
from dataclasses import dataclass
from typing import TYPE_CHECKING, Any

import numpy as np
from numpy.typing import NDArray

from . import _catalogue, _engines, _style
from ._catalogue import underscored
from ._errors import InputError
from ._results import Results

if TYPE_CHECKING:
    from matplotlib.axes import Axes

Floats = NDArray[np.float64]

# What a frame answers, in the order in which it is looked for.
_SIZES = ("n", "n1", "total")
_FIGURES = ("power", "expected_power", "half_width", *_SIZES)

# More points than these are a line without marks.
_MARKED_POINTS = 30


@dataclass(frozen=True)
class _Columns:
    """The columns of answers by name, and the test if it is known."""

    engine: Any
    frame: Any
    names: tuple[str, ...]
    test: _catalogue.Test | None

    def numbers(self, name: str) -> Floats:
        numbers: Floats = self.engine.numbers(self.frame, name)
        return numbers

    def values(self, name: str) -> list[Any]:
        column = self.frame[name]
        values: list[Any] = column.to_pylist() if hasattr(column, "to_pylist") else column.to_list()
        return values

    def check(self, *names: str) -> None:
        for name in names:
            if name not in self.names:
                raise InputError(f"There is no column {name!r}; there are {', '.join(self.names)}.", {"value": name})


def _columns(frame: Any, test: Any) -> _Columns:
    if isinstance(frame, Results):
        return _columns(frame.to_frame(), test or frame.test)
    engine, adopted = _engines.adopted(frame)
    names = tuple(map(str, engine.names(adopted)))
    return _Columns(engine, adopted, names, None if test is None else _catalogue.find(test))


def plot(
    frame: Any,
    x: str,
    y: str | None = None,
    hue: str | Sequence[str] | None = None,
    *,
    test: Any = None,
    ax: Axes | None = None,
) -> Axes:
    """Draw the answers in a frame as lines.

    Parameters
    ----------
    frame : pandas.DataFrame, polars.DataFrame, pyarrow.Table or Results
        Answers, such as those of `grid`, `solve_frame` or `Results.to_frame`.
    x : str
        The column along the horizontal axis.
    y : str, optional
        The column that is shown. Without it this is what the frame answers: the sizes where it has a target, else the
        power or the half-width.
    hue : str or sequence of str, optional
        The column, or columns, with a line for each value.
    test : str or function, optional
        The test, for its titles of axes; `Results` know it.
    ax : matplotlib.axes.Axes, optional
        Where to draw; a new figure without it.

    Returns
    -------
    matplotlib.axes.Axes
        What was drawn on.

    Raises
    ------
    InputError
        A column is not there, or one line would have several values at one place.

    Examples
    --------
    >>> import kelpower
    >>> designs = kelpower.grid("two-means", effect_d=[0.4, 0.5, 0.6], power=[0.8, 0.9])
    >>> axes = kelpower.plot(designs, x="effect_d", hue="target_power", test="two-means")
    >>> [line.get_label() for line in axes.lines]
    ['target power 0.8', 'target power 0.9']

    """
    columns = _columns(frame, test)
    hues = [hue] if isinstance(hue, str) else list(hue or ())
    columns.check(x, *hues, *([] if y is None else [y]))
    shown = _asked(columns) if y is None else y
    axes = _style.axes_or_new(ax)
    _style.frame(axes)
    _draw_lines(columns, x, shown, hues, axes)
    axes.set_xlabel(_title(columns, x))
    axes.set_ylabel(_value_title(columns, shown))
    _style.values_axis(axes, "power" if shown.endswith("power") else shown)
    _style.titles(axes, columns.test.title if columns.test else "", [])
    if hues:
        _style.key(axes, ax is None)
    return axes


def _asked(columns: _Columns) -> str:
    """The column of what was asked: a size where there is a target."""
    has_target = any(name.startswith("target_") for name in columns.names)
    for name in (*_SIZES, *_FIGURES) if has_target else _FIGURES:
        if name in columns.names and not (name == "n1" and not _are_equal_sizes(columns)):
            return name
    raise InputError(f"y is needed: none of {', '.join(_FIGURES)} is a column.", {"parameter": "y"})


def _are_equal_sizes(columns: _Columns) -> bool:
    groups = [name for name in columns.names if name[:1] == "n" and name[1:].isdigit()]
    first = columns.numbers(groups[0])
    return all(np.array_equal(first, columns.numbers(name), equal_nan=True) for name in groups)


def _draw_lines(columns: _Columns, x: str, y: str, hues: Sequence[str], ax: Axes) -> None:
    places, heights = columns.numbers(x), columns.numbers(y)
    keys = list(zip(*(columns.values(name) for name in hues), strict=True)) if hues else [()] * len(places)
    for i, key in enumerate(dict.fromkeys(keys)):
        rows = np.array([each == key for each in keys], dtype=bool)
        rows = np.flatnonzero(rows)[np.argsort(places[rows], kind="stable")]
        _check_places(columns, places[rows], [x, y, *hues], rows)
        label = ", ".join(f"{_label(columns, name)} {_shown(value)}" for name, value in zip(hues, key, strict=True))
        mark: dict[str, Any] = {"marker": "o", "markersize": 3.5} if len(rows) <= _MARKED_POINTS else {}
        ax.plot(places[rows], heights[rows], label=label or "_", **_style.line_style(i), **mark)


def _check_places(columns: _Columns, places: Floats, used: Sequence[str], rows: NDArray[np.intp]) -> None:
    """A line goes through one value at a place: what else varies must tell lines apart."""
    if not (np.diff(places) == 0).any():
        return
    results = _results(columns)
    varying = [
        name
        for name in columns.names
        if name not in used and name not in results and len({columns.values(name)[row] for row in rows}) > 1
    ]
    what = f" {' and '.join(varying)} vary, too: name them in hue, or choose rows." if varying else ""
    raise InputError(f"A line would have several values of {used[1]} at one {used[0]}.{what}", {"parameter": "hue"})


def _results(columns: _Columns) -> set[str]:
    """The columns that hold answers, as far as their names tell."""
    tests = [columns.test] if columns.test else _catalogue.tests().values()
    names = {
        underscored(result["name"]) for test in tests for route in test.raw["routes"] for result in route["results"]
    }
    return {name for name in columns.names if name == "status" or name.rstrip("0123456789") in names}


def _shown(value: Any) -> str:
    return f"{value:g}" if isinstance(value, (int, float)) and not isinstance(value, bool) else str(value)


def _label(columns: _Columns, name: str) -> str:
    """The term of the field for a column, as the test has it, or as most tests have."""
    tests = [columns.test] if columns.test else _catalogue.tests().values()
    plain = name if any(name in test.labels for test in tests) else name.rstrip("0123456789")
    found = Counter(test.labels[plain] for test in tests if plain in test.labels)
    if not found:
        return name.replace("_", " ")
    label = found.most_common(1)[0][0]
    return label if plain == name else f"{label}, number {name[len(plain) :]}"


def _axes_of(test: _catalogue.Test | None) -> Mapping[str, str]:
    return {underscored(axis["name"]): axis["title"] for axis in test.raw["axes"]} if test else {}


def _title(columns: _Columns, name: str) -> str:
    return _axes_of(columns.test).get(name) or _label(columns, name)


def _value_title(columns: _Columns, name: str) -> str:
    """Sizes of groups that are all the same stand for each of them."""
    if name == "n1" and _are_equal_sizes(columns):
        return _axes_of(columns.test).get("n", "sample size per group")
    return _title(columns, name)
