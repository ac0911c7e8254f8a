#' @export
kp_grid <- function(test, ...) {
  call <- sys.call()
  name <- name_of_test(test, call)
  given <- .Call(C_without_null, list(...))
  check_names(given, call)
  kinds <- kinds_of(name)
  designs <- lapply(stats::setNames(names(given), names(given)), function(each) {
    designs_of(given[[each]], kinds[each], each, call)
  })
  count <- prod(lengths(designs))
  if (count > MOST_COMBINATIONS) {
    stop(kelpower_condition("input", sprintf("These are %.0f combinations, but %.0f are the most.", count,
                                             MOST_COMBINATIONS), call, code = "r-combinations"))
  }
  rows <- expand.grid(lapply(rev(designs), seq_along), KEEP.OUT.ATTRS = FALSE)
  solve_test(name, lapply(stats::setNames(names(designs), names(designs)), function(each) {
    if (length(designs[[each]]) == 1) designs[[each]] else designs[[each]][rows[[each]]]
  }), call)
}

MOST_COMBINATIONS <- 1e7

# The name of a test, from its function or a text: two_means, two-means, kp_two_means.
name_of_test <- function(test, call) {
  if (is.function(test)) {
    same <- vapply(names(tests()), function(name) identical(test, get(paste0("kp_", name))), NA)
    if (any(same)) return(names(tests())[same])
  } else if (is.character(test) && length(test) == 1) {
    name <- underscored(sub("^kp_", "", test))
    if (name %in% names(tests())) return(name)
  }
  stop_input("test", "must be a function such as kp_two_means, or its name.", call)
}
