# Times expressions in R.
# Usage: expressions.R FILE, of lines of a package, the name of a comparison and an expression, separated by tabs.
# Writes lines of the package, the name, "answer", the answer and the seconds of a call, separated by tabs, and the
# package's version.

folder <- dirname(sub("^--file=", "", grep("^--file=", commandArgs(), value = TRUE)))
source(file.path(folder, "r_timing.R"))

for (line in strsplit(readLines(commandArgs(trailingOnly = TRUE)), "\t")) {
  suppressMessages(library(line[1], character.only = TRUE))
  call <- eval(parse(text = sprintf("function() %s", line[3])))
  cat(line[1], line[2], "answer", sprintf("%.17g", call()), sprintf("%.6g\n", seconds_per_call(call)), sep = "\t")
}
cat("version", line[1], sprintf("%s\n", packageVersion(line[1])), sep = "\t")
