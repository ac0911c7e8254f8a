"""What the rows of kelpower_validation must show, and what is wrong with them where they do not."""

import math
from collections import Counter

# A design that is drawn as its power says lies beyond this many standard errors once in 150,000 times, and one of 400
# such designs in one of 370 validations. A power that is wrong by 1 % is beyond it from 0.03 of a power of 0.5 on.
MOST_STANDARD_ERRORS = 4.5

# Designs beyond this are drawn a second time: one of 370 by chance.
DOUBTFUL_STANDARD_ERRORS = 3

# Of a sum over all outcomes.
MOST_ROUNDING = 1e-9

# An approximation's stated bound may be larger than its difference by this much, and what chance explains.
MOST_SLACK = 0.005

FEWEST_DESIGNS = 10


def standard_errors(difference: float, row: dict) -> float:
    """A difference from the share of the drawn studies in standard errors of that share."""
    if row["standard-error"] > 0:
        return difference / row["standard-error"]
    return 0.0 if difference == 0 else math.inf


def score(row: dict) -> float:
    """How far the drawn studies are from what they should be, the counted probability or the exact power. Not a number
    where an approximation is all there is."""
    if "counted" in row:
        return standard_errors(row["counted"] - row["rejected"], row)
    return standard_errors(row["power"] - row["rejected"], row) if row["kind"] == "exact" else math.nan


def difference(row: dict) -> float:
    """The power less the probability that the test rejects, as well as it is known."""
    return row["power"] - row.get("counted", row["rejected"])


def chance(row: dict) -> float:
    """What chance may add to that difference."""
    return 0.0 if "counted" in row else MOST_STANDARD_ERRORS * row["standard-error"]


def complaint_on_exact(row: dict) -> str:
    if "within" in row:
        return "an exact power has no bound of an approximation"
    if abs(difference(row)) > max(MOST_ROUNDING, chance(row)):
        return f"the power is {row['power']:.6f}, and the test rejects with {row['power'] - difference(row):.6f}"
    return ""


def complaint_on_approximation(row: dict) -> str:
    if "within" not in row:
        return f"the approximation is off by {difference(row):.4f} and states no bound"
    if abs(difference(row)) > row["within"] + chance(row):
        return f"the approximation is off by {difference(row):.4f}, beyond the {row['within']} stated"
    if row["within"] > abs(difference(row)) + MOST_SLACK + chance(row):
        return f"the approximation is off by {difference(row):.4f} only; {row['within']} says too much"
    return ""


def complaint(row: dict) -> str:
    """What is wrong with a row; empty where nothing is."""
    far = score(row)
    if "counted" in row and abs(far) > MOST_STANDARD_ERRORS:
        return f"the drawn studies are {far:.1f} standard errors from the counted ones"
    return complaint_on_exact(row) if row["kind"] == "exact" else complaint_on_approximation(row)


def scores(rows: list[dict]) -> list[float]:
    return [value for value in map(score, rows) if not math.isnan(value)]


def spread_of(values: list[float]) -> float:
    """The sum of the squares, which is chi-square without a defect, as a normal deviate (Wilson and Hilferty 1931)."""
    count = len(values)
    share = 2 / (9 * count)
    return ((sum(v * v for v in values) / count) ** (1 / 3) - (1 - share)) / math.sqrt(share)


def design_of(row: dict) -> tuple:
    return row["test"], repr(sorted(row["inputs"].items()))


def missing(rows: list[dict], designs: list[dict], tests: list[str]) -> list[str]:
    """Designs without a row, rows without a design, and tests with too few."""
    wanted = Counter(map(design_of, designs))
    found = Counter(map(design_of, rows))
    complaints = [f"{test}: {inputs} was not validated" for test, inputs in wanted - found]
    complaints += [f"{test}: {inputs} is no design" for test, inputs in found - wanted]
    counts = Counter(test for test, _ in wanted)
    complaints += [f"{test} has {counts[test]} designs only" for test in tests if counts[test] < FEWEST_DESIGNS]
    return complaints


def complaints(rows: list[dict]) -> list[str]:
    """What is wrong with the rows, each by itself and all together."""
    found = [f"{row['test']} {row['inputs']}: {said}" for row in rows if (said := complaint(row))]
    drawn = scores(rows)
    if drawn and abs(spread_of(drawn)) > MOST_STANDARD_ERRORS:
        found.append(f"all designs together scatter as no chance does: {spread_of(drawn):.1f} standard deviations")
    return found
