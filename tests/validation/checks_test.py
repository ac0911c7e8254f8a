"""Tests of kelpower_validation and of tools/validation: right powers pass, wrong ones do not.

checks_test.py ROOT PROGRAM
"""

import copy
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM = sys.argv.pop(2)
ROOT = Path(sys.argv.pop(1))
sys.path[:0] = [str(ROOT / "tools/validation"), str(ROOT / "tools/site")]
import judge  # noqa: E402
import page  # noqa: E402

QUICK = [
    {"test": "mean", "inputs": {"effect-d": 1, "n": 14}},
    {"test": "two-means", "inputs": {"mean-difference": 4, "sd": 5, "n": [12, 24], "margin": 0, "superiority": True}},
    {"test": "ancova", "inputs": {"means": [0, 2], "sd": 1, "covariates": 2, "n": [7, 8]}},
    {"test": "two-variances", "inputs": {"variance-ratio": 6, "n": [15, 10], "one-sided": True}},
    {"test": "proportion", "inputs": {"proportion": 0.8, "null": 0.5, "n": 40, "exact": True}},
    {"test": "two-proportions", "inputs": {"proportions": [0.2, 0.7], "n": [20, 25], "method": "conditional"}},
    {"test": "paired-proportions", "inputs": {"p12": 0.08, "p21": 0.32, "n": 50}, "within": 0.031},
    {"test": "pearson", "inputs": {"r": 0.6, "n": 25}, "within": 0.014},
]


def run(designs, *options):
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder, "designs.jsonl")
        file.write_text("".join(json.dumps(design) + "\n" for design in designs))
        return subprocess.run([PROGRAM, str(file), *options], capture_output=True, text=True, check=False)


def rows_of(designs, *options):
    done = run(designs, *options)
    assert done.returncode == 0, done.stderr
    return [json.loads(line) for line in done.stdout.splitlines()]


