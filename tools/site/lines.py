"""Lines of code and output that may go on in the next line where the window is narrow.

A sentence may, as it does in a terminal. A row of a table may not: two spaces or more within it hold its columns apart.
"""

import re

PRE = re.compile(r"(<pre>)(.*?)(</pre>)", re.DOTALL)
TAG = re.compile(r"<[^>]*>")
OPTION = re.compile(r"(?<![\w-])--[a-z][\w-]*(?![^<]*>)")


def is_row(line: str) -> bool:
    return "  " in TAG.sub("", line).strip()


def is_balanced(line: str) -> bool:
    """Whether a line has no element that another line ends."""
    return len(re.findall(r"<\w", line)) == len(re.findall(r"</", line))


def marked_line(line: str) -> str:
    if is_row(line) or not is_balanced(line) or not TAG.sub("", line).strip():
        return line
    line = OPTION.sub(r'<span class="kel-option">\g<0></span>', line)  # which would break at its hyphens
    return f'<span class="kel-text">{line}</span>'


def marked(text: str) -> str:
    return "\n".join(map(marked_line, text.split("\n")))


def mark_lines(app: object, pagename: str, templatename: str, context: dict, doctree: object) -> None:
    if "body" in context:
        context["body"] = PRE.sub(lambda match: match[1] + marked(match[2]) + match[3], context["body"])


def setup(app: object) -> dict:
    app.connect("html-page-context", mark_lines)
    return {"parallel_read_safe": True, "parallel_write_safe": True}
