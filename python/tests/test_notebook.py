"""The notebook is run, and what its cells give is what it holds."""

from pathlib import Path

import pytest

pytest.importorskip("nbclient")
pytest.importorskip("ipykernel")
pytest.importorskip("matplotlib")
import nbformat
import notebooks

NOTEBOOK = Path(__file__).resolve().parents[2] / "examples" / "plan_a_study.ipynb"

# Threads and sockets of the kernel, which are none of ours.
pytestmark = [
    pytest.mark.filterwarnings("ignore::DeprecationWarning"),
    pytest.mark.filterwarnings("ignore::ResourceWarning"),
    pytest.mark.filterwarnings("ignore::pytest.PytestUnraisableExceptionWarning"),
    pytest.mark.skipif(not NOTEBOOK.exists(), reason="the sdist has no notebook"),
]


def test_the_notebook_holds_what_its_cells_give():
    stored = nbformat.read(NOTEBOOK, as_version=4)
    done = notebooks.executed(stored)
    assert notebooks.texts(done) == notebooks.texts(stored)
    assert notebooks.pictures(done) == notebooks.pictures(stored)
    assert sum(notebooks.pictures(stored)) >= 3
