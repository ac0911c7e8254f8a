"""Pages of the functions of the library, one for each section of its header."""

import re
import sys
import textwrap
from pathlib import Path

from pieces import block, bullets, code, table

WIDTH = 84  # of a declaration, in letters: as wide as the text


def slug(title: str) -> str:
    return re.sub(r"[^a-z0-9]+", "-", title.lower()).strip("-")


def declaration_of(header: str, name: str) -> str:
    match = re.search(rf"^KELPOWER_API (\w+ {name}\([^)]*\);)", header, re.MULTILINE)
    assert match, name
    # A line ends behind an argument, never within one.
    text = re.sub(r"\s+", " ", match[1]).replace(" ", "\xa0").replace(",\xa0", ", ")
    return textwrap.fill(text, WIDTH, subsequent_indent="    ", break_on_hyphens=False).replace("\xa0", " ")


def formatted(text: str) -> str:
    """A comment as Markdown, in which pages are links."""
    return re.sub(r"docs/([\w-]+)\.md", r"[\1](../\1.md)", text)


def parameters_table(parameters: dict[str, str]) -> str:
    return table(["argument", "what it is"], [[code(name), formatted(text)] for name, text in parameters.items()])


def function_text(function: object, header: str) -> str:
    parts = [f"## {function.name}\n", block("cpp", declaration_of(header, function.name))]
    parts += [formatted(text) + "\n" for text in function.text]
    parts += [parameters_table(function.own)] if function.own else []
    parts += [f"Returns {formatted(function.returns)}\n"] if function.returns else []
    return "\n".join(parts)


def section_page(section: object, functions: list, header: str) -> str:
    parts = [f"# {section.title}\n"]
    parts += [formatted(remark) + "\n" for remark in section.remarks]
    if section.parameters:
        parts += ["The arguments that the functions share:\n", parameters_table(section.parameters)]
    return "\n".join([*parts, *(function_text(each, header) for each in functions)])


INDEX = """# The functions of the library

{count} functions for C++, as [kelpower.h](../repository/include/kelpower.h) declares them. Python has them in
[`kelpower.lib`](../python-lib.md), R in [`kp_lib`](../r.md), under the same names. For other languages there is
[the C interface](../c.md).

{preface}
## Sections

{sections}
"""


def preface_of(header: str) -> str:
    """What the comment at the start of the header says of all functions."""
    lines = header[header.index("/// \\file"):].split("\n")[1:]
    comment = []
    for line in lines:
        if not line.startswith("///"):
            break
        comment.append(line.removeprefix("///").removeprefix(" "))
    return formatted("\n".join(comment).replace("terms:\n- ", "terms:\n\n- ")) + "\n"


def write(repository: Path, folder: Path) -> int:
    sys.path.insert(0, str(repository / "tools/python"))
    from header import read_header

    header = (repository / "include/kelpower.h").read_text()
    functions = read_header(header)
    folder.mkdir(parents=True, exist_ok=True)
    sections = {id(each.section): each.section for each in functions}
    links = []
    for key, section in sections.items():
        inside = [each for each in functions if id(each.section) == key]
        name = slug(section.title)
        (folder / f"{name}.md").write_text(section_page(section, inside, header))
        links.append((name, f"[{section.title}]({name}.md): {len(inside)} functions"))
    toctree = block("{toctree}", ":hidden:\n\n" + "\n".join(name for name, _ in links))
    index = INDEX.format(count=len(functions), preface=preface_of(header),
                         sections=bullets([link for _, link in links]) + "\n" + toctree)
    (folder / "index.md").write_text(index)
    return len(functions)
