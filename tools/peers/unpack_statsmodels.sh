#!/bin/sh
# Unpacks Debian's statsmodels into a folder, from where it is used through PYTHONPATH and LD_LIBRARY_PATH. To install it
# would pull in Boost and much else that nothing here needs.
# Usage: unpack_statsmodels.sh FOLDER
set -eu
folder=$1
packages="python3-statsmodels python3-statsmodels-lib python3-scipy python3-numpy python3-pandas python3-pandas-lib
          python3-patsy python3-packaging python3-dateutil python3-tz python3-six python3-decorator liblbfgsb0"

[ ! -d "$folder" ] || exit 0
downloads=$folder.downloads
rm -rf "$downloads" "$folder.part"
mkdir -p "$downloads"
echo "Unpacking Debian's statsmodels into $folder"
# shellcheck disable=SC2086 # a list of names
(cd "$downloads" && apt-get download -qq -o APT::Sandbox::User=root $packages)
for package in "$downloads"/*.deb; do dpkg -x "$package" "$folder.part"; done
rm -rf "$downloads"
mv "$folder.part" "$folder"
