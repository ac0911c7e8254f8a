#!/bin/sh
# Builds the sdist of the Python package and its wheel under a folder, checks them, and runs the tests on the wheel. The
# wheel is made of the sdist alone: without an index, and without a header of this machine's packages but those of the C
# and C++ libraries, of Python and of NumPy.
set -eu
[ $# -eq 1 ] || { echo "usage: $0 FOLDER" >&2; exit 2; }
here=$(cd "$(dirname "$0")/../.." && pwd)
mkdir -p "$1"
folder=$(cd "$1" && pwd)
cd "$here"

say() { echo "== $*"; }

# environment NAME REQUIREMENTS: a virtual environment with what a file names, made anew when that has changed.
environment() {
  cmp -s "$2" "$folder/$1/requirements.txt" && return
  say "installing the packages that $2 names into $folder/$1"
  rm -rf "${folder:?}/$1"
  python3 -m venv "$folder/$1"
  "$folder/$1/bin/pip" install --quiet --requirement "$2"
  cp "$2" "$folder/$1/requirements.txt"
}

environment tools tools/python/requirements.txt
environment venv python/tests/requirements.txt

say "making the sdist"
rm -rf "$folder/source" "$folder/dist"
mkdir -p "$folder/source"
sh tools/sources.sh pyproject.toml CMakeLists.txt VERSION LICENSE README.md cmake kelcommon src include planner capi python \
  tools/third_party.sh | xargs -0 cp --parents -t "$folder/source"
sh tools/third_party.sh "$folder/source/third_party"
"$folder/tools/bin/python" -m build --no-isolation --sdist --outdir "$folder/dist" "$folder/source" >"$folder/sdist.log" ||
  { cat "$folder/sdist.log"; exit 1; }

say "making the wheel of the sdist"
rm -rf "$folder/unpacked" "$folder/build"
mkdir "$folder/unpacked"
tar -xf "$folder"/dist/*.tar.gz -C "$folder/unpacked" --strip-components=1
"$folder/tools/bin/pip" wheel --quiet --no-index --no-deps --no-build-isolation --wheel-dir "$folder/dist" \
  --config-settings build-dir="$folder/build" "$folder/unpacked"
if "$folder/tools/bin/ninja" -C "$folder/build" -t deps | grep -E '/usr/include/(fmt|nlohmann|fast_float)/'; then
  echo "The sdist uses headers of this machine's packages." >&2
  exit 1
fi
# Named after the oldest C library that it works with, so that pip refuses it where that is older.
made=$(ls "$folder"/dist/*.whl)
PATH="$folder/tools/bin:$PATH" auditwheel repair --only-plat --wheel-dir "$folder/dist" "$made"
rm "$made"
wheel=$(ls "$folder"/dist/*.whl)
"$folder/tools/bin/abi3audit" --strict "$wheel"

say "checking types and style"
"$folder/venv/bin/pip" install --quiet --no-index --no-deps --force-reinstall "$wheel"
"$folder/venv/bin/ruff" check .
"$folder/venv/bin/mypy" --cache-dir "$folder/mypy"
(cd "$folder" && "$folder/venv/bin/python" -m mypy.stubtest kelpower --mypy-config-file "$here/pyproject.toml" \
  --allowlist "$here/tools/python/stubtest.txt")

say "testing the wheel"
cd "$folder"
"$folder/venv/bin/python" -B -m pytest -q -p no:cacheprovider -c "$here/pyproject.toml" --rootdir "$here" -W error \
  "$here/python/tests" --doctest-modules --pyargs kelpower
