#!/bin/sh
# Prints the files of the project below the named files and folders, each ended by a NUL: those that git tracks, or in a
# copy without git all that are there, but for what Python compiled. Usage: sources.sh PATH...
set -eu
if git rev-parse --git-dir >/dev/null 2>&1; then
  git ls-files -z "$@"
else
  find "$@" -type f -not -path '*/__pycache__/*' -print0 | LC_ALL=C sort -z
fi
