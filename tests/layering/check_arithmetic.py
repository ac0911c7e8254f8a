"""Checks that the product computes in doubles alone.

An extended type has another precision on every platform, so that answers would differ between them.
"""

import re

from sources import check_all

SOURCES = {".h", ".hpp", ".cpp", ".inc"}
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.S)
EXTENDED = {
    "the type long double": re.compile(r"\blong\s+double\b|\bdouble\s+long\b|\b__float128\b|\b_Float(?:64x|128)\b"),
    "a constant of that type": re.compile(
        r"(?<![\w.])(?:(?:\d[\d']*\.[\d']*|\.\d[\d']*)(?:[eE][+-]?\d+)?|\d[\d']*[eE][+-]?\d+|0[xX][\da-fA-F'.]+[pP][+-]?\d+)[lL]\b"
    ),
    "a function of that type": re.compile(
        r"\b(?:exp|exp2|expm1|log|log1p|log2|log10|pow|sqrt|cbrt|hypot|fabs|fma|sin|cos|tan|asin|acos|atan|atan2|sinh|"
        r"cosh|tanh|erf|erfc|lgamma|tgamma|floor|ceil|trunc|round|fmod|fmin|fmax|ldexp|frexp|modf|nextafter)l\s*\("
    ),
}


def check(path, text):
    without_comments = COMMENT.sub(lambda comment: "\n" * comment.group().count("\n"), text)
    problems = []
    for number, line in enumerate(without_comments.splitlines(), 1):
        problems += [f"{path}:{number}: {what}: {line.strip()}" for what, found in EXTENDED.items() if found.search(line)]
    return problems


if __name__ == "__main__":
    check_all(check, SOURCES, "compute in doubles")
