#!/usr/bin/env python3
"""Writes a page for each test from its description, with answers and a chart of its examples.

It knows no test by name: what the planner tells of a test is all that its page is made of.

Usage: test_pages.py PROGRAM LIBRARY REPOSITORY FOLDER
"""

import re
import sys
from pathlib import Path

import measured
import pages_of
from answers_of import assumptions_of, examples_of, formulas_of, others_of, solved
from inputs_of import inputs_of, questions_of
from pieces import block, code, table
from planner import Planner, draw


def chart_of(program: str, test: dict, answers: list[dict], folder: Path) -> str:
    """The first chart that can be drawn: of the size found by an example, else of any design."""
    order = sorted(answers, key=lambda answer: answer["question"] != "sample-size")
    axes = [axis["name"] for axis in test["axes"]]
    complaints = []
    for answer in order:
        for axis in axes[:2]:
            file = folder / f"{test['name']}.svg"
            complaint = draw(program, answer["calls"]["program"], axis, file)
            if not complaint:
                return picture(answer, axis, file)
            complaints.append(complaint)
    raise SystemExit(f"{test['name']} has no chart: {'; '.join(complaints)}")


def picture(answer: dict, axis: str, file: Path) -> str:
    alt = re.search(r"<desc[^>]*>(.*?)</desc>", file.read_text(), re.DOTALL)
    command = f"{answer['calls']['program']} --chart {axis} --output power.svg"
    return (f"![{alt[1] if alt else 'Chart'}]({file.name})\n\n" + block("sh", command))


def axes_of(test: dict) -> str:
    rows = [[code(axis["name"]), axis["title"]] for axis in test["axes"]]
    how = ("`--chart NAME` draws the power over one of these, `--chart NAME-NAME` over two. In Python it is "
           "`answer.plot(\"name\")`, in R `plot(answer, \"name\")`.\n\n")
    return how + table(["axis", "what it is"], rows)


def when_not(test: dict, names: set[str]) -> str:
    """The advice, in which tests that it leads to are links."""
    def linked(match: re.Match) -> str:
        return re.sub(r"[a-z][a-z0-9-]*", lambda word: f"[{word[0]}]({word[0]}.md)" if word[0] in names else word[0],
                      match[0])
    return re.sub(r"\bsee [a-z0-9-]+((, | and | or )[a-z0-9-]+)*", linked, test["when-not"])


def more_of(repository: Path, name: str) -> str:
    """The section of a test among the calls of other programs, or the page of these."""
    page = repository / "docs/other-programs.md"
    return "../other-programs.md" + (f"#{name}" if f"\n## {name}\n" in page.read_text() else "")


def page_of(test: dict, planner: Planner, program: str, repository: Path, folder: Path, names: set[str]) -> str:
    answers = solved(planner, test)
    written = pages_of.page_of(repository, test)
    parts = [f"# {test['title']}\n", f"`{test['name']}`: {test['about']}\n"]
    parts += [f"**When to take another.** {when_not(test, names)}\n"] if "when-not" in test else []
    parts += [f"[Formulas, conventions and sources of its family](../{written}) have a page of their own.\n"
              if written else ""]
    parts += [chart_of(program, test, answers, folder)]
    sections = [("Questions", questions_of(test)), ("Inputs", inputs_of(test)), ("Examples", examples_of(answers)),
                ("Formula and source", formulas_of(test, answers)),
                ("Assumptions and conditions", assumptions_of(test, answers)),
                ("In other programs", others_of(answers, more_of(repository, test["name"]))), ("Charts", axes_of(test)),
                ("Measured accuracy", measured.accuracy_of(repository, planner, test))]
    parts += [f"## {title}\n\n{body}" for title, body in sections if body]
    return "\n".join(parts)


def index_of(tests: list[dict]) -> str:
    rows = [[f"[{code(test['name'])}]({test['name']}.md)", test["title"], test["about"]] for test in tests]
    contents = block("{toctree}", ":hidden:\n\n" + "\n".join(f"{test['name']} <{test['name']}>" for test in tests))
    intro = "Each page has the inputs, worked examples, the formula, a chart and the measured accuracy."
    return f"# The tests\n\n{intro}\n\n{table(['name', 'test', 'what it asks'], rows)}\n{contents}"


def main(program: str, library: str, repository: str, target: str) -> None:
    planner, folder = Planner(library), Path(target)
    folder.mkdir(parents=True, exist_ok=True)
    tests = planner.describe()["tests"]
    names = {test["name"] for test in tests}
    for test in tests:
        page = page_of(test, planner, program, Path(repository), folder, names)
        (folder / f"{test['name']}.md").write_text(page)
    (folder / "index.md").write_text(index_of(tests))
    print(f"{len(tests)} pages of tests")


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
