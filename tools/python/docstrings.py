"""Docstrings in NumPy's form, of what the header says."""

import itertools
import keyword
import operator
import re
import textwrap
from dataclasses import dataclass

from header import Function, Parameter

# Parameters that Python has no use for: vectors are returned, and Ctrl-C ends a call.
LEFT_OUT = {"StopRequest*", "DoubleVector&", "constvoid*"}
STOP = "StopRequest*"
ARRAYS = {"constdouble*", "double*"}
REPAIRED = "double*"
RECORDS = {"XYPlot", "XYZPlot"}
WIDTH = 79

# What ends a call. The exact tests that are quick without it are not asked.
QUICK = "The call is made without `cancel`: it is quick at all but the largest sizes."
OF_CONDITIONAL = "Ctrl-C ends the exact conditional test, the one that takes long; others are made without `cancel`."
OF_STOP = {
    "PowerIndSampBinom": OF_CONDITIONAL,
    "PowerReverseIndSampBinom": OF_CONDITIONAL,
    "PowerOneSampBinom": QUICK,
    "PowerReverseOneSampBinom": QUICK,
    "PowerbyPRelSampBionm": QUICK,
    "PowerReversebyPRelSampBionm": QUICK,
    "PowerReversebyMargPRelSampBionm": QUICK,
}

# What an export answers, by the beginning of its name, where its comment needs no words for it.
ANSWERS = {
    "PowerReverse": "The size.",
    "Power": "The power.",
    "HalfCI": "The half-width.",
    "EffectSize": "The effect size.",
    "RMSSE": "The effect size.",
    "SampleSizeTotal": "The size.",
}

# What the header says of vectors that the caller brings.
OF_VECTORS = [
    r"\s*Appends to what is in `results`\.",
    r"\s*Does nothing when `results` is not empty\.",
    r"\s*Earlier content of `sampleSizes` is discarded\.",
    r" in `results`",
]


def python_name(name: str) -> str:
    return name + "_" * keyword.iskeyword(name)


@dataclass
class Documented:
    """An export as Python sees it."""

    function: Function
    previous: str  # the export before it, which texts may refer to
    same_as: str  # the export that "The same" refers to

    @property
    def name(self) -> str:
        return self.function.name

    @property
    def parameters(self) -> list[Parameter]:
        return [Parameter(python_name(parameter.name), parameter.type)
                for parameter in self.function.parameters if parameter.type not in LEFT_OUT]

    @property
    def types(self) -> set[str]:
        return {parameter.type for parameter in self.function.parameters}

    @property
    def is_release(self) -> bool:
        return self.name.startswith("FreeMem")

    @property
    def is_ufunc(self) -> bool:
        return not (self.types & ARRAYS or self.function.result in RECORDS or self.is_release)

    @property
    def outputs(self) -> int:
        return 2 if self.function.result == "void" else 1

    @property
    def repairs(self) -> bool:
        return REPAIRED in self.types

    @property
    def gives_sizes(self) -> bool:
        return "DoubleVector&" in self.types and not self.is_ufunc


def documented(functions: list[Function]) -> list[Documented]:
    found = []
    previous = same_as = ""
    for function in functions:
        if not is_same(function):
            same_as = function.name
        found.append(Documented(function, previous, same_as))
        previous = function.name
    return found


def is_same(function: Function) -> bool:
    return function.text[0].startswith("The same")


def code(text: str) -> str:
    """Names in the form of docstrings."""
    return re.sub(r"`([^`]+)`", r"``\1``", text)


def sentence(text: str) -> str:
    """The text as one that stands alone."""
    text = text.strip()
    if re.match(r"[a-z]{2,}\b(?!\()", text):  # no symbol or formula
        text = text[0].upper() + text[1:]
    return text if text.endswith(".") else text + "."


def without_vectors(text: str) -> str:
    for pattern in OF_VECTORS:
        text = re.sub(pattern, "", text)
    return text


def summary_and_rest(export: Documented) -> tuple[str, list[str]]:
    first = without_vectors(export.function.text[0])
    if is_same(export.function):
        first = first.replace("The same", f"The same as `{export.same_as}`", 1)
    match = re.match(r"(.+?[.:])(?:\s+(?=[A-Z0-9])|$)(.*)", first)
    assert match, first
    rest = [match[2]] if match[2] else []
    return sentence(match[1].rstrip(":")), rest + [without_vectors(text) for text in export.function.text[1:]]


