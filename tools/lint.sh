#!/bin/sh
# Checks the format of all sources, and the libraries, the planner and the program with clang-tidy.
# Usage: lint.sh BUILD_DIRECTORY (one with compile_commands.json)
set -eu
build=$1

git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror
# Generated sources and packages found by pkg-config must exist before clang-tidy reads the commands.
# What is for Windows alone is not compiled here.
git ls-files 'src/*.cpp' 'kelcommon/*.cpp' 'planner/*.cpp' 'cli/*.cpp' | grep -v '_windows\.cpp$' |
  xargs -P "$(nproc)" -n 4 clang-tidy -p "$build" --quiet --warnings-as-errors='*'
echo "lint: clean"
