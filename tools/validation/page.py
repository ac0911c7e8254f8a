"""The page docs/validation.md: powers beside drawn studies, counted outcomes and published values.

page.py write LIBRARY PAGE ROWS...   judges the rows of kelpower_validation and writes the page. Where a power is not what
                                     its test does, this is said, nothing is written, and the status is 1.
page.py doubtful LIBRARY ROWS...     prints the designs whose studies are so far off that they are to be drawn again.
page.py check LIBRARY PAGE           the page has a section of each test with each of its designs and published values, and
                                     the published values are what the library answers.

Published values are those of tests/validation/published.jsonl and of tests/cases whose source is a publication or another
program.
"""

import json
import math
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(Path(__file__).parent), str(ROOT / "tools/site")]
import judge  # noqa: E402
from planner import Planner  # noqa: E402
from prose import APPROXIMATED, HEAD, NOT_COVERED, READING  # noqa: E402

DESIGNS = ROOT / "tests/validation/designs.jsonl"
OWN_SOURCES = re.compile(r"(own|multiple precision|tools/|cases_)")


def read_rows(file: Path) -> list[dict]:
    return [json.loads(line) for line in file.read_text().splitlines() if line.strip()]


def text_of(value: object) -> str:
    if isinstance(value, list):
        return ",".join(text_of(each) for each in value)
    return f"{value:.10g}" if isinstance(value, float) else str(value)


def words(inputs: dict) -> str:
    """Inputs as the options of the program."""
    return " ".join(f"--{name}" if value is True else f"--{name} {text_of(value)}" for name, value in inputs.items())


def table(columns: list[str], lines: list[list[str]]) -> str:
    rows = [columns, ["---"] * len(columns), *lines]
    return "\n".join("| " + " | ".join(row) + " |" for row in rows) + "\n"


def signed(value: float, digits: int) -> str:
    """A difference with its sign; none where nothing is left of it."""
    text = f"{value:+.{digits}f}"
    return text.lstrip("+-") if float(text) == 0 else text.replace("-", "−")


def exact_line(row: dict) -> list[str]:
    counted = "" if "counted" not in row else f"{abs(row['power'] - row['counted']):.0e}"
    far = judge.standard_errors(row["power"] - row["rejected"], row)
    return [f"`{words(row['inputs'])}`", f"{row['power']:.5f}", f"{row['rejected']:.5f}", signed(far, 2), counted]


def approximate_line(row: dict) -> list[str]:
    truth = f"{row['counted']:.5f}" if "counted" in row else f"{row['rejected']:.4f} ({row['standard-error']:.4f})"
    return [f"`{words(row['inputs'])}`", f"{row['power']:.5f}", truth, signed(judge.difference(row), 4),
            text_of(row["within"])]


def studies_of(rows: list[dict]) -> str:
    counts = sorted({row["studies"] for row in rows})
    return f"{counts[0]:,}" if len(counts) == 1 else f"{counts[0]:,} to {counts[-1]:,}"


def exact_table(rows: list[dict]) -> str:
    columns = ["design", "power", "rejected", "standard errors", "counted: off by"]
    lines = [exact_line(row) for row in rows]
    if not any(line[-1] for line in lines):
        columns, lines = columns[:-1], [line[:-1] for line in lines]
    return f"Exact, {studies_of(rows)} studies each:\n\n" + table(columns, lines)


def approximate_table(rows: list[dict]) -> str:
    columns = ["design", "power", "rejects with", "difference", "bound"]
    why = APPROXIMATED[rows[0]["test"]]
    return (f"Approximations, {studies_of(rows)} studies each. {why}\n\n"
            + table(columns, [approximate_line(row) for row in rows]))


def is_published(case: dict) -> bool:
    return not OWN_SOURCES.match(case["source"]) and case["result"] in ("power", "n", "total")


def all_published() -> list[dict]:
    files = [ROOT / "tests/validation/published.jsonl", *sorted((ROOT / "tests/cases").glob("*.jsonl"))]
    return [case for file in files for case in read_rows(file) if is_published(case)]


def digits_of(case: dict) -> int:
    """How many digits were published. Where ours stands in the case with all its digits, four are sure."""
    if case["within"] == 0:
        return 0
    return 4 if case["within"] < 5e-10 else round(-math.log10(2 * case["within"]))


def rounded(value: object, digits: int) -> str:
    if isinstance(value, list):
        return ",".join(rounded(each, digits) for each in value)
    return f"{value:.{digits}f}"


