"""The function of the Python package that converts effect sizes, as text, from its description."""

import json

from functions import call_of, default_of, paragraph, underscored, with_names
from kelpower import _core

HEADER = '"""The function that converts effect sizes. Written by tools/python/write.py from their description."""\n'


def allowed(parameter):
    """What the core says that an input may be."""
    request = {"names": "underscore", "inputs": {parameter["name"]: "?"}}
    _, answer = _core.convert(json.dumps(request).encode())
    return json.loads(answer)["error"]["allowed"]


def type_of(parameter):
    if parameter["kind"] == "flag":
        return "bool"
    number = "float" if "default" in parameter else "float | None"
    if parameter["kind"] == "number":
        return number
    return "Floats | None" if "length" in parameter else "float | Floats | None"


def signature(effects):
    parameters = [f"    {underscored(each['name'])}: {type_of(each)} = {default_of(each)},"
                  for each in effects["parameters"]]
    return "\n".join(["def effect(", "    *,", *parameters, ") -> EffectSizes:"])


def parameter_lines(parameter):
    words = {"number": "float", "flag": "bool", "list": "array_like"}[parameter["kind"]]
    default = f", default {default_of(parameter)}" if "default" in parameter else ", optional"
    meaning = with_names(parameter["meaning"])
    # Statistics such as t keep their letter.
    text = (meaning if meaning[1] == " " else meaning[0].upper() + meaning[1:]) + "."
    if parameter["kind"] != "flag":
        text += f" {allowed(parameter)[0].upper()}{allowed(parameter)[1:]}."
    return [paragraph(f"{underscored(parameter['name'])} : {words}{default}"), paragraph(text, 8)]


def conversion_lines(effects):
    """What is given together, and what it gives, by the title of the conversion."""
    groups = {}
    for each in effects["conversions"]:
        needs = " and ".join(f"``{underscored(name)}``" for name in each["needs"])
        further = [f"``{underscored(name)}``" for name in each["accepts"]]
        groups.setdefault(each["title"], []).append(needs + (f" (with {', '.join(further)})" if further else ""))
    return [paragraph(f"{title}: {'; or '.join(needs)}.", 6, "    - ") for title, needs in groups.items()]


def docstring(effects):
    lines = ['    """Convert what a study reports into effect sizes.', ""]
    lines += [paragraph("What is given decides what is converted; these go together:"), ""]
    lines += [*conversion_lines(effects), "", "    Parameters", "    ----------"]
    for parameter in effects["parameters"]:
        lines += parameter_lines(parameter)
    names = "; ".join(f"``{underscored(each['name'])}`` ({each['label']})" for each in effects["effect-sizes"])
    lines += ["", "    Returns", "    -------", "    EffectSizes",
              paragraph("The effect sizes that follow, as attributes, with ``_lower`` and ``_upper`` where the interval is "
                        f"known: {names}.", 8)]
    lines += ["", "    Raises", "    ------", "    InputError",
              "        An argument is wrong, or arguments do not go together.", "    NoSolution",
              "        The effect size cannot be computed."]
    lines += ["", "    Examples", "    --------", "    >>> import kelpower"]
    for example in effects["examples"]:
        call = call_of({"name": "effect"}, example["inputs"])
        lines += [f"    >>> {call}.sentence", f"    {example['sentence']!r}"]
    return "\n".join([*lines, "", '    """'])


def module(effects):
    imports = ("from __future__ import annotations\n\nfrom collections.abc import Sequence\nfrom typing import Any\n\n"
               "from numpy.typing import NDArray\n\nfrom ._effect_sizes import EffectSizes, converted\n")
    body = ("    given = locals()\n    defaults = effect.__kwdefaults__ or {}\n"
            "    return converted({name: value for name, value in given.items() if value is not defaults[name]})")
    return (f"{HEADER}\n# ruff: noqa: E501\n{imports}\nFloats = Sequence[float] | NDArray[Any]\n\n\n"
            f"{signature(effects)}\n{docstring(effects)}\n{body}\n")
