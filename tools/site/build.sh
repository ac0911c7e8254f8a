#!/bin/sh
# Builds the site of the documentation in build/site, offline but for the packages of its first run. The planner page is
# copied into it where it is built.
# Usage: build.sh PROGRAM LIBRARY
set -eu
[ $# -eq 2 ] || { echo "usage: $0 PROGRAM LIBRARY" >&2; exit 2; }
cd "$(dirname "$0")/../.."
work=build/site-work

sh tools/site/environment.sh $work/venv
$work/venv/bin/python -B tools/site/build.py "$1" "$2" . $work build/site build/web/kelpower.html
echo "The site: build/site/index.html"
