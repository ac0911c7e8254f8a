"""Charts as arrays."""

from __future__ import annotations

import json
from collections.abc import Iterator, Mapping, Sequence
from dataclasses import dataclass, field
from typing import Any, overload

import numpy as np
from numpy.typing import NDArray

from . import _catalogue, _core, _request
from ._catalogue import underscored
from ._errors import InputError

Floats = NDArray[np.float64]

# What the arguments of `curve` are called in a request.
_MEMBERS = {"start": "from", "stop": "to"}


class _OfQuantity:
    """What has values of one quantity, under its name."""

    __slots__ = ()

    quantity: str
    values: Any

    def _of(self, quantity: str) -> Any:
        if self.quantity != quantity:
            raise AttributeError(f"this chart has no {quantity!r}; it shows {self.quantity}")
        return self.values

    @property
    def power(self) -> Any:
        """The power, where that is shown."""
        return self._of("power")

    @property
    def half_width(self) -> Any:
        """The half-width of the confidence interval, where that is shown."""
        return self._of("half_width")

    @property
    def sizes(self) -> Any:
        """The sizes that reach the target, where those are shown."""
        return self._of("sizes")


@dataclass(frozen=True)
class Mark(_OfQuantity):
    """Where the design lies.

    Attributes
    ----------
    x, y : float
        Its place on the axes; of a curve ``y`` is None.
    power, half_width or sizes : float
        What is shown, there.
    text : str
        Place and value for reading.

    """

    x: float
    y: float | None
    quantity: str
    values: float
    text: str

    def __str__(self) -> str:
        return self.text


@dataclass(frozen=True)
class Axis:
    """An axis of a chart: the name of what varies, and the title for readers."""

    name: str
    title: str


@dataclass(frozen=True, eq=False)
class Curve(_OfQuantity):
    """The power over a number of the design.

    A curve may show the half-width of an interval, or sizes, in place of the power. A point without an answer is NaN.

    Attributes
    ----------
    x : numpy.ndarray
        The number that varies.
    power, half_width or sizes : numpy.ndarray
        What is shown, a value for each ``x``.
    design : Mark or None
        Where the design lies, unless that is outside.
    axis : Axis
        Name and title of what varies.
    title, fixed, label : str, tuple of str, str
        The name of the test, what the chart holds fixed, and what tells this curve from others.
    value_title : str
        The title of what is shown.
    description : str
        The chart in words, for those who cannot see it.
    inputs : dict
        The inputs of the design, also those that were found.

    Examples
    --------
    >>> import kelpower
    >>> curve = kelpower.two_means(effect_d=0.5, power=0.8).curve("n", start=60, stop=66)
    >>> curve.x
    array([60., 61., 62., 63., 64., 65., 66.])
    >>> curve.power.round(3)
    array([0.775, 0.782, 0.789, 0.795, 0.801, 0.808, 0.814])
    >>> print(curve.design)
    n per group = 64, power 0.80

    """

    test: str
    chart: str
    axis: Axis
    quantity: str
    x: Floats
    values: Floats
    design: Mark | None
    title: str
    fixed: tuple[str, ...]
    label: str
    value_title: str
    description: str
    inputs: Mapping[str, Any] = field(repr=False)

    def to_frame(self, engine: str = "pandas") -> Any:
        """The points as a frame, a row each.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            A column for what varies, and one for what is shown.

        """
        return _frame(self._columns(), engine)

    def _columns(self) -> dict[str, Any]:
        return {self.axis.name: self.x, _column(self.quantity): self.values}

    def __repr__(self) -> str:
        return (
            f"<{type(self).__name__} of {self.test}: {self.value_title} over {self.axis.title}, {len(self.x)} points>"
        )


