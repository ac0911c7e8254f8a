# Errors as conditions with a class and fields, and interrupts.

CLASS_OF_KIND <- c(
  input = "kelpower_input_error", `no-solution` = "kelpower_no_solution", request = "kelpower_request_error",
  memory = "kelpower_memory_error", fault = "kelpower_fault")

kelpower_condition <- function(kind, message, call, ...) {
  structure(
    class = c(CLASS_OF_KIND[[kind]], "kelpower_error", "error", "condition"),
    list(message = message, call = call, kind = kind, ...))
}

stop_input <- function(parameter, problem, call, value = NULL) {
  stop(kelpower_condition(
    "input", paste(parameter, problem), call, code = "r-value", parameter = parameter, parameters = parameter,
    value = value))
}

# The condition of an error that the library answered.
condition_of <- function(error, call) {
  given <- error[setdiff(names(error), c("kind", "message"))]
  kind <- if (error$kind %in% names(CLASS_OF_KIND)) error$kind else "fault"
  do.call(kelpower_condition, c(list(kind, error$message, call), given), quote = TRUE)
}

stop_with <- function(reply, call) {
  if (reply$status == 130L) raise_interrupt()
  if (is.null(reply$answer)) stop(kelpower_condition("memory", "There is not enough memory.", call))
  stop(condition_of(reply$answer$error, call))
}

# The library has seen the user's interrupt and returned; now R sees it. A script ends, as it does with R's own.
raise_interrupt <- function() {
  interrupt <- structure(class = c("interrupt", "condition"), list(message = "interrupted", call = NULL))
  if (!interactive()) stop(interrupt)
  signalCondition(interrupt)
  invokeRestart("abort")
}
