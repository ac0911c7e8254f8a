"""The functions of the Python package as text: a signature and a docstring for each test, from its description."""

import json
import re
import textwrap

from kelpower import _core

WIDTH = 120

HEADER = '"""One function for each test. Written by tools/python/write.py from the descriptions of the tests."""\n'

QUESTIONS = {
    "power": "power of a design",
    "sample-size": "sample size for a power",
    "half-width": "half-width of the confidence interval of a design",
    "sample-size-for-half-width": "sample size for a half-width",
}


def underscored(name):
    return name.replace("-", "_")


def default_of(parameter):
    """The default as Python source."""
    return repr(parameter.get("default"))


def with_names(text):
    """A text whose names in braces are those of arguments."""
    return re.sub(r"\{([^}]*)\}", lambda name: f"`{underscored(name[1])}`", text)


def allowed(test, parameter):
    """What the core says that an input may be."""
    request = {"test": test["name"], "names": "underscore", "inputs": {parameter["name"]: "?"}}
    _, answer = _core.solve(json.dumps(request).encode())
    return json.loads(answer)["error"]["allowed"]


def type_in_words(parameter):
    kind = parameter["kind"]
    if kind == "choice":
        return "{" + ", ".join(f'"{underscored(choice)}"' if parameter["name"] == "solve" else f'"{choice}"'
                               for choice in parameter["choices"]) + "}"
    return {"number": "array_like of float", "flag": "bool", "per-group": "array_like", "list": "array_like"}[kind]


def paragraph(text, indent=4, first=None):
    pad = " " * indent
    return textwrap.fill(text, WIDTH, initial_indent=pad if first is None else first, subsequent_indent=pad)


def parameter_lines(test, parameter):
    name = underscored(parameter["name"])
    default = f", default {default_of(parameter)}" if "default" in parameter else ", optional"
    meaning = with_names(parameter["meaning"])
    text = meaning[0].upper() + meaning[1:] + "."
    if parameter["kind"] == "number" or parameter["kind"] in ("list", "per-group"):
        text += f" {allowed(test, parameter)[0].upper()}{allowed(test, parameter)[1:]}."
    if parameter["kind"] == "choice":
        wordings = [f"``{word}``: {said}" for word, said in parameter["wordings"].items() if word != said]
        text += f" {'; '.join(wordings)}." if wordings else ""
    return [paragraph(f"{name} : {type_in_words(parameter)}{default}"), paragraph(text, 8)]


def result_names(test):
    results = {}
    for route in test["routes"]:
        for result in route["results"]:
            results.setdefault(underscored(result["name"]), result["label"])
    return results


def call_of(test, inputs):
    return f"kelpower.{underscored(test['name'])}(" + ", ".join(
        f"{underscored(name)}={value!r}" for name, value in unwrapped(inputs).items()) + ")"


def unwrapped(inputs):
    """Lists of one number as the number, which is how people write them."""
    return {name: value[0] if isinstance(value, list) and len(value) == 1 else value for name, value in inputs.items()}


def example_lines(test, example):
    """A doctest of the figure that was asked for."""
    call = call_of(test, example["inputs"])
    request = {"test": test["name"], "names": "underscore", "inputs": example["inputs"]}
    reply = json.loads(_core.solve(json.dumps(request).encode())[1])
    asked = {"power": "power", "half-width": "half_width"}.get(reply["question"], "n")
    figures = reply["results"]
    asked = next((name for name in (asked, "expected_power") if name in figures), next(iter(figures)))
    solved = next(iter(figures))
    if reply["question"] == "power" and "target_power" in reply["inputs"] and solved not in result_names(test):
        asked = solved
    value = figures[asked]
    shown = tuple(value) if isinstance(value, list) else value
    if isinstance(value, float):
        return [f"    >>> round({call}.{asked}, 4)", f"    {round(value, 4)!r}"]
    return [f"    >>> {call}.{asked}", f"    {shown!r}"]


