"""Demands of the compiled R package that it calls nothing that R forbids, and that its own names are hidden.

Usage: check_symbols.py LIBRARY (kelpower.so)
"""

import subprocess
import sys

# They would end R, or print past it, or draw from another generator than R's.
FORBIDDEN = {"abort", "exit", "_exit", "_Exit", "__assert_fail", "assert", "printf", "__printf_chk", "vprintf",
             "__vprintf_chk", "puts", "putchar", "sprintf", "__sprintf_chk", "vsprintf", "__vsprintf_chk", "stderr",
             "stdout", "rand", "srand", "random", "srandom", "drand48", "std::cout", "std::cerr"}
VISIBLE = "R_init_kelpower"


def symbols(library, option):
    lines = subprocess.run(["nm", "-DC", option, library], check=True, stdout=subprocess.PIPE, text=True).stdout
    return {line.split(maxsplit=2 if option == "--defined-only" else 1)[-1].split("@")[0] for line in lines.splitlines()}


def forbidden(undefined):
    return sorted(FORBIDDEN & undefined)


def visible(defined):
    """The names that are ours; inline parts of the standard library are anyone's."""
    return sorted(name for name in defined if ("kel" in name.lower() or "planner" in name) and "std::" not in name)


def main():
    library = sys.argv[1]
    calls = forbidden(symbols(library, "--undefined-only"))
    names = visible(symbols(library, "--defined-only"))
    if calls:
        sys.exit(f"The package calls what R forbids: {', '.join(calls)}")
    if names != [VISIBLE]:
        sys.exit(f"Names of the package should be hidden: {', '.join(names)}")
    print("The compiled code calls nothing that R forbids.")


if __name__ == "__main__":
    main()
