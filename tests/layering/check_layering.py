"""Checks which headers the parts of the project include.

- Boost is included nowhere, so that the libraries build where it is not.
- kelcommon knows nothing of kelpower.
- A family of tests (a folder of src) includes its own headers, those of the frame, kelpower.h and kelcommon's.
- The frame includes no family.
"""

import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)
SOURCES = {".h", ".hpp", ".cpp", ".in"}


def rejected(path, kind, header, is_own):
    """Why the file `path`, relative to the project, may not include `header`; empty when it may."""
    parts = path.parts
    top = header.split("/")[0]
    if ".." in header.split("/"):
        return "includes by a path that climbs"
    if header.startswith("kelcommon/src/"):
        return "includes what is private to kelcommon"
    if top == "boost":
        return "includes Boost"
    if kind == "<":
        return ""
    if parts[0] == "kelcommon":
        return "" if top == "kelcommon" or is_own else "kelcommon includes what is not its own"
    if parts[0] == "include":
        return "a public header includes a private one"
    if parts[0] == "src" and header != "kelpower.h" and not is_own:
        return "" if top in ("frame", "kelcommon", parts[1]) else f"{parts[1]} includes {top}"
    return ""


def check(path, text, exists=Path.exists):
    problems = []
    for kind, header in INCLUDE.findall(text):
        is_own = "/" not in header and exists(path.parent / header)
        reason = rejected(path, kind, header, is_own)
        if reason:
            problems.append(f"{path}: {header}: {reason}")
    return problems


def main():
    root = Path(sys.argv[1])
    paths = [path for folder in sys.argv[2:] for path in sorted((root / folder).rglob("*")) if path.suffix in SOURCES]
    problems = []
    for path in paths:
        relative = path.relative_to(root)
        problems += check(relative, path.read_text(), lambda own: (root / own).exists())
    print("\n".join(problems) or f"{len(paths)} files keep to the layers")
    sys.exit(1 if problems or not paths else 0)


if __name__ == "__main__":
    main()
