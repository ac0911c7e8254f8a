"""The sections that are measured by themselves are replaced alone and survive a new page; their numbers are right."""

import json
import unittest

import before
import from_python
import from_r
import page
import sections
import wasm
import web

PAGE = "# Speed\n\nText.\n\n## All benchmarks\n\nTables.\n"


class SectionsTest(unittest.TestCase):
    def test_a_new_section_stands_before_the_benchmarks(self):
        new = sections.replaced(PAGE, "before", "## Beside\n")
        self.assertEqual(sections.body_of(new, "before"), "## Beside\n")
        self.assertIsNone(sections.body_of(new, "webassembly"))
        self.assertLess(new.index("## Beside"), new.index("## All benchmarks"))
        self.assertEqual(new.replace(sections.kept(new), ""), PAGE)

    def test_one_section_is_replaced_alone_and_in_order(self):
        new = sections.replaced(PAGE, "scipy", "scipy\n")
        new = sections.replaced(new, "webassembly", "wasm\n")
        new = sections.replaced(new, "before", "old\n")
        new = sections.replaced(new, "before", "new\n")
        self.assertEqual([sections.body_of(new, name) for name in ("before", "webassembly")], ["new\n", "wasm\n"])
        self.assertNotIn("old\n", new)
        self.assertLess(new.index("new\n"), new.index("wasm\n"))
        self.assertEqual(new.count("Tables."), 1)

    def test_a_page_without_its_place_is_refused(self):
        with self.assertRaises(sections.NoPlace):
            sections.replaced("# Speed\n", "before", "new\n")

    def test_sections_survive_a_new_page(self):
        old = sections.replaced(PAGE, "before", "measured\n")
        context = {"machine": "m", "version": "v", "compiler": "c"}
        calls = {(program, design, question): page.Call(1, 1e-6)
                 for program in ("kelpower", "pwr") for design in page.DESIGNS for question in page.QUESTIONS}
        new = page.page(context, calls, {}, [("kelpower", 1.0)], [], {}, sections.kept(old))
        self.assertEqual(sections.body_of(new, "before"), "measured\n")
        self.assertEqual(sections.body_of(sections.replaced(new, "before", "again\n"), "before"), "again\n")


class FromRTest(unittest.TestCase):
    def test_says_how_many_times_as_long_pwr_takes(self):
        rows = from_r.read_rows("Design\tpower\t1e-06\t3e-05\t4e-06\t5e-05\nDesign\tsize\t1e-05\t0.0005\tNA\t6e-05\n")
        section = from_r.section(rows)
        self.assertIn("| Design | power | 1.0 µs | 30 µs (30) | 4.0 µs (4.0) | 50 µs |", section)
        self.assertIn("| Design | sample size | 10 µs | 500 µs (50) | – | 60 µs |", section)
        self.assertIn("powers are 30 to 30 (in the median 30) times as fast", section.replace("\n", " "))


def report(**seconds):
    entries = [{"run_name": name, "run_type": "iteration", "cpu_time": time, "time_unit": "us"}
               for name, time in seconds.items()]
    return json.dumps({"benchmarks": entries})


class BeforeTest(unittest.TestCase):
    def test_reads_processor_times(self):
        self.assertEqual(before.seconds_by_benchmark(report(IdfT=2)), {"IdfT": 2e-6})

    def test_takes_medians_of_the_rounds_of_each_side(self):
        reports = {"before": [{"IdfT/n:30": 9e-6}, {"IdfT/n:30": 6e-6}, {"IdfT/n:30": 1e-6}],
                   "now": [{"IdfT/n:30": 3e-6}, {"IdfT/n:30": 7e-6}, {"IdfT/n:30": 2e-6}]}
        row, = before.rows_of(reports)
        self.assertEqual(row, before.Row("IdfT", "n 30", 6e-6, 3e-6))
        self.assertEqual(row.times_as_fast(), 2)

    def test_the_section_has_the_range_of_the_ratios(self):
        rows = [before.Row("A", "", 4e-6, 1e-6), before.Row("B", "", 1e-6, 2e-6), before.Row("C", "", 3e-6, 1e-6)]
        context = {"commit": "abc", "subject": "s", "machine": "m", "compiler": "c", "rounds": 3}
        text = before.section(rows, context)
        self.assertIn("Now they are 0.50 to 4.0 times as fast, 3.0 times in the median.", " ".join(text.split()))
        self.assertIn("| `B` |  | 1.0 µs | 2.0 µs | 0.50 |", text)

    def test_finds_the_library_that_the_loader_takes(self):
        listing = "\tlibc.so.6 => /lib/libc.so.6 (0x1)\n\tlibkelcommon.so.0 => /old/libkelcommon.so.0 (0x2)\n"
        self.assertEqual(str(before.library_in(listing)), "/old/libkelcommon.so.0")
        with self.assertRaises(before.WrongLibrary):
            before.library_in("\tlibc.so.6 => /lib/libc.so.6 (0x1)\n")


