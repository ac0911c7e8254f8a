"""Checks the examples of the documentation.

check_examples.py prints FILE PROGRAM...: the output of the program is the content of FILE.
check_examples.py quotes DOCUMENT FILE...: the document contains the text of every file verbatim.
"""

import difflib
import subprocess
import sys
from pathlib import Path


def prints(expected_file, *command):
    done = subprocess.run(command, stdout=subprocess.PIPE, text=True)
    if done.returncode != 0:
        return [f"{command[0]} ends with status {done.returncode}"]
    expected = Path(expected_file).read_text()
    return list(difflib.unified_diff(expected.splitlines(), done.stdout.splitlines(), expected_file, "printed",
                                     lineterm=""))


def quotes(document, *files):
    if not Path(document).exists():
        return [f"there is no {document}"]
    text = Path(document).read_text()
    return [f"{document} does not quote {name} verbatim" for name in files if Path(name).read_text() not in text]


def main():
    checks = {"prints": prints, "quotes": quotes}
    if len(sys.argv) < 4 or sys.argv[1] not in checks:
        sys.exit(__doc__)
    problems = checks[sys.argv[1]](*sys.argv[2:])
    print("\n".join(problems))
    sys.exit(1 if problems else 0)


if __name__ == "__main__":
    main()
