#!/bin/sh
# Makes the Debian packages in BUILD/packages. Usage: make_deb.sh BUILD JOBS
set -eu
build=$1 jobs=$2
. tools/packages/source_date.sh

cmake --preset debian -Wno-dev --log-level=WARNING
rm -f "$build/man/written" # The pages have the date of the source.
cmake --build "$build" -j "$jobs"
rm -rf "$build/packages"
cpack --config "$build/CPackConfig.cmake" -B "$build/packages" >"$build/cpack.log" 2>&1 || { cat "$build/cpack.log"; exit 1; }
rm -rf "$build/packages/_CPack_Packages"

# CPack adds scripts that write the loader's list of libraries, which the triggers of the packages do. Packed anew, all
# files have one date.
for package in "$build"/packages/*.deb; do
  rm -rf "$build/unpacked"
  dpkg-deb -R "$package" "$build/unpacked"
  for script in "$build/unpacked/DEBIAN/postinst" "$build/unpacked/DEBIAN/postrm"; do
    if grep -qs ldconfig "$script"; then rm "$script"; fi
  done
  find "$build/unpacked" -print0 | xargs -0 touch -h -d "@$SOURCE_DATE_EPOCH"
  dpkg-deb --root-owner-group -Zxz -b "$build/unpacked" "$package" >/dev/null
done
rm -rf "$build/unpacked"
ls "$build/packages"
