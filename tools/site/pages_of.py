"""Which hand-written page has the formulas of a test."""

import re
import sys
import tomllib
from functools import cache
from pathlib import Path

PAGE = re.compile(r"docs/([\w-]+\.md)")


@cache
def listed(repository: Path) -> frozenset[str]:
    """The pages that the table of contents names: none of them is of a family of tests."""
    contents = tomllib.loads((repository / "tools/site/contents.toml").read_text())
    return frozenset(page for section in contents["section"] for page in section.get("pages", []))


@cache
def functions(repository: Path) -> dict:
    sys.path.insert(0, str(repository / "tools/python"))
    from header import read_header

    return {each.name: each for each in read_header((repository / "include/kelpower.h").read_text())}


def of_exports(repository: Path, test: dict) -> str:
    """The page that the header names for a function that answers the test."""
    for route in test["routes"]:
        function = functions(repository).get(route.get("export", ""))
        match = PAGE.search(" ".join(function.section.remarks)) if function else None
        if match:
            return match[1]
    return ""


def mentions(text: str, name: str) -> int:
    """How often a page speaks of a test: by its name, or by a heading with the words of the name."""
    words = re.escape(name.replace("-", " "))
    return (len(re.findall(rf"(?:kelpower |`){re.escape(name)}(?=[ `\n])", text))
            + len(re.findall(rf"^#+ .*\b{words}\b", text, re.MULTILINE | re.IGNORECASE)))


def of_mentions(repository: Path, test: dict) -> str:
    """The page of a family that speaks most of the test."""
    pages = [page for page in sorted((repository / "docs").glob("*.md")) if page.name not in listed(repository)]
    counted = [(mentions(page.read_text(), test["name"]), page.name) for page in pages]
    count, page = max(counted, default=(0, ""))
    return page if count else ""


def page_of(repository: Path, test: dict) -> str:
    """The name of the page in docs, empty where no page speaks of the test."""
    return of_exports(repository, test) or of_mentions(repository, test)
