"""How the ufuncs of the planner are made."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any, NamedTuple

import numpy as np

from . import _catalogue, _core, _request
from ._rows import place


class Question(NamedTuple):
    """What a ufunc asks of each element.

    An argument is its name, the input, the entry of a list that it is (-1 for none), and whether it is a whole list. An
    output is the name of a result, its entry, and whether it is a list.
    """

    test: str
    inputs: dict[str, Any]
    arguments: tuple[tuple[str, str, int, bool], ...]
    outputs: tuple[tuple[str, int, bool], ...]
    signature: str = ""


def _doc(question: Question) -> str:
    test = _catalogue.find(question.test)
    arguments = ", ".join(name for name, *_ in question.arguments)
    labels = [test.labels.get(name, name) for name, *_ in question.outputs]
    lines = [f"{test.title}: {', '.join(dict.fromkeys(labels))}.", "", f"Arguments: {arguments}."]
    lines += [f"{name}: {test.labels[given]}" + (f", number {entry + 1}" if entry >= 0 else "")
              for name, given, entry, _ in question.arguments]  # fmt: skip
    given = ", ".join(f"{name}={value!r}" for name, value in question.inputs.items())
    lines += [f"Held fixed: {given}."] if given else []
    lines += ["", "NaN where there is no answer, with NumPy's warning of an invalid value."]
    return "\n".join(lines)


def make(name: str, question: Question) -> np.ufunc:
    """The ufunc of a question."""
    request = {"test": question.test, "names": "underscore", "inputs": question.inputs}
    arguments = tuple((given, entry, is_list) for _, given, entry, is_list in question.arguments)
    encoded = _request.encoded(request).decode()
    return _core.question_ufunc(name, _doc(question), question.signature, encoded, arguments, question.outputs)


def _argument(test: _catalogue.Test, name: str) -> tuple[str, str, int, bool]:
    """An argument by its name: an input, or an entry of a list such as ``n1``."""
    found = place(test, name)
    if found is None:
        raise ValueError(f"{name!r} is no input of {test.name}; there are {', '.join(test.parameters)}")
    parameter, entry = found
    return name, parameter.name, -1 if entry is None else entry, False


def _results(test: _catalogue.Test, inputs: Mapping[str, Any], arguments: Any) -> list[dict[str, Any]]:
    columns = [given if entry < 0 else {"name": given, "entry": entry} for _, given, entry, _ in arguments]
    reply, _ = _request.prepare(test.name, inputs, columns)
    results: list[dict[str, Any]] = reply["results"]
    return results


def ufunc(test: object, *arguments: str, result: str | None = None, **fixed: Any) -> np.ufunc:
    """Make a NumPy ufunc of a question to the planner.

    Parameters
    ----------
    test : str or function
        The test, such as ``"two-means"`` or `two_means`.
    *arguments : str
        The inputs that vary, in the order of the ufunc's arguments. ``n1`` is the first entry of ``n``; ``n`` itself is
        one number for all groups.
    result : str, optional
        What the ufunc gives; without it the last result, which is the power or half-width, or for sizes ``n``.
    **fixed
        The inputs that are the same for all elements.

    Returns
    -------
    numpy.ufunc
        It takes and gives doubles. An element without an answer is NaN, with NumPy's warning of an invalid value.

    Raises
    ------
    InputError
        The inputs do not make a question.
    ValueError
        A name is unknown.

    Examples
    --------
    >>> import kelpower
    >>> power = kelpower.ufunc("two-means", "effect_d", "n", one_sided=True)
    >>> power([0.2, 0.5], 50).round(4)
    array([0.2573, 0.7989])

    """
    asked = _catalogue.find(test)
    given = tuple(_argument(asked, name) for name in arguments)
    inputs = {name: _request.plain(value) for name, value in fixed.items()}
    results = _results(asked, inputs, given)
    names = [each["name"] for each in results]
    wanted = result or ("n" if "n" in names else names[-1])
    if wanted not in names:
        raise ValueError(f"{wanted!r} is no result of this question; there are {', '.join(dict.fromkeys(names))}")
    outputs = tuple((wanted, each.get("entry", 0), False) for each in results if each["name"] == wanted)
    return make(f"{asked.function}_{wanted}", Question(asked.name, inputs, given, outputs))
