/* The doors of the C interface: requests and answers as R lists, and many designs as vectors. */
#include <string.h>

#include "glue.h"
#include "kelplan.h"
#include "watch.h"

static kelplan_options watched_by(KelrWatch* watch) {
  const kelplan_options options = {sizeof(kelplan_options), kelr_should_stop, watch};
  return options;
}

/* The elements of a list of arguments that are given. */
SEXP kelr_without_null(SEXP list) {
  const R_xlen_t all = Rf_xlength(list);
  SEXP all_names = PROTECT(Rf_getAttrib(list, R_NamesSymbol));
  R_xlen_t count = 0;
  for (R_xlen_t i = 0; i < all; ++i) count += !Rf_isNull(VECTOR_ELT(list, i));
  SEXP given = PROTECT(Rf_allocVector(VECSXP, count));
  SEXP names = PROTECT(Rf_allocVector(STRSXP, count));
  for (R_xlen_t i = 0, kept = 0; i < all; ++i) {
    if (Rf_isNull(VECTOR_ELT(list, i))) continue;
    SET_VECTOR_ELT(given, kept, VECTOR_ELT(list, i));
    if (!Rf_isNull(all_names)) SET_STRING_ELT(names, kept, STRING_ELT(all_names, i));
    ++kept;
  }
  Rf_setAttrib(given, R_NamesSymbol, names);
  UNPROTECT(3);
  return given;
}

SEXP kelr_version(void) { return Rf_mkString(kelplan_version()); }

SEXP kelr_describe(void) {
  const char* text = kelplan_describe();
  if (!text) Rf_error("there is not enough memory");
  return kelr_read_json(text);
}

static SEXP read_answer(void* text) { return kelr_read_json(text); }
static void free_answer(void* text) { kelplan_free(text); }

/* Reads an answer and releases it, also where R runs out of memory over it. */
static SEXP take_answer(char* text) {
  if (!text) return R_NilValue;
  return R_ExecWithCleanup(read_answer, text, free_answer, text);
}

static SEXP named_list(const char* const* names, R_xlen_t count) {
  SEXP list = PROTECT(Rf_allocVector(VECSXP, count));
  SEXP labels = PROTECT(Rf_allocVector(STRSXP, count));
  for (R_xlen_t i = 0; i < count; ++i) SET_STRING_ELT(labels, i, Rf_mkChar(names[i]));
  Rf_setAttrib(list, R_NamesSymbol, labels);
  UNPROTECT(2);
  return list;
}

static SEXP status_and_answer(int status, char* answer) {
  static const char* const names[] = {"status", "answer"};
  SEXP read = PROTECT(take_answer(answer));
  SEXP result = PROTECT(named_list(names, 2));
  SET_VECTOR_ELT(result, 0, Rf_ScalarInteger(status));
  SET_VECTOR_ELT(result, 1, read);
  UNPROTECT(2);
  return result;
}

/* door: 1 solve, 2 draw, 3 convert. Gives the status and the answer. */
SEXP kelr_ask(SEXP door, SEXP request) {
  const char* text = kelr_write_json(request);
  char* answer = NULL;
  int status = KELPLAN_FAILED;
  KelrWatch watch = kelr_watch();
  const kelplan_options options = watched_by(&watch);
  switch (Rf_asInteger(door)) {
    case 1: status = kelplan_solve(text, &options, &answer); break;
    case 2: status = kelplan_draw(text, &options, &answer); break;
    default: status = kelplan_convert(text, &options, &answer);
  }
  return status_and_answer(status, answer);
}

typedef struct {
  kelplan_batch* batch;
  SEXP columns;
  R_xlen_t rows;
  char* text; /* the answer to the preparation, and what is read of it */
  SEXP answer;
} Run;

