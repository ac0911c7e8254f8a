#!/bin/sh
# Runs a command that compiles the R package, with a cache of compiled files: R compiles the same sources once to build
# the vignettes and once more to check. Without debugging information, of which there would be 90 MB.
# Usage: compile.sh FOLDER JOBS COMMAND ... (where the cache and the settings go, how many files are compiled at once)
set -eu
folder=$1
export MAKEFLAGS="-j$2"
shift 2
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ]; then
  export CCACHE_DIR="$folder/ccache" # where the user has a cache, that is taken
fi
export CCACHE_NOHASHDIR=1
launcher=${CMAKE_CXX_COMPILER_LAUNCHER:-ccache}
export R_MAKEVARS_USER="$folder/Makevars.user"
cat >"$R_MAKEVARS_USER" <<END
CC = $launcher gcc
CXX20 = $launcher g++
CFLAGS = -O2 -Wall -pedantic
CXX20FLAGS = -O2 -Wall -pedantic
END
exec "$@"
