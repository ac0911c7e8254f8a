"""Reads the functions of a header with their comments."""

import re
from dataclasses import dataclass, field

RULE = re.compile(r"^// -{10,}$")


@dataclass
class Parameter:
    name: str
    type: str


@dataclass
class Section:
    """What the comment at the start of a section says of all its functions."""

    title: str
    parameters: dict[str, str] = field(default_factory=dict)
    remarks: list[str] = field(default_factory=list)


@dataclass
class Function:
    name: str
    result: str
    parameters: list[Parameter]
    text: list[str]  # paragraphs; the first is the summary
    own: dict[str, str]  # what the function's comment says of its parameters
    returns: str
    section: Section


def paragraphs(lines: list[str]) -> list[str]:
    """Text in lines, in which empty ones separate paragraphs."""
    found: list[list[str]] = [[]]
    for line in lines:
        if line.strip():
            found[-1].append(line.strip())
        elif found[-1]:
            found.append([])
    return [" ".join(part) for part in found if part]


def commands(lines: list[str]) -> tuple[list[str], dict[str, str], str]:
    """The text before the first command, the parameters by name, and the result."""
    text: list[str] = []
    parameters: dict[str, str] = {}
    returns = ""
    names: list[str] | None = None
    for line in lines:
        match = re.match(r"[\\@](param|return)\s+(.*)", line.strip())
        if match and match[1] == "param":
            listed, _, description = match[2].partition(" ")
            names = listed.split(",")
            parameters.update(dict.fromkeys(names, description))
        elif match:
            names, returns = [], match[2]
        elif names:
            parameters.update({name: f"{parameters[name]} {line.strip()}" for name in names})
        elif names is not None:
            returns += " " + line.strip()
        else:
            text.append(line)
    return text, parameters, returns


def read_section(lines: list[str], start: int) -> tuple[Section, int]:
    """The section whose title follows the rule in line `start`, and the line after its comment."""
    section = Section(lines[start + 1].removeprefix("//").strip())
    line = start + 3
    shared: list[str] = []
    remarks: list[str] = []
    while lines[line].startswith("//"):
        if lines[line].startswith("///"):
            shared.append(lines[line].removeprefix("///"))
        elif shared:  # what stands before it introduces it
            remarks.append(lines[line].removeprefix("//"))
        line += 1
    section.parameters = commands(shared)[1]
    section.remarks = paragraphs(remarks)
    return section, line


def read_parameters(text: str) -> list[Parameter]:
    parameters = []
    for part in text.split(","):
        match = re.fullmatch(r"(.*?[\s*&])(\w+)", part.strip())
        assert match, part
        parameters.append(Parameter(match[2], match[1].replace(" ", "")))
    return parameters


def read_function(declaration: str, comment: list[str], section: Section) -> Function:
    match = re.fullmatch(r"KELPOWER_API (\w+) (\w+)\((.*)\);", declaration)
    assert match, declaration
    text, own, returns = commands(comment)
    return Function(match[2], match[1], read_parameters(match[3]), paragraphs(text), own, returns, section)


def read_header(text: str) -> list[Function]:
    """All functions that the header declares, in its order."""
    lines = text.splitlines()
    functions: list[Function] = []
    section = Section("")
    comment: list[str] = []
    line = lines.index('extern "C" {') + 1
    while not lines[line].startswith("}"):
        if RULE.match(lines[line]):
            section, line = read_section(lines, line)
            comment = []
            continue
        if lines[line].startswith("///"):
            comment.append(lines[line].removeprefix("///"))
        elif lines[line].startswith("KELPOWER_API"):
            declaration = lines[line]
            while not declaration.endswith(";"):
                line += 1
                declaration += " " + lines[line].strip()
            functions.append(read_function(declaration, comment, section))
            comment = []
        line += 1
    return functions
