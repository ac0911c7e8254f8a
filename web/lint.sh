#!/bin/sh
# Checks the types and the format of all that is written in TypeScript.
set -eu
cd "$(dirname "$0")"
sh install.sh
npx --no-install tsc --project .
npx --no-install tsc --project page
npx --no-install prettier --check --log-level warn .
