#!/bin/sh
# Makes the package kelpower in web/core/dist, and of it the planner page in build/web: kelpower.html, which opens from the
# disk, and site/, a folder for a server. Needs the module that the target kelplan_module builds.
# Usage: build.sh MODULE    (the folder of kelplan.mjs and kelplan.wasm)
set -eu
module=$(cd "$1" && pwd)
cd "$(dirname "$0")"
sh install.sh

node core/build.mjs "$module"
cd page
KELPOWER_SINGLE_FILE=1 npx --no-install vite build --logLevel warn
npx --no-install vite build --logLevel warn
mv ../../build/web/single/index.html ../../build/web/kelpower.html
rmdir ../../build/web/single
echo "The planner page: build/web/kelpower.html, and for a server build/web/site"
