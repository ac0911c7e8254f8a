"""What judges the R package refuses what it should, and what writes it writes R."""

import sys
import unittest
from pathlib import Path

sys.path.insert(0, sys.argv.pop(1))

import check_symbols
import judge_check
import make_tarball
import names

GOOD = "* using R\n* checking compiled code ... OK\n* checking tests ... OK\n* DONE\n\nStatus: OK\n"
NEW = """* checking CRAN incoming feasibility ... [1s/2s] NOTE
Maintainer: ‘A B <a@b.example>’

New submission
"""


class JudgeTest(unittest.TestCase):
    def test_a_clean_log_passes(self):
        self.assertIsNone(judge_check.judge(GOOD))

    def test_a_first_submission_passes(self):
        self.assertIsNone(judge_check.judge(NEW + GOOD))

    def test_other_notes_of_the_incoming_checks_do_not(self):
        self.assertIn("misspelled", judge_check.judge(NEW + "\nPossibly misspelled words\n" + GOOD))

    def test_notes_warnings_and_errors_do_not_pass(self):
        for block in ("* checking installed package size ... NOTE\n  installed size is 91Mb\n",
                      "* checking Rd files ... WARNING\n", "* checking tests ...\n  Running ‘testthat.R’\n ERROR\n",
                      "* checking package ... [3s/4s] WARNING\n"):
            self.assertIn(block[2:], judge_check.judge(block + GOOD))

    def test_a_log_without_an_end_or_without_compiled_code_does_not_pass(self):
        self.assertIsNotNone(judge_check.judge(GOOD.replace("Status: OK\n", "")))
        self.assertIsNotNone(judge_check.judge(GOOD.replace("* checking compiled code ... OK\n", "")))


class SymbolsTest(unittest.TestCase):
    def test_forbidden_calls_are_found(self):
        self.assertEqual(check_symbols.forbidden({"malloc", "abort", "std::cout"}), ["abort", "std::cout"])
        self.assertEqual(check_symbols.forbidden({"malloc", "snprintf"}), [])

    def test_names_that_are_not_hidden_are_found(self):
        defined = {"R_init_kelpower", "kelplan_solve", "void std::sort<planner::Axis*>(planner::Axis*)"}
        self.assertEqual(check_symbols.visible(defined), ["R_init_kelpower", "kelplan_solve"])


class WritingTest(unittest.TestCase):
    def test_values(self):
        self.assertEqual([names.r_value(each) for each in (True, 0.5, 3.0, "z", [1.0, 2.5], [20])],
                         ["TRUE", "0.5", "3", '"z"', "c(1, 2.5)", "20"])

    def test_calls_are_broken_into_lines(self):
        inputs = {"effect-d": 0.5, "one-sided": True}
        self.assertEqual(names.call("f", inputs), "f(effect_d = 0.5, one_sided = TRUE)")
        self.assertEqual(names.call("f", inputs, 20), "f(effect_d = 0.5,\n  one_sided = TRUE)")

    def test_headers_may_not_switch_warnings_off(self):
        text = '#pragma once\n  #pragma GCC diagnostic ignored "-Wx"\n'
        self.assertEqual(make_tarball.without_hidden_warnings(text),
                         '#pragma once\n//   #pragma GCC diagnostic ignored "-Wx"\n')


if __name__ == "__main__":
    unittest.main()