def filled(text: str, indent: str = "") -> str:
    return textwrap.fill(code(text), WIDTH, initial_indent=indent, subsequent_indent=indent,
                         break_on_hyphens=False, break_long_words=False)


def section(title: str, body: str) -> str:
    return f"{title}\n{'-' * len(title)}\n{body}\n"


def type_words(parameter: Parameter, is_ufunc: bool) -> str:
    if parameter.type in ARRAYS:
        return "array_like of float"
    word = "float" if parameter.type == "double" else "int"
    return f"{word} or array_like" if is_ufunc else word


def description_of(export: Documented, parameter: Parameter) -> str:
    function = export.function
    name = parameter.name.rstrip("_")
    return sentence(function.own.get(name) or function.section.parameters[name])


def parameters_text(export: Documented) -> str:
    parts = []
    described = [(f"{type_words(parameter, export.is_ufunc)}\n{filled(description_of(export, parameter), '    ')}",
                  parameter.name) for parameter in export.parameters]
    for text, together in itertools.groupby(described, key=operator.itemgetter(0)):
        parts.append(f"{', '.join(name for _, name in together)} : {text}")
    if export.repairs:
        parts.append("repaired : ndarray, optional\n" + filled(
            "Contiguous array of doubles, one a group, that receives the coefficients as the function left them. "
            "The sequence that was passed is never changed.", "    "))
    return "\n".join(parts)


def returns_text(export: Documented) -> str:
    function = export.function
    if function.result in RECORDS:
        fields = "`x` and `y`" if function.result == "XYPlot" else "`x`, `y` and `z`, the last of the shape (len(x), len(y))"
        return f"{function.result}\n" + filled(f"The arrays {fields}; empty ones for invalid input.", "    ")
    if export.gives_sizes:
        return "Sizes\n" + filled("The total size `total` and the array `groupSizes`.", "    ")
    if export.outputs == 2:
        return "sampleSize1, sampleSize2 : float or ndarray\n" + filled(
            "The sizes of the two groups, both `kelpower.MISSING` where there are none.", "    ")
    kind = "float or ndarray" if export.is_ufunc else "float"
    text = function.returns or next(words for prefix, words in ANSWERS.items() if export.name.startswith(prefix))
    return f"{kind}\n" + filled(sentence(text), "    ")


def notes_and_sources(export: Documented, rest: list[str]) -> tuple[list[str], list[str]]:
    """Remarks of the function and of its section, and where its method is from."""
    texts, sources = list(rest), []
    if STOP in export.types:
        texts.append(OF_STOP.get(export.name, "Ctrl-C ends the call; it takes the part of `cancel` in C++."))
    for remark in export.function.section.remarks:
        said, _, source = re.split(r"(Methods?(?: and sources)?: )", remark, maxsplit=1)
        texts.append(without_vectors(said.strip()))
        sources.append(source)
    if texts and re.search(r"\bmissing\b", " ".join(texts)):
        texts.append("Missing is `kelpower.MISSING`.")
    return texts, sources


def section_of_paragraphs(title: str, texts: list[str]) -> str:
    return section(title, "\n\n".join(filled(text) for text in texts)) if texts else ""


def docstring_of_release(export: Documented) -> str:
    kind = export.parameters[0].type.rstrip("*")
    return "\n".join([
        "Does nothing: the arrays of a record belong to Python, which releases them.", "",
        section("Parameters", f"record : {kind}\n    A record that a function returned.")])


def docstring(export: Documented) -> str:
    if export.is_release:
        return docstring_of_release(export)
    summary, rest = summary_and_rest(export)
    texts, sources = notes_and_sources(export, rest)
    parts = [filled(summary)]
    if export.is_ufunc:
        names = ", ".join(parameter.name for parameter in export.parameters)
        parts.append(filled(f"The arguments are `{names}`, in this order."))
    parts.append(section("Parameters", parameters_text(export)))
    parts.append(section("Returns", returns_text(export)))
    if re.search(r"\b(that (test|interval)|the same (as|for)|as above)\b", " ".join([summary, *rest]), re.I):
        parts.append(section("See Also", export.previous))
    parts += [section_of_paragraphs("Notes", texts), section_of_paragraphs("References", sources)]
    return "\n\n".join(part.rstrip("\n") for part in parts if part) + "\n"
