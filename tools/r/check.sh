#!/bin/sh
# Checks the tarball of the R package as CRAN does, in an empty library beside R's own, and runs there the R code of the
# pages.
# Usage: check.sh SOURCE FOLDER (the project, and the folder with the tarball)
set -eu
source=$(cd "$1" && pwd)
cd "$2"
export R_LIBS="" R_LIBS_USER="$PWD/none"
# The tests that CRAN does without are run too: the looks of answers, and an interrupt.
export NOT_CRAN=true
# The net is not asked: for other packages of the name, and for the time.
export _R_CHECK_CRAN_INCOMING_REMOTE_=false _R_CHECK_SYSTEM_CLOCK_=false

tarball=$(ls kelpower_*.tar.gz)
size=$(wc -c <"$tarball")
if [ "$size" -gt 1000000 ]; then
  echo "$tarball has $size bytes, more than a million" >&2
  exit 1
fi

echo "Checking $tarball ($size bytes) with R CMD check --as-cran ..."
rm -rf check
mkdir check
R CMD check --as-cran --no-manual --output=check "$tarball" >check.log 2>&1 || {
  cat check.log >&2
  exit 1
}
library=$PWD/check/kelpower.Rcheck # which holds nothing but the package
python3 -B "$source/tools/r/judge_check.py" "$library/00check.log"
python3 -B "$source/tools/r/check_symbols.py" "$library/kelpower/libs/kelpower.so"
# shellcheck disable=SC2046 # names of pages have no spaces
R_LIBS=$library Rscript --vanilla "$source/tools/r/pages.R" check $(grep -l '^```r$' "$source/README.md" "$source"/docs/*.md)
