#!/bin/sh
# Installs the Debian packages of the named groups that are missing: build, clang, arm64, wasm, windows, lint, fuzz,
# valgrind, python, r, site, web, peers, before, shells, deb.
# Says what it does, and is silent and quick when nothing is missing.
set -eu

packages=""
for group in "$@"; do
  case $group in
    build) packages="$packages g++ cmake ninja-build pkg-config python3 python3-jsonschema libfast-float-dev libcli11-dev libfmt-dev
                     nlohmann-json3-dev libgtest-dev libgmock-dev libbenchmark-dev gnuplot-nox" ;;
    clang) packages="$packages clang" ;;
    arm64) packages="$packages g++-aarch64-linux-gnu qemu-user googletest" ;;
    wasm) packages="$packages emscripten googletest" ;;
    windows) packages="$packages g++-mingw-w64-x86-64-posix wine wine64 googletest" ;;
    lint) packages="$packages clang-format clang-tidy" ;;
    fuzz) packages="$packages clang libclang-rt-14-dev" ;;
    r) packages="$packages python3 g++ ccache qpdf r-base-dev r-cran-testthat r-cran-knitr r-cran-rmarkdown r-cran-ggplot2 r-cran-generics pandoc" ;;
    site) packages="$packages python3 python3-venv gnuplot-nox" ;;
    valgrind) packages="$packages valgrind" ;;
    before) packages="$packages libboost1.81-dev" ;;
    python) packages="$packages g++ python3 python3-dev python3-venv default-jre-headless" ;;
    web) packages="$packages chromium-headless-shell fonts-dejavu-core"
         command -v npm >/dev/null || packages="$packages npm" ;; # Other builds of Node bring it along.
    peers) packages="$packages r-base-core r-cran-pwr python3-venv" ;;
    shells) packages="$packages mandoc groff zsh fish" ;;
    deb) packages="$packages python3-dev python3-numpy dpkg-dev gzip lintian debootstrap man-db" ;;
    *) echo "$0: unknown group '$group'" >&2; exit 2 ;;
  esac
done

missing=""
for package in $packages; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

asRoot=""
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "These packages are missing and need root to install:$missing" >&2; exit 1; }
  asRoot=sudo
fi
echo "Installing missing Debian packages:$missing"
export DEBIAN_FRONTEND=noninteractive
$asRoot apt-get update -qq
# shellcheck disable=SC2086 # a list of names
$asRoot apt-get install -y -qq --no-install-recommends $missing >/dev/null
