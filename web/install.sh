#!/bin/sh
# Installs the packages that package-lock.json names, unless they are there already.
set -eu
cd "$(dirname "$0")"
mark=node_modules/.installed
if [ ! -f "$mark" ] || ! cmp -s package-lock.json "$mark"; then
  echo "Installing the packages of web/package-lock.json"
  npm ci --no-audit --no-fund --loglevel=error
  cp package-lock.json "$mark"
fi