def source_of(case: dict) -> str:
    """The publication, without what our cases say of the value's digits."""
    return re.sub(r"(,? and|;|,) (multiple precision|to its digits|four digits).*", "", case["source"])


def published_line(case: dict, planner: Planner) -> list[str]:
    answer = planner.solve(case["request"])["results"][case["result"]]
    digits = digits_of(case)
    inputs = words(case["request"]["inputs"])
    shown = f"`{inputs}`" if len(inputs) < 200 else "two groups of 13 values as categories"
    return [shown, case["result"], rounded(case["value"], digits), rounded(answer, digits), source_of(case)]


def published_lines(test: str, planner: Planner) -> list[list[str]]:
    return [published_line(case, planner) for case in all_published() if case["request"]["test"] == test]


def published_table(test: str, planner: Planner) -> str:
    lines = published_lines(test, planner)
    if not lines:
        return "No published value of this test is among ours.\n"
    return "Published values:\n\n" + table(["design", "answer", "published", "kelpower", "source"], lines)


def section(test: dict, rows: list[dict], planner: Planner) -> str:
    exact = [row for row in rows if row["kind"] == "exact"]
    others = [row for row in rows if row["kind"] != "exact"]
    parts = [f"## {test['name']}\n\n{test['title']}.\n"]
    parts += [exact_table(exact)] if exact else []
    parts += [approximate_table(others)] if others else []
    return "\n".join([*parts, published_table(test["name"], planner)])


def normal_beyond(limit: float) -> float:
    return math.erfc(limit / math.sqrt(2))


def scatter(rows: list[dict]) -> str:
    """The differences of drawn studies beside a normal distribution."""
    drawn = judge.scores(rows)
    lines = []
    for limit in (0.5, 1, 1.5, 2, 2.5, 3, 3.5):
        found = sum(abs(value) > limit for value in drawn)
        lines.append([f"{limit:g}", str(found), f"{normal_beyond(limit) * len(drawn):.1f}"])
    mean = sum(drawn) / len(drawn)
    spread = math.sqrt(sum(value * value for value in drawn) / len(drawn))
    return (f"The shares of {len(drawn)} designs can be held against a probability that is exact, of a power or counted. So "
            f"many are further from it than chance would have them:\n\n"
            + table(["beyond, in standard errors", "designs", "expected by chance"], lines)
            + f"\nTheir mean is {signed(mean, 3)}, where {1 / math.sqrt(len(drawn)):.3f} would be usual; their root mean "
            f"square is {spread:.3f}, where it would be 1. The furthest is {max(map(abs, drawn)):.2f} standard errors away, "
            f"as is to be expected of that many with a probability of "
            f"{1 - (1 - normal_beyond(max(map(abs, drawn)))) ** len(drawn):.2f}.\n")


def again_line(row: dict, rows: list[dict]) -> list[str]:
    first = next(each for each in rows if judge.design_of(each) == judge.design_of(row))
    return [f"`{row['test']} {words(row['inputs'])}`", signed(judge.score(first), 2), signed(judge.score(row), 2)]


def drawn_again(rows: list[dict], again: list[dict]) -> str:
    """The designs that were drawn a second time. A defect would be seen again, and more of it with more studies."""
    if not again:
        return ""
    columns = ["design", "standard errors at first", "standard errors then"]
    return (f"\nThose beyond {judge.DOUBTFUL_STANDARD_ERRORS} were drawn a second time, with another seed and "
            f"{studies_of(again)} studies. A difference of that size that was not chance would stay, and grow in standard "
            f"errors:\n\n" + table(columns, [again_line(row, rows) for row in again]))


def largest_line(test: dict, rows: list[dict]) -> list[str]:
    exact = [abs(judge.standard_errors(row["power"] - row["rejected"], row)) for row in rows if row["kind"] == "exact"]
    counted = [abs(judge.difference(row)) for row in rows if row["kind"] == "exact" and "counted" in row]
    others = [abs(judge.difference(row)) for row in rows if row["kind"] != "exact"]
    return [f"[`{test['name']}`](#{test['name']})", str(len(exact)), f"{max(exact):.2f}" if exact else "",
            f"{max(counted):.0e}" if counted else "", str(len(others)), f"{max(others):.4f}" if others else ""]


