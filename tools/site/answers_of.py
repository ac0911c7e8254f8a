"""What a page says of the answers to the examples of a test."""

import re

from inputs_of import QUESTIONS, SOLVED
from pieces import block, bullets, code, dropdown, first_upper, named_as_code, tabs
from planner import Planner

TARGETS = ("target-power", "target-half-width")


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


def others_of(answers: list[dict], more: str) -> str:
    """How other programs are asked the same; `more` is the address of further questions."""
    by_answer = [f"**{code(answer['calls']['program'])}**\n\n" + "\n".join(map(other_of, answer["details"]["programs"]))
                 for answer in answers if answer["details"].get("programs")]
    if not by_answer:
        return ""
    return ("How the examples are asked elsewhere, and where an answer differs, the reason. "
            f"[More of them]({more}), and what a [newcomer](../coming-from.md) should know.\n\n"
            + dropdown("The calls", "\n\n".join(by_answer)))


def other_of(program: dict) -> str:
    remark = program.get("remark", "")
    verdict = "the same answer" if program["same"] else "another answer"
    return f"- {program['program']}, {verdict}{': ' + remark if remark else ''}\\\n  {code(program['call'])}"
