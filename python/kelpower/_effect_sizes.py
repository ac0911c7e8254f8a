"""Effect sizes from what a study reports."""

from __future__ import annotations

import html
import json
from collections.abc import Mapping
from dataclasses import dataclass
from typing import Any

from . import _catalogue, _core, _request
from ._catalogue import underscored

_LIMITS = ("_lower", "_upper")


@dataclass(frozen=True)
class Use:
    """How a function takes an effect size.

    Attributes
    ----------
    function : str
        The name of the function, such as ``two_means``.
    arguments : dict
        The effect size under the name of its argument.

    """

    function: str
    arguments: Mapping[str, Any]

    def ask(self, **further: Any) -> Any:
        """Ask the function with the effect size and further arguments, such as a power."""
        from ._ask import answer

        return answer(_catalogue.find(self.function).name, {**self.arguments, **further})

    def __str__(self) -> str:
        return f"kelpower.{self.function}({_arguments(self.arguments)})"


@dataclass(frozen=True)
class Formula:
    """How an effect size was computed, and where that stands."""

    formula: str
    source: str


class EffectSizes:
    """Effect sizes that follow from what a study reports: they and their limits are attributes, such as ``d_lower``.

    Examples
    --------
    >>> import kelpower
    >>> sizes = kelpower.effect(t=2.3, n=[20, 20])
    >>> round(sizes.d, 4)
    0.7273
    >>> [round(limit, 3) for limit in sizes.intervals["d"]]
    [0.082, 1.364]
    >>> sizes.uses[0].function
    'two_means'
    >>> sizes.uses[0].ask(power=0.8).total
    62

    """

    __slots__ = ("_given", "_reply", "_text")

    _given: Mapping[str, Any]
    _text: str
    _reply: dict[str, Any]

    def __init__(self, given: Mapping[str, Any], text: str) -> None:
        object.__setattr__(self, "_given", dict(given))
        object.__setattr__(self, "_text", text)
        object.__setattr__(self, "_reply", _read(text))

    def __setattr__(self, name: str, value: object) -> None:
        raise AttributeError(f"effect sizes do not change; replace({name}=...) converts something else")

    def __delattr__(self, name: str) -> None:
        raise AttributeError("effect sizes do not change")

    def __getattr__(self, name: str) -> Any:
        if name.startswith("_"):
            raise AttributeError(name)
        for part in ("results", "inputs"):
            if name in self._reply[part]:
                return self._reply[part][name]
        raise AttributeError(f"there is no {name!r}; there are {', '.join([*self.results, *self.inputs])}")

    def __dir__(self) -> list[str]:
        return sorted({*super().__dir__(), *self.inputs, *self.results})

    @property
    def inputs(self) -> dict[str, Any]:
        """What the study reports, and the confidence of the intervals."""
        return dict(self._reply["inputs"])

    @property
    def results(self) -> dict[str, float]:
        """All effect sizes and limits by name."""
        return dict(self._reply["results"])

    @property
    def intervals(self) -> dict[str, tuple[float, float]]:
        """The confidence intervals, where the size of the study is known."""
        results = self._reply["results"]
        low, high = _LIMITS
        return {name: (results[name + low], results[name + high]) for name in results if name + low in results}

    @property
    def uses(self) -> tuple[Use, ...]:
        """The functions that take one of these effect sizes, with it as argument."""
        words = self._reply["use"].split()
        return tuple(
            Use(underscored(use["test"]), {underscored(use["input"]): self._value_for(use["effects"])})
            for use in _all_uses()
            if use["test"] in words and f"--{use['input']}" in words and self._has(use["effects"])
        )

    def _has(self, effects: list[str]) -> bool:
        return all(underscored(name) in self._reply["results"] for name in effects)

    def _value_for(self, effects: list[str]) -> Any:
        values = tuple(self._reply["results"][underscored(name)] for name in effects)
        return values if len(values) > 1 else values[0]

    @property
    def sentence(self) -> str:
        """The main effect size as a sentence."""
        return str(self._reply["sentence"])

    @property
    def note(self) -> str | None:
        """What the reader should be warned of, if anything."""
        return self._reply.get("note")

    def explain(self) -> dict[str, Formula]:
        """The formula and source of each effect size."""
        details = json.loads(_converted(self._given, explain=True))["details"]
        return {name: Formula(each["formula"], each["source"]) for name, each in details.items()}

    def replace(self, **changes: Any) -> EffectSizes:
        """Convert the same with some arguments changed; None takes one away."""
        kept = {name: value for name, value in self._given.items() if name not in changes}
        return converted(kept | {name: value for name, value in changes.items() if value is not None})

    def command(self) -> str:
        """The command of the program that converts the same.

        Examples
        --------
        >>> import kelpower
        >>> kelpower.effect(means=[52, 47], sd=[10, 12], n=[20, 25]).command()
        'kelpower effect --means 52,47 --sd 10,12 --n 20,25'

        """
        words = []
        for name, value in self._given.items():
            plain = _request.plain(value)
            if plain is False:
                continue
            words.append("--" + name.replace("_", "-"))
            if plain is not True:
                words.append(",".join(map(_number, plain)) if isinstance(plain, list) else _number(plain))
        return " ".join(["kelpower effect", *words])

    def to_dict(self) -> dict[str, Any]:
        """Everything that the answer holds, with numbers, strings, lists and dictionaries alone."""
        reply: dict[str, Any] = json.loads(self._text)
        return reply

    def to_frame(self, engine: str = "pandas") -> Any:
        """The effect sizes as a frame, a row each.

        Parameters
        ----------
        engine : {"pandas", "polars", "arrow"}
            What kind of frame.

        Returns
        -------
        pandas.DataFrame, polars.DataFrame or pyarrow.Table
            ``effect`` (the name), ``label``, ``value``, ``lower`` and ``upper``, which are missing without an interval.

        """
        from ._frames import frame_of_columns

        intervals = self.intervals
        names = [name for name in self._reply["results"] if not name.endswith(_LIMITS)]
        missing = (float("nan"), float("nan"))
        columns = {
            "effect": names,
            "label": [_labels()[name] for name in names],
            "value": [self._reply["results"][name] for name in names],
            "lower": [intervals.get(name, missing)[0] for name in names],
            "upper": [intervals.get(name, missing)[1] for name in names],
        }
        return frame_of_columns(columns, engine)

    def _repr_html_(self) -> str:
        intervals = self.intervals
        rows = []
        for name, value in self._reply["results"].items():
            if name.endswith(_LIMITS):
                continue
            interval = "{:.4g} to {:.4g}".format(*intervals[name]) if name in intervals else ""
            label = html.escape(_labels()[name])
            rows.append(f'<tr><th style="text-align:left">{label}</th><td>{value:.4g}</td><td>{interval}</td></tr>')
        head = f"<caption>{html.escape(_catalogue.description()['effects']['title'])}</caption>"
        return f"<table>{head}<tbody>{''.join(rows)}</tbody></table><p>{html.escape(self.sentence)}</p>"

    def __str__(self) -> str:
        text: str = json.loads(_converted(self._given, text=True))["text"]
        return text.rstrip("\n")

    def __repr__(self) -> str:
        given = {name: _request.plain(value) for name, value in self._given.items()}
        return f"kelpower.effect({_arguments(given)})"

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, EffectSizes):
            return NotImplemented
        return self._reply == other._reply

    def __hash__(self) -> int:
        return hash((tuple(self._reply["inputs"].items()), tuple(self._reply["results"].items())))

    def __reduce__(self) -> tuple[Any, ...]:
        return EffectSizes, (dict(self._given), self._text)


