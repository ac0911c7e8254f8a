#!/bin/sh
# Unpacks the zip file for Windows and uses it under Wine, where that starts. Usage: test_zip.sh BUILD
set -eu
build=$1
version=$(cat VERSION)
zip=$PWD/$build/packages/kelpower-$version-windows-x64.zip
place=$PWD/$build/unpacked
fail() { echo "$*" >&2; exit 1; }

rm -rf "$place"
mkdir -p "$place"
(cd "$place" && cmake -E tar xf "$zip")
folder=$place/kelpower-$version-windows-x64
for file in README.txt LICENSE.txt LICENSES.txt bin/kelpower.exe bin/libkelplan.dll bin/libkelpower.dll bin/libkelcommon.dll \
  lib/libkelplan.dll.a lib/libkelpower.dll.a lib/libkelcommon.dll.a include/kelplan.h include/kelpower.h; do
  [ -f "$folder/$file" ] || fail "$file is missing"
done
[ "$(tr -cd '\r' <"$folder/README.txt" | wc -c)" = "$(wc -l <"$folder/README.txt")" ] ||
  fail "the lines of README.txt do not end as those of Windows do"
# Nothing but Windows is asked for.
for file in "$folder"/bin/*; do
  x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: //p' | grep -vixE 'kernel32.dll|msvcrt.dll|libkelcommon.dll' |
    while read -r other; do fail "$file asks for $other"; done
done

if x86_64-w64-mingw32-objdump -p "$folder/bin/kelpower.exe" | grep -q libkelcommon; then fail "the program does not stand alone"; fi

# The header and the import library serve a program, which finds the libraries beside it.
x86_64-w64-mingw32-gcc-posix -std=c99 -Wall -Wextra -Werror -I "$folder/include" tests/install/c_consumer/consumer.c \
  -L "$folder/lib" -lkelplan -o "$folder/bin/consumer.exe"

export WINEDEBUG=-all WINEPREFIX="$PWD/$build/wine" WINEDLLOVERRIDES=mscoree,mshtml=
if ! timeout 300 wine cmd /c exit >"$build/wine.log" 2>&1; then
  cat "$build/wine.log"
  echo "NOTE: Wine does not start on this machine. The zip file was unpacked and linked with; its program was NOT run."
  exit 0
fi
[ "$(wine "$folder/bin/kelpower.exe" --version)" = "kelpower $version" ] || fail "the program has another version"
wine "$folder/bin/kelpower.exe" anova --means 10,12,15 --sd 6 --power 0.9 | diff tests/cli/answer.out - ||
  fail "the answer is not as expected"
wine "$folder/bin/consumer.exe" | tr -d '\r' | diff tests/install/c_consumer/consumer.out - ||
  fail "the output of the C program is not as expected"
rm -rf "$place"
echo "The zip file works."
