"""Sections of the page of measured speed that are measured by themselves.

Each stands between two marks, so that it is replaced alone, and survives when the rest of the page is written anew.
"""

NAMES = ("tests", "python", "r", "before", "webassembly", "web", "scipy")  # in the order of the page
FOLLOWING = "## All benchmarks\n"


class NoPlace(Exception):
    """The page has no heading that the section is to stand before."""


def marks(name):
    return f"<!-- {name}: begin -->\n", f"<!-- {name}: end -->\n\n"


def body_of(page, name):
    """What stands between the marks, or None."""
    begin, end = marks(name)
    if begin not in page or end not in page:
        return None
    return page.partition(begin)[2].partition(end)[0]


def marked(bodies):
    """The sections with their marks; `bodies` maps names to text, or to None where there is none."""
    parts = []
    for name in NAMES:
        body = bodies.get(name)
        if body is not None:
            begin, end = marks(name)
            parts.append(begin + body + end)
    return "".join(parts)


def kept(page):
    """All sections of an older page, to be put into a new one."""
    return marked({name: body_of(page, name) for name in NAMES})


def replaced(page, name, body):
    """The page with another body of one section."""
    if FOLLOWING not in page:
        raise NoPlace(FOLLOWING.strip())
    old = kept(page)
    new = marked({**{other: body_of(page, other) for other in NAMES}, name: body})
    without = page.replace(old, "") if old else page
    before, heading, after = without.partition(FOLLOWING)
    return before + new + heading + after
