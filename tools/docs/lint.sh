#!/bin/sh
# Checks the spelling of the documentation and runs its code, with the packages of Python and R where they are built.
# Usage: lint.sh PROGRAM
set -eu
[ $# -eq 1 ] || { echo "usage: $0 PROGRAM" >&2; exit 2; }
cd "$(dirname "$0")/../.."

sh tools/site/environment.sh build/site-work/venv
# Names with capitals within them are words of code.
git ls-files '*.md' include capi/kelplan.h planner/catalogue python/kelpower r/R r/vignettes web/page/src |
  grep -vE '\.(png|svg)$' |
  xargs build/site-work/venv/bin/codespell --ignore-words tools/docs/words.txt --ignore-regex '\b\w+[A-Z]\w*\b'
echo "spelling: clean"

set -- --program "$1"
python=build/python-package/venv/bin/python
library=build/r/check/kelpower.Rcheck
[ ! -x $python ] || set -- "$@" --python $python
[ ! -d $library/kelpower ] || set -- "$@" --r-library $library
python3 -B tools/docs/run_blocks.py "$@"
# The pages of the tests, where the site was built.
[ ! -d build/site-work/source/tests ] || python3 -B tools/docs/run_blocks.py "$@" build/site-work/source/tests/*.md
