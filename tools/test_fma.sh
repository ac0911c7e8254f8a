#!/bin/sh
# Runs the tests of the distributions and the reference cases with products and sums fused, where the processor can.
# Usage: test_fma.sh BUILD_DIRECTORY JOBS
set -eu
build=$1 jobs=$2

if ! grep -qw fma /proc/cpuinfo; then
  echo "NOTE: this processor has no fused multiply-add. Its tests were NOT run."
  exit 0
fi
cmake --build "$build" -j "$jobs" --target tests_kelcommon tests_vectors
ctest --test-dir "$build" --output-on-failure -j "$jobs" -L '^(kelcommon|vectors)$'