class WasmTest(unittest.TestCase):
    def test_takes_medians_of_the_rounds_of_each_form(self):
        timings = {"native": [wasm.read_timings(f"power\t0.8\t{time}e-06\n") for time in (1, 5, 2)],
                   "wasm": [wasm.read_timings(f"power\t0.8000000000000003\t{time}e-06\n") for time in (9, 3, 4)]}
        row, = wasm.rows_of(timings)
        self.assertEqual(row, wasm.Row("power", 2e-6, 4e-6))
        self.assertEqual(row.times_as_long(), 2)
        self.assertIn("| power | 2.0 µs | 4.0 µs | 2.0 |",
                      wasm.section([row], {"g++": "1", "emscripten": "2", "node": "3", "machine": "m", "rounds": 3}))

    def test_other_answers_are_an_error(self):
        timings = {"native": [wasm.read_timings("power\t0.8\t1e-06\n")],
                   "wasm": [wasm.read_timings("power\t0.81\t1e-06\n")]}
        with self.assertRaises(wasm.Disagreement):
            wasm.rows_of(timings)


class FromPythonTest(unittest.TestCase):
    TEXT = ("loop\t5.5\t1.0\t1.0\nufunc\t5.5\t1.1\t1.2\ntwo threads\t5.5\t1.2\t0.6\nfunction\t0.7\t0.05\t0.05\n"
            "ufunc on scalars\t0.7\t0.01\t0.01\nsizes\t9\t0.5\t0.5\n")

    def test_relates_the_times(self):
        timings, _ = from_python.read_timings(self.TEXT)
        rows = from_python.rows_of(timings)
        self.assertEqual([row[2] for row in rows[1:3]],
                         ["1.10 times as long as the loop", "2.00 times as fast as on one"])
        self.assertEqual([row[1] for row in rows[3:5]], ["10 µs", "2.0 µs"])
        self.assertEqual(len(rows), 6)

    def test_statsmodels_is_asked_for_some_of_the_sizes(self):
        timings, versions = from_python.read_timings(self.TEXT + "sizes of statsmodels\t9\t0.4\t0.4\nversion\tSciPy\t1\n")
        self.assertEqual(versions, {"SciPy": "1"})
        self.assertEqual(from_python.rows_of(timings)[-1][1:],
                         ["200 s", "400 times as long as the ufunc, with the same sizes"])

    def test_other_powers_are_not_taken(self):
        timings, _ = from_python.read_timings(self.TEXT.replace("ufunc\t5.5", "ufunc\t5.500000001"))
        with self.assertRaises(from_python.Disagreement):
            from_python.section(timings, {}, "m")


class WebTest(unittest.TestCase):
    def timings(self, reply, *seconds):
        lines = ("\t".join([name, *map(str, seconds), json.dumps(reply)]) for name, _, _ in web.REQUESTS)
        return web.read_timings("\n".join(lines))

    def test_takes_medians_of_the_rounds(self):
        rounds = [(self.timings({"power": 0.8, "densities": [1]}, native),
                   self.timings({"power": 0.8000000000000003, "densities": [2]}, wasm, page_side))
                  for native, wasm, page_side in ((1e-6, 9e-6, 2e-5), (5e-6, 3e-6, 3e-5), (2e-6, 4e-6, 4e-5))]
        rows = web.rows_of(rounds)
        self.assertEqual(len(rows), len(web.REQUESTS))
        self.assertEqual(rows[0], web.Row(web.REQUESTS[0][0], 2e-6, 4e-6, 3e-5))
        context = {"node": "1", "machine": "m", "rounds": 3, "opening": 0.2, "slowest": 0.3, "openings": 9,
                   "size": 1_000_000, "compressed": 600_000}
        self.assertIn(f"| {rows[0].name} | 2.0 µs | 4.0 µs | 2.0 | 30 µs |", web.section(rows, context))

    def test_other_answers_and_errors_are_refused(self):
        for reply in ({"power": 0.81}, {"power": [0.8, 0.8]}, {"error": {"message": "no"}}):
            with self.assertRaises(web.Disagreement):
                web.rows_of([(self.timings({"power": 0.8}, 1), self.timings(reply, 1, 1))])


if __name__ == "__main__":
    unittest.main()
