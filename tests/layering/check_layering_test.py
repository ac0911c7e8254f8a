"""The check of the layers reports what it must."""

import unittest
from pathlib import Path

from check_layering import check


def problems(path, line):
    return len(check(Path(path), line, lambda own: own.name == "own.h"))


class LayeringTest(unittest.TestCase):
    def test_accepts(self):
        self.assertEqual(problems("src/means/a.cpp", '#include "own.h"'), 0)
        self.assertEqual(problems("src/means/a.cpp", '#include "means/b.h"'), 0)
        self.assertEqual(problems("src/means/a.cpp", '#include "frame/b.h"'), 0)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "kelpower.h"'), 0)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "exports/means/b.h"'), 0)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "exports/b.h"'), 0)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "means/b.h"'), 0)
        self.assertEqual(problems("src/exports/a.cpp", '#include "frame/b.h"'), 0)
        self.assertEqual(problems("src/means/a.cpp", '#include "kelcommon/kel_mv.h"'), 0)
        self.assertEqual(problems("src/means/a.cpp", "#include <vector>"), 0)
        self.assertEqual(problems("kelcommon/src/a.cpp", "#include <cmath>"), 0)
        self.assertEqual(problems("kelcommon/src/a.cpp", '#include "own.h"'), 0)

    def test_accepts_in_planner(self):
        self.assertEqual(problems("planner/model/a.h", '#include "model/b.h"'), 0)
        self.assertEqual(problems("planner/model/a.h", "#include <vector>"), 0)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "means/b.h"'), 0)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "frame/b.h"'), 0)
        self.assertEqual(problems("planner/solve/a.cpp", '#include "frame/b.h"'), 0)
        self.assertEqual(problems("planner/words/a.cpp", '#include "solve/b.h"'), 0)
        self.assertEqual(problems("planner/format/a.cpp", "#include <fmt/format.h>"), 0)
        self.assertEqual(problems("cli/a.cpp", '#include "own.h"'), 0)
        self.assertEqual(problems("cli/a.cpp", '#include "words/b.h"'), 0)

    def test_c_interface(self):
        self.assertEqual(problems("capi/a.cpp", '#include "own.h"'), 0)
        self.assertEqual(problems("capi/a.cpp", '#include "solve/b.h"'), 0)
        self.assertEqual(problems("capi/a.cpp", "#include <nlohmann/json.hpp>"), 0)
        self.assertEqual(problems("capi/a.cpp", "#include <fmt/format.h>"), 1)
        self.assertEqual(problems("capi/a.cpp", '#include "means/b.h"'), 1)
        self.assertEqual(problems("capi/a.cpp", '#include "frame/b.h"'), 1)
        self.assertEqual(problems("cli/a.cpp", '#include "kelplan.h"'), 1)
        self.assertEqual(problems("cli/a.cpp", "#include <kelplan.h>"), 1)
        self.assertEqual(problems("planner/words/a.cpp", "#include <kelplan.h>"), 1)

    def test_module_of_python(self):
        self.assertEqual(problems("python/src/a.cpp", '#include "own.h"'), 0)
        self.assertEqual(problems("python/src/a.cpp", '#include "kelplan.h"'), 0)
        self.assertEqual(problems("python/src/a.cpp", "#include <Python.h>"), 0)
        self.assertEqual(problems("python/src/a.cpp", '#include "solve/b.h"'), 1)
        self.assertEqual(problems("python/src/a.cpp", "#include <fmt/format.h>"), 1)

    def test_reports_in_planner(self):
        self.assertEqual(problems("planner/model/a.h", '#include "solve/b.h"'), 1)
        self.assertEqual(problems("planner/model/a.h", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("planner/model/a.h", "#include <fmt/format.h>"), 1)
        self.assertEqual(problems("planner/model/a.h", '#include "frame/b.h"'), 1)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "solve/b.h"'), 1)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "kelcommon/kel_mv.h"'), 1)
        self.assertEqual(problems("planner/catalogue/a.cpp", '#include "exports/b.h"'), 1)
        self.assertEqual(problems("planner/solve/a.cpp", '#include "means/b.h"'), 1)
        self.assertEqual(problems("planner/solve/a.cpp", '#include "words/b.h"'), 1)
        self.assertEqual(problems("planner/solve/a.cpp", "#include <fmt/format.h>"), 1)
        self.assertEqual(problems("planner/words/a.cpp", "#include <fmt/format.h>"), 1)
        self.assertEqual(problems("planner/pictures/a.cpp", '#include "words/b.h"'), 1)
        self.assertEqual(problems("planner/words/a.cpp", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("planner/extra/a.cpp", '#include "model/b.h"'), 1)
        self.assertEqual(problems("planner/words/a.cpp", '#include "own.h"'), 1)
        self.assertEqual(problems("cli/a.cpp", '#include "anova/b.h"'), 1)
        self.assertEqual(problems("cli/a.cpp", '#include "kelpower.h"'), 1)

    def test_reports(self):
        self.assertEqual(problems("src/means/a.cpp", '#include "anova/b.h"'), 1)
        self.assertEqual(problems("src/means/a.cpp", '#include "absent.h"'), 1)
        self.assertEqual(problems("src/means/a.cpp", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("src/frame/a.cpp", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("src/means/a.cpp", '#include "exports/b.h"'), 1)
        self.assertEqual(problems("src/frame/a.cpp", '#include "exports/b.h"'), 1)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "anova/b.h"'), 1)
        self.assertEqual(problems("src/exports/means/a.cpp", '#include "exports/anova/b.h"'), 1)
        self.assertEqual(problems("src/exports/a.cpp", '#include "means/b.h"'), 1)
        self.assertEqual(problems("src/means/a.cpp", '#include "../anova/b.h"'), 1)
        self.assertEqual(problems("src/means/a.cpp", "#include <boost/math/constants/constants.hpp>"), 1)
        self.assertEqual(problems("src/means/a.cpp", '#include "kelcommon/src/normal.h"'), 1)
        self.assertEqual(problems("kelcommon/src/a.cpp", "#include <boost/math/constants/constants.hpp>"), 1)
        self.assertEqual(problems("src/frame/a.cpp", ' # include "means/b.h"'), 1)
        self.assertEqual(problems("kelcommon/src/a.cpp", '#include "kelpower.h"'), 1)
        self.assertEqual(problems("kelcommon/include/kelcommon/a.h", "#include <boost/math/tr1.hpp>"), 1)
        self.assertEqual(problems("include/kelpower.h", '#include "frame/b.h"'), 1)
        self.assertEqual(problems("tests/means/a.cpp", "#include <boost/math/tr1.hpp>"), 1)


if __name__ == "__main__":
    unittest.main()
