"""Runs notebooks.

As a program it stores in notebooks what their cells give: python3 python/tests/notebooks.py NOTEBOOK...
"""

import copy
import sys

import nbformat
from nbclient import NotebookClient


def executed(notebook):
    """A notebook with the outputs of its cells, without what differs from run to run."""
    done = NotebookClient(copy.deepcopy(notebook), timeout=300, kernel_name="python3").execute()
    for cell in done.cells:
        cell.metadata.pop("execution", None)
    done.metadata["language_info"] = {"name": "python"}
    return done


def texts(notebook):
    """What the cells print and show, as text; a list for each cell."""
    return [
        [output.get("text") or output.get("data", {}).get("text/plain", "") for output in cell.get("outputs", [])]
        for cell in notebook.cells
    ]


def pictures(notebook):
    """The numbers of pictures that the cells show."""
    return [
        sum("image/png" in output.get("data", {}) for output in cell.get("outputs", [])) for cell in notebook.cells
    ]


if __name__ == "__main__":
    for name in sys.argv[1:]:
        nbformat.write(executed(nbformat.read(name, as_version=4)), name)
