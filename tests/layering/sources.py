"""What the checks of source files share."""

import sys
from pathlib import Path


def check_all(check, suffixes, agreed):
    """Checks the files below the folders that the command line names, of these suffixes, and ends the program: with
    the problems that `check(path, text)` tells of a file, or with how many files are as `agreed` says."""
    root = Path(sys.argv[1])
    paths = [path for folder in sys.argv[2:] for path in sorted((root / folder).rglob("*")) if path.suffix in suffixes]
    problems = []
    for path in paths:
        problems += check(path.relative_to(root), path.read_text())
    print("\n".join(problems) or f"{len(paths)} files {agreed}")
    sys.exit(1 if problems or not paths else 0)
