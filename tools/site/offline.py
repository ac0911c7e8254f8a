"""A check that the pages of the site load nothing from elsewhere."""

import re
from pathlib import Path

LOADED = re.compile(r"<(?:script|img|iframe|link)\b[^>]*\b(?:src|href)=\"((?:https?:)?//[^\"]*)\"")
STYLED = re.compile(r"(?:url\(|@import)\s*[\"']?((?:https?:)?//[^\"')]*)")


def loaded_from_elsewhere(text: str) -> list[str]:
    return LOADED.findall(text) + STYLED.findall(text)


def check(site: Path) -> int:
    """0 where nothing is loaded from elsewhere."""
    found = [f"{file}: {address}" for file in site.rglob("*") if file.suffix in (".html", ".css")
             for address in loaded_from_elsewhere(file.read_text())]
    print("\n".join(f"{each} is loaded from elsewhere" for each in found), end="")
    return 1 if found else 0
