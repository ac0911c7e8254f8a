"""Makes the source tarball of the R package, with the library's sources and the headers that they use inside.

Usage: make_tarball.py SOURCE BUILD --include HEADERS [--no-vignettes] [--assemble-only]
(the project, the folder in which the package is assembled and the tarball is put, the headers of other libraries)
"""

import argparse
import re
import shutil
import subprocess
from pathlib import Path

LIBRARY = "library"  # within the package's src/
OTHERS = "third_party"
ROOMS = ["kelcommon", "src", "planner", "capi"]
INCLUDE_FOLDERS = ["include", "kelcommon/include", "src", "planner", "capi"]
# The other libraries, each with its headers and its licence in a folder that tools/third_party.sh made.
PACKAGES = ("fmt", "nlohmann", "fast_float")
INCLUDE = re.compile(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', re.M)
SOURCE_LINE = re.compile(r"^\s+([\w/]+\.cpp)\)?$", re.M)
LONGEST_PATH = 100  # in the tarball, which R demands

# Nothing is fused, so that each processor gives the same digits. Compilers for processors that fuse by themselves are
# told so in the sources, because R allows no option for it.
ARITHMETIC = """\
#ifndef KELPOWER_ARITHMETIC_H
#define KELPOWER_ARITHMETIC_H

// Products and sums are rounded one by one, also on processors that have one operation for both.
#if defined(__clang__)
#pragma STDC FP_CONTRACT OFF
#elif defined(__GNUC__) && defined(__FP_FAST_FMA)
#pragma GCC optimize("fp-contract=off")
#endif

#endif
"""

MAKEVARS = """\
# Written by tools/r/make_tarball.py.
CXX_STD = CXX20
PKG_CPPFLAGS = {defines} {includes}
PKG_CFLAGS = $(C_VISIBILITY)
PKG_CXXFLAGS = $(CXX_VISIBILITY)
OBJECTS = {objects}
"""


def sources_of(project):
    """The sources that CMake compiles into the library, in its order."""
    found = []
    for room in ROOMS:
        listed = SOURCE_LINE.findall((project / room / "CMakeLists.txt").read_text())
        found += [f"{room}/{name}" for name in listed]
    missing = [name for name in found if not (project / name).is_file()]
    if missing or len(found) < 100:
        raise SystemExit(f"the lists of sources in CMakeLists.txt are not understood: {missing or len(found)}")
    return found


def group_of(name, previous):
    """What is compiled as one with others, as kel_compile_together in CMakeLists.txt has it: the files of a test or a
    folder. None for a file that is compiled by itself."""
    folder = name.rpartition("/")[0]
    if folder == "planner/catalogue":
        stem = name.removesuffix(".cpp")
        return previous if previous and stem.startswith(f"{previous}_") else stem
    return folder if re.fullmatch(r"planner/\w+|src/(?!exports)\w+", folder) else None


def groups_of(sources):
    """The sources by the stem of the file that compiles them, in their order."""
    groups, previous = {}, None
    for name in sorted(sources):
        previous = group_of(name, previous)
        groups.setdefault(previous or name.removesuffix(".cpp"), []).append(name)
    return groups


def headers_of(project):
    """All headers of the library by their paths."""
    folders = ["include"] + ROOMS
    return sorted(str(path.relative_to(project)) for folder in folders for path in (project / folder).rglob("*.h"))


def used_headers(texts, include):
    """The headers of other libraries that the texts include, directly or not, by their paths below `include`."""
    used, left = set(), [name for text in texts for name in INCLUDE.findall(text)]
    while left:
        name = left.pop()
        path = include / name
        if name in used or name.split("/")[0] not in PACKAGES or not path.is_file():
            continue
        used.add(name)
        for inner in INCLUDE.findall(path.read_text()):
            beside = (path.parent / inner).resolve()
            left.append(inner)
            if beside.is_file() and beside.is_relative_to(include):
                left.append(str(beside.relative_to(include)))
    return sorted(used)


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)


