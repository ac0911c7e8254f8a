"""The check of names and guards reports what it must."""

import unittest
from pathlib import Path

from check_names import check


def problems(path, text=""):
    return len(check(Path(path), text))


def guarded(macro):
    return f"#ifndef {macro}\n#define {macro}\n\n#endif\n"


class NamesTest(unittest.TestCase):
    def test_accepts(self):
        self.assertEqual(problems("src/means/a.h", guarded("KELPOWER_MEANS_A_H")), 0)
        self.assertEqual(problems("include/kelpower.h", "// Text.\n" + guarded("KELPOWER_H")), 0)
        self.assertEqual(problems("kelcommon/src/a.h", guarded("KELCOMMON_SRC_A_H")), 0)
        self.assertEqual(problems("kelcommon/include/kelcommon/a.h", guarded("KELCOMMON_A_H")), 0)
        self.assertEqual(problems("planner/model/a.h", guarded("KELPOWER_PLANNER_MODEL_A_H")), 0)
        self.assertEqual(problems("tests/means/a_test.cpp"), 0)

    def test_reports(self):
        self.assertEqual(problems("src/means/mean_test.cpp"), 1)
        self.assertEqual(problems("planner/catalogue/mean_test.cpp"), 1)
        self.assertEqual(problems("src/means/a.h", guarded("KELPOWER_MEANS_B_H")), 1)
        self.assertEqual(problems("src/means/a.h", "#ifndef KELPOWER_MEANS_A_H\n#define KELPOWER_MEANS_B_H\n"), 1)
        self.assertEqual(problems("src/means/a.h", "#pragma once\n"), 2)
        self.assertEqual(problems("src/means/a.h", "#include <cmath>\n" + guarded("KELPOWER_MEANS_A_H")), 1)


if __name__ == "__main__":
    unittest.main()
