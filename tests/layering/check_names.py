"""Checks how files are named and headers guarded.

- No file of the product is named like a test of it.
- A header is guarded by a macro that spells its path.
"""

import re

from sources import check_all

PRODUCT = {"include", "src", "kelcommon", "planner", "cli", "capi", "python"}
GUARD = re.compile(r"\A(?:[ \t]*//[^\n]*\n|\s*\n|/\*.*?\*/)*#ifndef (\w+)\n#define (\w+)\n", re.S)


def guard(path):
    """The macro of the header `path`, relative to the project."""
    parts = list(path.with_suffix("").parts)
    if parts[0] == "kelcommon":
        parts = parts[2:] if parts[1] == "include" else parts
    elif parts[0] in ("src", "include"):
        parts = parts[1:] if parts[1:] == ["kelpower"] else ["kelpower"] + parts[1:]
    elif parts[0] == "python":
        parts = ["kelpower", "python"] + parts[2:]
    else:
        parts = ["kelpower"] + parts
    return "_".join(parts).upper() + "_H"


def check(path, text):
    problems = []
    if path.parts[0] in PRODUCT and path.stem.endswith("_test"):
        problems.append(f"{path}: is named like a test")
    if path.suffix == ".h":
        found = GUARD.match(text)
        if not found or set(found.groups()) != {guard(path)}:
            problems.append(f"{path}: is not guarded by {guard(path)}")
        if "#pragma once" in text:
            problems.append(f"{path}: has a second guard")
    return problems


if __name__ == "__main__":
    check_all(check, {".h", ".cpp"}, "are named and guarded as all are")
