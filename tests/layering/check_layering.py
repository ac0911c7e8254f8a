"""Checks which headers the parts of the project include.

- Boost is included nowhere, so that the libraries build where it is not.
- kelcommon knows nothing of kelpower.
- The frame (src/frame) includes kelcommon's headers alone.
- The core of a family of tests (a folder of src) includes its own headers, those of the frame and kelcommon's.
- The exports (src/exports) include those of all of them and kelpower.h. A folder of exports leaves the cores of other
  families alone.
- A room of the planner (a folder of planner) includes the rooms that PLANNER_ROOMS names; the program includes the
  planner's. Of the library they include the core: the catalogue its families and frame, solve its frame and the
  effect of a design.
- The C interface (capi) includes its own headers and the planner's. Nothing of the product includes it.
- The extension module of the Python package (python) includes its own headers and the public ones: kelplan.h,
  kelpower.h and kelcommon's.
"""

import re
import sys
from pathlib import Path

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)
SOURCES = {".h", ".hpp", ".cpp", ".in"}


FAMILIES = {
    "anova",
    "chi_square",
    "comparisons",
    "correlation",
    "effects",
    "means",
    "proportions",
    "ranks",
    "regression",
    "variances",
}

# The core around the tests: widths that are assured, and powers over an uncertain effect.
AROUND_TESTS = {"assurance", "expected_power"}

# What each room of the planner may include besides itself: other rooms, and folders of the core.
PLANNER_ROOMS = {
    "format": set(),
    "model": set(),
    "catalogue": {"model", "frame"} | FAMILIES | AROUND_TESTS,
    "solve": {"model", "frame", "design_effect"},
    "words": {"format", "model", "solve", "catalogue"},
    "pictures": {"format", "model", "solve"},
}
# Packages that a room may include by angle brackets besides the standard library.
PLANNER_PACKAGES = {"format": {"fmt"}, "words": {"fast_float", "nlohmann"}}
PACKAGES = {"CLI", "fast_float", "fmt", "nlohmann"}


def rejected_in_planner(path, kind, header, is_own):
    """Why a file of the planner or the program may not include `header`; empty when it may."""
    top = header.split("/")[0]
    if path.parts[0] == "capi":
        return rejected_in_capi(kind, top, is_own)
    if top == "kelplan.h":
        return "includes the C interface"
    room = path.parts[1]
    if path.parts[0] == "cli":
        if kind == "<" or is_own:
            return ""
        return "" if top in PLANNER_ROOMS else f"the program includes {top}"
    if room not in PLANNER_ROOMS:
        return f"{room} is no room of the planner"
    if kind == "<":
        forbidden = top in PACKAGES - PLANNER_PACKAGES.get(room, set())
        return f"{room} includes the package {top}" if forbidden else ""
    return "" if top in PLANNER_ROOMS[room] | {room} else f"{room} includes {top}"


def rejected_in_capi(kind, top, is_own):
    """Why the C interface may not include a header."""
    if kind == "<":
        return f"the C interface includes the package {top}" if top in PACKAGES - {"nlohmann"} else ""
    return "" if is_own or top in PLANNER_ROOMS else f"the C interface includes {top}"


def rejected_in_python(kind, header, top, is_own):
    """Why the extension module of Python may not include a header."""
    if kind == "<":
        return f"the module of Python includes the package {top}" if top in PACKAGES - {"nlohmann"} else ""
    return "" if is_own or top in ("kelplan.h", "kelpower.h", "kelcommon") else f"the module of Python includes {top}"


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
    if parts[0] in ("planner", "cli", "capi"):
        return rejected_in_planner(path, kind, header, is_own)
    if parts[0] == "python":
        return rejected_in_python(kind, header, top, is_own)
    if kind == "<":
        return ""
    if parts[0] == "kelcommon":
        return "" if top == "kelcommon" or is_own else "kelcommon includes what is not its own"
    if parts[0] == "include":
        return "a public header includes a private one"
    if parts[0] == "src":
        return "" if is_own or top in allowed_in_src(parts, header) else f"{'/'.join(parts[1:-1])} includes {header}"
    return ""


def allowed_in_src(parts, header):
    """The first parts of the headers that a file of src may include."""
    shared = {"frame", "kelcommon"}
    if parts[1] != "exports":
        return shared | {parts[1]}
    family = parts[2] if len(parts) > 3 else ""
    is_of_other_family = header.startswith("exports/") and header.count("/") > 1 and header.split("/")[1] != family
    return shared | {"kelpower.h", family} | (set() if is_of_other_family else {"exports"})


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
