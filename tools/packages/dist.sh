#!/bin/sh
# Collects what has been built for others into FOLDER, with a list of checksums. Usage: dist.sh FOLDER
set -eu
folder=$1
. tools/packages/source_date.sh
version=$(cat VERSION)

rm -rf "$folder"
mkdir -p "$folder"
cp build/debian/packages/*.deb build/windows/packages/*.zip "$folder"
cp build/python-package/dist/kelpower-"$version"* "$folder"
cp build/r/kelpower_"$version".tar.gz "$folder"
cp build/web/kelpower.html "$folder"
npm pack --silent --pack-destination "$folder" ./web/core >/dev/null
mv "$folder/kelpower-$version.tgz" "$folder/kelpower-npm-$version.tgz"
(cd "$folder" && sha256sum -- *.* >SHA256SUMS && sha256sum --check --quiet SHA256SUMS)
cat "$folder/SHA256SUMS"
