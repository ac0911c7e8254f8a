#!/usr/bin/env python3
"""Prints the line coverage of the tests that have been run in a coverage build, and demands what it must be.

The library, its distributions and the planner must be covered to the least share, and every line that is not run must
be in unreached.toml with the reason. Lines that only the clean-up after an exception reaches do not count: no test makes
memory run out.

Usage: coverage.py SOURCE BUILD
"""

import json
import subprocess
import sys
import tomllib
from collections import Counter, defaultdict
from pathlib import Path

FOLDERS = ("src", "kelcommon", "planner", "cli")
LEAST = {"src": 98.0, "kelcommon": 98.0, "planner": 98.0}  # percent of the lines of a folder


def line_counts(reports, source):
    """How often each line of the project was run, by file, from gcov's reports. A line can be in several."""
    counts = defaultdict(Counter)
    for report in reports:
        for file in report["files"]:
            path = Path(report["current_working_directory"], file["file"]).resolve()
            if not path.is_relative_to(source) or path.relative_to(source).parts[0] not in FOLDERS:
                continue
            name = str(path.relative_to(source))
            for line in file["lines"]:
                if line["count"] > 0 or line["unexecuted_block"]:
                    counts[name][line["line_number"]] += line["count"]
    return counts


def missed_lines(counts):
    """The lines that were not run, as (file, number), in order."""
    return [(file, number) for file in sorted(counts) for number in sorted(counts[file]) if counts[file][number] == 0]


def shares(counts):
    """The covered share in percent and the number of lines, by folder."""
    run, lines = Counter(), Counter()
    for file, numbers in counts.items():
        folder = file.split("/")[0]
        lines[folder] += len(numbers)
        run[folder] += sum(count > 0 for count in numbers.values())
    return {folder: (100 * run[folder] / lines[folder], lines[folder]) for folder in lines}


def complaints(counts, text_of, unreached):
    """What is wrong: `text_of(file, number)` is a line's text, `unreached` the entries that excuse lines."""
    wrong = [f"{folder}: {share:.1f} % of the lines are run, but {LEAST[folder]:.0f} % must be"
             for folder, (share, _) in sorted(shares(counts).items()) if share < LEAST.get(folder, 0)]
    excused = {(entry["file"], entry["line"]): entry for entry in unreached}
    used = set()
    for file, number in missed_lines(counts):
        key = file, text_of(file, number).strip()
        if key not in excused:
            wrong.append(f"{file}:{number}: not run: {key[1]}")
        used.add(key)
    wrong += [f"{file}: unreached.toml excuses a line that is run or gone: {line}"
              for file, line in sorted(set(excused) - used)]
    return wrong


def gcov_reports(build):
    notes = sorted(str(note) for folder in FOLDERS for note in (build / folder).rglob("*.gcno"))
    if not notes:
        sys.exit(f"{build} has no coverage data: run make coverage")
    done = subprocess.run(["gcov", "--json-format", "--stdout", *notes], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, check=True)
    return [json.loads(line) for line in done.stdout.splitlines() if line.strip()]


def main(source, build):
    counts = line_counts(gcov_reports(build), source)
    with open(source / "tools/coverage/unreached.toml", "rb") as file:
        unreached = tomllib.load(file).get("line", [])
    texts = {file: (source / file).read_text().splitlines() for file in counts}

    for file in sorted(counts):
        missed = [str(number) for number in sorted(counts[file]) if counts[file][number] == 0]
        share = 100 * (1 - len(missed) / len(counts[file]))
        print(f"{share:6.1f} %  {len(counts[file]):5d}  {file}" + (f"  not run: {', '.join(missed)}" if missed else ""))
    for folder, (share, lines) in sorted(shares(counts).items()):
        print(f"{share:6.2f} %  {lines:5d}  {folder}/ in all")

    wrong = complaints(counts, lambda file, number: texts[file][number - 1], unreached)
    for sentence in wrong:
        print(sentence)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()))
