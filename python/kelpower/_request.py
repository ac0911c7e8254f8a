"""Requests to the core, and how values of Python become those of a request."""

from __future__ import annotations

import json
import math
from collections.abc import Callable, Mapping
from typing import Any

import numpy as np

from . import _core
from ._errors import InputError, raise_for

Inputs = Mapping[str, Any]
Reply = dict[str, Any]

# What goes into a request as it is.
PLAIN = frozenset((float, int, bool, str, type(None)))


def plain(value: Any) -> Any:
    """A value as JSON knows it: arrays become lists, what is like a number becomes one."""
    if type(value) in PLAIN:
        return value
    if isinstance(value, (str, bytes)):
        return value if isinstance(value, str) else repr(value)
    if isinstance(value, (list, tuple)):
        return [plain(each) for each in value]
    if isinstance(value, np.floating):
        return float(value)
    if isinstance(value, (np.ndarray, np.generic)):
        return plain(value.tolist()) if value.dtype.kind in "biufUOS" else repr(value)
    if hasattr(value, "__array__"):
        return plain(np.asarray(value))
    if isinstance(value, complex):
        return repr(value)
    try:
        return float(value)
    except (TypeError, ValueError, OverflowError):
        return repr(value)


def _spelt(value: Any) -> Any:
    """A value without the numbers that JSON lacks, which stand as words and are refused by name."""
    if isinstance(value, float) and not math.isfinite(value):
        return repr(value)
    if isinstance(value, int) and not isinstance(value, bool) and abs(value) > 10**300:
        return "a number of more than 300 digits"
    return [_spelt(each) for each in value] if isinstance(value, list) else value


_encode = json.JSONEncoder(allow_nan=False, separators=(",", ":"), default=plain).encode


def encoded(request: Mapping[str, Any]) -> bytes:
    """A request as the core takes it."""
    try:
        return _encode(request).encode()
    except ValueError:
        return _encode(_in_words(request)).encode()


def _in_words(request: Mapping[str, Any]) -> dict[str, Any]:
    return {**request, "inputs": {name: _spelt(plain(value)) for name, value in request["inputs"].items()}}


def _raise(status: int, answer: str, request: Mapping[str, Any]) -> None:
    """Raise what the error of an answer stands for, unless only the JSON is at fault: then its inputs go in words."""
    problem = json.loads(answer)["error"]
    words = _in_words(request)
    if problem["kind"] != "request" or words == request:
        raise_for(status, problem)


def ask(door: Callable[[bytes], tuple[int, str]], test: str | None, inputs: Inputs, **members: Any) -> str:
    """The answer to a request as JSON. Raises what an error stands for."""
    request = {"names": "underscore", "inputs": inputs, **members}
    if test is not None:
        request["test"] = test
    status, answer = door(encoded(request))
    if status:
        _raise(status, answer, request)
        status, answer = door(encoded(_in_words(request)))
        raise_for(status, json.loads(answer)["error"])
    return answer


def solve(test: str, inputs: Inputs, **members: Any) -> str:
    """The answer to one design as JSON."""
    return ask(_core.solve, test, inputs, **members)


def prepare(test: str, inputs: Inputs, columns: list[Any]) -> tuple[Reply, object]:
    """What a prepared question answers, and its batch."""
    request = {"test": test, "names": "underscore", "inputs": inputs, "columns": columns}
    status, answer, batch = _core.prepare(encoded(request))
    reply: Reply = json.loads(answer)
    if status:
        raise_for(status, reply["error"])
    return reply, batch


__all__ = ["InputError", "Inputs", "Reply", "ask", "encoded", "plain", "prepare", "solve"]
