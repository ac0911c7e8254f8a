"""Installs the build and uses it as a stranger would: from another folder, by CMake and by pkg-config, without Boost."""

import argparse
import json
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

CONSUMER = Path(__file__).resolve().parent / "consumer"
C_CONSUMER = CONSUMER.with_name("c_consumer")


def run(*command, **options):
    """The output of a command, which must succeed."""
    done = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)
    if done.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}\n{done.stdout}failed with status {done.returncode}")
    return done.stdout


def expect(what, actual, expected):
    if actual != expected:
        sys.exit(f"{what} is\n{actual}\nexpected\n{expected}")


def install(options):
    shutil.rmtree(options.prefix, ignore_errors=True)
    run(options.cmake, "--install", options.build, "--prefix", options.prefix)
    libraries = options.prefix / options.libdir
    for name in ("kelcommon", "kelpower") + (("kelplan",) if options.c_compiler else ()):
        real = f"lib{name}.so.{options.release}"
        expect(f"the link of {name} for linking", (libraries / f"lib{name}.so").resolve().name, real)
        expect(f"the link of {name} for loading", (libraries / f"lib{name}.so.{options.soversion}").resolve().name, real)


def check_that_nothing_names(words, prefix):
    """No text file of the installation names Boost, nor a folder of the build."""
    for path in sorted(prefix.rglob("*")):
        if not path.is_file() or path.suffix not in (".h", ".cmake", ".pc"):
            continue
        for word in words:
            if word.lower() in path.read_text().lower():
                sys.exit(f"{path} names {word}")


def check_included_files(options, folder, flags):
    """The consumer includes no file of Boost, also where Boost lies on the compiler's own path."""
    rule = run(options.compiler, "-std=c++17", "-M", *flags, "consumer.cpp", cwd=folder)
    boost = [path for path in rule.split() if "boost" in Path(path).parts]
    expect("the list of included files of Boost", boost, [])


def with_cmake(options, folder):
    run(options.cmake, "-S", folder, "-B", folder / "build", f"-DCMAKE_CXX_COMPILER={options.compiler}",
        f"-DCMAKE_CXX_FLAGS={options.flags}", f"-DCMAKE_PREFIX_PATH={options.prefix}", "-DCMAKE_BUILD_TYPE=Release")
    run(options.cmake, "--build", folder / "build")
    return folder / "build" / "consumer"


def with_pkg_config(options, folder):
    search = {**os.environ, "PKG_CONFIG_LIBDIR": str(options.prefix / options.libdir / "pkgconfig")}
    expect("the version of kelpower.pc", run(options.pkg_config, "--modversion", "kelpower", env=search).strip(),
           options.release)
    flags = run(options.pkg_config, "--cflags", "--libs", "kelpower", env=search).split()
    check_included_files(options, folder, flags)
    program = folder / "consumer_by_pkg_config"
    run(options.compiler, "-std=c++17", *options.flags.split(), "consumer.cpp", *flags,
        f"-Wl,-rpath,{options.prefix / options.libdir}", "-o", program, cwd=folder)
    return program


def in_c_with_cmake(options, folder):
    run(options.cmake, "-S", folder, "-B", folder / "build", f"-DCMAKE_C_COMPILER={options.c_compiler}",
        f"-DCMAKE_C_FLAGS={options.flags}", f"-DCMAKE_PREFIX_PATH={options.prefix}", "-DCMAKE_BUILD_TYPE=Release")
    run(options.cmake, "--build", folder / "build")
    return folder / "build" / "consumer"


def in_c_with_pkg_config(options, folder):
    search = {**os.environ, "PKG_CONFIG_LIBDIR": str(options.prefix / options.libdir / "pkgconfig")}
    flags = run(options.pkg_config, "--cflags", "--libs", "kelplan", env=search).split()
    libraries = options.prefix / options.libdir
    program = folder / "consumer_by_pkg_config"
    run(options.c_compiler, "-std=c99", "-Wall", "-Wextra", "-Werror", "-pedantic", *options.flags.split(), "consumer.c",
        *flags, f"-Wl,-rpath,{libraries}", f"-Wl,-rpath-link,{libraries}", "-o", program, cwd=folder)
    return program


def check_consumer(options, source, builds):
    """The consumer prints what it must, however it is built."""
    expected = (source / "consumer.out").read_text()
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary) / "consumer"
        shutil.copytree(source, folder)
        for build in builds:
            expect(f"the output of the consumer built {build.__name__}", run(build(options, folder)), expected)


def check_program(options):
    """The program answers wherever it is put, with no library of ours."""
    environment = {name: value for name, value in os.environ.items() if name != "LD_LIBRARY_PATH"}
    with tempfile.TemporaryDirectory() as folder:
        program = shutil.copy(options.prefix / "bin" / options.program, folder)
        run(program, "two-means", "--effect-d", "0.5", "--power", "0.8", env=environment)
        loaded = run("ldd", program, env=environment)
    if "libkel" in loaded:
        sys.exit(f"{options.program} needs libraries that it does not bring along:\n{loaded}")


def check_program_files(options):
    """Manual pages of the program and of each test, and completion for three shells."""
    program = options.prefix / "bin" / options.program
    tests = [test["name"] for test in json.loads(run(program, "list", "--format", "json"))]
    pages = {f"{options.program}-{name}.1" for name in (*tests, "run", "effect")} | {f"{options.program}.1"}
    share = options.prefix / "share"
    expect("the list of manual pages", sorted(page.name for page in (share / "man/man1").iterdir()), sorted(pages))
    for name in ("bash-completion/completions/kelpower", "zsh/site-functions/_kelpower",
                 "fish/vendor_completions.d/kelpower.fish"):
        if "--complete" not in (share / name).read_text():
            sys.exit(f"{share / name} does not ask the program")


def parse():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("cmake", "pkg-config", "compiler", "flags", "libdir", "soversion", "release"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--build", required=True, type=Path)
    parser.add_argument("--prefix", required=True, type=Path)
    parser.add_argument("--program")
    parser.add_argument("--c-compiler", help="builds the consumer of the C interface; without it there is none")
    return parser.parse_args()


def main():
    options = parse()
    install(options)
    check_that_nothing_names(("boost", str(options.build)), options.prefix)
    check_consumer(options, CONSUMER, (with_cmake, with_pkg_config))
    if options.c_compiler:
        check_consumer(options, C_CONSUMER, (in_c_with_cmake, in_c_with_pkg_config))
    if options.program:
        check_program(options)
        check_program_files(options)
    print("an installation can be used by CMake and by pkg-config")


if __name__ == "__main__":
    main()
