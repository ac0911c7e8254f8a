"""How names, values and calls are written in R."""

WIDTH = 110


def wrapped(start, items, end, indent, width=WIDTH):
    """Items with commas between them, broken into lines."""
    lines, line = [], start
    for number, item in enumerate(items):
        piece = item + ("," if number + 1 < len(items) else end)
        if len(line) + len(piece) + 1 > width:
            lines.append(line.rstrip())
            line = " " * indent
        line += piece + " "
    return "\n".join(lines + [line.rstrip()])


def underscored(name):
    return name.replace("-", "_")


def r_value(value):
    if isinstance(value, bool):
        return "TRUE" if value else "FALSE"
    if isinstance(value, str):
        return f'"{value}"'
    if isinstance(value, list):
        return r_value(value[0]) if len(value) == 1 else f"c({', '.join(map(r_value, value))})"
    return repr(int(value)) if float(value).is_integer() and abs(value) < 1e6 else repr(value)


def call(function, inputs, width=WIDTH):
    arguments = [f"{underscored(name)} = {r_value(value)}" for name, value in inputs.items()]
    return wrapped(f"{function}(", arguments, ")", len(function) + 1, width)
