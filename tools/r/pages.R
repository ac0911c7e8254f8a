# Runs the R code of documentation pages, whose output stands behind it in lines that start with #>.
#
# Usage: Rscript pages.R check|write PAGE... (the package must be found in the library paths)
# check compares the output with the page, write puts it there.

arguments <- commandArgs(trailingOnly = TRUE)
mode <- arguments[1]
options(width = 100, digits = 7)

is_output <- function(lines) startsWith(lines, "#>")

# The lines of a block, with the output of each of its expressions behind it.
run_block <- function(lines, room) {
  code <- lines[!is_output(lines)]
  expressions <- parse(text = code, keep.source = TRUE)
  ends <- vapply(utils::getSrcref(expressions), function(place) place[3], 0L)
  starts <- c(1L, head(ends, -1) + 1L)
  written <- character()
  for (i in seq_along(expressions)) {
    output <- utils::capture.output({
      value <- withVisible(eval(expressions[[i]], room))
      if (value$visible) print(value$value)
    })
    written <- c(written, code[starts[i]:ends[i]], if (length(output)) trimws(paste("#>", output), "right"))
  }
  c(written, if (length(code) > max(ends, 0)) code[(max(ends, 0) + 1):length(code)])
}

run_page <- function(path) {
  lines <- readLines(path, encoding = "UTF-8")
  room <- new.env()
  grDevices::pdf(NULL)
  on.exit(grDevices::dev.off())
  opening <- which(lines == "```r")
  closing <- vapply(opening, function(line) line + which(lines[-seq_len(line)] == "```")[1], 0)
  if (!length(opening)) stop("there is no R code in ", path)
  pieces <- list()
  last <- 0
  for (i in seq_along(opening)) {
    block <- lines[(opening[i] + 1):(closing[i] - 1)]
    pieces <- c(pieces, list(lines[(last + 1):opening[i]], run_block(block, room)))
    last <- closing[i] - 1
  }
  c(unlist(pieces), lines[(last + 1):length(lines)])
}

for (path in arguments[-1]) {
  now <- run_page(path)
  stored <- readLines(path, encoding = "UTF-8")
  if (mode == "write") {
    writeLines(now, path)
  } else if (!identical(now, stored)) {
    different <- which(now != rep_len(stored, length(now)))[1]
    stop(sprintf("%s is not what R prints; line %d: %s", path, different, now[different]), call. = FALSE)
  }
}
cat("The R code of", length(arguments) - 1, "pages prints what they say.\n")
