"""groff and mandoc have nothing to say against the manual pages, and both render all that they have to tell."""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path


def run(*command: str, **options) -> subprocess.CompletedProcess:
    return subprocess.run(command, capture_output=True, text=True, **options)


def needed(tool: str) -> str:
    path = shutil.which(tool)
    if not path:
        sys.exit(f"{tool} is missing: sh tools/install_packages.sh shells")
    return path


def commands(program: str) -> list[str]:
    described = json.loads(run(program, "list", "--format", "json", check=True).stdout)
    return ["", "run", "effect", *(test["name"] for test in described)]


def rendered_by_groff(page: Path) -> tuple[str, str]:
    """The text and the complaints. What man(1) sends through a pipe has no warnings, so groff is asked itself."""
    done = run("groff", "-man", "-Tutf8", "-ww", "-P-c", "-P-b", "-P-u", "-rLL=100n", str(page))
    return re.sub(r"\x1b\[[0-9;]*m", "", done.stdout), done.stderr


def rendered_by_mandoc(page: Path) -> str:
    return re.sub(".\b", "", run("mandoc", "-Tutf8", str(page)).stdout)


def faults(program: str, command: str, folder: Path) -> list[str]:
    page = folder / f"kelpower-{command}.1"
    page.write_text(run(program, "--man", *([command] if command else []), check=True).stdout)
    found = run("mandoc", "-Tlint", "-Wwarning", str(page)).stdout.splitlines()
    text, complaints = rendered_by_groff(page)
    found += complaints.splitlines()
    for shown in (text, rendered_by_mandoc(page)):
        found += [f"{page.name} shows no {section}" for section in ("NAME", "SYNOPSIS", "EXIT STATUS", "SEE ALSO")
                  if f"\n{section}\n" not in shown]
        if "kelpower" not in shown or re.search(r"\\f[BIR]|\\-|^\.[A-Z]{2}", shown, re.MULTILINE):
            found.append(f"{page.name} shows what is to be hidden")
    return found


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program")
    program = parser.parse_args().program
    for tool in ("mandoc", "groff"):
        needed(tool)
    os.environ["SOURCE_DATE_EPOCH"] = "951782400"
    with tempfile.TemporaryDirectory() as folder:
        pages = commands(program)
        found = [fault for command in pages for fault in faults(program, command, Path(folder))]
    if found:
        sys.exit("\n".join(found))
    print(f"{len(pages)} manual pages are in order")


if __name__ == "__main__":
    main()
