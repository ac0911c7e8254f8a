# How calls in R are timed.

RUNS <- 5
SECONDS_PER_RUN <- 0.1

cpu_seconds <- function(call, count) {
  start <- proc.time()
  for (i in seq_len(count)) call()
  sum((proc.time() - start)[c("user.self", "sys.self")])
}

# The median of some runs, each of so many calls that the clock of milliseconds suffices.
seconds_per_call <- function(call) {
  count <- 1
  while (cpu_seconds(call, count) < SECONDS_PER_RUN) count <- 2 * count
  median(replicate(RUNS, cpu_seconds(call, count))) / count
}