def docstring(test):
    title, *about = test["title"] + ".", test["about"], test.get("when-not", "")
    questions = [QUESTIONS[each] for each in dict.fromkeys(route["question"] for route in test["routes"])]
    lines = [f'    """{title}', ""]
    lines += [line for text in about if text for line in (paragraph(text.replace("\n", " ")), "")]
    lines += [paragraph("What is left out is what is solved for: the " + ", the ".join(questions) +
                        ", or with the sizes and a target another number, such as the effect that is detected. "
                        "Numbers may be arrays, which are broadcast together; lists such as sizes of groups then have "
                        "their entries along the last axis."), ""]
    lines += ["    Parameters", "    ----------"]
    for parameter in test["parameters"]:
        lines += parameter_lines(test, parameter)
    lines += ["", "    Returns", "    -------", "    Result or Results",
              paragraph("The inputs and results as attributes; `Results` of arrays where an argument is one. Results "
                        "are, as far as the question has them: " +
                        "; ".join(f"``{name}`` ({label})" for name, label in result_names(test).items()) + ".", 8)]
    lines += ["", "    Raises", "    ------", "    InputError",
              "        An argument is wrong, or arguments do not go together.", "    NoSolution",
              "        The arguments are allowed, but the question has no answer."]
    lines += ["", "    References", "    ----------"]
    for i, source in enumerate(test["sources"], 1):
        lines.append(paragraph(source + ".", 7, f"    .. [{i}] "))
    lines += ["", "    Examples", "    --------", "    >>> import kelpower"]
    for example in test["examples"]:
        lines += example_lines(test, example)
    return "\n".join([*lines, "", '    """'])


def signature(test):
    parameters = [f"    {underscored(each['name'])}: Any = {default_of(each)}," for each in test["parameters"]]
    return "\n".join([f"def {underscored(test['name'])}(", "    *,", *parameters, ") -> Any:"])


def function(test):
    body = f'    return asked("{test["name"]}", locals())'
    return "\n".join([f'@question("{test["name"]}")', signature(test), docstring(test), body])


def exported(tests):
    return ", ".join(sorted(f'"{underscored(test["name"])}"' for test in tests))


def module(tests):
    names = exported(tests)
    imports = "from __future__ import annotations\n\nfrom typing import Any\n\nfrom ._ask import asked, question\n"
    functions = "\n\n\n".join(function(test) for test in tests)
    return f"{HEADER}\n# ruff: noqa: E501\n{imports}\n__all__ = [{names}]\n\n\n{functions}\n"


def scalar_type(test, parameter):
    kind = parameter["kind"]
    if kind == "flag":
        return "bool"
    if kind == "choice":
        words = [underscored(word) if parameter["name"] == "solve" else word for word in parameter["choices"]]
        optional = "" if "default" in parameter else " | None"
        return f"Literal[{', '.join(map(repr, words))}]{optional}".replace("'", '"')
    if kind == "number":
        return "float" if "default" in parameter else "float | None"
    return "float | _Floats | None" if parameter.get("spreads") else "_Floats | None"


def array_type(parameter):
    return {"flag": "ArrayLike", "choice": "ArrayLike | None"}.get(parameter["kind"], "ArrayLike | None")


def overload(test, type_of, returned):
    parameters = [f"    {underscored(each['name'])}: {type_of(each)} = {default_of(each)},".replace("'", '"')
                  for each in test["parameters"]]
    return "\n".join(["@overload", f"def {underscored(test['name'])}(", "    *,", *parameters,
                      f") -> {returned}: ..."])


def stub(tests):
    """Types: numbers give one answer, arrays give many."""
    lines = ["# ruff: noqa: E501", "from collections.abc import Sequence", "from typing import Any, Literal, overload", "",
             "from numpy.typing import ArrayLike, NDArray", "", "from ._result import Result",
             "from ._results import Results", "", "_Floats = Sequence[float] | NDArray[Any]", ""]
    names = exported(tests)
    lines += [f"__all__ = [{names}]", ""]
    for test in tests:
        lines.append(overload(test, lambda each, test=test: scalar_type(test, each), "Result"))
        lines.append(overload(test, array_type, "Results"))
    return "\n".join(lines) + "\n"
