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
from pieces import block, bullets, code, dropdown, first_upper, named_as_code, stacked, table, tabs
from planner import Planner, draw

QUESTIONS = {
    "power": "Power of a design",
    "sample-size": "Sample size for a power",
    "half-width": "Half-width of the confidence interval of a design",
    "sample-size-for-half-width": "Sample size for a half-width",
}
SOLVED = "Effect, or another number, that a design can detect"
TARGETS = ("target-power", "target-half-width")


def number(value: float) -> str:
    return f"{value:,.0f}" if value == int(value) and abs(value) >= 10000 else f"{value:g}"


def limits_of(limits: dict) -> str:
    """The range of a number in words."""
    parts = []
    for key, words in (("minimum", "at least"), ("exclusive-minimum", "above"),
                       ("maximum", "at most"), ("exclusive-maximum", "below")):
        if key in limits:
            parts.append(f"{words} {number(limits[key])}")
    return ", ".join(parts)


def range_of(parameter: dict) -> str:
    """What an input may be."""
    kind = parameter["kind"]
    if kind == "flag":
        return "yes or no"
    if kind == "choice":
        return ", ".join(map(code, parameter["choices"]))
    noun = "whole number" if parameter["limits"].get("whole") else "number"
    what = f"a {noun}"
    if kind != "number":
        what = f"{parameter.get('length', 'several')} {noun}s" if kind == "list" else f"a {noun} for each group"
    if parameter.get("spreads"):
        what += ", or one for all"
    limits = limits_of(parameter["limits"])
    return f"{what}; {limits}" if limits else what


def default_of(parameter: dict) -> str:
    value = parameter.get("default")
    if value is None:
        return ""
    if isinstance(value, bool):
        return "yes" if value else "no"
    return code(value) if isinstance(value, str) else ", ".join(number(each) for each in
                                                                (value if isinstance(value, list) else [value]))


def inputs_of(test: dict) -> str:
    rows = []
    for parameter in test["parameters"]:
        aliases = "".join(f", {code(alias)}" for alias in parameter["aliases"])
        unit = f" ({parameter['unit']})" if "unit" in parameter else ""
        rows.append([code(parameter["name"]) + aliases, named_as_code(parameter["meaning"]) + unit,
                     range_of(parameter), default_of(parameter)])
    return ("The program takes `--name value`, Python and R take `name=value` with `_` for `-`.\n\n"
            + stacked(table(["input", "what it is", "range", "default"], rows)))


def questions_of(test: dict) -> str:
    """What has to be given for each question."""
    rows = []
    for question, title in QUESTIONS.items():
        targets = {"sample-size": ["power"], "sample-size-for-half-width": ["half-width"], "half-width": ["interval"]}
        given = []
        for route in test["routes"]:
            names = route["needs"] + [name for name in targets.get(question, []) if name not in route["needs"]]
            text = ", ".join(map(code, names))
            if route["question"] == question and text not in given:
                given.append(text)
        if given:
            rows.append([title, ";<br>or ".join(given)])
    unknowns = list(dict.fromkeys(unknown["name"] for unknown in test["unknowns"]))
    if unknowns:
        rows.append([SOLVED, f"sizes, and `power` or `half-width`; leave out or name with `solve` one of "
                     f"{', '.join(map(code, unknowns))}"])
    return "What is left out is what is solved for.\n\n" + stacked(table(["question", "give"], rows))


def solved(planner: Planner, test: dict) -> list[dict]:
    """The answers to the examples of the description."""
    answers = []
    for example in test["examples"]:
        request = {"test": test["name"], "inputs": example["inputs"], "text": True}
        answer = planner.solve(request | {"explain": True, "calls": True})
        if "error" in answer:
            raise SystemExit(f"{example['arguments']}: {answer['error']['message']}")
        answers.append(answer | {"explained": answer["text"], "text": planner.solve(request)["text"]})
    return answers


def question_of(answer: dict) -> str:
    is_solved = answer["question"] in ("power", "half-width") and any(name in answer["inputs"] for name in TARGETS)
    return SOLVED if is_solved else QUESTIONS[answer["question"]]


def example_of(answer: dict) -> str:
    calls, sentence = answer["calls"], answer["sentence"]
    python = f">>> import kelpower\n>>> answer = {calls['python']}\n>>> print(answer.sentence)\n{sentence}"
    r = f'library(kelpower)\nanswer <- {calls["r"]}\ncat(answer$sentence)\n#> {sentence}'
    text = tabs([("Program", block("console", f"$ {calls['program']}\n{answer['text']}")),
                 ("Python", block("pycon", python)), ("R", block("r", r))])
    return f"{text}\n{behind(answer)}"


