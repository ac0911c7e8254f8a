"""Runs the Python in documents.

Blocks of a document share one namespace. One with prompts is compared with what Python prints; one without is run, and
what it prints is compared with the unnamed block after it. A block that begins with a comment such as `# frame is a
pyspark.sql.DataFrame` needs what only its reader has, and is compiled alone.

As a program it compares documents with what is printed, or writes it into them:
python3 python/tests/examples.py check|write DOCUMENT...
"""

import ast
import contextlib
import difflib
import doctest
import io
import re
import sys
import traceback
from dataclasses import dataclass
from pathlib import Path

FENCE = re.compile(r"^```(?P<kind>\w*)\n(?P<text>.*?)^```\n", re.MULTILINE | re.DOTALL)
OF_THE_READER = re.compile(r"# \w+ is an? ")
PYTHON = ("python", "pycon")
OPTIONAL = {"dask", "duckdb", "polars", "pyarrow", "pyspark", "ray", "scipy", "xarray", "matplotlib"}


@dataclass
class Block:
    """A block of Python, and the one with what it prints."""

    text: str
    start: int
    line: int
    printed: str | None = None
    printed_start: int = 0

    @property
    def has_prompts(self):
        """Whether it is a session."""
        return self.text.lstrip().startswith(">>>")

    @property
    def is_only_compiled(self):
        """Whether it needs what its reader has."""
        return bool(OF_THE_READER.match(self.text))


def blocks(document):
    """The blocks of Python in a document."""
    found = []
    end = None
    for fence in FENCE.finditer(document):
        line = document.count("\n", 0, fence.start()) + 1
        if fence["kind"] in PYTHON:
            found.append(Block(fence["text"], fence.start("text"), line))
            end = fence.end()
        elif not fence["kind"] and end is not None and not document[end : fence.start()].strip():
            found[-1].printed = fence["text"]
            found[-1].printed_start = fence.start("text")
            end = None
        else:
            end = None
    return found


def imported(block):
    """The packages that a block imports."""
    try:
        tree = ast.parse(block.text)
    except SyntaxError:
        return set(re.findall(r"^>>> (?:import|from) (\w+)", block.text, re.MULTILINE))
    names = [each.names[0].name for each in ast.walk(tree) if isinstance(each, ast.Import)]
    names += [each.module for each in ast.walk(tree) if isinstance(each, ast.ImportFrom) and each.module]
    return {name.split(".")[0] for name in names}


def missing(block):
    """The optional packages that a block imports and that are not installed."""
    return [name for name in imported(block) & OPTIONAL if not can_import(name)]


def can_import(name):
    """Whether a package is installed."""
    try:
        __import__(name)
    except ImportError:
        return False
    return True


def run(source, names, mode="exec"):
    """What a source prints; of an exception the last line, as sessions in documents have it."""
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed):
        try:
            exec(compile(source, "<document>", mode), names)
        except Exception as error:
            if mode == "exec":
                raise
            last = traceback.format_exception_only(error)[-1]
            return f"{printed.getvalue()}Traceback (most recent call last):\n  ...\n{last}"
    return printed.getvalue()


def session(text, names):
    """A session as Python has it."""
    lines = []
    for example in doctest.DocTestParser().get_examples(text):
        first, *others = example.source.rstrip("\n").split("\n")
        lines += [f">>> {first}", *(f"... {line}".rstrip() for line in others)]
        lines += ["<BLANKLINE>" if not line else line for line in run(example.source, names, "single").splitlines()]
    return "\n".join(lines) + "\n"


def texts(block, names):
    """The block and what it prints, as they should be."""
    if block.is_only_compiled:
        compile(block.text, "<document>", "exec")
        return block.text, block.printed
    if block.has_prompts:
        end = "\n" if block.text.endswith("\n\n") else ""
        return session(block.text, names) + end, block.printed
    printed = run(block.text, names)
    return block.text, printed if block.printed is not None else None


def updated(document):
    """A document with what its blocks print."""
    names = {"__name__": "__main__"}
    parts, at = [], 0
    for block in blocks(document):
        if missing(block):
            continue
        text, printed = texts(block, names)
        parts += [document[at : block.start], text]
        at = block.start + len(block.text)
        if block.printed is not None:
            parts += [document[at : block.printed_start], printed]
            at = block.printed_start + len(block.printed)
    return "".join([*parts, document[at:]])


def differences(name):
    """What documents say otherwise than Python, as lines."""
    document = Path(name).read_text()
    for block in blocks(document):
        if missing(block):
            print(f"{name}, line {block.line} is not run: {', '.join(missing(block))} is not installed")
    return list(
        difflib.unified_diff(document.splitlines(), updated(document).splitlines(), name, "printed now", lineterm="")
    )


def main(mode, *names):
    """Compares documents or writes them."""
    if can_import("matplotlib"):
        __import__("matplotlib").use("Agg")
    if mode == "write":
        for name in names:
            Path(name).write_text(updated(Path(name).read_text()))
        return
    found = [line for name in names for line in differences(name)]
    if found:
        sys.exit("\n".join(found))
    print(f"The Python of {len(names)} pages prints what they say.")


if __name__ == "__main__":
    if len(sys.argv) < 3 or sys.argv[1] not in ("check", "write"):
        sys.exit(__doc__)
    main(*sys.argv[1:])
