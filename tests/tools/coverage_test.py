"""Tests of the judgement of tools/coverage, on made-up counts."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, sys.argv.pop(1))
import coverage  # noqa: E402


def counts(**runs):
    """The counts of src/a.cpp, from its line 1 on."""
    return {"src/a.cpp": dict(enumerate(runs["lines"], start=1))}


def text_of(_, number):
    return f"  line {number};"


class Complaints(unittest.TestCase):
    def test_of_a_line_that_is_not_run(self):
        self.assertEqual(coverage.complaints(counts(lines=[1] * 99 + [0]), text_of, []),
                         ["src/a.cpp:100: not run: line 100;"])

    def test_of_a_folder_below_the_least_share(self):
        excused = [{"file": "src/a.cpp", "line": f"line {number};", "why": ""} for number in (98, 99, 100)]
        self.assertEqual(coverage.complaints(counts(lines=[1] * 97 + [0] * 3), text_of, excused),
                         ["src: 97.0 % of the lines are run, but 98 % must be"])

    def test_of_nothing_where_the_lines_are_excused(self):
        excused = [{"file": "src/a.cpp", "line": "line 100;", "why": ""}]
        self.assertEqual(coverage.complaints(counts(lines=[1] * 99 + [0]), text_of, excused), [])

    def test_of_an_excuse_that_is_no_longer_needed(self):
        excused = [{"file": "src/a.cpp", "line": "line 1;", "why": ""}]
        self.assertEqual(coverage.complaints(counts(lines=[1, 1]), text_of, excused),
                         ["src/a.cpp: unreached.toml excuses a line that is run or gone: line 1;"])


class LineCounts(unittest.TestCase):
    def report(self, *lines):
        entries = [{"line_number": n, "count": c, "unexecuted_block": u} for n, c, u in lines]
        return {"current_working_directory": "/p/build", "files": [{"file": "/p/src/a.h", "lines": entries},
                                                                   {"file": "/usr/include/b.h", "lines": entries}]}

    def test_adds_up_over_the_objects_that_have_a_line(self):
        found = coverage.line_counts([self.report((3, 0, True)), self.report((3, 2, False))], Path("/p"))
        self.assertEqual(found, {"src/a.h": {3: 2}})

    def test_leaves_out_what_only_an_exception_reaches(self):
        self.assertEqual(coverage.line_counts([self.report((3, 0, False), (4, 0, True))], Path("/p")),
                         {"src/a.h": {4: 0}})


if __name__ == "__main__":
    unittest.main()
