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


def marked_block(match: re.Match) -> str:
    """A block of lines; one that may have to be scrolled can be reached by the keyboard."""
    start = '<pre tabindex="0">' if any(map(is_row, match[2].split("\n"))) else match[1]
    return start + marked(match[2]) + match[3]


def mark_lines(app: object, pagename: str, templatename: str, context: dict, doctree: object) -> None:
    if "body" in context:
        context["body"] = PRE.sub(marked_block, context["body"])
    # The captions of the contents say that they are headings, but not of which level.
    if "furo_navigation_tree" in context:
        context["furo_navigation_tree"] = context["furo_navigation_tree"].replace(
            'role="heading"', 'role="heading" aria-level="2"')


def setup(app: object) -> dict:
    app.connect("html-page-context", mark_lines, priority=900)  # after the theme
    return {"parallel_read_safe": True, "parallel_write_safe": True}