def behind(answer: dict) -> str:
    """What `--explain` adds, but for the calls of other programs, which have a section of their own."""
    added = answer["explained"].removeprefix(answer["text"]).split("\nAsked of other programs\n")[0]
    return dropdown("Behind this answer", block("text", added.strip("\n"))) if added.strip() else ""


def examples_of(answers: list[dict]) -> str:
    parts = []
    for title in [*QUESTIONS.values(), SOLVED]:
        found = [example_of(answer) for answer in answers if question_of(answer) == title]
        if found:
            parts += [f"### {title}\n", *found]
    return "\n".join(parts)


def formulas_of(test: dict, answers: list[dict]) -> str:
    """Each formula once, with the numbers of the first example that has it."""
    shapes: dict[str, str] = {}
    for answer in answers:
        formula = answer["details"].get("formula", "")
        shapes.setdefault(re.sub(r"-?\d[\d.]*(e[+-]?\d+)?", "#", formula), formula)
    formulas = [block("text", formula.replace("; ", "\n")) for formula in shapes.values() if formula]
    return "With the numbers of the examples above:\n\n" + "\n".join(formulas) + "\n" + bullets(test["sources"])


def assumptions_of(test: dict, answers: list[dict]) -> str:
    said: dict[str, list[str]] = {}
    for answer in answers:
        for name, words in answer.get("assumptions", {}).items():
            said.setdefault(name, [])
            said[name] += [words] if words not in said[name] else []
    labels = {each["name"]: each["label"] for each in test["assumptions"]}
    items = [f"{first_upper(labels.get(name, name))}: {'; or '.join(words)}." for name, words in said.items()]
    sentences = [each["sentence"] for each in test["conditions"] + test["size-exists"]]
    refused = list(dict.fromkeys(map(named_as_code, sentences)))
    text = ("What an answer takes for granted stands in its table and its sentence:\n\n" + bullets(items) + "\n"
            if items else "")
    return text + ("What is refused, and why:\n\n" + bullets(refused) if refused else "")


def others_of(answers: list[dict]) -> str:
    by_answer = []
    for answer in answers:
        programs = answer["details"].get("programs", [])
        if programs:
            by_answer.append(f"**{code(answer['calls']['program'])}**\n\n" + "\n".join(map(other_of, programs)) + "\n")
    return ("How the examples are asked elsewhere, and where an answer differs, the reason. "
            f"[More of them](../other-programs.md), and what a [newcomer](../coming-from.md) should know.\n\n"
            + dropdown("The calls", "\n".join(by_answer))) if by_answer else ""


def other_of(program: dict) -> str:
    remark = program.get("remark", "")
    verdict = "the same answer" if program["same"] else "another answer"
    return f"- {program['program']}, {verdict}{': ' + remark if remark else ''}\\\n  {code(program['call'])}"


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
    return ("`--chart NAME` draws the power over one of these, `--chart NAME-NAME` over two, `answer.plot(\"name\")` in "
            "Python, `plot(answer, \"name\")` in R:\n\n" + table(["axis", "what it is"], rows))


def when_not(test: dict, names: set[str]) -> str:
    """The advice, in which tests that it leads to are links."""
    def linked(match: re.Match) -> str:
        return re.sub(r"[a-z][a-z0-9-]*", lambda word: f"[{word[0]}]({word[0]}.md)" if word[0] in names else word[0],
                      match[0])
    return re.sub(r"\bsee [a-z0-9-]+((, | and | or )[a-z0-9-]+)*", linked, test["when-not"])


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
                ("In other programs", others_of(answers)), ("Charts", axes_of(test)),
                ("Measured accuracy", measured.accuracy_of(repository, planner, test))]
    parts += [f"## {title}\n\n{body}" for title, body in sections if body]
    return "\n".join(parts)


def index_of(tests: list[dict]) -> str:
    rows = [[f"[{code(test['name'])}]({test['name']}.md)", test["title"], test["about"]] for test in tests]
    contents = block("{toctree}", ":hidden:\n\n" + "\n".join(f"{test['name']} <{test['name']}>" for test in tests))
    return ("# The tests\n\nEach page has the inputs, worked examples, the formula, a chart and the measured accuracy.\n\n"
            + table(["name", "test", "what it asks"], rows) + "\n" + contents)


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