def copy_library(project, package, sources):
    for name in headers_of(project):
        write(package / "src" / LIBRARY / name, (project / name).read_text())
    write(package / "src" / LIBRARY / "include/arithmetic.h", ARITHMETIC)
    for name in sources:
        text = '#include "arithmetic.h"\n' + (project / name).read_text()
        write(package / "src" / LIBRARY / name, with_version(project, text))


def compile_together(package, sources):
    """Writes the files that compile several sources as one. The stems of all that are compiled, below `src`."""
    compiled = []
    for stem, names in groups_of(sources).items():
        if len(names) > 1:
            stem += "_together"
            text = "".join(f'#include "{LIBRARY}/{name}"\n' for name in names)
            write(package / "src" / LIBRARY / f"{stem}.cpp", text)
        else:
            stem = names[0].removesuffix(".cpp")
        compiled.append(f"{LIBRARY}/{stem}")
    return compiled


def with_version(project, text):
    """The release as a definition in the sources that say it, so that the others need no new compilation for it."""
    if "KELPOWER_VERSION" not in text:
        return text
    return f'#define KELPOWER_VERSION "{version_of(project)}"\n{text}'


def without_hidden_warnings(text):
    """R's check wants no header to switch the compiler's warnings off."""
    return re.sub(r"^([ \t]*#[ \t]*pragma[ \t]+(GCC|clang)[ \t]+diagnostic)", r"// \1", text, flags=re.M)


def copy_others(package, include, sources):
    texts = [path.read_text() for path in (package / "src" / LIBRARY).rglob("*") if path.is_file()]
    for name in used_headers(texts, include):
        write(package / "src" / OTHERS / name, without_hidden_warnings((include / name).read_text()))
    for folder in PACKAGES:
        write(package / "inst/licenses" / f"{folder}.txt", (include / folder / "copyright").read_text())


def write_makevars(package, compiled):
    defines = [f"-D{name}=" for name in ("KELPOWER_API", "KELPLAN_EXPORT", "KELCOMMON_API")]
    includes = ["-I."] + [f"-I{LIBRARY}/{folder}" for folder in INCLUDE_FOLDERS] + [f"-I{OTHERS}"]
    own = [path.stem for path in sorted((package / "src").glob("*.c*"))]
    objects = [f"{stem}.o" for stem in own + compiled]
    write(package / "src/Makevars", MAKEVARS.format(
        defines=" ".join(defines), includes=" ".join(includes), objects=" ".join(objects)))


def version_of(project):
    return (project / "VERSION").read_text().strip()


def set_version(project, package):
    path = package / "DESCRIPTION"
    path.write_text(re.sub(r"^Version: .*$", f"Version: {version_of(project)}", path.read_text(), flags=re.M))


def check_paths(package):
    for path in package.rglob("*"):
        length = len(str(path.relative_to(package.parent)))
        if length > LONGEST_PATH:
            raise SystemExit(f"this path has {length} characters: {path}")


def assemble(project, package, include):
    shutil.rmtree(package, ignore_errors=True)
    shutil.copytree(project / "r", package, ignore=shutil.ignore_patterns("*.o", "*.so"))
    set_version(project, package)
    sources = sources_of(project)
    copy_library(project, package, sources)
    copy_others(package, include, sources)
    write_makevars(package, compile_together(package, sources))
    check_paths(package)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("source", type=Path)
    parser.add_argument("build", type=Path)
    parser.add_argument("--include", type=Path, required=True, help="the folder that tools/third_party.sh made")
    parser.add_argument("--no-vignettes", action="store_true")
    parser.add_argument("--assemble-only", action="store_true")
    given = parser.parse_args()
    package = given.build.resolve() / "kelpower"
    assemble(given.source.resolve(), package, given.include.resolve())
    if given.assemble_only:
        return
    for old in package.parent.glob("kelpower_*.tar.gz"):
        old.unlink()
    options = ["--no-build-vignettes"] if given.no_vignettes else []
    subprocess.run(["R", "CMD", "build", *options, package.name], cwd=package.parent, check=True)


if __name__ == "__main__":
    main()