class Validated(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.rows = rows_of(QUICK, "--studies", "200000")

    def changed(self, **members):
        """Each row with some members changed, by functions of the row, and the complaint on it."""
        for row in copy.deepcopy(self.rows):
            row.update({name: change(row) for name, change in members.items()})
            yield row, judge.complaint(row)

    def test_right_powers_pass(self):
        self.assertEqual(judge.complaints(self.rows), [])
        self.assertEqual(judge.missing(self.rows, QUICK, []), [])

    def test_kinds_and_counts_are_as_they_should_be(self):
        self.assertEqual([row["kind"] for row in self.rows], ["exact"] * 6 + ["approximation"] * 2)
        self.assertEqual(["counted" in row for row in self.rows], [False] * 4 + [True] * 3 + [False])
        self.assertTrue(all(row["studies"] == 200000 and row["power"] > 0.7 for row in self.rows))

    def test_a_power_that_is_wrong_by_one_percent_is_noticed(self):
        for factor in (0.99, 1.01):
            for row, said in self.changed(power=lambda row: row["power"] * factor):
                if row["kind"] == "exact":
                    self.assertIn("the power is", said, row)

    def test_a_counted_power_that_is_wrong_in_the_eighth_digit_is_noticed(self):
        for row, said in self.changed(power=lambda row: row["power"] + 1e-8):
            self.assertEqual(bool(said), row["kind"] == "exact" and "counted" in row, said)

    def test_wrong_drawing_is_noticed_by_counting(self):
        for row, said in self.changed(rejected=lambda row: row["rejected"] * 0.99):
            if "counted" in row:
                self.assertIn("the drawn studies are", said)

    def test_an_approximation_beyond_its_bound_is_noticed(self):
        for row, said in self.changed(within=lambda row: 0.001):
            expected = "beyond the" if row["kind"] == "approximation" else "no bound"
            self.assertIn(expected, said)

    def test_a_bound_that_is_too_wide_is_noticed(self):
        for row, said in self.changed(within=lambda row: 0.1):
            self.assertTrue(said, row)

    def test_an_approximation_needs_a_bound(self):
        row = {name: value for name, value in self.rows[-1].items() if name != "within"}
        self.assertIn("states no bound", judge.complaint(row))

    def test_differences_that_scatter_too_much_are_noticed(self):
        for size, is_wrong in ((1, False), (2, True), (0.1, True)):
            rows = [{**self.rows[0], "power": 0.5, "rejected": 0.5 + size * sign * 0.001, "standard-error": 0.001}
                    for sign in (-1, 1) * 50]
            self.assertEqual(any("scatter" in said for said in judge.complaints(rows)), is_wrong, size)


class Program(unittest.TestCase):
    def test_an_input_that_no_study_follows_is_refused(self):
        done = run([{"test": "mean", "inputs": {"effect-d": 1, "n": 14, "dropout": 0.1}}], "--studies", "10")
        self.assertEqual(done.returncode, 1)
        self.assertIn("no study follows dropout", done.stderr)

    def test_designs_without_an_answer_are_refused(self):
        for design in ({"test": "mean", "inputs": {"effect-d": 1, "n": 14, "alpha": 2}}, {"test": "none", "inputs": {}}):
            self.assertEqual(run([design], "--studies", "10").returncode, 1)
        self.assertEqual(run([]).returncode, 1)

    def test_parts_are_all_designs_and_the_same_studies(self):
        whole = rows_of(QUICK, "--studies", "1000")
        parts = [rows_of(QUICK, "--studies", "1000", "--part", f"{part}/3") for part in range(3)]
        self.assertEqual([parts[i % 3][i // 3] for i in range(len(QUICK))], whole)

    def test_another_seed_draws_other_studies(self):
        first, second = (rows_of(QUICK[:1], "--studies", "1000", *seed)[0] for seed in ([], ["--seed", "1"]))
        self.assertNotEqual(first["rejected"], second["rejected"])
        self.assertEqual([row.get("seed") for row in (first, second)], [None, 1])

    def test_wrong_options_are_refused(self):
        for options in (["--part"], ["--part", "1/0"], ["--what", "1"]):
            self.assertEqual(run(QUICK, *options).returncode, 2, options)


class Designs(unittest.TestCase):
    def test_every_line_says_what_the_page_needs(self):
        for design in page.read_rows(page.DESIGNS):
            self.assertLessEqual(set(design), {"test", "inputs", "studies", "within"}, design)

    def test_what_is_missing_is_said(self):
        designs = page.read_rows(page.DESIGNS)
        self.assertEqual(judge.missing(designs, designs, ["mean"]), [])
        self.assertEqual(len(judge.missing(designs[1:], designs, [])), 1)
        self.assertEqual(len(judge.missing(designs, designs[1:], [])), 1)
        self.assertEqual(judge.missing([], [], ["mean"]), ["mean has 0 designs only"])


class Page(unittest.TestCase):
    def test_words_are_those_of_the_program(self):
        self.assertEqual(page.words({"means": [10, 12.5], "exact": True, "parent": "normal"}),
                         "--means 10,12.5 --exact --parent normal")

    def test_what_is_far_off_is_drawn_again(self):
        row = {"test": "mean", "inputs": {"n": 5}, "kind": "exact", "power": 0.5, "standard-error": 0.001}
        rows = [{**row, "rejected": 0.5 + difference} for difference in (0.0029, 0.0031)]
        self.assertEqual(page.doubtful(rows), ['{"test": "mean", "inputs": {"n": 5}}'])

    def test_digits_are_those_published(self):
        for within, digits in ((0, 0), (5e-8, 7), (5e-3, 2), (1e-13, 4)):
            self.assertEqual(page.digits_of({"within": within}), digits)

    def test_own_references_are_not_published(self):
        for source, expected in (("multiple precision, tools/references/x.py", False), ("Cohen (1988)", True)):
            self.assertEqual(page.is_published({"source": source, "result": "power"}), expected)

    def test_differences_have_a_sign_unless_nothing_is_left(self):
        self.assertEqual([page.signed(value, 2) for value in (0.123, -0.123, -0.001)], ["+0.12", "−0.12", "0.00"])


if __name__ == "__main__":
    unittest.main()
