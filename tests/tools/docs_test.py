"""Tests of the rules of tools/docs and tools/site."""

import contextlib
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1))
sys.path[:0] = [str(ROOT / "tools/docs"), str(ROOT / "tools/site")]
import answers_of  # noqa: E402
import inputs_of  # noqa: E402
import lines  # noqa: E402
import measured  # noqa: E402
import offline  # noqa: E402
import pages_of  # noqa: E402
import run_blocks  # noqa: E402
import sources  # noqa: E402


def block(kind="", text="a\n", is_output=False, page="docs/a.md"):
    return run_blocks.Block(page, 1, kind, text, is_output)


@contextlib.contextmanager
def repository(**files):
    """A repository with files, of which names have __ for /, and no other pages."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {"tools__site__contents.toml": "[[section]]", **files}.items():
            path = Path(folder, name.replace("__", "/"))
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        yield Path(folder)


class Blocks(unittest.TestCase):
    def complaints(self, *blocks):
        excused = [block("sh", excuse["first"] + "\n", page=excuse["page"]) for excuse in run_blocks.excuses()]
        return run_blocks.unaccounted([*blocks, *excused])

    def test_that_something_runs_need_no_excuse(self):
        self.assertEqual(self.complaints(block("console"), block("r"), block(is_output=True)), [])

    def test_that_nothing_runs_are_found(self):
        self.assertEqual(len(self.complaints(block("js"))), 1)
        self.assertEqual(len(self.complaints(block())), 1)

    def test_that_quote_an_example_are_run_with_it(self):
        self.assertEqual(self.complaints(block("c", (ROOT / "examples/plan_in_c.c").read_text())), [])

    def test_an_excuse_without_a_block_is_found(self):
        self.assertEqual(len(run_blocks.unaccounted([])), len(run_blocks.excuses()))

    def test_of_a_page_are_found_with_their_output(self):
        with repository(docs__a="x\n```python\nprint(1)\n```\n\n```\n1\n```\n\ntext\n\n```\n2\n```\n") as folder:
            found = run_blocks.blocks_of(folder / "docs/a")
        self.assertEqual([(each.kind, each.is_output, each.line) for each in found],
                         [("python", False, 2), ("", True, 6), ("", False, 12)])

    def test_commands_that_fail_are_found(self):
        self.assertEqual(run_blocks.command_problems("true", block("sh", "kelpower mean # as it is\n")), [])
        self.assertEqual(len(run_blocks.command_problems("false", block("sh", "kelpower mean\n"))), 1)
        self.assertEqual(len(run_blocks.command_problems("true", block("sh", "rm -rf /nowhere\n"))), 1)


class Lines(unittest.TestCase):
    def test_of_a_table_stay_whole(self):
        self.assertEqual(lines.marked("  a   b"), "  a   b")
        self.assertEqual(lines.marked(""), "")

    def test_of_a_text_may_be_broken_but_not_within_an_option(self):
        self.assertEqual(lines.marked("<i>so</i> it --is"),
                         '<span class="kel-text"><i>so</i> it <span class="kel-option">--is</span></span>')

    def test_with_half_an_element_are_left_alone(self):
        self.assertEqual(lines.marked("<i>so\nit</i> is"), "<i>so\nit</i> is")


class Links(unittest.TestCase):
    def linked(self, text, **files):
        with repository(docs__a="", **files) as folder, tempfile.TemporaryDirectory() as target:
            made = sources.Sources(folder, Path(target))
            return made.linked("docs/a", text), sorted(str(each.relative_to(target)) for each in
                                                       Path(target).rglob("*") if each.is_file())

    def test_to_files_beside_docs_follow_them(self):
        text, files = self.linked("[x](../b.h) and [`y`](c.txt#z)", **{"b.h": "", "docs__c.txt": ""})
        self.assertEqual(text, "[x](repository/b.h) and [`y`](c.txt#z)")
        self.assertEqual(files, ["c.txt", "repository/b.h"])

    def test_to_folders_lead_to_a_list(self):
        text, files = self.linked("[x](../b)", **{"b__c.txt": ""})
        self.assertEqual(text, "[x](repository/b/index.md)")
        self.assertEqual(files, ["repository/b/c.txt", "repository/b/index.md"])

    def test_that_lead_nowhere_are_refused(self):
        with self.assertRaisesRegex(SystemExit, "not there"):
            self.linked("[x](none.md)")

    def test_in_code_and_to_other_sites_stay(self):
        text = "`[x](none.md)`\n```\n[x](none.md)\n```\n[x](https://example.org) [y](#z)"
        self.assertEqual(self.linked(text)[0], text)


class Site(unittest.TestCase):
    def test_loads_nothing_from_elsewhere(self):
        for text in ('<script async src="https://example.org/a.js">', '<link rel="x" href="//example.org/a.css">',
                     "@import 'https://example.org/a.css';", 'a { background: url("https://example.org/a.png") }'):
            self.assertEqual(len(offline.loaded_from_elsewhere(text)), 1, text)
        self.assertEqual(offline.loaded_from_elsewhere('<img src="a.png"> <a href="https://example.org">'), [])


class Tests(unittest.TestCase):
    def test_have_the_page_that_speaks_most_of_them(self):
        files = {"docs__a.md": "`z`\n", "docs__b.md": "`z`, kelpower z \n", "docs__c.md": "`zz` `zz` `zz`\n"}
        with repository(**files) as folder:
            self.assertEqual(pages_of.of_mentions(folder, {"name": "z"}), "b.md")
            self.assertEqual(pages_of.of_mentions(folder, {"name": "other"}), "")

    def test_say_what_an_input_may_be(self):
        parameter = {"kind": "per-group", "spreads": True, "limits": {"exclusive-minimum": 0, "maximum": 1e6}}
        self.assertEqual(inputs_of.range_of(parameter),
                         "a number for each group, or one for all; above 0, at most 1,000,000")
        self.assertEqual(inputs_of.range_of({"kind": "flag", "limits": {}}), "yes or no")
        self.assertEqual(inputs_of.default_of({"default": False}), "no")
        self.assertEqual(inputs_of.default_of({"default": [1, 0.5]}), "1, 0.5")
        self.assertEqual(inputs_of.default_of({}), "")

    def test_have_each_formula_once(self):
        answers = [{"details": {"formula": text}} for text in ("a = 1", "a = 2.5e-3", "b = 1")]
        self.assertEqual(answers_of.formulas_of({"sources": ["s"]}, answers).count("```text"), 2)

    def test_name_the_script_that_computed_a_value(self):
        for source in ("cases_x.py", "tools/references/cases_x.py", "multiple precision, tools/references/cases_x.py"):
            self.assertEqual(measured.source_of({"source": source}), "multiple precision, `tools/references/cases_x.py`")
        self.assertEqual(measured.source_of({"source": "A book"}), "A book")

    def test_tell_which_case_cannot_be_read(self):
        with repository(**{"tests__cases__z.jsonl": '{"a": 1}\n\nb": 2}\n'}) as folder:
            with self.assertRaisesRegex(SystemExit, "z.jsonl, line 3"):
                measured.cases(folder)

    def test_compare_numbers_and_lists(self):
        self.assertEqual(measured.difference(1, 1.5), 0.5)
        self.assertEqual(measured.difference([1, 2], [1, 4]), 2)
        for found, value in ((None, 1), ([1], [1, 2]), ("1", 1)):
            with self.assertRaises(SystemExit):
                measured.difference(found, value)


if __name__ == "__main__":
    unittest.main()
