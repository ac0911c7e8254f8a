#!/usr/bin/env python3
"""Writes the runs that documents show anew, with what the program answers now. Read the changes before committing them.

Usage: rewrite_examples.py PROGRAM DOCUMENT...
"""
import pathlib
import re
import shlex
import subprocess
import sys

PROMPT = "$ kelpower"


LONG_NUMBER = re.compile(r"\d+\.\d{11,}(e[+-]?\d+)?")


def run(program, words):
    done = subprocess.run([program, *shlex.split(words)], capture_output=True, text=True, check=False)
    return (done.stdout + done.stderr).rstrip("\n").split("\n")


def to_twelve_digits(lines):
    """Last digits differ between machines."""
    return [LONG_NUMBER.sub(lambda match: f"{float(match[0]):.12g}", line) for line in lines]


def answered(program, command, shown):
    """What the program answers now, followed by the blank lines that follow what is shown; as shown where it is the
    same."""
    text = list(shown)
    while text and not text[-1]:
        text.pop()
    answer = run(program, command)
    same = to_twelve_digits(answer) == to_twelve_digits(text)
    return (text if same else answer) + [""] * (len(shown) - len(text))


def rewritten(program, lines):
    command = None
    shown = []
    inside = False
    for line in lines:
        is_run = inside and line.startswith(PROMPT)
        is_fence = line.startswith("```")
        if command is not None and (is_run or is_fence):
            yield from answered(program, command, shown)
            command = None
        if is_fence:
            inside = line == "```console"
        if command is not None:
            shown.append(line)
            continue
        yield line
        if is_run:
            command, shown = line[len(PROMPT):], []


def main(program, *documents):
    for document in map(pathlib.Path, documents):
        lines = document.read_text().split("\n")
        document.write_text("\n".join(rewritten(program, lines)))


if __name__ == "__main__":
    main(*sys.argv[1:])