@dataclass(frozen=True, eq=False)
class Curves(Sequence[Curve]):
    """A curve for each value of an input.

    Attributes
    ----------
    varied : str
        The input that has a value for each curve.
    alternatives : tuple
        These values.

    Examples
    --------
    >>> import kelpower
    >>> curves = kelpower.two_means(effect_d=[0.2, 0.5, 0.8], power=0.8).curve("n")
    >>> [curve.label for curve in curves]
    ['effect size d 0.2', 'effect size d 0.5', 'effect size d 0.8']
    >>> curves[1].design.x
    64.0

    """

    varied: str
    alternatives: tuple[Any, ...]
    curves: tuple[Curve, ...]

    @overload
    def __getitem__(self, index: int) -> Curve: ...
    @overload
    def __getitem__(self, index: slice) -> tuple[Curve, ...]: ...
    def __getitem__(self, index: int | slice) -> Curve | tuple[Curve, ...]:
        return self.curves[index]

    def __len__(self) -> int:
        return len(self.curves)

    def __iter__(self) -> Iterator[Curve]:
        return iter(self.curves)

    @property
    def x(self) -> Floats:
        """The number that varies along all curves."""
        return self.curves[0].x

    def to_frame(self, engine: str = "pandas") -> Any:
        """The points of all curves as a frame, a row each.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            What tells the curves apart, what varies along them, and what is shown. Entries of a list are a column each.

        """
        columns: dict[str, list[Any]] = {}
        for value, curve in zip(self.alternatives, self.curves, strict=True):
            entries = {f"{self.varied}{i}": each for i, each in enumerate(value, 1)} if _is_list(value) else None
            shared = {name: np.full(len(curve.x), each) for name, each in (entries or {self.varied: value}).items()}
            for name, values in {**shared, **curve._columns()}.items():
                columns.setdefault(name, []).append(values)
        return _frame({name: np.concatenate(parts) for name, parts in columns.items()}, engine)

    def __repr__(self) -> str:
        return f"<Curves of {self.curves[0].test}: {', '.join(curve.label for curve in self.curves)}>"


@dataclass(frozen=True, eq=False)
class Level:
    """The lines on which a surface has a power.

    Attributes
    ----------
    power : float
        The power on the lines.
    lines : tuple of (numpy.ndarray, numpy.ndarray)
        The points of each.

    """

    power: float
    lines: tuple[tuple[Floats, Floats], ...]


@dataclass(frozen=True, eq=False)
class Surface:
    """The power over two numbers of the design.

    Attributes
    ----------
    x, y : numpy.ndarray
        The numbers that vary.
    power : numpy.ndarray
        ``power[i, j]`` is the power at ``x[i]`` and ``y[j]``, NaN where there is none.
    design : Mark or None
        Where the design lies, unless that is outside.
    axes : tuple of Axis
        Names and titles of what varies.
    levels : tuple of Level
        The lines of equal power.
    note : str or None
        What the lines mean, where the power goes up and down.
    title, fixed, value_title, description, inputs
        As of `Curve`.

    Examples
    --------
    >>> import kelpower
    >>> surface = kelpower.two_means(effect_d=0.5, power=0.8).curve("n-effect_d")
    >>> surface.power.shape == (len(surface.x), len(surface.y))
    True
    >>> [level.power for level in surface.levels]
    [0.5, 0.8, 0.9, 0.95]

    """

    test: str
    chart: str
    axes: tuple[Axis, Axis]
    x: Floats
    y: Floats
    power: Floats
    design: Mark | None
    levels: tuple[Level, ...]
    title: str
    fixed: tuple[str, ...]
    value_title: str
    description: str
    note: str | None
    inputs: Mapping[str, Any] = field(repr=False)

    def to_frame(self, engine: str = "pandas") -> Any:
        """The points as a frame, a row each, the second number varying faster.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            A column for each number that varies, and the power.

        """
        x, y = np.meshgrid(self.x, self.y, indexing="ij")
        columns = {self.axes[0].name: x.ravel(), self.axes[1].name: y.ravel(), "power": self.power.ravel()}
        return _frame(columns, engine)

    def __repr__(self) -> str:
        over = " and ".join(axis.title for axis in self.axes)
        return f"<Surface of {self.test}: power over {over}, {len(self.x)} x {len(self.y)} points>"


Chart = Curve | Curves | Surface


def curve(
    test: object,
    given: Mapping[str, Any],
    chart: str,
    *,
    start: float | Sequence[float] | None = None,
    stop: float | Sequence[float] | None = None,
    step: float | None = None,
    y: str | None = None,
) -> Chart:
    """Draw a design over one of its numbers, or over two.

    Parameters
    ----------
    test : str or function
        The test.
    given : mapping
        The arguments of its function. One number may have several values, for a curve each.
    chart : str
        What is drawn over, such as ``"n"``; two names with a hyphen between them make a surface.
    start, stop : float, or two of a surface, optional
        The range of what is drawn over; without them the usual one.
    step : float, optional
        The distance of the points as a share of the range, of axes that are not whole numbers.
    y : {"n"}, optional
        Show the sizes that reach the target.

    Returns
    -------
    Curve, Curves or Surface
        The points.

    Raises
    ------
    InputError
        Where an argument is wrong.
    NoSolution
        Where the design has none.

    """
    name = _catalogue.find(test).name
    options = {"from": _ends("start", start), "to": _ends("stop", stop), "step": step, "y": y}
    members = {key: value for key, value in options.items() if value is not None}
    reply = json.loads(_drawn(name, given, {"chart": str(chart).replace("_", "-"), "picture": True, **members}))
    if "y" in reply:
        return _surface(reply)
    curves = tuple(_curve(reply, i) for i in range(len(reply["curves"])))
    if "varied" not in reply:
        return curves[0]
    alternatives = tuple(_value(each[reply["varied"]]) for each in reply["curves"])
    return Curves(reply["varied"], alternatives, curves)


