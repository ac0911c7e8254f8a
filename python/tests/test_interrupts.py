"""Long computations end at Ctrl-C, and let other threads go on."""

import subprocess
import sys
import textwrap
import threading

import kelpower
import numpy as np
import pytest
from kelpower import ufuncs

# Each takes minutes unless it is stopped.
LONG = {
    "one design": "kelpower.two_proportions(proportions=[0.5, 0.5285], power=0.8, method='conditional')",
    "many designs": "kelpower.two_proportions(proportions=np.full((64, 2), [0.5, 0.5285]), power=0.8, "
                    "method='conditional')",
    "many rows on threads": "kelpower._many.ROWS_A_THREAD = 1; kelpower.two_proportions("
                            "proportions=np.full((64, 2), [0.5, 0.5285]), power=0.8, method='conditional')",
    "a ufunc": "size(np.full(64, 0.5), 0.5285)",
}  # fmt: skip

SCRIPT = """
import os, signal, threading, time
import numpy as np
import kelpower
size = kelpower.ufunc("two-proportions", "proportion1", "proportion2", power=0.8, method="conditional")
threading.Thread(target=lambda: (time.sleep(1), os.kill(os.getpid(), signal.SIGINT)), daemon=True).start()
try:
    {call}
except KeyboardInterrupt:
    print("stopped")
"""


@pytest.mark.parametrize("call", LONG)
def test_ctrl_c_ends_it(call):
    script = textwrap.dedent(SCRIPT).format(call=LONG[call])
    ended = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, timeout=60, check=False)
    assert ended.stdout == "stopped\n", ended


def test_other_threads_go_on():
    counted = []
    done = threading.Event()

    def count():
        while not done.is_set():
            counted.append(1)
            done.wait(0.001)

    counter = threading.Thread(target=count)
    counter.start()
    before = len(counted)
    ufuncs.proportion_n_exact(np.linspace(0.5001, 0.501, 8), 0.5, 0.8, 0.05)
    done.set()
    counter.join()
    assert len(counted) > before + 5


def test_threads_give_what_one_gives():
    effects = np.linspace(0.05, 2, 20_000)
    many = kelpower._many.Many("two-means", {"effect_d": effects, "power": 0.9})
    assert np.array_equal(many.answer(threads=1).results["n"], many.answer(threads=8).results["n"])
