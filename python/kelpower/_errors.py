"""What can go wrong, as exceptions."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any, NoReturn

BAD_INPUT = 2
NO_SOLUTION = 3
NO_MEMORY = 4
STOPPED = 130


class KelpowerError(Exception):
    """Anything that the planner refuses or cannot answer."""


class InputError(KelpowerError, ValueError):
    """An argument is wrong, or arguments do not go together.

    Attributes
    ----------
    parameter : str or None
        The first of the arguments concerned.
    parameters : tuple of str
        All of them.
    value : object
        What was given, where a single value is at fault.
    allowed : str or None
        What may be given.
    code : str
        A word for the kind of error, which never changes.

    """

    def __init__(self, message: str, problem: Mapping[str, Any] | None = None) -> None:
        super().__init__(message)
        self._problem = dict(problem or {})

    @property
    def parameter(self) -> str | None:
        """The first of the arguments concerned."""
        return self._problem.get("parameter")

    @property
    def parameters(self) -> tuple[str, ...]:
        """All arguments concerned."""
        first = () if self.parameter is None else (self.parameter,)
        return tuple(self._problem.get("parameters", first))

    @property
    def value(self) -> Any:
        """What was given, where a single value is at fault."""
        return self._problem.get("value")

    @property
    def allowed(self) -> str | None:
        """What may be given."""
        return self._problem.get("allowed")

    @property
    def code(self) -> str:
        """A word for the kind of error, which never changes."""
        return str(self._problem.get("code", ""))

    def __reduce__(self) -> tuple[Any, ...]:
        return type(self), (str(self), self._problem)


class NoSolution(KelpowerError, ArithmeticError):
    """The arguments are allowed, but the question has no answer; the message says what was reached.

    Attributes
    ----------
    parameters : tuple of str
        The arguments concerned.
    code : str
        A word for the reason, which never changes.

    """

    def __init__(self, message: str, problem: Mapping[str, Any] | None = None) -> None:
        super().__init__(message)
        self._problem = dict(problem or {})

    @property
    def parameters(self) -> tuple[str, ...]:
        """The arguments concerned."""
        return tuple(self._problem.get("parameters", ()))

    @property
    def code(self) -> str:
        """A word for the reason, which never changes."""
        return str(self._problem.get("code", ""))

    def __reduce__(self) -> tuple[Any, ...]:
        return type(self), (str(self), self._problem)


class NoSolutionWarning(UserWarning):
    """Some of many designs have no answer."""


def raise_for(status: int, problem: Mapping[str, Any]) -> NoReturn:
    """Raise what an answer with an error stands for."""
    message = problem["message"]
    if status == BAD_INPUT:
        raise InputError(message, problem)
    if status == NO_SOLUTION:
        raise NoSolution(message, problem)
    if status == NO_MEMORY:
        raise MemoryError(message)
    raise KelpowerError(message)
