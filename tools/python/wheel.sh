#!/bin/sh
# Builds the wheel and the sdist of the Python package under a folder, checks them, and runs the tests of each, installed
# in a virtual environment of its own. The sdist is installed without an index and uses no header of this machine's
# packages but those of the C and C++ libraries, of Python and of NumPy.
set -eu
[ $# -eq 1 ] || { echo "usage: $0 FOLDER" >&2; exit 2; }
here=$(cd "$(dirname "$0")/../.." && pwd)
mkdir -p "$1"
folder=$(cd "$1" && pwd)
cd "$here"

say() { echo "== $*"; }

# environment NAME REQUIREMENTS: a virtual environment with what a file names, made anew when that has changed.
environment() {
  if ! cmp -s "$2" "$folder/$1/requirements.txt"; then
    say "installing the packages of $2 into $folder/$1"
    rm -rf "${folder:?}/$1"
    python3 -m venv "$folder/$1"
    "$folder/$1/bin/pip" install --quiet --requirement "$2"
    cp "$2" "$folder/$1/requirements.txt"
  fi
}

# run_tests ENVIRONMENT PACKAGE: the tests, away from the sources, on a package that is installed without an index.
run_tests() {
  "$folder/$1/bin/pip" install --quiet --no-index --no-deps --no-build-isolation --force-reinstall "$2"
  (cd "$folder" && "$folder/$1/bin/python" -B -m pytest -q -p no:cacheprovider -c "$here/pyproject.toml" --rootdir "$here" \
    -W error "$here/python/tests" --doctest-modules --pyargs kelpower ${3:-})
}

environment tools tools/python/requirements-build.txt
environment venv python/tests/requirements.txt

say "building the wheel"
rm -rf "$folder/dist" "$folder/sdist"
"$folder/tools/bin/pip" wheel --quiet --no-deps --no-build-isolation --wheel-dir "$folder/dist" .
wheel=$(ls "$folder"/dist/*.whl)
"$folder/tools/bin/auditwheel" show "$wheel"
"$folder/tools/bin/abi3audit" --strict "$wheel"

say "checking types and style"
"$folder/venv/bin/pip" install --quiet --no-index --no-deps --force-reinstall "$wheel"
"$folder/venv/bin/ruff" check .
"$folder/venv/bin/mypy" --cache-dir "$folder/mypy"
(cd "$folder" && "$folder/venv/bin/python" -m mypy.stubtest kelpower --mypy-config-file "$here/pyproject.toml" \
  --allowlist "$here/tools/python/stubtest.txt")

say "testing the wheel"
run_tests venv "$wheel"

say "testing the sdist"
rm -rf "$folder/source"
mkdir -p "$folder/source"
git ls-files -z pyproject.toml CMakeLists.txt VERSION LICENSE README.md cmake kelcommon src include planner capi python \
  tools/third_party.sh | xargs -0 cp --parents -t "$folder/source"
sh tools/third_party.sh "$folder/source/third_party"
"$folder/tools/bin/python" -m build --no-isolation --sdist --outdir "$folder/sdist" "$folder/source" >"$folder/sdist.log" \
  || { cat "$folder/sdist.log"; exit 1; }
"$folder/tools/bin/pip" wheel --quiet --no-index --no-deps --no-build-isolation --wheel-dir "$folder/sdist" \
  --config-settings build-dir="$folder/sdist-build" "$folder"/sdist/*.tar.gz
if ninja -C "$folder/sdist-build" -t deps | grep -E '/usr/include/(fmt|nlohmann|fast_float)/'; then
  echo "The sdist uses headers of this machine's packages." >&2
  exit 1
fi
run_tests venv "$(ls "$folder"/sdist/*.whl)" "-m not long"
