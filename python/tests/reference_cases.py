"""The reference cases of the exports and how answers are compared with them, as the tests of the library do."""

import functools
import json
import math
from collections import defaultdict
from dataclasses import dataclass
from pathlib import Path
from typing import Any

import numpy as np

ROOT = Path(__file__).resolve().parents[2]
FOLDER = ROOT / "tests" / "vectors"

MISSING = -1.7976931348623157e308

# A rounded-up size this near to a whole number depends on the last digits of the reference.
TIE_MARGIN = 1e-7

# The largest differences that are accepted.
VALUE_BOUND = 1e-10
GRID_BOUND = 1e-13
SINGLE_BOUND = 1  # in units in the last place of a float

# Charts whose values are not rounded to single precision.
DOUBLE_CHARTS = {
    "PlotNOverallTest",
    "PlotNOverallTestFES",
    "PlotNSC",
    "PlotNSCFES",
    "PlotNaSDOverallTest",
    "PlotNaESOverallTest",
    "PlotNaSDSC",
}


@dataclass
class Case:
    """One call, with what it answers."""

    function: str
    place: str
    arguments: list[Any]
    result: Any
    outputs: dict[int, list[float]]
    is_compared: bool


def signatures() -> dict[str, tuple[str, list[tuple[str, str]]]]:
    """The type of the result of each export, and the names and types of its arguments."""
    return json.loads((FOLDER / "signatures.json").read_text())


def number(value: Any) -> float:
    return float(value)  # "nan", "inf" and "-inf" too


def numbers(values: list[Any]) -> np.ndarray:
    return np.array([number(value) for value in values], dtype=float)


def superseded(family: str) -> dict[str, dict[str, Any]]:
    entries = json.loads((FOLDER / "superseded.json").read_text())
    return {f"{entry['fn']}{entry['args']}": entry for entry in entries if entry["family"] == family}


def read(path: Path) -> list[Case]:
    replaced = superseded(path.stem)
    cases = []
    for line, text in enumerate(path.read_text().splitlines(), 1):
        raw = json.loads(text)
        raw |= replaced.get(f"{raw['fn']}{raw['args']}", {})
        is_compared = raw["kind"] != "loose" and number(raw.get("margin", 1)) >= TIE_MARGIN
        outputs = {int(place): values for place, values in raw.get("out", {}).items()}
        cases.append(Case(raw["fn"], f"{path.name}:{line}", raw["args"], raw["ret"], outputs, is_compared))
    return cases


@functools.cache
def all_cases() -> dict[str, list[Case]]:
    """The cases of each export."""
    found: dict[str, list[Case]] = defaultdict(list)
    for path in sorted(FOLDER.glob("*.jsonl")):
        for case in read(path):
            found[case.function].append(case)
    return found


def is_exact(expected: float, *, is_grid: bool) -> bool:
    return not math.isfinite(expected) or expected == MISSING or (not is_grid and expected in (-1, -2))


def close(actual: float, expected: float) -> float:
    """The difference, absolute or relative, whichever is smaller."""
    difference = abs(actual - expected) / max(1.0, abs(expected))
    return math.inf if math.isnan(difference) else difference


def is_single(value: float) -> bool:
    return abs(value) <= np.finfo(np.float32).max and float(np.float32(value)) == value


def differs(actual: float, expected: float, kind: str) -> bool:
    """Whether a value, a coordinate of a chart (grid) or a value of one in single precision (single) is wrong."""
    if math.isnan(expected):
        return not math.isnan(actual)
    if is_exact(expected, is_grid=kind == "grid"):
        return actual != expected
    difference = close(actual, expected)
    if kind != "single":
        return difference > (GRID_BOUND if kind == "grid" else VALUE_BOUND)
    if difference <= VALUE_BOUND:
        return False
    if not (is_single(actual) and is_single(expected)):
        return True
    return abs(actual - expected) > SINGLE_BOUND * float(np.spacing(np.abs(np.float32(expected))))


def differences(case: Case, what: str, actual: Any, expected: Any, kind: str = "value") -> list[str]:
    """What is wrong with an array; null stands for an empty one."""
    flat, wanted = np.ravel(actual), numbers(expected or [])
    if len(flat) != len(wanted):
        return [f"{case.place}: {what} has {len(flat)} numbers, expected {len(wanted)}"]
    return [
        f"{case.place}: {what}[{i}] is {flat[i]!r}, expected {wanted[i]!r}"
        for i in range(len(wanted))
        if differs(float(flat[i]), float(wanted[i]), kind)
    ]
