"""Tests of the rules of tools/mutants."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, sys.argv.pop(1))
import run  # noqa: E402


def mutant(old, new="y", file="a.cpp"):
    return run.Mutant(file=file, why="why", old=old, new=new)


class Mutants(unittest.TestCase):
    def test_changes_the_one_place_of_its_text(self):
        self.assertEqual(mutant("n - 1", "n").applied_to("f(n - 1, n)"), "f(n, n)")

    def test_does_not_fit_a_text_that_is_gone_or_not_alone(self):
        for text in ("", "x x"):
            with self.assertRaisesRegex(run.ListError, "occurs"):
                mutant("x").applied_to(text)

    def test_must_change_something(self):
        with self.assertRaisesRegex(run.ListError, "changes nothing"):
            mutant("x", "x").applied_to("x")

    def test_are_checked_against_the_files(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "a.cpp").write_text("x z z")
            mutants = [mutant("x"), mutant("z"), mutant("x", file="none.cpp")]
            wrong = run.check(Path(folder), mutants)
        self.assertEqual(len(wrong), 2)
        self.assertIn("occurs 2 times", wrong[0])
        self.assertIn("none.cpp", wrong[1])


class Run(unittest.TestCase):
    def test_gives_the_status_and_what_is_printed(self):
        self.assertEqual(run.run(["sh", "-c", "echo out; exit 3"]), (3, "out\n"))

    def test_stops_what_takes_too_long(self):
        self.assertEqual(run.run(["sh", "-c", "echo out; sleep 60"], 2), (None, "out\n"))


class Targets(unittest.TestCase):
    def test_are_those_of_the_nearest_tests(self):
        nearest = run.nearest_tests(mutant("x", file="src/means/paired.cpp"))
        self.assertEqual(nearest, ["vectors_means", "means_test", "means_core_test"])
        self.assertEqual(run.targets_of(nearest), ["kelpower_vectors", "means_core_test", "means_test"])

    def test_of_the_distributions_have_an_ending(self):
        self.assertIn("kelcommon_contract_test", run.targets_of(["kelcommon_contract"]))

    def test_exist_for_every_fault(self):
        for fault in run.read_mutants(Path(run.__file__).parent / "mutants.toml"):
            self.assertTrue(run.nearest_tests(fault), fault.file)


if __name__ == "__main__":
    unittest.main()
