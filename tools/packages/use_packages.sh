#!/bin/sh
# Inside a bare system: installs the packages of /packages, uses each, and removes them. Usage: use_packages.sh VERSION
set -eu
version=$1
export DEBIAN_FRONTEND=noninteractive
cd /packages

add() { apt-get install -y -qq --no-install-recommends "$@" >/dev/null 2>/test/apt.log || { cat /test/apt.log; exit 1; }; }
fail() { echo "$*" >&2; exit 1; }
# matches WHAT FILE: the standard input is the file.
matches() { diff "$2" - || fail "$1 is not as expected"; }

apt-get update -qq

echo "the program"
add ./kelpower_*.deb
[ "$(kelpower --version)" = "kelpower $version" ] || fail "the program has another version"
kelpower anova --means 10,12,15 --sd 6 --power 0.9 | matches "the answer" /test/answer.out
for page in kelpower kelpower-two-means kelpower-run; do
  man --warnings -P cat "$page" >/test/page 2>/test/warnings || fail "there is no manual page $page"
  grep -q '^EXIT STATUS' /test/page || fail "the manual page $page lacks its exit status"
  [ ! -s /test/warnings ] || fail "$(cat /test/warnings)"
done
whatis kelpower-anova | grep -q 'One-way analysis of variance' || fail "whatis does not know kelpower-anova"
for script in bash-completion/completions/kelpower zsh/vendor-completions/_kelpower \
  fish/vendor_completions.d/kelpower.fish; do
  [ -f "/usr/share/$script" ] || fail "$script is missing"
done

echo "the libraries"
add ./libkelcommon0_*.deb ./libkelpower0_*.deb ./libkelplan0_*.deb ./libkelpower-dev_*.deb
cd /test
# shellcheck disable=SC2046 # lists of options
g++ -std=c++17 -Wall -Wextra -Werror consumer.cpp $(pkg-config --cflags --libs kelpower) -o consumer
./consumer | matches "the output of the C++ program" /test/cxx.out
# shellcheck disable=SC2046
gcc -std=c99 -Wall -Wextra -Werror -pedantic consumer.c $(pkg-config --cflags --libs kelplan) -o c_consumer
./c_consumer | matches "the output of the C program" /test/c.out

echo "the Python module"
cd /packages
add ./python3-kelpower_*.deb
cd /
python3 -W error - "$version" <<'PYTHON'
import importlib.metadata
import sys

import kelpower

assert kelpower.__version__ == importlib.metadata.version("kelpower") == sys.argv[1]
assert kelpower.two_means(effect_d=0.5, power=0.8).n == (64, 64)
assert kelpower.two_means(effect_d=[0.2, 0.8], power=0.9).total.tolist() == [1054, 68]
assert kelpower.__file__.startswith("/usr/lib/python3/dist-packages/")
PYTHON

echo "removing all of it"
names=$(dpkg-query -W -f '${Package}\n' '*kel*' | grep -E '^(kelpower|libkel|python3-kelpower)')
# shellcheck disable=SC2086 # a list of names
files=$(dpkg-query -L $names | sort -u)
# shellcheck disable=SC2086
apt-get purge -y -qq $names >/dev/null 2>&1
for file in $files; do
  if [ -d "$file" ] && [ ! -L "$file" ]; then continue; fi
  [ ! -e "$file" ] || fail "$file is left"
done
# man and the log keep what they have shown and noted.
left=$(find / -xdev \( -path /packages -o -path /test -o -path /proc -o -path /sys -o -path /var/log -o -path /var/cache/man \) \
  -prune -o \
  \( -name '*kelp*' -o -name '*kelcommon*' \) -print)
[ -z "$left" ] || fail "these are left: $left"
