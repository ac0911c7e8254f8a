"""Times expressions in Python.

Usage: expressions.py FILE, of lines of a package, the name of a comparison and an expression, separated by tabs.
Prints lines of the package, the name, "answer", the answer and the seconds of a call, separated by tabs, and the
package's version.
"""

import importlib
import sys
from pathlib import Path

from timing import seconds_per_call

# What the expressions name.
MODULES = {
    "statsmodels": {"power": "statsmodels.stats.power", "proportion": "statsmodels.stats.proportion"},
    "pystatpower": {"noninferiority": "pystatpower.mean.independent.noninferiority",
                    "equivalence": "pystatpower.proportion.single.equivalence"},
}


def modules_of(package: str) -> dict:
    return {name: importlib.import_module(module) for name, module in MODULES[package].items()}


def main():
    for line in Path(sys.argv[1]).read_text().splitlines():
        package, name, expression = line.split("\t")
        call = eval(f"lambda: {expression}", modules_of(package))
        print(package, name, "answer", repr(float(call())), f"{seconds_per_call(call):.6g}", sep="\t")
    print("version", package, importlib.import_module(package).__version__, sep="\t")


if __name__ == "__main__":
    main()
