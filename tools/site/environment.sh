#!/bin/sh
# A virtual environment with what requirements.txt names, made anew when that has changed.
# Usage: environment.sh FOLDER
set -eu
requirements=$(dirname "$0")/requirements.txt
cmp -s "$requirements" "$1/requirements.txt" && exit
echo "installing the packages that $requirements names into $1"
rm -rf "$1"
python3 -m venv "$1"
"$1/bin/pip" install --quiet --disable-pip-version-check --requirement "$requirements"
cp "$requirements" "$1/requirements.txt"
