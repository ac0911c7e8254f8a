"""Answers requests by the native library: reads "door request" lines and writes a reply a line.

Usage: native_replies.py LIBRARY
"""

import ctypes
import sys


def main():
    library = ctypes.CDLL(sys.argv[1])
    library.kelplan_free.argtypes = [ctypes.c_void_p]
    for line in sys.stdin.buffer:
        door, _, request = line.rstrip(b"\n").partition(b" ")
        answer = ctypes.c_void_p()
        getattr(library, f"kelplan_{door.decode()}")(request, None, ctypes.byref(answer))
        sys.stdout.buffer.write(ctypes.string_at(answer) + b"\n")
        library.kelplan_free(answer)


if __name__ == "__main__":
    main()
