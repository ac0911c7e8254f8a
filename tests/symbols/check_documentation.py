"""Checks that every declaration of the header has a comment above it that documents each of its parameters.

A parameter is documented by \\param, or by its name between backquotes, in that comment or in the one of its section.
"""

import re
import sys
from pathlib import Path

from header import read_declarations


def documented(comment):
    names = set(re.findall(r"`(\w+)`", comment))
    for group in re.findall(r"\\param(?:\[[\w,]*\])?\s+(\w+(?:\s*,\s*\w+)*)", comment):
        names.update(re.split(r"\s*,\s*", group))
    return names


def check(declarations):
    problems = []
    for declaration in declarations:
        if not declaration.comment.strip():
            problems.append(f"{declaration.name}: no documentation directly above")
        known = documented(declaration.comment) | documented(declaration.section)
        for parameter in declaration.parameters:
            if parameter not in known:
                problems.append(f"{declaration.name}: parameter {parameter} is not documented")
    return problems


def main():
    declarations = read_declarations(Path(sys.argv[1]).read_text())
    problems = check(declarations)
    print("\n".join(problems) or f"{len(declarations)} declarations are documented")
    sys.exit(1 if problems or not declarations else 0)


if __name__ == "__main__":
    main()