def converted(given: Mapping[str, Any]) -> EffectSizes:
    """The effect sizes of arguments that are not defaults."""
    return EffectSizes(given, _converted(given))


def _converted(given: Mapping[str, Any], **members: Any) -> str:
    return _request.ask(_core.convert, None, given, **members)


def _read(text: str) -> dict[str, Any]:
    """The reply with what is no number apart from the results."""
    reply: dict[str, Any] = json.loads(text)
    reply["inputs"] = {
        name: tuple(value) if isinstance(value, list) else value for name, value in reply["inputs"].items()
    }
    reply["use"] = reply["results"].pop("use", "")
    reply["results"] = {name: float(value) for name, value in reply["results"].items()}
    return reply


def _all_uses() -> list[Mapping[str, Any]]:
    conversions = _catalogue.description()["effects"]["conversions"]
    found = {(use["test"], use["input"], *use["effects"]): use for each in conversions for use in each["uses"]}
    return list(found.values())


def _labels() -> dict[str, str]:
    return {underscored(each["name"]): each["label"] for each in _catalogue.description()["effects"]["effect-sizes"]}


def _number(value: Any) -> str:
    """A number as the program takes it: whole ones without a decimal point."""
    return repr(value).removesuffix(".0")


def _arguments(values: Mapping[str, Any]) -> str:
    return ", ".join(f"{name}={value!r}" for name, value in values.items())
