#!/bin/sh
# Builds the distribution library of an earlier commit, from its own sources, as a release is built.
# Usage: build_before.sh COMMIT FOLDER (its sources go into FOLDER/tree, the library into FOLDER/build/kelcommon)
set -eu
commit=$(git rev-parse --verify --quiet "$1^{commit}") || { echo "$0: no commit '$1'" >&2; exit 2; }
folder=$2

if [ "$(cat "$folder/commit" 2>/dev/null)" != "$commit" ]; then
  rm -rf "$folder"
  mkdir -p "$folder/tree"
  git archive "$commit" | tar -x -C "$folder/tree"
fi
cmake -G Ninja -S "$folder/tree" -B "$folder/build" -Wno-dev --log-level=WARNING -DCMAKE_BUILD_TYPE=Release \
  -DKELPOWER_BUILD_CLI=OFF -DKELPOWER_BUILD_TESTS=OFF
cmake --build "$folder/build" --target kelcommon
echo "$commit" > "$folder/commit"
