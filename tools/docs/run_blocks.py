#!/usr/bin/env python3
"""Runs the code of the documentation, and compares what it prints with what the pages say.

Every block of README.md and of docs/ is accounted for. It is run; or it is the text of a file in examples/, which the
tests compile and run; or it is excused in not_run.toml, with the reason.

    console  what the program prints is compared
    sh       commands of the program must end well; they draw into files
    pycon, python, and the unnamed block with what a block prints: by python/tests/examples.py
    r        by tools/r/pages.R

Usage: run_blocks.py [--program PROGRAM] [--python PYTHON] [--r-library FOLDER] [PAGE...]

Languages without their option are left out, which is said. PYTHON has the package installed, FOLDER the package of R.
Pages that are named are run in place of those of the repository.
"""

import argparse
import difflib
import os
import re
import shlex
import subprocess
import sys
import tempfile
import tomllib
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FENCE = re.compile(r"^```(?P<kind>\w*)\n(?P<text>.*?)^```$", re.MULTILINE | re.DOTALL)
PYTHON, R = {"python", "pycon"}, {"r"}
RUN = {"console", "sh"} | PYTHON | R

sys.path.insert(0, str(ROOT / "tools"))
import rewrite_examples  # noqa: E402


@dataclass
class Block:
    page: str
    line: int
    kind: str
    text: str
    is_output: bool  # of the block of Python before it

    @property
    def first(self) -> str:
        return self.text.split("\n")[0]

    def __str__(self) -> str:
        return f"{self.page}, line {self.line}"


def blocks_of(page: Path) -> list[Block]:
    document = page.read_text()
    name = page.relative_to(ROOT).as_posix() if page.is_relative_to(ROOT) else str(page)
    found: list[Block] = []
    end = -1
    for fence in FENCE.finditer(document):
        is_output = not fence["kind"] and end >= 0 and not document[end:fence.start()].strip()
        found.append(Block(name, document.count("\n", 0, fence.start()) + 1, fence["kind"], fence["text"], is_output))
        end = fence.end() if fence["kind"] in PYTHON else -1
    return found


def pages_of_repository() -> list[Path]:
    return [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]


def excuses() -> list[dict]:
    return tomllib.loads((Path(__file__).parent / "not_run.toml").read_text()).get("block", [])


def unaccounted(blocks: list[Block]) -> list[str]:
    """Blocks that nothing runs and nobody excuses, and excuses that no block needs."""
    quoted = {path.read_text() for path in (ROOT / "examples").iterdir() if path.suffix != ".md"}
    excused = {(excuse["page"], excuse["first"]): excuse["reason"] for excuse in excuses()}
    needed, problems = set(), []
    for block in blocks:
        key = (block.page, block.first)
        if key in excused:
            needed.add(key)
        elif block.kind not in RUN and not block.is_output and block.text not in quoted:
            problems.append(f"{block}: nothing runs the block that begins with {block.first!r}")
    problems += [f"not_run.toml excuses a block of {page} that is not there: {first}"
                 for page, first in excused if (page, first) not in needed]
    return problems


def console_problems(program: str, page: Path) -> list[str]:
    lines = page.read_text().split("\n")
    now = list(rewrite_examples.rewritten(program, lines))
    return list(difflib.unified_diff(lines, now, str(page), "printed now", lineterm=""))


def is_excused(block: Block) -> bool:
    return any((block.page, block.first) == (excuse["page"], excuse["first"]) for excuse in excuses())


def command_problems(program: str, block: Block) -> list[str]:
    """Runs the commands of a block where files that they draw do no harm."""
    problems = []
    with tempfile.TemporaryDirectory() as folder:
        for line in block.text.splitlines():
            words = shlex.split(line, comments=True)
            if words[:1] != ["kelpower"]:
                problems.append(f"{block}: is no command of the program: {line}")
                continue
            done = subprocess.run([program, *words[1:]], cwd=folder, capture_output=True, text=True, check=False)
            problems += [f"{block}: {line}: {done.stderr.strip()}"] if done.returncode else []
    return problems


def with_program(program: str, pages: list[Path], blocks: list[Block]) -> list[str]:
    os.chdir(ROOT)  # pages name files from there
    problems = [problem for page in pages for problem in console_problems(program, page)]
    for block in blocks:
        problems += command_problems(program, block) if block.kind == "sh" and not is_excused(block) else []
    return problems


def with_python(python: str, pages: list[Path]) -> list[str]:
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([python, "-B", str(ROOT / "python/tests/examples.py"), "check", *map(str, pages)],
                              cwd=folder, capture_output=True, text=True, check=False)
    print(done.stdout, end="")
    return [done.stderr.strip()] if done.returncode else []


def with_r(library: str, pages: list[Path]) -> list[str]:
    settings = os.environ | {"R_LIBS": str(Path(library).resolve())}
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run(["Rscript", "--vanilla", str(ROOT / "tools/r/pages.R"), "check", *map(str, pages)],
                              cwd=folder, env=settings, capture_output=True, text=True, check=False)
    print(done.stdout, end="")
    return [done.stderr.strip()] if done.returncode else []


def having(kinds: set[str], pages: list[Path]) -> list[Path]:
    return [page.resolve() for page in pages if any(block.kind in kinds for block in blocks_of(page))]


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for option in ("--program", "--python", "--r-library"):
        parser.add_argument(option)
    parser.add_argument("pages", nargs="*", type=Path)
    given = parser.parse_args()

    pages = given.pages or pages_of_repository()
    blocks = [block for page in pages for block in blocks_of(page)]
    problems = [] if given.pages else unaccounted(blocks)
    if given.program:
        problems += with_program(str(Path(given.program).resolve()), [page.resolve() for page in pages], blocks)
    if given.python:
        problems += with_python(str(Path(given.python).absolute()), having(PYTHON, pages))
    if given.r_library:
        problems += with_r(given.r_library, having(R, pages))

    left_out = [name for name, option in (("the program", given.program), ("Python", given.python),
                                          ("R", given.r_library)) if not option]
    if left_out:
        print(f"Left out: the blocks of {', '.join(left_out)}.")
    well = f"{len(blocks)} blocks of {len(pages)} pages: nothing is wrong with what was run."
    print("\n".join(problems) if problems else well)
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
