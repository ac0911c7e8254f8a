"""The way from the arguments of a function to its answer."""

from __future__ import annotations

from collections.abc import Callable, Mapping
from typing import Any, TypeVar

from . import _catalogue, _request
from ._many import Many, is_many
from ._result import Result
from ._results import Results

Function = TypeVar("Function", bound=Callable[..., Any])

# The defaults of each function, which are not sent: what excludes what is decided by what a user gives.
_defaults: dict[str, Mapping[str, Any]] = {}


def question(test: str) -> Callable[[Function], Function]:
    """Mark the function that asks about a test."""

    def remember(function: Function) -> Function:
        _defaults[test] = function.__kwdefaults__ or {}
        return function

    return remember


def asked(test: str, values: Mapping[str, Any]) -> Any:
    """The answer to the arguments of a function that are not its defaults."""
    defaults = _defaults[test]
    return answer(test, {name: value for name, value in values.items() if value is not defaults[name]})


def answer(test: str, given: Mapping[str, Any]) -> Any:
    """A `Result`, or `Results` where an argument has several values."""
    for value in given.values():
        if type(value) not in _request.PLAIN:
            return _answer_to_lists(test, given)
    return Result(test, given, _request.solve(test, given))


def _answer_to_lists(test: str, given: Mapping[str, Any]) -> Any:
    parameters = _catalogue.find(test).parameters
    if any(name in parameters and is_many(parameters[name], value) for name, value in given.items()):
        return Results(Many(test, given))
    plain = {name: _request.plain(value) for name, value in given.items()}
    return Result(test, plain, _request.solve(test, plain))
