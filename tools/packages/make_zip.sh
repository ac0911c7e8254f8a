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
date=$(TZ=UTC date -d "@$SOURCE_DATE_EPOCH" '+%Y-%m-%d %H:%M:%S UTC')
(cd "$build/packages" && find "$name" -type f | LC_ALL=C sort >files &&
  TZ=UTC cmake -E tar cf "$name.zip" --format=zip --mtime="$date" --files-from=files && rm files)
rm -rf "$folder"
ls "$build/packages"
