"""What the core says of its tests, as the package needs it."""

from __future__ import annotations

import functools
import json
from collections.abc import Mapping
from dataclasses import dataclass
from typing import Any

from . import _core

# What an answer calls the arguments that say what a design is to reach; what it reaches has the plain names.
TARGETS = {"power": "target_power", "half_width": "target_half_width", "assurance": "target_assurance"}


def underscored(name: str) -> str:
    """The name of a test, an input or a result as Python spells it."""
    return name.replace("-", "_")


@dataclass(frozen=True)
class Parameter:
    """An input of a test."""

    name: str
    kind: str
    label: str
    spreads: bool
    whole: bool

    @property
    def is_list(self) -> bool:
        """Whether it has several entries, such as one for each group."""
        return self.kind in ("list", "per-group")

    @property
    def is_number(self) -> bool:
        """Whether it is a single number."""
        return self.kind == "number"


@dataclass(frozen=True)
class Test:
    """A test with its inputs by name; `whole` are its integers, and `raw` is its whole description."""

    name: str
    title: str
    groups: int | None
    parameters: Mapping[str, Parameter]
    labels: Mapping[str, str]
    sizes: frozenset[str]
    whole: frozenset[str]
    raw: Mapping[str, Any]

    @property
    def function(self) -> str:
        """The name of its function in this package."""
        return underscored(self.name)


def _parameter(raw: Mapping[str, Any]) -> Parameter:
    return Parameter(
        name=underscored(raw["name"]),
        kind=raw["kind"],
        label=raw["label"],
        spreads=raw.get("spreads", False),
        whole=raw["limits"].get("whole", False),
    )


def _test(raw: Mapping[str, Any]) -> Test:
    results = [result for route in raw["routes"] for result in route["results"]]
    parameters = {parameter.name: parameter for parameter in map(_parameter, raw["parameters"])}
    labels = {name: parameter.label for name, parameter in parameters.items()}
    labels |= {target: target.replace("_", " ").replace("half ", "half-") for target in TARGETS.values()}
    # The label of the plainest question, which comes first.
    labels |= {underscored(result["name"]): result["label"] for result in reversed(results)}
    sizes = frozenset(underscored(result["name"]) for result in results if result["kind"] in ("size", "sizes"))
    return Test(
        name=raw["name"],
        title=raw["title"],
        groups=raw["groups"] if isinstance(raw["groups"], int) else None,
        parameters=parameters,
        labels=labels,
        sizes=sizes,
        whole=sizes | {name for name, parameter in parameters.items() if parameter.whole},
        raw=raw,
    )


@functools.cache
def description() -> Mapping[str, Any]:
    """The whole description: tests and conversions of effect sizes."""
    described: Mapping[str, Any] = json.loads(_core.describe())
    return described


@functools.cache
def tests() -> Mapping[str, Test]:
    """All tests by the names of their functions."""
    return {underscored(raw["name"]): _test(raw) for raw in description()["tests"]}


def find(test: object) -> Test:
    """The test that a name such as "two-means" or a function of this package stands for."""
    name = underscored(test if isinstance(test, str) else getattr(test, "__name__", str(test)))
    if name not in tests():
        raise ValueError(f"{name!r} is not a test; there are {', '.join(sorted(tests()))}")
    return tests()[name]
