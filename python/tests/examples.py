"""Runs the Python in documents.

Blocks of a document share one namespace. One with prompts is compared with what Python prints; one without is run, and
what it prints is compared with the unnamed block after it. A block that begins with a comment such as `# frame is a
pyspark.sql.DataFrame` needs what only its reader has, and is compiled alone.

As a program it writes what is printed into documents: python3 python/tests/examples.py DOCUMENT...
"""

import contextlib
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
        text, printed = texts(block, names)
        parts += [document[at : block.start], text]
        at = block.start + len(block.text)
        if block.printed is not None:
            parts += [document[at : block.printed_start], printed]
            at = block.printed_start + len(block.printed)
    return "".join([*parts, document[at:]])


if __name__ == "__main__":
    for name in sys.argv[1:]:
        Path(name).write_text(updated(Path(name).read_text()))
