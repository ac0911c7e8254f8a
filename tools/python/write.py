#!/usr/bin/env python3
"""Writes what of the Python package follows from the descriptions of the tests, or with --check says what is not current.

The package must be importable: PYTHONPATH=python tools/python/write.py
"""

import json
import sys
from pathlib import Path

import effect
import functions
import ufunc_table
from kelpower import _core

PACKAGE = Path(__file__).resolve().parents[2] / "python" / "kelpower"


def texts():
    description = json.loads(_core.describe())
    tests = description["tests"]
    return {"_effect.py": effect.module(description["effects"]),
            "_functions.py": functions.module(tests), "_functions.pyi": functions.stub(tests),
            "_ufunc_table.py": ufunc_table.module(tests), "ufuncs.pyi": ufunc_table.stub(tests)}


def outdated(folder):
    """The files that are not as they would be written."""
    return [name for name, text in texts().items()
            if not (folder / name).exists() or (folder / name).read_text() != text]


def main():
    names = outdated(PACKAGE)
    if "--check" in sys.argv[1:]:
        sys.exit(f"not current: {', '.join(names)}" if names else 0)
    for name in names:
        (PACKAGE / name).write_text(texts()[name])
        print("wrote", name)


if __name__ == "__main__":
    main()
