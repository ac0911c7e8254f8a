import math
import unittest

import from_r
import measure_comparisons
import page
from comparisons import COMPARISONS

BY_NAME = {each.name: each for each in COMPARISONS}


def row(name, answer, seconds, **others):
    calls = {package: page.Call(value, 1e-5) for package, value in others.items()}
    return measure_comparisons.row(BY_NAME[name], page.Call(answer, seconds), calls)


def calls_beside_pwr(ratio):
    calls = {("kelpower", design, question): page.Call(0.5, 1e-6)
             for design in page.DESIGNS for question in page.QUESTIONS}
    return {**calls, ("pwr", "anova", "power"): page.Call(0.5, ratio * 1e-6)}


class ComparisonsTest(unittest.TestCase):
    def test_fails_where_a_stated_time_is_exceeded_by_more_than_the_noise(self):
        self.assertIn("500 µs", row("tukey-3", 0.5, 5e-4))
        row("tukey-3", 0.5, 1.05e-3)
        with self.assertRaisesRegex(page.FallsShort, "tukey-3: 1.2 ms, 1.0 ms are stated"):
            row("tukey-3", 0.5, 1.2e-3)

    def test_fails_without_an_answer(self):
        with self.assertRaises(page.FallsShort):
            row("tukey-3", math.nan, 1e-6)

    def test_fails_where_answers_differ(self):
        self.assertEqual(row("chi-square", 0.5, 1e-6, pwr=0.5)[-1], "the same")
        self.assertIn("10 µs (10)", row("chi-square", 0.5, 1e-6, pwr=0.500000001))
        for other in (0.50000002, math.nan):
            with self.assertRaises(page.Disagreement):
                row("chi-square", 0.5, 1e-6, pwr=other)

    def test_fails_where_a_stated_ratio_is_not_reached(self):
        page.check_stated(calls_beside_pwr(0.95 * page.STATED_LEAST["pwr"]))
        with self.assertRaises(page.FallsShort):
            page.check_stated(calls_beside_pwr(0.85 * page.STATED_LEAST["pwr"]))

    def test_fails_where_the_r_package_is_slower_than_stated(self):
        from_r.check_stated([from_r.Row("", "power", 1, 0.95 * from_r.STATED_LEAST, 1, 1)])
        with self.assertRaises(page.FallsShort):
            from_r.check_stated([from_r.Row("", "power", 1, 0.85 * from_r.STATED_LEAST, 1, 1)])


if __name__ == "__main__":
    unittest.main()
