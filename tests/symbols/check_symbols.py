"""Compares the list of exported names with the header and with the built library.

The list is what the linker's version script is made from, and the linker accepts names that nothing defines.
"""

import argparse
import json
import re
import subprocess
import sys
from pathlib import Path

from header import read_declarations


def read_list(path):
    lines = (line.strip() for line in Path(path).read_text().splitlines())
    return [line for line in lines if line and not line.startswith("#")]


def defined_symbols(nm, library):
    """The visible names that the library defines, C++ names demangled."""
    output = subprocess.run([nm, "-DC", "--defined-only", library], check=True, capture_output=True, text=True).stdout
    return [line.split(maxsplit=2)[2] for line in output.splitlines()]


def names_in_export_table(report):
    """The names in the export table of a DLL, from what objdump -p says of it."""
    table = report.partition("[Ordinal/Name Pointer] Table")[2].split("\n\n")[0]
    return [line.split()[-1] for line in table.splitlines() if re.match(r"\s*\[\s*\d+\]", line)]


def exported_names(objdump, library):
    """The names that the DLL exports, C++ names demangled."""
    report = subprocess.run([objdump, "-p", library], check=True, capture_output=True, text=True).stdout
    names = "\n".join(names_in_export_table(report))
    return subprocess.run(["c++filt"], input=names, check=True, capture_output=True, text=True).stdout.splitlines()


def declared_in_c(text):
    """The functions that the header of the C interface declares, in order."""
    return re.findall(r"^KELPLAN_EXPORT\s[^;(]*?(\w+)\(", text, re.M)


def compare_names(what, listed, found):
    problems = [f"{name}: listed twice" for name in sorted({name for name in listed if listed.count(name) > 1})]
    problems += [f"{name}: listed, but not in the {what}" for name in sorted(set(listed) - set(found))]
    problems += [f"{name}: in the {what}, but not listed" for name in sorted(set(found) - set(listed))]
    return problems


def compare_order(listed, declared):
    return [] if listed == declared else ["the list and the header have the names in different order"]


def compare_parameters(signatures, declarations):
    problems = []
    for declaration in declarations:
        if declaration.name not in signatures:
            problems.append(f"{declaration.name}: not part of the interface")
            continue
        expected = [name for name, _ in signatures[declaration.name][1]]
        if declaration.parameters != expected:
            problems.append(f"{declaration.name}: parameters are {declaration.parameters}, expected {expected}")
    return problems


def compare_complete(signatures, listed):
    return [f"{name}: part of the interface, but not listed" for name in sorted(set(signatures) - set(listed))]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--list", required=True, help="file of exported names")
    parser.add_argument("--library", required=True)
    reader = parser.add_mutually_exclusive_group(required=True)
    reader.add_argument("--nm", help="reads a library of a Unix system")
    reader.add_argument("--objdump", help="reads a DLL")
    parser.add_argument("--header", help="header that declares the listed names with KELPOWER_API")
    parser.add_argument("--c-header", help="header of the C interface, that declares the listed names")
    parser.add_argument("--signatures", help="JSON file of all functions of the interface with their parameters")
    parser.add_argument("--complete", action="store_true", help="demand that every function of --signatures is listed")
    arguments = parser.parse_args()

    listed = read_list(arguments.list)
    if arguments.objdump:
        found = exported_names(arguments.objdump, arguments.library)
    else:
        found = defined_symbols(arguments.nm, arguments.library)
    problems = compare_names("library", listed, found)
    if arguments.header:
        declarations = read_declarations(Path(arguments.header).read_text())
        declared = [declaration.name for declaration in declarations]
        problems += compare_names("header", listed, declared) or compare_order(listed, declared)
        if arguments.signatures:
            signatures = json.loads(Path(arguments.signatures).read_text())
            problems += compare_parameters(signatures, declarations)
            problems += compare_complete(signatures, listed) if arguments.complete else []
    if arguments.c_header:
        declared = declared_in_c(Path(arguments.c_header).read_text())
        problems += compare_names("header", listed, declared) or compare_order(listed, declared)
    print("\n".join(problems) or f"{len(listed)} names agree")
    sys.exit(1 if problems or not listed else 0)


if __name__ == "__main__":
    main()
