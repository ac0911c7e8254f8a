"""Puts the sources of the site together: the pages of docs as they are, the files that they link to, and the contents.

The pages of docs come to the top of the folder, other files of the repository into its folder `repository`. Links
follow.
"""

import os
import posixpath
import re
import shutil
import sys
import tomllib
from pathlib import Path

import pages_of
from pieces import block, bullets

LINK = re.compile(r"(\]\()([^)\s:#]+)((?:#[^)\s]*)?\))")
IMAGES = {".svg", ".png"}
START = "index.md"
HEADER = "include/kelpower.h"


def place_of(path: str) -> str:
    """Where a file of the repository stands in the sources of the site."""
    return path.removeprefix("docs/") if path.startswith("docs/") else f"repository/{path}"


class Sources:
    """The folder in the making."""

    def __init__(self, repository: Path, folder: Path) -> None:
        self.repository, self.folder = repository, folder
        self.done: set[str] = set()

    def add(self, path: str) -> None:
        """Adds a file, or a page that lists the files of a folder, and all that it links to."""
        if path in self.done:
            return
        self.done.add(path)
        source, target = self.repository / path, self.folder / self.target_of(path)
        target.parent.mkdir(parents=True, exist_ok=True)
        if source.is_dir():
            target.write_text(self.listing(path))
        elif source.suffix == ".md":
            target.write_text(self.linked(path, source.read_text()))
        else:
            shutil.copyfile(source, target)

    def target_of(self, path: str) -> str:
        place = place_of(path)
        return f"{place}/index.md" if (self.repository / path).is_dir() else place

    def link_of(self, page: str, target: str) -> str:
        path = posixpath.normpath(posixpath.join(posixpath.dirname(page), target))
        if not (self.repository / path).exists():
            raise SystemExit(f"{page} links to {target}, which is not there")
        self.add(path)
        # Who looks for the header reads its functions on their pages, which lead to it.
        place = "library/index.md" if path == HEADER else self.target_of(path)
        return os.path.relpath(place, posixpath.dirname(self.target_of(page)) or ".")

    def linked(self, page: str, text: str) -> str:
        """A page with its links as they are in the site; what looks like a link in code stays."""
        parts = re.split(r"(^```.*?^```$|`[^`\n]+`)", text, flags=re.MULTILINE | re.DOTALL)
        parts[::2] = [LINK.sub(lambda match: match[1] + self.link_of(page, match[2]) + match[3], part)
                      for part in parts[::2]]
        # A link whose text is code was split: its address stands at the beginning of the part behind.
        return "".join(parts)

    def listing(self, path: str) -> str:
        names = sorted(each.name for each in (self.repository / path).iterdir() if each.is_file())
        for name in names:
            self.add(f"{path}/{name}")
        return f"---\norphan: true\n---\n# {path}\n\n" + bullets([f"[{name}]({name})" for name in names])


def contents(repository: Path, others: list[str], has: set[str]) -> str:
    """The tables of contents that the start page holds, one a section."""
    parts = []
    for section in tomllib.loads((repository / "tools/site/contents.toml").read_text())["section"]:
        pages = [page for page in section["pages"] if page in has] + (others if section.get("others") else [])
        missing = [page for page in section["pages"] if page not in has]
        if missing:
            raise SystemExit(f"tools/site/contents.toml names pages that are not there: {', '.join(missing)}")
        parts.append(block("{toctree}", f":hidden:\n:caption: {section['title']}\n\n" + "\n".join(pages)))
    return "\n" + "\n".join(parts)


def mark_as_orphans(folder: Path, in_contents: set[str]) -> None:
    """Pages that are only linked to say so."""
    for page in folder.rglob("*.md"):
        name = page.relative_to(folder).as_posix()
        text = page.read_text()
        if name not in in_contents and not text.startswith("---"):
            page.write_text(f"---\norphan: true\n---\n{text}")


def tests_of_pages(repository: Path, tests: list[dict]) -> dict[str, list[dict]]:
    found: dict[str, list[dict]] = {}
    for test in tests:
        page = pages_of.page_of(repository, test)
        if page:
            found.setdefault(page, []).append(test)
        else:
            print(f"No page of docs speaks of {test['name']}.", file=sys.stderr)
    return found


def lead_to_tests(folder: Path, found: dict[str, list[dict]]) -> None:
    """The page of a family leads to the pages of its tests."""
    for name, tests in found.items():
        page = folder / name
        title, _, rest = page.read_text().partition("\n")
        links = ", ".join(f"[{test['name']}](tests/{test['name']}.md)" for test in tests)
        page.write_text(f"{title}\n\n:::{{seealso}}\nInputs, worked examples and charts: {links}.\n:::\n{rest}")


def lead_to_planner(folder: Path, tests: list[dict]) -> None:
    """The page of a test leads to its form in the planner page, which is no source of the site: so the link is HTML."""
    for test in tests:
        page = folder / "tests" / f"{test['name']}.md"
        head, _, rest = page.read_text().partition("\n![")
        link = f'<p><a class="kel-button" href="../kelpower.html#{test["name"]}">Plan it in this browser</a></p>'
        page.write_text(f"{head}\n{link}\n\n![{rest}")


PLANNER = """# The planner page

The planner runs in this browser. It computes on this machine and sends nothing.

<p><a class="kel-button" href="kelpower.html">Open the planner</a></p>

[The planner page](web.md) tells what it does.
"""
NO_PLANNER = """# The planner page

The planner page was not built when this site was made. `make web` builds it; `make site` then copies it here.
[The planner page](web.md) tells what it does.
"""


def main(repository_name: str, folder_name: str, planner_page: str, tests: list[dict]) -> None:
    repository, folder = Path(repository_name), Path(folder_name)
    sources = Sources(repository, folder)
    pages = sorted(page.name for page in (repository / "docs").glob("*.md"))
    for path in [*(f"docs/{page}" for page in pages), "CONTRIBUTING.md", "CHANGELOG.md", HEADER]:
        sources.add(path)
    (folder / "planner.md").write_text(PLANNER if planner_page else NO_PLANNER)

    listed = pages_of.listed(repository)
    others = [page for page in pages if page not in listed and page != START]
    has = {page.relative_to(folder).as_posix() for page in folder.rglob("*.md")}
    with (folder / START).open("a") as start:
        start.write(contents(repository, others, has))
    lead_to_tests(folder, tests_of_pages(repository, tests))
    if planner_page:
        lead_to_planner(folder, tests)
    generated = {name for name in has if name.startswith(("tests/", "library/"))}
    mark_as_orphans(folder, listed | generated | set(others) | {START})
