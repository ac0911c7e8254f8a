"""The functions of the library's own interface for R: the table of their addresses, the functions of kp_lib, its page."""

import json
import re
import sys
from pathlib import Path

from names import wrapped

# R releases the records by itself.
NOT_BOUND = ("FreeMemXYPlot", "FreeMemXYZPlot")
NOT_ARGUMENTS = "vsn"  # what receives sizes, stops a call, or is not used
KINDS = {"d": "d", "i": "d", "b": "d", "p": "p", "P": "p"}


def signatures(source):
    """The exports in their order with the kinds of their arguments, which the tests hold to be those of the header."""
    known = json.loads((source / "tests/vectors/signatures.json").read_text())
    lines = (source / "src/exports.txt").read_text().split("\n")
    names = [line.strip() for line in lines if line.strip() and not line.startswith("#")]
    return {name: known[name] for name in names if name not in NOT_BOUND}


def table(source):
    lines = "".join(f'    Bind("{name}", &{name}),\n' for name in signatures(source))
    return f"// Written by tools/r/generate.py.\n// clang-format off\n{lines}"


def arguments_of(signature):
    return [(name, KINDS[kind]) for name, kind in signature[1] if kind not in NOT_ARGUMENTS]


def function(name, signature):
    """The R function of an export; what gives nothing but sizes is told."""
    arguments = arguments_of(signature)
    arrays = [argument for argument, kind in arguments if kind == "p"]
    quoted = ", ".join(f'"{each}"' for each in arrays)
    options = [f"arrays = c({quoted})"] if arrays else []
    options += ["has_value = FALSE"] if signature[0] == "void" else []
    head = wrapped(f"  {name} = function(", [argument for argument, _ in arguments], ") {", len(name) + 14)
    start = f'    call_export("{name}", list('
    given = [f"{argument} = {argument}" for argument, _ in arguments]
    call = wrapped(start, given, ")", len(start))
    return f"{head}\n{with_options(call, options)}\n  }}"


def with_options(call, options):
    """The call of a list, closed behind its options."""
    return call + "".join(f",\n                {option}" for option in options) + ")"


def functions(source):
    body = ",\n".join(function(name, signature) for name, signature in signatures(source).items())
    return f"\n#' @export\nkp_lib <- list(\n{body}\n)\n"


def result_words(signature):
    result, arguments = signature
    if result == "XY":
        return "curve"
    if result == "XYZ":
        return "surface"
    sizes = any(kind == "v" for _, kind in arguments)
    if not sizes:
        return "number"
    return "sizes" if result == "void" else "number and sizes"


def comments(source):
    sys.path.insert(0, str(Path(source) / "tests/symbols"))
    sys.dont_write_bytecode = True
    from header import read_declarations
    return {each.name: each.comment for each in read_declarations((source / "include/kelpower.h").read_text())}


def first_sentence(comment):
    lines = [line.removeprefix("///").strip() for line in comment.split("\n")]
    text = " ".join(line for line in lines if line and not line.startswith("\\"))
    return re.match(r".*?[.:](?=\s|$)", text + " ").group(0).rstrip(":").rstrip(".")


def escaped(text):
    return text.replace("\\", "\\\\").replace("%", "\\%").replace("{", "\\{").replace("}", "\\}").replace("`", "'")


def page(source):
    about = comments(source)
    items = []
    for name, signature in signatures(source).items():
        arguments = ", ".join(argument for argument, _ in arguments_of(signature))
        items.append(f"  \\item{{\\code{{{name}({arguments})}}}}{{{escaped(first_sentence(about[name]))}. "
                     f"Gives a {result_words(signature)}.}}".replace("Gives a sizes", "Gives sizes"))
    return PAGE.replace("@items@", "\n".join(items))


PAGE = r"""% Written by tools/r/generate.py.
\name{kp_lib}
\alias{kp_lib}
\docType{data}
\title{The Functions of the Library}
\description{
  The functions of the C++ library under the planner, for those who build programs. They check little and explain
  nothing: for the plan of a study, see \code{\link{kelpower}}.
}
\format{
  A list of functions.
}
\details{
  All arguments are numbers, of which vectors are recycled. Flags are 0 or 1. An array has one number for each group, as
  many as \code{numGroups} says; a list of arrays gives one for each call.

  Where the library has no answer, the value is \code{NA}. A long call can be interrupted.
}
\value{
  Functions that give a number: a vector. Those that give sizes: a list with the \code{value} and the \code{sizes}, a
  vector, or of several calls a list of them; those without a number have \code{sizes} alone. Charts: a list with
  \code{x} and \code{y}, of surfaces also the matrix \code{z}, or of several calls a list of them.
}
\section{Functions}{
\describe{
@items@
}
}
\examples{
kp_lib$PowerIndependentNondirectionalES(64, 64, c(0.2, 0.5, 0.8), alpha = 0.05)
kp_lib$PowerReverseOverallTest(3, c(10, 12, 15), 6, c(1, 1, 1), 0.9, 0.05)
}
"""
