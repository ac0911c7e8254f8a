"""What is measured of a test's accuracy: answers beside references in multiple precision."""

import json
import re
from functools import cache
from pathlib import Path

from pieces import code, table
from planner import Planner


def read_case(line: str, where: str) -> dict:
    try:
        return json.loads(line)
    except ValueError:
        raise SystemExit(f"{where}: {line!r} is no JSON") from None


@cache
def cases(repository: Path) -> list[dict]:
    """The requests with known answers, of all tests."""
    files = [*sorted((repository / "tests/cases").glob("*.jsonl")),
             *sorted((repository / "tests/vectors").glob("*.cases.jsonl"))]
    return [read_case(line, f"{file}, line {number}") for file in files
            for number, line in enumerate(file.read_text().splitlines(), 1) if line.strip()]


@cache
def achieved(repository: Path) -> dict[str, float]:
    """The largest error of each function of the library on its reference cases, on 64-bit x86."""
    found: dict[str, float] = {}
    for file in sorted((repository / "tests/vectors").glob("*.achieved.json")):
        found.update({name: each["value"] for name, each in json.loads(file.read_text()).items()})
    return found


@cache
def counts(repository: Path) -> dict[str, int]:
    """How many reference cases each function of the library has."""
    found: dict[str, int] = {}
    for file in sorted((repository / "tests/vectors").glob("*.jsonl")):
        if file.name.endswith(".cases.jsonl"):
            continue
        for line in file.read_text().splitlines():
            name = json.loads(line).get("fn", "")
            found[name] = found.get(name, 0) + 1
    return found


def difference(found: object, value: object) -> float:
    if isinstance(value, list) and isinstance(found, list) and len(found) == len(value):
        return max(map(difference, found, value))
    if isinstance(value, (int, float)) and isinstance(found, (int, float)):
        return abs(found - value)
    raise SystemExit(f"{found} cannot be compared with {value}")


def error(value: float) -> str:
    return f"{value:.1e}" if value else "0"


def source_of(case: dict) -> str:
    """Where a value is from. The scripts of tools/references compute in multiple precision."""
    script = re.fullmatch(r"(?:multiple precision, )?(?:tools/references/)?(\w+\.py)", case["source"])
    return f"multiple precision, {code('tools/references/' + script[1])}" if script else case["source"]


def of_cases(rows: list[dict], planner: Planner) -> list[str]:
    """A row of the table: what is compared with what, how often, the largest difference now and the tests' bound."""
    worst = 0.0
    for row in rows:
        results = planner.solve(row["request"]).get("results", {})
        if row["result"] not in results:
            raise SystemExit(f"{row['request']} is not answered with {row['result']}")
        worst = max(worst, difference(results[row["result"]], row["value"]))
    bound = max(row["within"] for row in rows)
    return [rows[0]["result"].replace("-", " "), source_of(rows[0]), str(len(rows)), error(worst), error(bound)]


def of_functions(repository: Path, test: dict) -> list[list[str]]:
    names = dict.fromkeys(route[key] for route in test["routes"] for key in ("export", "one-sided-export")
                          if key in route)
    return [[code(name), str(counts(repository).get(name, 0)), error(achieved(repository)[name])]
            for name in names if name in achieved(repository)]


def table_of_cases(rows: list[dict], planner: Planner) -> str:
    """A row for each result and each source, for the values of some sources are printed with few digits."""
    kinds = dict.fromkeys((row["result"], source_of(row)) for row in rows)
    return ("Answers beside values from elsewhere. The difference was measured when this page was made; the tests fail "
            "beyond the bound, which is wide where a value was printed with few digits.\n\n"
            + table(["result", "compared with", "cases", "largest difference", "bound"],
                    [of_cases([row for row in rows if (row["result"], source_of(row)) == kind], planner)
                     for kind in kinds]))


def accuracy_of(repository: Path, planner: Planner, test: dict) -> str:
    parts = []
    rows = [row for row in cases(repository) if row["request"]["test"].replace("_", "-") == test["name"]]
    if rows:
        parts.append(table_of_cases(rows, planner))
    functions = of_functions(repository, test)
    if functions:
        parts.append(
            "The functions of the library that answer this test, on reference cases that were computed in multiple "
            "precision: the largest difference, relative to values above 1. The tests fail where it grows.\n\n"
            + table(["function", "cases", "largest difference"], functions))
    if parts:
        parts.append("[Accuracy](../accuracy.md) has the distributions below, [reliability](../reliability.md) how all "
                     "of it is tested.\n")
    return "\n".join(parts)