static SEXP member(SEXP list, const char* name) {
  SEXP names = Rf_getAttrib(list, R_NamesSymbol);
  for (R_xlen_t i = 0; i < Rf_xlength(list); ++i) {
    if (strcmp(CHAR(STRING_ELT(names, i)), name) == 0) return VECTOR_ELT(list, i);
  }
  return R_NilValue;
}

/* A vector of one number stands for all rows. */
static void bind_columns(const Run* run, const double** columns, ptrdiff_t* strides) {
  for (R_xlen_t i = 0; i < Rf_xlength(run->columns); ++i) {
    SEXP column = VECTOR_ELT(run->columns, i);
    if (TYPEOF(column) != REALSXP || (Rf_xlength(column) != 1 && Rf_xlength(column) != run->rows)) {
      Rf_error("column %d is not a vector of %d numbers", (int)i + 1, (int)run->rows);
    }
    columns[i] = REAL(column);
    strides[i] = Rf_xlength(column) == 1 ? 0 : (ptrdiff_t)sizeof(double);
  }
}

static void mark_missing(SEXP results) {
  for (R_xlen_t i = 0; i < Rf_xlength(results); ++i) {
    double* numbers = REAL(VECTOR_ELT(results, i));
    const R_xlen_t rows = Rf_xlength(VECTOR_ELT(results, i));
    for (R_xlen_t row = 0; row < rows; ++row) {
      if (ISNAN(numbers[row])) numbers[row] = NA_REAL;
    }
  }
}

static SEXP run_batch(void* payload) {
  static const char* const names[] = {"status", "answer", "results", "rows"};
  const Run* run = payload;
  const R_xlen_t count = Rf_xlength(member(run->answer, "results"));
  const double** columns = (const double**)R_alloc((size_t)Rf_xlength(run->columns) + 1, sizeof *columns);
  ptrdiff_t* strides = (ptrdiff_t*)R_alloc((size_t)Rf_xlength(run->columns) + 1, sizeof *strides);
  double** numbers = (double**)R_alloc((size_t)count + 1, sizeof *numbers);
  SEXP results = PROTECT(Rf_allocVector(VECSXP, count));
  SEXP statuses = PROTECT(Rf_allocVector(INTSXP, run->rows));
  bind_columns(run, columns, strides);
  for (R_xlen_t i = 0; i < count; ++i) {
    SET_VECTOR_ELT(results, i, Rf_allocVector(REALSXP, run->rows));
    numbers[i] = REAL(VECTOR_ELT(results, i));
  }
  KelrWatch watch = kelr_watch();
  const kelplan_options options = watched_by(&watch);
  const int status = kelplan_run(run->batch, (size_t)run->rows, columns, strides, numbers, NULL, INTEGER(statuses),
                                 (ptrdiff_t)sizeof(int), &options);
  mark_missing(results);
  SEXP value = PROTECT(named_list(names, 4));
  SET_VECTOR_ELT(value, 0, Rf_ScalarInteger(status));
  SET_VECTOR_ELT(value, 1, run->answer);
  SET_VECTOR_ELT(value, 2, results);
  SET_VECTOR_ELT(value, 3, statuses);
  UNPROTECT(3);
  return value;
}

static void release_batch(void* payload) { kelplan_release(((Run*)payload)->batch); }

static SEXP read_and_run(void* payload) {
  Run* run = payload;
  run->answer = PROTECT(take_answer(run->text));
  SEXP value = run_batch(run);
  UNPROTECT(1);
  return value;
}

/* Answers `rows` designs. Gives the status of the call, the answer to its preparation, the results and a status a row;
   the first two alone where the question cannot be prepared. */
SEXP kelr_run(SEXP request, SEXP columns, SEXP rows) {
  Run run = {NULL, columns, (R_xlen_t)Rf_asReal(rows), NULL, R_NilValue};
  const int status = kelplan_prepare(kelr_write_json(request), &run.batch, &run.text);
  if (status != KELPLAN_OK) return status_and_answer(status, run.text);
  return R_ExecWithCleanup(read_and_run, &run, release_batch, &run);
}
