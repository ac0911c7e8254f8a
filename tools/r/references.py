"""A sample of the reference cases for the tests of the R package: some typical calls of each export."""

import csv
import io
import json

from exports import NOT_ARGUMENTS, signatures

CASES = 2  # of an export
MOST_NUMBERS = 400  # of a chart
MISSING = -1.7976931348623157e308
BOUND = 1e-10  # as in the tests of the library
SINGLE_PRECISION_BOUND = 1e-6


def number(value):
    if isinstance(value, str):
        return {"inf": "Inf", "-inf": "-Inf", "nan": "NaN"}[value]
    return "NA" if value == MISSING else repr(value)


def vector(values):
    return f"c({', '.join(map(number, values))})" if values else "numeric()"


def argument(value):
    return vector(value) if isinstance(value, list) else number(value)


def numbers_of(case, signature):
    """The numbers of the result one after another: the value and the sizes, or the points of a chart."""
    result = case["ret"]
    if isinstance(result, dict):
        return [each for axis in "xyz" for each in result.get(axis) or []]
    sizes = [each for i, (_, kind) in enumerate(signature[1]) if kind == "v" for each in case["out"][str(i)]]
    return ([] if signature[0] == "void" else [result]) + sizes


def is_usable(case, signature):
    """Cases that have an answer, and whose sizes are written into an empty vector."""
    if case["kind"] == "loose":
        return False
    by_name = dict(zip((name for name, _ in signature[1]), case["args"]))
    for (_, kind), value in zip(signature[1], case["args"]):
        if kind == "v" and signature[0] == "void" and value:
            return False
        if kind in "pP" and (value is None or len(value) != by_name["numGroups"]):
            return False
        if isinstance(value, str):
            return False
    if signature[0] != "void" and case["ret"] == MISSING:
        return False
    if any(kind == "v" for _, kind in signature[1]) and "out" not in case:
        return False
    numbers = numbers_of(case, signature)
    return 0 < len(numbers) <= MOST_NUMBERS


def row(case, signature):
    given = [argument(value) for (_, kind), value in zip(signature[1], case["args"]) if kind not in NOT_ARGUMENTS]
    is_chart = signature[0] in ("XY", "XYZ")
    return [case["fn"], f"list({', '.join(given)})", vector(numbers_of(case, signature)),
            SINGLE_PRECISION_BOUND if is_chart else BOUND]


def table(source):
    known = signatures(source)
    cases = {name: [] for name in known}
    for path in sorted((source / "tests/vectors").glob("*.jsonl")):
        for line in path.read_text().split("\n"):
            case = json.loads(line) if line else {}
            if case.get("fn") in known and is_usable(case, known[case["fn"]]):
                cases[case["fn"]].append(case)
    without = [name for name, found in cases.items() if not found]
    if without:
        raise SystemExit(f"no reference case serves {', '.join(without)}")
    text = io.StringIO()
    writer = csv.writer(text, lineterminator="\n")
    writer.writerow(["name", "arguments", "result", "bound"])
    for name, found in cases.items():
        # Short ones, and of these the typical ones.
        found.sort(key=lambda case: (len(numbers_of(case, known[name])) > 40, case["kind"] != "typical"))
        for case in found[:CASES]:
            writer.writerow(row(case, known[name]))
    return text.getvalue()
