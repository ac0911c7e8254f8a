"""The page of measured speed says what the programs answered, and none is made when they disagree."""

import json
import unittest

import page
from page import Benchmark, Call


def calls_of(design, question, **answers):
    return {(program, design, question): Call(answer, 1e-6) for program, answer in answers.items()}


class NumbersTest(unittest.TestCase):
    def test_digits(self):
        self.assertEqual(page.significant(0.80145956, 6), "0.801460")
        self.assertEqual(page.significant(1570.733, 2), "1600")
        self.assertEqual(page.significant(9.96, 2), "10")
        self.assertEqual(page.significant(0, 2), "0.0")
        self.assertEqual(page.number(64), "64")
        self.assertEqual(page.number(51.009448), "51.0094")
        self.assertEqual(page.short(3.4e-9), "3e-9")

    def test_durations_go_to_the_next_unit(self):
        self.assertEqual(page.duration(87.4e-9), "87 ns")
        self.assertEqual(page.duration(994e-9), "990 ns")
        self.assertEqual(page.duration(996e-9), "1.0 µs")
        self.assertEqual(page.duration(4.3e-5), "43 µs")
        self.assertEqual(page.duration(0.0123), "12 ms")
        self.assertEqual(page.duration(1.83), "1.8 s")


class ReadingTest(unittest.TestCase):
    def test_calls_and_versions(self):
        calls, versions = page.read_calls("pwr\tanova\tpower\t0.75\t2e-05\nversion\tR\t4.2.2\n")
        self.assertEqual(calls, {("pwr", "anova", "power"): Call(0.75, 2e-5)})
        self.assertEqual(versions, {"R": "4.2.2"})

    def test_takes_the_medians_of_benchmarks(self):
        median = {"run_name": "anova/power", "aggregate_name": "median", "cpu_time": 2, "time_unit": "us",
                  "iterations": 3, "answer": 0.75}
        mean = {**median, "aggregate_name": "mean", "cpu_time": 9}
        benchmarks = page.read_benchmarks(json.dumps({"benchmarks": [mean, median]}))
        self.assertEqual(benchmarks, [Benchmark("anova", "power", 2e-6, {"answer": 0.75})])
        self.assertEqual(page.our_calls(benchmarks), {("kelpower", "anova", "power"): Call(0.75, 2e-6)})


class AgreementTest(unittest.TestCase):
    def test_near_answers_are_the_same(self):
        calls = calls_of("paired-t", "power", kelpower=0.75, pwr=0.75, R=0.75 + 2e-9)
        self.assertEqual(page.answers_of_others(calls, "paired-t", "power"), "the same within 2e-9")

    def test_rounded_sizes_are_compared_rounded(self):
        calls = calls_of("anova", "size", kelpower=29, pwr=28.4056)
        self.assertEqual(page.answers_of_others(calls, "anova", "size"), "the same")

    def test_far_answers_are_an_error(self):
        for other in (0.7501, float("nan")):
            with self.assertRaises(page.Disagreement):
                page.answers_of_others(calls_of("anova", "power", kelpower=0.75, R=other), "anova", "power")

    def test_another_method_is_named(self):
        calls = calls_of("one-proportion", "power", kelpower=0.75, pwr=0.76, statsmodels=0.75)
        self.assertEqual(page.answers_of_others(calls, "one-proportion", "power"),
                         "the same; pwr: 0.760000 by the arcsine test")


class BenchmarksTest(unittest.TestCase):
    def test_words(self):
        self.assertEqual(page.words("SizeForAPower"), "Size for a power")
        self.assertEqual(page.words("PowerOfPearson"), "Power of Pearson")

    def test_families(self):
        sources = {"means": "BENCHMARK(PowerOfPairs);", "anova": "BENCHMARK(PowerOfPairsToo);"}
        self.assertEqual(page.family_of("PowerOfPairs", sources), "means")
        with self.assertRaises(ValueError):
            page.family_of("Absent", sources)

    def test_remarks_compare_equal_arguments(self):
        ours = Benchmark("ExactPowerOfPairs", "100", 2e-6, {})
        others = [Benchmark("ExactPowerOfPairsByDefinition", "500", 9e-6, {}),
                  Benchmark("ExactPowerOfPairsByDefinition", "100", 8e-6, {})]
        self.assertEqual(page.remark(ours, others), "4.0 times as fast as the definition, count by count")
        self.assertEqual(page.remark(ours, others[:1]), "")


if __name__ == "__main__":
    unittest.main()
