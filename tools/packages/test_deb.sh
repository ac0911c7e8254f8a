#!/bin/sh
# Checks the Debian packages in BUILD/packages with lintian, and installs, uses and removes them in a system that has
# nothing else. Needs root, for the system of its own, which is kept for the next time. Usage: test_deb.sh BUILD
set -eu
build=$1
version=$(cat VERSION)
here=tools/packages

asRoot=""
if [ "$(id -u)" -ne 0 ]; then
  asRoot=sudo
  command -v sudo >/dev/null || { echo "$0 needs root" >&2; exit 1; }
fi

echo "== lintian"
lintian --fail-on error,warning --allow-root "$build"/packages/*.deb

echo "== a system with nothing but a compiler and man"
system=$PWD/$build/system
$asRoot sh "$here/bare_system.sh" "$build/base.tar" "$system" man-db g++ pkg-config

echo "== installing, using and removing the packages"
$asRoot mkdir "$system/packages" "$system/test"
$asRoot cp "$build"/packages/*.deb "$system/packages"
$asRoot cp tests/install/consumer/consumer.cpp tests/install/c_consumer/consumer.c tests/cli/answer.out "$here/use_packages.sh" "$system/test"
$asRoot cp tests/install/consumer/consumer.out "$system/test/cxx.out"
$asRoot cp tests/install/c_consumer/consumer.out "$system/test/c.out"
$asRoot chroot "$system" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 ${http_proxy:+http_proxy="$http_proxy"} \
  ${https_proxy:+https_proxy="$https_proxy"} sh /test/use_packages.sh "$version"
$asRoot rm -rf "$system"
echo "The packages install, work and go without a trace."
