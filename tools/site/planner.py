"""The planner as the site asks it: the C interface for texts and numbers, the program for pictures."""

import ctypes
import json
import shlex
import subprocess
from pathlib import Path


class Planner:
    """Answers of `libkelplan`."""

    def __init__(self, library: str) -> None:
        self._library = ctypes.CDLL(str(Path(library).resolve()))
        self._library.kelplan_describe.restype = ctypes.c_char_p
        self._library.kelplan_free.argtypes = [ctypes.c_void_p]

    def describe(self) -> dict:
        return json.loads(self._library.kelplan_describe())

    def solve(self, request: dict) -> dict:
        """The answer to a request; one that is an error has a `kind`."""
        answer = ctypes.c_void_p()
        self._library.kelplan_solve(json.dumps(request).encode(), None, ctypes.byref(answer))
        try:
            return json.loads(ctypes.string_at(answer.value))
        finally:
            self._library.kelplan_free(answer)


def draw(program: str, command: str, chart: str, file: Path, seconds: float = 60) -> str:
    """Draws a chart of a design into a file. Says what went wrong, if anything did."""
    words = [program, *shlex.split(command)[1:], "--chart", chart, "--output", str(file)]
    try:
        done = subprocess.run(words, capture_output=True, text=True, timeout=seconds, check=False)
    except subprocess.TimeoutExpired:
        return f"no picture after {seconds:g} s"
    return "" if done.returncode == 0 else done.stderr.strip()
