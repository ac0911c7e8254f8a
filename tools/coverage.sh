#!/bin/sh
# Prints the line coverage of the tests that have been run in a coverage build, by file.
# Usage: coverage.sh BUILD_DIRECTORY
set -eu
python3 - "$(pwd)" "$1" <<'EOF'
import json, subprocess, sys
from collections import defaultdict
from pathlib import Path

root, build = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
FOLDERS = ("src", "kelcommon", "planner", "cli")

notes = sorted(note for folder in FOLDERS for note in (build / folder).rglob("*.gcno"))
if not notes:
    sys.exit(f"{build} has no coverage data: run make coverage")
hits = defaultdict(lambda: defaultdict(int))  # file -> line -> how often it was run
for note in notes:
    done = subprocess.run(["gcov", "--json-format", "--stdout", str(note)], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, check=True)
    for line in done.stdout.splitlines():
        report = json.loads(line)
        for file in report["files"]:
            path = Path(report["current_working_directory"], file["file"]).resolve()
            if not path.is_relative_to(root) or path.relative_to(root).parts[0] not in FOLDERS:
                continue
            for entry in file["lines"]:
                hits[path.relative_to(root)][entry["line_number"]] += entry["count"]

total = run = 0
for path, lines in sorted(hits.items()):
    missed = [line for line, count in sorted(lines.items()) if count == 0]
    total += len(lines)
    run += len(lines) - len(missed)
    shown = ", ".join(map(str, missed[:12])) + (", ..." if len(missed) > 12 else "")
    print(f"{100 * (1 - len(missed) / len(lines)):6.1f} %  {len(lines):5d}  {path}" + (f"  not run: {shown}" if missed else ""))
if not total:
    sys.exit("no line of the project is covered")
print(f"{100 * run / total:6.1f} %  {total:5d}  in all")
EOF
