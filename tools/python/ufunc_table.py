"""The ufuncs of the Python package: one for each question and form of the effect, from the descriptions of the tests."""

from dataclasses import dataclass, field

HEADER = '"""The ufuncs of all questions. Written by tools/python/write.py from the descriptions of the tests."""\n'

BEFORE_THE_STUDY = {"comparisons", "dropout", "cluster-size", "icc", "cluster-cv", "effect-sd", "population", "assurance"}

# How a question is asked besides the inputs of its route, and what its answers are called.
WORDS = {"power": "power", "sample-size": "n", "half-width": "half_width",
         "sample-size-for-half-width": "n_for_half_width"}
TARGETS = {"sample-size": "power", "sample-size-for-half-width": "half-width"}

# Inputs that tell a hypothesis and no form of the effect. A margin comes with a flag, which names it.
OF_HYPOTHESES = {"margin", "equivalence"}


def underscored(name):
    return name.replace("-", "_")


@dataclass
class Argument:
    """An argument: the input, the entry of a list that it is (-1 for none), or whether it is the whole list."""

    name: str
    input: str
    entry: int = -1
    is_list: bool = False


@dataclass
class Ufunc:
    """A ufunc: what it asks, what varies, and what it gives."""

    name: str
    test: str
    arguments: list
    outputs: list  # (name of the result, entry, whether it is a list)
    inputs: dict = field(default_factory=dict)

    @property
    def signature(self):
        if not any(argument.is_list for argument in self.arguments):
            return ""
        shapes = ["(k)" if argument.is_list else "()" for argument in self.arguments]
        results = ["(k)" if is_list else "()" for _, _, is_list in self.outputs]
        return ",".join(shapes) + "->" + ",".join(results)


def singular(name):
    return name[:-1] if name.endswith("s") else name


def arguments_of(test, parameter):
    """A list is an argument for each of its entries where their number is known."""
    name = underscored(parameter["name"])
    if parameter["kind"] == "number":
        return [Argument(name, name)]
    length = parameter.get("length", test["groups"])
    if not isinstance(length, int):
        return [Argument(name, name, is_list=True)]
    return [Argument(f"{singular(name)}{entry + 1}", name, entry) for entry in range(length)]


def parameter_of(test, name):
    return next(each for each in test["parameters"] if each["name"] == name)


def has_ufunc(test, route):
    """Whether what a route needs are numbers, and lists with one for each group: a ufunc has one dimension of groups."""
    needed = [parameter_of(test, name) for name in route["needs"]]
    tables = [each for each in needed if each["kind"] == "list" and "length" not in each]
    return not tables and not any(each.get("role") == "shape" for each in needed)


def columns_of(test, route, unknown=None):
    """The arguments of a route, those of the effect first, and the flags that it needs."""
    needed = [parameter_of(test, name) for name in route["needs"] if name != unknown]
    arguments = [each for parameter in needed if parameter["kind"] not in ("flag", "choice")
                 for each in arguments_of(test, parameter)]
    target = TARGETS.get(route["question"], "power" if unknown else None)
    if target:
        arguments += arguments_of(test, parameter_of(test, target))
    for name in route["accepts"]:
        parameter = parameter_of(test, name)
        if name == "ratios" or (parameter["kind"] == "number" and "default" in parameter
                                and name not in BEFORE_THE_STUDY | {unknown}):
            arguments += arguments_of(test, parameter)
    flags = [parameter["name"] for parameter in needed if parameter["kind"] == "flag"]
    return [*arguments, Argument("alpha", "alpha")], flags


def outputs_of(test, route):
    if route["question"] in ("power", "half-width"):
        return [(WORDS[route["question"]], 0, False)]
    if test["groups"] == "k":
        return [("n", 0, True)]
    return [("n", entry, False) for entry in range(test["groups"])]


def form_of(arguments, primary):
    """The input that tells a form of the effect from the first one."""
    known = {argument.name for argument in primary}
    forms = [argument.input for argument in arguments
             if argument.name not in known and argument.input not in OF_HYPOTHESES]
    return f"_of_{forms[0]}" if forms else ""


def hypothesis_of(arguments, flags):
    names = [*flags, *(["equivalence"] if any(each.input == "equivalence" for each in arguments) else [])]
    return "".join(f"_{underscored(name)}" for name in names)


def of_question(test, question):
    routes = [(route, *columns_of(test, route)) for route in test["routes"]
              if route["question"] == question and has_ufunc(test, route)]
    primary = min((arguments for _, arguments, flags in routes), key=len, default=[])
    found = {}
    for route, arguments, flags in routes:
        inputs = {underscored(flag): True for flag in flags}
        if question == "half-width":
            inputs["interval"] = True
        suffix = form_of(arguments, primary) + hypothesis_of(arguments, flags)
        name = f"{underscored(test['name'])}_{{}}{suffix}"
        taken = {tuple(each.name for each in other.arguments) for other in found.values() if other.inputs == inputs}
        if tuple(argument.name for argument in arguments) in taken:
            continue
        asked = Ufunc(name.format(WORDS[question]), test["name"], arguments, outputs_of(test, route), inputs)
        found.setdefault(asked.name, asked)
        if question == "sample-size" and test["groups"] != 1:
            total = Ufunc(name.format("total"), test["name"], arguments, [("total", 0, False)], inputs)
            found.setdefault(total.name, total)
    return list(found.values())


def of_unknown(test, unknown):
    """The ufuncs that give the number with which a design has a power: one for each hypothesis."""
    name = unknown["name"]
    if unknown["target"] != "power" or name == "alpha" or parameter_of(test, name)["kind"] != "number":
        return []
    found = {}
    for route in test["routes"]:
        if route["question"] != "power" or name not in route["needs"] or "exact" in route["needs"]:
            continue
        if not has_ufunc(test, route):
            continue
        arguments, flags = columns_of(test, route, name)
        inputs = {underscored(flag): True for flag in flags} | {"solve": name}
        suffix = hypothesis_of(arguments, flags)
        asked = Ufunc(f"{underscored(test['name'])}_{underscored(name)}{suffix}", test["name"], arguments,
                      [(underscored(name), 0, False)], inputs)
        found.setdefault(asked.name, asked)
    return list(found.values())


def of_test(test):
    found = [each for question in WORDS for each in of_question(test, question)]
    return found + [each for unknown in test["unknowns"] for each in of_unknown(test, unknown)]


def entry_of(ufunc):
    arguments = tuple((each.name, each.input, each.entry, each.is_list) for each in ufunc.arguments)
    return (f'    "{ufunc.name}": Question("{ufunc.test}", {ufunc.inputs!r}, {arguments!r}, '
            f"{tuple(ufunc.outputs)!r}, \"{ufunc.signature}\"),").replace("'", '"')


def module(tests):
    entries = [entry_of(ufunc) for test in tests for ufunc in of_test(test)]
    return "\n".join([HEADER, "# ruff: noqa: E501", "from __future__ import annotations", "",
                      "from ._ufunc import Question", "", "TABLE: dict[str, Question] = {", *entries, "}"]) + "\n"


def stub(tests):
    names = [ufunc.name for test in tests for ufunc in of_test(test)]
    exported = [f'    "{name}",' for name in sorted(names)]
    return "\n".join(["import numpy as np", "", "__all__ = [", *exported, "]", "",
                      *(f"{name}: np.ufunc" for name in names)]) + "\n"
