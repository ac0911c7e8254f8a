#!/bin/sh
# Makes a Debian system in the folder SYSTEM, of the release of this machine and from where its apt takes packages, with
# these PACKAGES. It is kept as the file ARCHIVE for the next time. Usage: bare_system.sh ARCHIVE SYSTEM PACKAGE...
set -eu
archive=$1 system=$2
shift 2

# The places of this machine's apt, as lines of a sources.list.
sources() {
  # shellcheck disable=SC2016 # apt fills these in
  apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' | sort -u
}

rm -rf "$system"
mkdir -p "$system"
if [ ! -f "$archive" ]; then
  release=$(. /etc/os-release && echo "$VERSION_CODENAME")
  # shellcheck disable=SC2016
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' "Codename: $release" | head -n 1)
  [ -n "$mirror" ] || { echo "$0: apt of this machine names no place of Debian $release" >&2; exit 1; }
  debootstrap --variant=minbase "$release" "$system" "$mirror" >"$archive.log" 2>&1 || { tail -n 20 "$archive.log"; exit 1; }
  rm -rf "$system/etc/apt/sources.list.d"/* # its own list has all
  sources | sed "s/^deb /deb [signed-by=\/usr\/share\/keyrings\/debian-archive-keyring.gpg] /" >"$system/etc/apt/sources.list"
  apt-config dump | grep -E '^Acquire::(http|https|Check|Retries|ForceIPv4)' >"$system/etc/apt/apt.conf.d/90machine" || true
  if [ -f /etc/ssl/certs/ca-certificates.crt ]; then
    mkdir -p "$system/etc/ssl/certs"
    cp /etc/ssl/certs/ca-certificates.crt "$system/etc/ssl/certs"
  fi
  chroot "$system" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 sh -c \
    'apt-get update -qq && apt-get install -y -qq --no-install-recommends "$@"' sh "$@" >>"$archive.log" 2>&1 ||
    { tail -n 20 "$archive.log"; exit 1; }
  tar -C "$system" -cf "$archive.new" .
  mv "$archive.new" "$archive"
else
  tar -C "$system" -xpf "$archive"
fi
cp /etc/resolv.conf /etc/hosts "$system/etc"
