"""The examples of the documentation are run, and what they print is compared."""

import re
from pathlib import Path

import kelpower
import pytest

import examples

ROOT = Path(__file__).resolve().parents[2]
PAGES = [path for path in (ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))) if path.exists()]
DOCUMENTS = [path for path in PAGES if examples.blocks(path.read_text())]

pytestmark = pytest.mark.skipif(not (ROOT / "docs").exists(), reason="the sdist has no documents")


@pytest.fixture(autouse=True)
def pictures_without_a_screen():
    """Pictures are drawn, and closed afterwards."""
    matplotlib = pytest.importorskip("matplotlib")
    matplotlib.use("Agg")
    yield
    from matplotlib import pyplot

    pyplot.close("all")


@pytest.mark.parametrize("document", DOCUMENTS, ids=lambda path: path.name)
def test_examples_of_documents(document, tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    names = {"__name__": "__main__"}
    found = examples.blocks(document.read_text())
    assert found
    left_out = []
    for block in found:
        missing = examples.missing(block)
        if missing:
            left_out.append(f"line {block.line} ({', '.join(missing)})")
            continue
        text, printed = examples.texts(block, names)
        assert block.text == text, f"{document.name}, line {block.line}"
        assert block.printed == printed, f"{document.name}, line {block.line}"
    names.clear()  # what packages hold of it would otherwise never be released
    if left_out:
        pytest.skip(f"not run, because packages are missing: {'; '.join(left_out)}")


def calls_in_tables():
    """The calls of this package in the rows of tables."""
    text = (ROOT / "docs" / "python.md").read_text() if (ROOT / "docs" / "python.md").exists() else ""
    rows = [line for line in text.splitlines() if line.startswith("|")]
    return [
        call for row in rows for call in re.findall(r"`(kelpower\.[a-z_]+\([^`]*\)[^`]*)`", row) if "..." not in call
    ]


@pytest.mark.parametrize("call", calls_in_tables())
def test_calls_in_tables_give_an_answer(call):
    assert eval(call, {"kelpower": kelpower}) is not None


def test_a_wrong_example_is_found():
    document = "```pycon\n>>> 1 + 1\n3\n```\n\n```python\nprint(2)\n```\n\n```\n3\n```\n"
    assert examples.updated(document) == document.replace("3\n", "2\n")
    assert examples.updated("```pycon\n>>> 1 / 0\n```\n").endswith(
        "\n  ...\nZeroDivisionError: division by zero\n```\n"
    )
    assert examples.updated("```python\n# frame is a DataFrame\nframe.x\n```\n").count("\n") == 4
    with pytest.raises(ZeroDivisionError):
        examples.updated("```python\n1 / 0\n```\n")
