"""What a page says of the inputs of a test."""

from pieces import code, named_as_code, stacked, table

QUESTIONS = {
    "power": "Power of a design",
    "sample-size": "Sample size for a power",
    "half-width": "Half-width of the confidence interval of a design",
    "sample-size-for-half-width": "Sample size for a half-width",
}
SOLVED = "Effect, or another number, that a design can detect"


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
