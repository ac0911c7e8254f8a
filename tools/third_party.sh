#!/bin/sh
# Copies the headers of other projects that the core is made with into a folder, with their licences: fmt, nlohmann_json
# and fast_float. They are those of Debian's packages, installed ones or else downloaded, for which no rights are needed.
# Packages of our own that must build where none of them is hold this folder.
set -eu
[ $# -eq 1 ] || { echo "usage: $0 FOLDER" >&2; exit 2; }
folder=$1
downloads=$(mktemp -d)
trap 'rm -rf "$downloads"' EXIT

# copy PACKAGE HEADERS: the folder of headers of a package.
copy() {
  root=""
  if [ ! -e "/usr/include/$2" ]; then
    command -v apt-get >/dev/null || { echo "$0: the headers $2 are missing, and there is no apt-get to fetch $1" >&2; exit 1; }
    echo "Downloading the headers of $1"
    (cd "$downloads" && apt-get download -qq "$1" >/dev/null)
    dpkg-deb -x "$downloads/$1"_*.deb "$downloads/root"
    root=$downloads/root
  fi
  mkdir -p "$folder/$2"
  cp -R "$root/usr/include/$2/." "$folder/$2"
  cp "$root/usr/share/doc/$1/copyright" "$folder/$2/copyright"
}

copy libfmt-dev fmt
copy nlohmann-json3-dev nlohmann
copy libfast-float-dev fast_float
