"""The check of the arithmetic reports what it must."""

import unittest

from check_arithmetic import check


def problems(text):
    return len(check("a.cpp", text))


class ArithmeticTest(unittest.TestCase):
    def test_accepts(self):
        for text in ("double x = 1.5;", "long n = 10L;", "x = 0x1p-53;", "f(a1.L)", "tail(x)", "interval(2.5)", "long err;"):
            self.assertEqual(problems(text), 0, text)
        self.assertEqual(problems("// no long double, 1.5L\n/* expl(x)\n long double */ double x;"), 0)

    def test_reports(self):
        for text in ("long double x;", "std::complex<long  double>", "x = 1.5L;", "x = 1.L;", "x = .5l;", "x = 1e-3L;",
                     "x = 0x1.8p-3L;", "x = std::expl(y);", "x = sqrtl (y);", "__float128 x;", "x = 1'000.5L;"):
            self.assertEqual(problems(text), 1, text)

    def test_tells_the_line(self):
        self.assertTrue(check("a.cpp", "/*\n*/\nx = 1.5L;")[0].startswith("a.cpp:3: "))


if __name__ == "__main__":
    unittest.main()
