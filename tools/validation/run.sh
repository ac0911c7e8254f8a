#!/bin/sh
# Validates all designs in as many processes as there are processors, and writes the page.
# Usage: run.sh BUILD PROCESSES PAGE
set -eu
[ $# -eq 3 ] || { echo "usage: $0 BUILD PROCESSES PAGE" >&2; exit 2; }
build=$1
processes=$2
rows=$build/validation-rows
rm -rf "$rows"
mkdir -p "$rows"

part=0
started=
while [ $part -lt "$processes" ]; do
  "$build/tests/validation/kelpower_validation" tests/validation/designs.jsonl --part "$part/$processes" \
    >"$rows/$part.jsonl" &
  started="$started $!"
  part=$((part + 1))
done
failed=0
for process in $started; do
  wait "$process" || failed=1
done
[ $failed -eq 0 ] || { echo "some designs were not validated" >&2; exit 1; }

# What is far off by chance is not when it is drawn again.
library=$build/capi/libkelplan.so
python3 -B tools/validation/page.py doubtful "$library" "$rows"/*.jsonl >"$rows/doubtful.designs"
if [ -s "$rows/doubtful.designs" ]; then
  "$build/tests/validation/kelpower_validation" "$rows/doubtful.designs" --seed 1 --studies 4000000 \
    >"$rows/again.jsonl"
fi
python3 -B tools/validation/page.py write "$library" "$3" "$rows"/*.jsonl
echo "$3 is written."
