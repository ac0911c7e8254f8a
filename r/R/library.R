# The doors of the compiled library. Names are spelt with underscores here, as R's are.

DOOR_SOLVE <- 1L
DOOR_DRAW <- 2L
DOOR_CONVERT <- 3L

known <- new.env(parent = emptyenv()) # what has been read of the library's description

underscored <- function(name) chartr("-", "_", name)
dashed <- function(name) chartr("_", "-", name)

#' @export
kp_version <- function() .Call(C_version)

description <- function() {
  if (is.null(known$description)) known$description <- .Call(C_describe)
  known$description
}

named_by <- function(list, member) {
  stats::setNames(list, vapply(list, function(each) underscored(each[[member]]), ""))
}

# The tests by their names.
tests <- function() {
  if (is.null(known$tests)) known$tests <- named_by(description()$tests, "name")
  known$tests
}

# The kinds of the inputs of a test, by each name that they may be given.
kinds_of <- function(test) {
  if (is.null(known$kinds[[test]])) known$kinds[[test]] <- kinds_by_name(tests()[[test]]$parameters)
  known$kinds[[test]]
}

kinds_by_name <- function(parameters) {
  names <- lapply(parameters, function(each) underscored(c(each$name, unlist(each$aliases))))
  kinds <- vapply(parameters, function(each) each$kind, "")
  stats::setNames(rep(kinds, lengths(names)), unlist(names))
}

# The inputs of a test that decide how long lists are, by each name that they may be given.
shapes_of <- function(test) {
  shapes <- Filter(function(each) identical(each$role, "shape"), tests()[[test]]$parameters)
  underscored(unlist(lapply(shapes, function(each) c(each$name, unlist(each$aliases)))))
}

# The labels of the inputs and of the results of a question.
labels_of <- function(test, question) {
  parameters <- named_by(tests()[[test]]$parameters, "name")
  labels <- vapply(parameters, function(each) each$label, "")
  targets <- intersect(c("power", "half_width"), names(labels))
  labels[paste0("target_", targets)] <- labels[targets]
  for (route in tests()[[test]]$routes) {
    if (route$question != question) next
    results <- named_by(route$results, "name")
    labels[names(results)] <- vapply(results, function(each) each$label, "")
  }
  labels
}

# Asks and gives the answer, or ends in a condition.
ask <- function(door, request, call) {
  request$names <- "underscore"
  reply <- .Call(C_ask, door, request)
  if (reply$status != 0L) stop_with(reply, call)
  reply$answer
}
