#!/bin/sh
# Runs the tests for Windows under Wine, where that starts.
# Usage: test_windows.sh BUILD_DIRECTORY JOBS
set -eu
build=$1 jobs=$2

# The first start makes the folder that stands for a Windows machine.
export WINEDEBUG=-all WINEPREFIX="$PWD/$build/wine" WINEDLLOVERRIDES=mscoree,mshtml=
if ! timeout 300 wine cmd /c exit >"$build/wine.log" 2>&1; then
  cat "$build/wine.log"
  echo "NOTE: Wine does not start on this machine. What is for Windows was compiled; its tests were NOT run."
  exit 0
fi
ctest --preset windows -j "$jobs"
