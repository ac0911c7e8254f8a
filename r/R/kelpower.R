# The answer: a list of class "kelpower" that is a "power.htest" of base R too.

OWN_FIELDS <- c("method", "note", "alternative", "test", "question", "sentence", "status", "inputs", "results", "given")

new_kelpower <- function(test, question, inputs, results, given, sentence = NULL, status = NULL) {
  about <- about_test(test)
  figures <- c(inputs[!names(inputs) %in% names(results)], results)
  base <- base_fields(figures)
  figures <- figures[!names(figures) %in% OWN_FIELDS]
  is_size <- names(figures) == "n"
  fields <- c(figures[is_size], figures[!is_size], base, about)
  fields$question <- question
  fields$sentence <- sentence
  fields$status <- status
  fields$inputs <- inputs
  fields$results <- results
  fields$given <- given
  class(fields) <- c("kelpower", "power.htest")
  fields
}

about_test <- function(test) {
  if (is.null(known$about[[test]])) {
    described <- tests()[[test]]
    known$about[[test]] <- list(note = note_of(described), method = described$title, test = test)
  }
  known$about[[test]]
}

BASE_NAMES <- c(d = "effect_d", f = "effect_f", f2 = "effect_f2", sig.level = "alpha", p1 = "proportion1",
                p2 = "proportion2", delta = "mean_difference", k = "groups")

# The fields as functions of base R and pwr name them.
base_fields <- function(figures) {
  at <- match(BASE_NAMES, names(figures))
  known <- !is.na(at)
  fields <- figures[at[known]]
  names(fields) <- names(BASE_NAMES)[known]
  one_sided <- figures$one_sided
  if (!is.null(one_sided)) fields$alternative <- c("two.sided", "one.sided")[one_sided + 1L]
  fields
}

note_of <- function(described) {
  if (described$groups == "1") return(paste("n is the number of", described$counted))
  "n is the number in *each* group"
}

# The number of designs.
count_of <- function(x) if (is.null(x$status)) 1L else length(x$status)

is_kelpower <- function(x) inherits(x, "kelpower")

#' @export
as.data.frame.kelpower <- function(x, row.names = NULL, optional = FALSE, ...) {
  count <- count_of(x)
  columns <- list()
  for (name in unique(c(names(x$inputs), names(x$results)))) {
    value <- if (name %in% names(x$results)) x$results[[name]] else x$inputs[[name]]
    columns <- c(columns, data_columns(name, value, count))
  }
  if (any(x$status != 0L)) columns$error <- error_words(x)
  data.frame(columns, row.names = row.names, check.names = FALSE, stringsAsFactors = FALSE)
}

# A column, or one for each entry of a list.
data_columns <- function(name, value, count) {
  if (is.null(value)) return(NULL)
  if (count == 1 && length(value) > 1) value <- matrix(value, 1)
  if (!is.matrix(value)) return(stats::setNames(list(rep_len(value, count)), name))
  columns <- lapply(seq_len(ncol(value)), function(i) rep_len(value[, i], count))
  if (ncol(value) == 1) return(stats::setNames(columns, name))
  stats::setNames(columns, paste0(name, seq_len(ncol(value))))
}

STATUS_WORDS <- c(`0` = NA, `2` = "input", `3` = "no-solution", `4` = "memory", `130` = "stopped")

error_words <- function(x) unname(STATUS_WORDS[as.character(x$status)])

# Says why designs have no answer.
#' @export
kp_problems <- function(x) {
  stopifnot(is_kelpower(x))
  rows <- which(x$status != 0L)
  problems <- lapply(rows, function(row) tryCatch(stop_for_row(x, row), kelpower_error = identity))
  data.frame(design = rows, error = unname(error_words(x)[rows]), parameter = or_na(problems, "parameter"),
             message = vapply(problems, conditionMessage, ""), stringsAsFactors = FALSE)
}

or_na <- function(list, member) {
  vapply(list, function(each) if (is.null(each[[member]])) NA_character_ else as.character(each[[member]])[1], "")
}

stop_for_row <- function(x, row) {
  solve_one(x$test, lapply(x$given, function(values) list(value_of(values, row))), NULL)
  kelpower_condition("fault", "This design has an answer by itself.", NULL)
}