def summary(tests: list[dict], rows: list[dict], again: list[dict]) -> str:
    exact = sum(row["kind"] == "exact" for row in rows)
    counted = sum("counted" in row for row in rows)
    studies = sum(row["studies"] for row in rows)
    columns = ["test", "exact designs", "largest difference, in standard errors", "largest from counted",
               "approximate designs", "largest difference"]
    lines = [largest_line(test, of_test(test["name"], rows)) for test in tests]
    return (f"## Summary\n\n{len(rows)} designs of {len(tests)} tests, {studies / 1e6:,.0f} million studies. {exact} of the "
            f"powers are exact, {len(rows) - exact} approximations. Of {counted} designs all outcomes were counted "
            f"through.\n\n" + table(columns, lines) + "\n" + scatter(rows) + drawn_again(rows, again)
            + "\nThe seed of a design follows from its inputs, so that the numbers are the same in each run with GNU's "
              "library of C++; others draw other studies.\n")


def of_test(test: str, rows: list[dict]) -> list[dict]:
    return [row for row in rows if row["test"] == test]


def page(tests: list[dict], rows: list[dict], again: list[dict], planner: Planner) -> str:
    example = f"{rows[0]['test']} {words(rows[0]['inputs'])}"
    reading = READING.format(example=example, most=judge.MOST_STANDARD_ERRORS, rounding=judge.MOST_ROUNDING,
                             slack=judge.MOST_SLACK)
    sections = [section(test, of_test(test["name"], rows), planner) for test in tests]
    return HEAD + "\n".join([summary(tests, rows, again), reading, NOT_COVERED, *sections])


def wrongly_published(planner: Planner) -> list[str]:
    """Published values that differ from ours in a digit."""
    lines = [published_line(case, planner) for case in all_published()]
    return [f"{source}: {result} is {published}, and ours {ours}" for _, result, published, ours, source in lines
            if published != ours]


def in_order(rows: list[dict], designs: list[dict]) -> list[dict]:
    """The rows in the order of the designs, with the bounds that these state now."""
    place = {judge.design_of(design): index for index, design in enumerate(designs)}
    stated = {judge.design_of(design): design["within"] for design in designs if "within" in design}
    for row in rows:
        row.pop("within", None)
        row.update({"within": stated[judge.design_of(row)]} if judge.design_of(row) in stated else {})
    return sorted(rows, key=lambda row: place.get(judge.design_of(row), -1))


def rows_in(files: list[Path]) -> list[dict]:
    return [row for file in files for row in read_rows(file)]


def doubtful(rows: list[dict]) -> list[str]:
    """The designs to be drawn again, as lines of a file of designs."""
    return [json.dumps({"test": row["test"], "inputs": row["inputs"]}) for row in rows
            if abs(judge.score(row)) > judge.DOUBTFUL_STANDARD_ERRORS]


def write(planner: Planner, file: Path, row_files: list[Path]) -> list[str]:
    designs = read_rows(DESIGNS)
    all_rows = in_order(rows_in(row_files), designs)
    rows = [row for row in all_rows if "seed" not in row]
    again = [row for row in all_rows if "seed" in row]
    tests = planner.describe()["tests"]
    found = judge.missing(rows, designs, [test["name"] for test in tests])
    found += judge.complaints(rows) + wrongly_published(planner)
    if len(doubtful(rows)) != len(again):
        found.append(f"{len(doubtful(rows))} designs are to be drawn again, and {len(again)} were")
    found += [f"{row['test']} {row['inputs']}, drawn again: {said}" for row in again if (said := judge.complaint(row))]
    if not found:
        file.write_text(page(tests, rows, again, planner))
    return found


def check(planner: Planner, file: Path) -> list[str]:
    text = file.read_text()
    designs = read_rows(DESIGNS)
    tests = [test["name"] for test in planner.describe()["tests"]]
    found = judge.missing(designs, designs, tests) + wrongly_published(planner)
    sections = {part.split("\n", 1)[0]: part for part in text.split("\n## ")[1:]}
    for test in tests:
        wanted = [f"| `{words(design['inputs'])}` |" for design in of_test(test, designs)]
        wanted += [f"| {line[0]} |" for line in published_lines(test, planner)]
        found += [f"{file.name} has nothing of {test} {each}" for each in wanted if each not in sections.get(test, "")]
    return found


def main() -> int:
    task, library, file, *rows = sys.argv[1:]
    if task == "doubtful":
        print("".join(f"{design}\n" for design in doubtful(rows_in([Path(file), *map(Path, rows)]))), end="")
        return 0
    planner = Planner(library)
    found = write(planner, Path(file), list(map(Path, rows))) if task == "write" else check(planner, Path(file))
    for each in found:
        print(each, file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
