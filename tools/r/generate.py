"""Writes those parts of the R package that follow from the library's descriptions: the function and the manual page of
each test, the table of exports with their functions, a sample of the reference cases, and the list of exported names.

Usage: generate.py SOURCE LIBKELPLAN [--check]
(the project, and the built shared library of the C interface; --check compares instead of writing)
"""

import argparse
import ctypes
import json
import re
import sys
from pathlib import Path

import exports
import manual
import references
from names import underscored, wrapped

HEADER = "# Written by tools/r/generate.py from the library's descriptions.\n"
WRITTEN = ("tests.R", "exports.R")
METHOD = re.compile(r"(?P<generic>print|format|summary|plot|as\.data\.frame)\.(?P<kind>(summary\.)?kelpower\w*)")
# R registers these when the packages of their generics are loaded.
LATE_METHODS = [f"S3method({generic}, {kind})" for generic, kind in (
    ("generics::tidy", "kelpower"), ("generics::glance", "kelpower"), ("ggplot2::autoplot", "kelpower"),
    ("ggplot2::autoplot", "kelpower_chart"), ("knitr::knit_print", "kelpower"))]


def read_description(library):
    kelplan = ctypes.CDLL(str(library))
    kelplan.kelplan_describe.restype = ctypes.c_char_p
    return json.loads(kelplan.kelplan_describe())


def function_of(name, parameters, body):
    names = [underscored(each["name"]) for each in parameters]
    signature = wrapped(f"{name} <- function(", ["..."] + [f"{each} = NULL" for each in names], ") {", len(name) + 13)
    start = f"  {body}list("
    call = wrapped(start, ["..."] + [f"{each} = {each}" for each in names], "), sys.call())", len(start))
    return f"{signature}\n{call}\n}}\n"


def functions(description):
    parts = []
    for test in description["tests"]:
        test_name = underscored(test["name"])
        parts.append(function_of(f"kp_{test_name}", test["parameters"], f'solve_test("{test_name}", '))
    effects = description["effects"]
    parts.append(function_of("kp_effect", effects["parameters"], "convert_effect("))
    return HEADER + "\n" + "\n".join(parts)


def namespace(description, source):
    """The exported names: those of the tests, and those that the other files mark with #' @export."""
    names = [f"kp_{underscored(test['name'])}" for test in description["tests"]] + ["kp_effect", "kp_lib"]
    lines = ["useDynLib(kelpower, .registration = TRUE)"]
    methods = []
    for path in sorted((source / "r/R").glob("*.R")):
        if path.name in WRITTEN:
            continue
        text = path.read_text().split("\n")
        for number, line in enumerate(text):
            if line != "#' @export":
                continue
            name = text[number + 1].split(" <-")[0].strip("`")
            method = METHOD.fullmatch(name)
            if method:
                methods.append(f"S3method({method['generic']}, {method['kind']})")
            else:
                names.append(name)
    lines += [f"export({name})" for name in sorted(names)] + sorted(methods) + LATE_METHODS
    return HEADER + "\n".join(lines) + "\n"


def files(description, source):
    """What is written, by its path in the package."""
    written = {"R/tests.R": functions(description), "src/exports.h": exports.table(source),
               "R/exports.R": HEADER + exports.functions(source), "man/kp_lib.Rd": exports.page(source),
               "tests/testthat/references.csv": references.table(source)}
    written.update(manual.pages(description))
    written["NAMESPACE"] = namespace(description, source)
    return written


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("source", type=Path)
    parser.add_argument("library", type=Path)
    parser.add_argument("--check", action="store_true")
    given = parser.parse_args()
    stale = []
    for name, text in files(read_description(given.library), given.source).items():
        path = given.source / "r" / name
        if path.is_file() and path.read_text() == text:
            continue
        stale.append(name)
        if not given.check:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
    if given.check and stale:
        sys.exit(f"These files of r/ are not what tools/r/generate.py writes: {', '.join(stale)}")


if __name__ == "__main__":
    main()
