#!/usr/bin/env python3
"""Builds the site of the documentation, with what its requirements name in this interpreter's environment.

Usage: build.py PROGRAM LIBRARY REPOSITORY WORK SITE PLANNER_PAGE

WORK gets the sources of the site. PLANNER_PAGE is the planner page in one file, which need not be there.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

import library_pages
import offline
import sources
import test_pages
from planner import Planner


def extra_of(folder: Path, planner_page: str) -> dict[str, str]:
    """The planner page stands in the site as the one file that opens from the disk too."""
    if not Path(planner_page).is_file():
        return {}
    extra = folder / "extra"
    extra.mkdir(parents=True)
    shutil.copyfile(planner_page, extra / "kelpower.html")
    return {"KELPOWER_EXTRA": str(extra.resolve())}


def build(program: str, library: str, repository: str, work: str, site: str, planner_page: str) -> int:
    folder = Path(work)
    source = folder / "source"
    for part in (source, folder / "extra", Path(site)):
        shutil.rmtree(part, ignore_errors=True)
    extra = extra_of(folder, planner_page)
    test_pages.main(program, library, repository, str(source / "tests"))
    print(f"{library_pages.write(Path(repository), source / 'library')} functions of the library")
    sources.main(repository, str(source), planner_page if extra else "", Planner(library).describe()["tests"])
    settings = os.environ | {"KELPOWER_REPOSITORY": str(Path(repository).resolve())} | extra
    command = [sys.executable, "-m", "sphinx", "-W", "-n", "--keep-going", "-q", "-b", "html",
               "-c", str(Path(repository) / "tools/site"), "-d", str(folder / "doctrees"), str(source),
               site]
    done = subprocess.run(command, env=settings, check=False)
    return done.returncode or offline.check(Path(site))


if __name__ == "__main__":
    if len(sys.argv) != 7:
        sys.exit(__doc__)
    sys.exit(build(*sys.argv[1:]))
