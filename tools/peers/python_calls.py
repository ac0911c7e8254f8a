"""Times the Python package beside a loop in C++ over the library, and beside statsmodels where there is one.

Usage: python_calls.py LOOP
(the library of core_loop.cpp)

Prints a line for each: what, the answer, the processor time and the time that passed, in seconds, separated by tabs. All
are made in turn on the same arrays, and of the passes the shortest counts: what else the machine does can only lengthen
them.
"""

import ctypes
import math
import platform
import sys
import time
import warnings
from concurrent.futures import ThreadPoolExecutor

import kelpower
import numpy as np
from python_counts import CALLS, OF_STATSMODELS, PASSES, POWERS, SIZES

ALPHA = 0.05

effects = np.linspace(0.05, 1, POWERS)
first_sizes = np.full(POWERS, 64.0)
second_sizes = np.linspace(30, 90, POWERS).round()
powers = np.empty(POWERS)
searched = effects[:: POWERS // SIZES]


def loop_of(path):
    function = ctypes.CDLL(path).PowersOfTwoMeans
    arrays = [ctypes.c_void_p(array.ctypes.data) for array in (effects, first_sizes, second_sizes, powers)]

    def call():
        function(ctypes.c_size_t(POWERS), *arrays[:3], ctypes.c_double(ALPHA), arrays[3])
        return powers.sum()

    return call


def of_ufunc():
    kelpower.ufuncs.two_means_power(effects, first_sizes, second_sizes, ALPHA, out=powers)
    return powers.sum()


def on_two_threads():
    def share(part):
        kelpower.ufuncs.two_means_power(effects[part], first_sizes[part], second_sizes[part], ALPHA, out=powers[part])

    bounds = np.linspace(0, POWERS, 17).astype(int)
    with ThreadPoolExecutor(2) as pool:
        list(pool.map(share, map(slice, bounds[:-1], bounds[1:])))
    return powers.sum()


def of_function():
    return kelpower.two_means(effect_d=0.5, n=64).power


def of_ufunc_on_scalars():
    return kelpower.ufuncs.two_means_power(0.5, 64.0, 64.0, ALPHA)


def sizes():
    return float(kelpower.ufuncs.two_means_total(searched, 0.8, 1.0, ALPHA).sum())


def repeated(call):
    def calls():
        for _ in range(CALLS):
            answer = call()
        return answer

    return calls


def sizes_of_statsmodels():
    """The same sizes, of some designs, which must be ours once they are rounded up."""
    from statsmodels.stats.power import TTestIndPower

    test = TTestIndPower()
    some = searched[:: SIZES // OF_STATSMODELS]

    def call():
        return float(sum(2 * math.ceil(test.solve_power(effect, power=0.8, alpha=ALPHA)) for effect in some))

    assert call() == kelpower.ufuncs.two_means_total(some, 0.8, 1.0, ALPHA).sum()
    return call


def main():
    calls = {"loop": loop_of(sys.argv[1]), "ufunc": of_ufunc, "two threads": on_two_threads,
             "function": repeated(of_function), "ufunc on scalars": repeated(of_ufunc_on_scalars), "sizes": sizes}
    versions = {"Python": platform.python_version(), "NumPy": np.__version__}
    try:
        import statsmodels

        calls["sizes of statsmodels"] = sizes_of_statsmodels()
        versions["statsmodels"] = statsmodels.__version__
    except ImportError:
        print("statsmodels is left out", file=sys.stderr)

    least = {name: (math.inf, math.inf) for name in calls}
    answers = {name: call() for name, call in calls.items()}
    for _ in range(PASSES):
        for name, call in calls.items():
            processor, passed = time.process_time(), time.perf_counter()
            call()
            processor, passed = time.process_time() - processor, time.perf_counter() - passed
            least[name] = (min(least[name][0], processor), min(least[name][1], passed))
    for name, (processor, passed) in least.items():
        print(name, repr(float(answers[name])), f"{processor:.6g}", f"{passed:.6g}", sep="\t")
    for name, version in versions.items():
        print("version", name, version, sep="\t")


if __name__ == "__main__":
    warnings.simplefilter("ignore")  # statsmodels divides by zero on the way to a size
    main()
