"""The checks of the header report what they must."""

import unittest

from check_documentation import check
from check_symbols import compare_complete, compare_names, compare_order, compare_parameters, names_in_export_table
from header import read_declarations

HEADER = r"""
// ----------------------------------------
// Means
// ----------------------------------------
//
/// \param alpha level of the test

/// Power of the test.
/// \param mean1, mean2 the means
KELPOWER_API double Power(double mean1, double mean2,
                          double alpha);

/// Spread of `sizes`.
KELPOWER_API double Spread(const double* sizes);

// ----------------------------------------
// Other
// ----------------------------------------

/// A level outside its section.
KELPOWER_API void Level(double alpha);

KELPOWER_API double None(double x);
"""


class HeaderTest(unittest.TestCase):
    def setUp(self):
        self.declarations = read_declarations(HEADER)

    def test_finds_declarations(self):
        self.assertEqual([d.name for d in self.declarations], ["Power", "Spread", "Level", "None"])
        self.assertEqual(self.declarations[0].parameters, ["mean1", "mean2", "alpha"])
        self.assertEqual(self.declarations[1].parameters, ["sizes"])

    def test_reports_missing_documentation(self):
        self.assertEqual(check(self.declarations[:2]), [])
        self.assertEqual(check(self.declarations[2:3]), ["Level: parameter alpha is not documented"])
        self.assertIn("None: no documentation directly above", check(self.declarations[3:]))

    def test_reports_wrong_parameters(self):
        right = {"Power": ["d", [["mean1", "d"], ["mean2", "d"], ["alpha", "d"]]]}
        wrong = {"Power": ["d", [["mean1", "d"], ["mean2", "d"], ["level", "d"]]]}
        self.assertEqual(compare_parameters(right, self.declarations[:1]), [])
        self.assertEqual(len(compare_parameters(wrong, self.declarations[:1])), 1)
        self.assertEqual(len(compare_parameters({}, self.declarations[:1])), 1)


class NamesTest(unittest.TestCase):
    def test_reports_differences_both_ways(self):
        self.assertEqual(compare_names("library", ["A", "B"], ["B", "A"]), [])
        self.assertEqual(compare_names("library", ["A", "B"], ["A"]), ["B: listed, but not in the library"])
        self.assertEqual(compare_names("library", ["A"], ["A", "B"]), ["B: in the library, but not listed"])
        self.assertEqual(compare_names("library", ["A", "A"], ["A"]), ["A: listed twice"])

    def test_reports_order_and_gaps(self):
        self.assertEqual(compare_order(["A", "B"], ["A", "B"]), [])
        self.assertEqual(len(compare_order(["A", "B"], ["B", "A"])), 1)
        self.assertEqual(len(compare_complete({"A": [], "B": []}, ["A"])), 1)


# The end of what objdump -p says of a DLL.
REPORT = """
Export Address Table -- Ordinal Base 1
\t[   0] +base[   1] 13f0 Export RVA

[Ordinal/Name Pointer] Table
\t[   0] A
\t[   1] _ZN1B1CEv

The Function Table (interpreted .pdata section contents)
\t[   2] D
"""


class ExportTableTest(unittest.TestCase):
    def test_finds_the_names(self):
        self.assertEqual(names_in_export_table(REPORT), ["A", "_ZN1B1CEv"])
        self.assertEqual(names_in_export_table("no table"), [])


if __name__ == "__main__":
    unittest.main()