def _ends(name: str, value: Any) -> Any:
    """An end of the range as a request has it."""
    if value is None:
        return None
    try:
        return np.asarray(value, dtype=np.float64).tolist()
    except (TypeError, ValueError):
        problem = {"parameter": name, "value": value, "allowed": "a number, or one for each axis"}
        raise InputError(f"{name} is {value!r}, but must be a number, or one for each axis.", problem) from None


def _drawn(test: str, given: Mapping[str, Any], members: Mapping[str, Any]) -> str:
    """The JSON of a chart. Errors have the names of the arguments here."""
    try:
        return _request.ask(_core.draw, test, given, **members)
    except InputError as error:
        raise _in_our_names(error) from None


def _in_our_names(error: InputError) -> InputError:
    problem = error._problem
    ours = {theirs: mine for mine, theirs in _MEMBERS.items()}
    if not ours.keys() & set(error.parameters):
        return error
    message: str = problem["template"]
    for name in error.parameters:
        message = message.replace("{" + name.replace("_", "-") + "}", ours.get(name, name))
    parameters = [ours.get(name, name) for name in error.parameters]
    return InputError(message, {**problem, "parameter": parameters[0], "parameters": parameters, "message": message})


def _quantity(reply: Mapping[str, Any]) -> str:
    quantity = underscored(reply["quantity"])
    return "sizes" if quantity == "sample_size" else quantity


def _mark(reply: Mapping[str, Any], index: int) -> Mark | None:
    design = reply["curves"][index].get("design")
    if design is None:
        return None
    x, *y = map(float, design["at"])
    value = float(design[underscored(reply["quantity"])])
    return Mark(x, y[0] if y else None, _quantity(reply), value, reply["picture"]["designs"][index])


def _axes(reply: Mapping[str, Any]) -> list[Axis]:
    return [Axis(axis["name"], axis["title"]) for axis in reply["axes"]]


def _curve(reply: Mapping[str, Any], index: int) -> Curve:
    picture, one = reply["picture"], reply["curves"][index]
    return Curve(
        test=reply["test"],
        chart=reply["chart"],
        axis=_axes(reply)[0],
        quantity=_quantity(reply),
        x=_floats(reply["x"]),
        values=_floats(one[underscored(reply["quantity"])]),
        design=_mark(reply, index),
        title=picture["title"],
        fixed=tuple(picture["fixed"]),
        label=picture["curves"][index],
        value_title=picture["values"],
        description=picture["description"],
        inputs={name: _value(value) for name, value in one["inputs"].items()},
    )


def _surface(reply: Mapping[str, Any]) -> Surface:
    picture, one = reply["picture"], reply["curves"][0]
    first, second = _axes(reply)
    return Surface(
        test=reply["test"],
        chart=reply["chart"],
        axes=(first, second),
        x=_floats(reply["x"]),
        y=_floats(reply["y"]),
        power=_floats(one["power"]),
        design=_mark(reply, 0),
        levels=tuple(_level(level) for level in picture["levels"]),
        title=picture["title"],
        fixed=tuple(picture["fixed"]),
        value_title=picture["values"],
        description=picture["description"],
        note=picture.get("note"),
        inputs={name: _value(value) for name, value in one["inputs"].items()},
    )


def _level(level: Mapping[str, Any]) -> Level:
    return Level(level["power"], tuple((_floats(line["x"]), _floats(line["y"])) for line in level["lines"]))


def _floats(values: Any) -> Floats:
    """An array that does not change; a gap is NaN."""
    array = np.array(values, dtype=np.float64)
    array.flags.writeable = False
    return array


def _value(value: Any) -> Any:
    return tuple(value) if isinstance(value, list) else value


def _is_list(value: Any) -> bool:
    return isinstance(value, tuple)


def _column(quantity: str) -> str:
    return "n" if quantity == "sizes" else quantity


def _frame(columns: Mapping[str, Any], engine: str) -> Any:
    from ._frames import frame_of_columns

    return frame_of_columns(columns, engine)
