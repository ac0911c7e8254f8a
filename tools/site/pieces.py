"""Pieces of Markdown that generated pages are made of."""

import re


def code(text: str) -> str:
    return f"`{text}`"


def block(kind: str, text: str) -> str:
    return f"```{kind}\n{text.rstrip()}\n```\n"


def table(head: list[str], rows: list[list[str]]) -> str:
    lines = [head, ["---"] * len(head), *rows]
    return "\n".join("| " + " | ".join(cell.replace("|", "\\|") for cell in line) + " |" for line in lines) + "\n"


def stacked(body: str) -> str:
    """A table of which the cells stand one under the other where the window is narrow."""
    return f":::{{table}}\n:class: kel-stacked\n\n{body}:::\n"


def bullets(items: list[str]) -> str:
    return "\n".join(f"- {item}" for item in items) + "\n"


def named_as_code(text: str) -> str:
    """A sentence in which names stand in braces, with the names as code."""
    return re.sub(r"\{([a-z][a-z0-9-]*)\}", r"`\1`", text)


def tabs(items: list[tuple[str, str]]) -> str:
    """Tabs that change together on a whole page."""
    parts = [f":::{{tab-item}} {title}\n:sync: {title.lower()}\n\n{body.rstrip()}\n:::\n" for title, body in items]
    return "::::{tab-set}\n\n" + "\n".join(parts) + "::::\n"


def dropdown(title: str, body: str) -> str:
    return f":::{{dropdown}} {title}\n\n{body.rstrip()}\n:::\n"


def first_upper(text: str) -> str:
    return text[:1].upper() + text[1:]
