"""Times the exported functions as called from Python through ctypes, on some designs of kelpower_calls.cpp.

Usage: ctypes_calls.py LIBRARY
"""

import ctypes
import sys

from timing import print_calls

d, i, b, pointer = ctypes.c_double, ctypes.c_int32, ctypes.c_uint8, ctypes.c_void_p


def declare(library, name, *argument_types):
    function = getattr(library, name)
    function.argtypes = argument_types
    function.restype = d
    return function


def designs(library):
    t_power = declare(library, "PowerOneSampleNondirectionalES", d, d, d)
    t_size = declare(library, "PowerReverseOneSampleNondirectionalES", d, d, d)
    proportion_power = declare(library, "PowerOneSampBinom", d, d, d, i, i, d, b, pointer)
    proportion_size = declare(library, "PowerReverseOneSampBinom", d, d, d, i, i, d, b, pointer)
    regression_power = declare(library, "PowerbymlrwES", d, d, d, d, i, b, d)
    regression_size = declare(library, "PowerReversebymlrwES", d, d, d, d, i, b, d)
    return {
        "one-sample-t": {
            "power": lambda: t_power(40, 0.4, 0.05),
            "size": lambda: t_size(0.8, 0.4, 0.05),
        },
        "one-proportion": {
            "power": lambda: proportion_power(50, 0.7, 0.5, 0, 0, 0.05, 0, None),
            "size": lambda: proportion_size(0.8, 0.7, 0.5, 0, 0, 0.05, 0, None),
        },
        "regression": {
            "power": lambda: regression_power(95, 5, 5, 1 / 9, 0, 1, 0.05),
            "size": lambda: regression_size(0.8, 5, 5, 1 / 9, 0, 1, 0.05),
        },
    }


if __name__ == "__main__":
    print_calls("ctypes", designs(ctypes.CDLL(sys.argv[1])))
