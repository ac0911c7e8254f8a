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
