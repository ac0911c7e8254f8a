#!/bin/sh
# Plans a real study with the program: how many pupils does a comparison of three teaching methods need, and how certain
# is the smaller study that the school can afford? Usage: run_example.sh PROGRAM
set -eu
program=$1

echo "\$ kelpower anova --means 10,12,15 --sd 6 --power 0.9"
"$program" anova --means 10,12,15 --sd 6 --power 0.9
echo
echo "\$ kelpower anova --means 10,12,15 --sd 6 --n 20,20,20"
"$program" anova --means 10,12,15 --sd 6 --n 20,20,20
