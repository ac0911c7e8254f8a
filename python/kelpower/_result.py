"""The answer to one design."""

from __future__ import annotations

import html
import json
import math
from collections.abc import Mapping, Sequence
from dataclasses import dataclass
from typing import TYPE_CHECKING, Any

from . import _catalogue, _request
from ._densities import Densities, densities_of
from ._errors import InputError

if TYPE_CHECKING:
    from matplotlib.axes import Axes

    from ._curve import Curve, Surface


@dataclass(frozen=True)
class Explanation:
    """What is behind an answer.

    Attributes
    ----------
    figures : dict of str to float
        The figures that the power is computed from.
    formula : str
        The formula with these figures.
    source : str
        The textbook or paper that has it.
    programs : tuple of dict
        How other programs are asked the same, and why an answer differs.
    text : str
        All of it with the answer, as the program prints it.

    """

    figures: Mapping[str, float]
    formula: str
    source: str
    programs: tuple[Mapping[str, Any], ...]
    text: str

    def __str__(self) -> str:
        return self.text


# As json.loads, without a look for other kinds of text.
_parse = json.JSONDecoder().raw_decode


def _typed(value: Any, is_whole: bool) -> Any:
    if isinstance(value, list):
        return tuple(_typed(each, is_whole) for each in value)
    return float(value) if type(value) is int and not is_whole else value


