#!/bin/sh
# Makes the zip file for Windows in BUILD/packages: the program, the libraries with what is needed to link them, the
# headers, and what to read first. Usage: make_zip.sh BUILD JOBS
set -eu
build=$1 jobs=$2
. tools/packages/source_date.sh
name=kelpower-$(cat VERSION)-windows-x64
folder=$build/packages/$name

cmake --preset windows -Wno-dev --log-level=WARNING
cmake --build "$build" -j "$jobs" --target kelpower_cli kelpower kelplan kelcommon
rm -rf "$build/packages"
cmake --install "$build" --prefix "$folder" --strip >"$build/install.log" || { cat "$build/install.log"; exit 1; }
cp packaging/windows/README.txt "$folder/README.txt"
cp LICENSE "$folder/LICENSE.txt"
cp packaging/debian/copyright "$folder/LICENSES.txt"
python3 -B tools/packages/zip_folder.py "$folder" "$build/packages/$name.zip" "$SOURCE_DATE_EPOCH"
rm -rf "$folder"
ls "$build/packages"
