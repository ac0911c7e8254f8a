#!/bin/sh
# Looks for leaks and stray reads and writes: runs reference cases of functions that hand out or fill arrays, which are
# the charts and the sizes of groups, under valgrind.
# Usage: valgrind.sh BUILD_DIRECTORY
set -eu
build=$1
program=$build/tests/engine/kelpower_vectors

cases=$(mktemp)
log=$(mktemp)
trap 'rm -f "$cases" "$log"' EXIT

# A few cases of every kind and function, because valgrind is about forty times slower than the processor.
python3 - tests/vectors/*.jsonl >"$cases" <<'EOF'
import json, sys
CASES_A_KIND = 2
seen = {}
for path in sys.argv[1:]:
    for line in open(path):
        case = json.loads(line)
        if not isinstance(case["ret"], dict) and "out" not in case:
            continue
        key = case["fn"], case["kind"]
        seen[key] = seen.get(key, 0) + 1
        if seen[key] <= CASES_A_KIND:
            sys.stdout.write(line)
EOF

status=0
valgrind --quiet --error-exitcode=9 --leak-check=full --show-leak-kinds=definite,indirect,possible \
  --errors-for-leak-kinds=definite,indirect,possible "$program" --exported "$cases" >"$log" 2>&1 || status=$?
# Extended precision is computed in doubles under valgrind, so that results may differ: only its own findings count.
if [ "$status" -eq 9 ] || ! grep -q ' cases, ' "$log"; then
  cat "$log"
  echo "valgrind: errors" >&2
  exit 1
fi
echo "valgrind: no errors and no leaks in $(tail -n 1 "$log")"
