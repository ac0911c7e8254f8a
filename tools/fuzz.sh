#!/bin/sh
# Fuzzes one library for a number of seconds and prints what it did; on a finding, all that is known of it.
# New inputs are kept under the build directory, and so is an input with a finding.
# Usage: fuzz.sh BUILD_DIRECTORY LIBRARY SECONDS LONGEST_INPUT [SEED]
set -eu
build=$1 library=$2 seconds=$3 longest=$4 seed=${5:-0}
log=$build/$library.log

mkdir -p "$build/corpus/$library"
status=0
"$build/fuzz/fuzz_$library" -max_total_time="$seconds" -max_len="$longest" -seed="$seed" -print_final_stats=1 \
  -artifact_prefix="$build/$library-" "$build/corpus/$library" "fuzz/corpus/$library" >"$log" 2>&1 || status=$?
if [ "$status" -eq 0 ]; then
  echo "fuzz_$library: $(sed -n 's/^Done //p' "$log"), no finding"
else
  sed '/^#[0-9]/d; /Recommended dictionary/,/End of recommended dictionary/d' "$log"
  echo "fuzz_$library: exit status $status" >&2
fi
exit "$status"
