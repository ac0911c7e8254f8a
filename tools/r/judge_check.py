"""Judges the log of R CMD check: no error, no warning, and no note but those that a package's first submission has.

Usage: judge_check.py LOG
"""

import re
import sys
from pathlib import Path

VERDICT = re.compile(r"(?:^|[ \].])(NOTE|WARNING|ERROR)\s*$", re.M)
# That the package is new, and who maintains it.
FIRST_SUBMISSION = re.compile(r"checking CRAN incoming feasibility \.\.\. .*NOTE\s+Maintainer: .*\s+New submission\s*")


def complaints(log):
    """What the checks say that did not pass."""
    blocks = re.split(r"^\* ", log, flags=re.M)
    return [block for block in blocks
            if block.startswith("checking") and VERDICT.search(block) and not FIRST_SUBMISSION.fullmatch(block)]


def judge(log):
    """None, or why the log is not good enough."""
    if not re.search(r"^Status: ", log, re.M):
        return "R CMD check did not come to its end."
    if "* checking compiled code ... OK" not in log:
        return "R CMD check did not look at the compiled code."
    found = complaints(log)
    return "R CMD check complains:\n" + "".join(found) if found else None


if __name__ == "__main__":
    sys.exit(judge(Path(sys.argv[1]).read_text()))