class Result:
    """The answer to one design: its inputs and results are attributes.

    What a study reaches has the name of the figure, such as ``power``; what it was to reach is ``target_power``. Sizes
    of several groups are tuples. A result does not change; `replace` asks for a variant of the design.

    Examples
    --------
    >>> import kelpower
    >>> answer = kelpower.two_means(effect_d=0.5, power=0.8)
    >>> answer.n, answer.total, answer.target_power
    ((64, 64), 128, 0.8)
    >>> answer
    kelpower.two_means(effect_d=0.5, power=0.8)
    >>> answer.replace(power=0.9).total
    172

    """

    __slots__ = ("_given", "_reply", "_test", "_text", "_words")

    _test: str
    _given: Mapping[str, Any]
    _text: str
    _reply: dict[str, Any] | None
    _words: dict[str, Any] | None

    def __init__(self, test: str, given: Mapping[str, Any], text: str) -> None:
        object.__setattr__(self, "_test", test)
        object.__setattr__(self, "_given", given)
        object.__setattr__(self, "_text", text)
        object.__setattr__(self, "_reply", None)
        object.__setattr__(self, "_words", None)

    def __setattr__(self, name: str, value: object) -> None:
        raise AttributeError(f"a result does not change; replace({name}=...) asks for a variant")

    def __delattr__(self, name: str) -> None:
        raise AttributeError("a result does not change")

    @property
    def _answer(self) -> dict[str, Any]:
        if self._reply is None:
            object.__setattr__(self, "_reply", self._read())
        assert self._reply is not None
        return self._reply

    def _read(self) -> dict[str, Any]:
        """The JSON with sizes as ints and all other numbers as floats."""
        reply: dict[str, Any] = _parse(self._text)[0]
        whole = _catalogue.find(self._test).whole
        for part in ("inputs", "results"):
            reply[part] = {name: _typed(value, name in whole) for name, value in reply[part].items()}
        return reply

    def __getattr__(self, name: str) -> Any:
        if name.startswith("_"):
            raise AttributeError(name)
        answer = self._answer
        for part in ("results", "inputs", "assumptions"):
            if name in answer.get(part, {}):
                return answer[part][name]
        known = ", ".join([*answer["results"], *answer["inputs"]])
        raise AttributeError(f"this answer has no {name!r}; it has {known}")

    def __dir__(self) -> list[str]:
        return sorted({*super().__dir__(), *self.inputs, *self.results})

    @property
    def test(self) -> str:
        """The name of the test, such as ``two-means``."""
        return self._test

    @property
    def question(self) -> str:
        """What was asked: ``power``, ``sample-size``, ``half-width`` or ``sample-size-for-half-width``."""
        return str(self._answer["question"])

    @property
    def inputs(self) -> dict[str, Any]:
        """All inputs by name, defaults included."""
        return dict(self._answer["inputs"])

    @property
    def results(self) -> dict[str, Any]:
        """All results by name."""
        return dict(self._answer["results"])

    @property
    def sentence(self) -> str:
        """The answer as a sentence for a protocol or a methods section."""
        return str(self._answer["sentence"])

    @property
    def note(self) -> str | None:
        """What the reader should be warned of, if anything."""
        return self._answer.get("note")

    @property
    def title(self) -> str:
        """The name of the test, for reading."""
        return _catalogue.find(self._test).title

    @property
    def references(self) -> tuple[str, ...]:
        """Where the method stands."""
        return tuple(_catalogue.find(self._test).raw["sources"])

    @property
    def version(self) -> str:
        """The release that answered."""
        return str(self._answer["version"])

    def replace(self, **changes: Any) -> Any:
        """Ask the same with some arguments changed.

        Parameters
        ----------
        **changes
            Arguments of the test. None takes one away, so that it may be solved for.

        Returns
        -------
        Result or Results
            The answer to the changed design.

        """
        from ._ask import answer

        kept = {name: value for name, value in self._given.items() if name not in changes}
        return answer(self._test, kept | {name: value for name, value in changes.items() if value is not None})

    def explain(self) -> Explanation:
        """What is behind the answer: figures, formula, source, and how other programs are asked the same."""
        reply = json.loads(_request.solve(self._test, self._given, explain=True, text=True))
        details = reply["details"]
        return Explanation(
            figures=details["figures"],
            formula=details["formula"],
            source=details["source"],
            programs=tuple(details.get("programs", ())),
            text=reply["text"],
        )

    def _in_words(self) -> dict[str, Any]:
        """The text and the calls, which are asked for once: the answer to an exact test may take long."""
        if self._words is None:
            words = json.loads(_request.solve(self._test, self._given, text=True, calls=True))
            object.__setattr__(self, "_words", words)
        assert self._words is not None
        return self._words

    def _call(self, language: str) -> str:
        call: str = self._in_words()["calls"][language]
        return call

    def command(self) -> str:
        """The command of the program that asks the same.

        Examples
        --------
        >>> import kelpower
        >>> kelpower.two_means(effect_d=0.5, power=0.8).command()
        'kelpower two-means --effect-d 0.5 --power 0.8'

        """
        return self._call("program")

    def densities(self) -> Densities | None:
        """The distributions of the test statistic without and with the effect, for a picture.

        Returns
        -------
        Densities or None
            Arrays, where the test rejects, and the areas there. None where no single statistic has the power as its
            area.

        """
        reply: dict[str, Any] = json.loads(_request.solve(self._test, self._given, densities=True))
        return densities_of(self.title, reply["densities"]) if reply["densities"] else None

    def curve(
        self,
        chart: str,
        *,
        start: float | Sequence[float] | None = None,
        stop: float | Sequence[float] | None = None,
        step: float | None = None,
        y: str | None = None,
    ) -> Curve | Surface:
        """The power, or for intervals the half-width, over a number of the design.

        Parameters
        ----------
        chart : str
            What it is drawn over, such as ``"n"``; two names with a hyphen between them make a surface.
        start, stop : float, or two of a surface, optional
            The range; without them the usual one.
        step : float, optional
            The distance of the points as a share of the range.
        y : {"n"}, optional
            Show the sizes that reach the target.

        Returns
        -------
        Curve or Surface
            The points as arrays.

        Examples
        --------
        >>> import kelpower
        >>> curve = kelpower.two_means(effect_d=0.5, power=0.8).curve("n")
        >>> curve.design.x, round(curve.design.power, 4)
        (64.0, 0.8015)

        """
        from ._curve import Curve, Surface, curve

        drawn = curve(self._test, self._given, chart, start=start, stop=stop, step=step, y=y)
        assert isinstance(drawn, (Curve, Surface))
        return drawn

    def plot(self, chart: str = "n", *, ax: Axes | None = None, **options: Any) -> Axes:
        """Draw a chart with matplotlib.

        Parameters
        ----------
        chart : str
            As in `curve`, or ``"densities"`` for the distributions of the test statistic.
        ax : matplotlib.axes.Axes, optional
            Where to draw; a new figure without it.
        **options
            As in `curve`.

        Returns
        -------
        matplotlib.axes.Axes
            What was drawn on.

        """
        from ._plot import draw, draw_densities

        if chart != "densities":
            return draw(self.curve(chart, **options), ax)
        if (densities := self.densities()) is None:
            raise InputError("No single statistic of this test has the power as its area.", {"parameter": "chart"})
        return draw_densities(densities, ax)

    def to_dict(self) -> dict[str, Any]:
        """Everything that the answer holds, with numbers, strings, lists and dictionaries alone."""
        reply: dict[str, Any] = json.loads(self._text)
        return reply

    def to_frame(self, engine: str = "pandas") -> Any:
        """The design as a frame of one row.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            A column for each number; sizes of several groups are ``n1``, ``n2``, ...

        """
        from ._frames import frame_of_columns

        integers = _catalogue.find(self._test).whole
        columns: dict[str, list[Any]] = {}
        whole: list[str] = []
        for name, value in {**self._answer["inputs"], **self._answer["results"]}.items():
            entries = (
                {f"{name}{i}": each for i, each in enumerate(value, 1)} if isinstance(value, tuple) else {name: value}
            )
            columns |= {column: [math.nan if each is None else each] for column, each in entries.items()}
            whole += entries if name in integers else []
        return frame_of_columns(columns, engine, whole)

    def _rows(self) -> list[tuple[str, str]]:
        """The rows of the program's table: a label, and what it stands before."""
        rows = [line.strip() for line in str(self).splitlines() if line.startswith("  ")]
        return [(label, value.strip()) for label, _, value in (row.partition("  ") for row in rows)]

    def _repr_html_(self) -> str:
        rows = "".join(
            f'<tr><th style="text-align:left">{html.escape(label)}</th><td>{html.escape(value)}</td></tr>'
            for label, value in self._rows()
        )
        return (
            f"<table><caption>{html.escape(self.title)}</caption><tbody>{rows}</tbody></table>"
            f"<p>{html.escape(self.sentence)}</p>"
        )

    def _repr_markdown_(self) -> str:
        lines = [f"| {label} | {value} |" for label, value in self._rows()]
        return "\n".join([f"**{self.title}**", "", "| | |", "|---|---:|", *lines, "", self.sentence])

    def __str__(self) -> str:
        text: str = self._in_words()["text"]
        return text.rstrip("\n")

    def __repr__(self) -> str:
        return self._call("python")

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Result):
            return NotImplemented
        return self._test == other._test and self._answer == other._answer

    def __hash__(self) -> int:
        answer = self._answer
        return hash((self._test, tuple(answer["inputs"].items()), tuple(answer["results"].items())))

    def __reduce__(self) -> tuple[Any, ...]:
        return Result, (self._test, dict(self._given), self._text)
