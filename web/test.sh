#!/bin/sh
# Runs the tests of the package, of the page's parts and of the page in a browser. KELPLAN_LIBRARY is the native library
# whose replies those of the package are compared with.
set -eu
cd "$(dirname "$0")"
sh install.sh
npx --no-install vitest run "$@"
