"""Reads the declarations and their documentation from a public header."""

import re
from dataclasses import dataclass, field

DECLARATION = re.compile(r"^KELPOWER_API\s+(?P<result>\w+)\s+(?P<name>\w+)\((?P<parameters>[^)]*)\);", re.S)
RULER = "// ----------"


@dataclass
class Declaration:
    name: str
    parameters: list = field(default_factory=list)
    comment: str = ""  # the documentation directly above
    section: str = ""  # the documentation that the declarations of a section share


def parameter_names(text):
    return [re.search(r"(\w+)\s*$", part).group(1) for part in text.split(",") if part.strip()]


def read_declarations(text):
    """The declarations in order.

    A comment that begins with a ruler opens a section: what it says about parameters holds for every declaration up to
    the next ruler.
    """
    declarations = []
    comment, section = [], ""
    lines = text.split("\n")
    for number, line in enumerate(lines):
        if line.startswith("//"):
            comment.append(line)
            continue
        if comment and comment[0].startswith(RULER):
            section, comment = "\n".join(comment), []
        match = DECLARATION.match("\n".join(lines[number:])) if line.startswith("KELPOWER_API") else None
        if match:
            block = "\n".join(each for each in comment if each.startswith("///"))
            declarations.append(Declaration(match["name"], parameter_names(match["parameters"]), block, section))
        comment = []
    return declarations
