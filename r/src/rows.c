/* The exports and the distributions over vectors: an argument is recycled to the number of rows. */
#include <string.h>

#include "calls.h"
#include "glue.h"

enum { ROWS_BETWEEN_CHECKS = 1024 };

static double or_na(double number) { return number == kelr_missing() ? NA_REAL : number; }

static double at(SEXP numbers, R_xlen_t row) { return REAL(numbers)[row % Rf_xlength(numbers)]; }

SEXP kelr_distribution(SEXP name, SEXP arguments, SEXP lower, SEXP rows) {
  const KelrDistribution* found = kelr_find_distribution(CHAR(STRING_ELT(name, 0)));
  const R_xlen_t count = (R_xlen_t)Rf_asReal(rows);
  const int is_lower = Rf_asLogical(lower);
  double numbers[4];
  if (!found || found->count != Rf_length(arguments)) Rf_error("there is no such distribution");
  SEXP values = PROTECT(Rf_allocVector(REALSXP, count));
  for (R_xlen_t row = 0; row < count; ++row) {
    double sum = 0;
    if (row % ROWS_BETWEEN_CHECKS == 0) R_CheckUserInterrupt();
    for (int i = 0; i < found->count; ++i) {
      numbers[i] = at(VECTOR_ELT(arguments, i), row);
      sum += ISNAN(numbers[i]) ? numbers[i] : 0;
    }
    REAL(values)[row] = ISNAN(sum) ? sum : or_na(found->value(numbers, is_lower));
  }
  UNPROTECT(1);
  return values;
}

typedef struct {
  const KelrFunction* function;
  SEXP arguments; /* those that R gives: all but v, s and n */
  R_xlen_t row;
  KelrResult result;
  int status;
} Call;

static SEXP numbers_of(const double* numbers, R_xlen_t count) {
  SEXP vector = PROTECT(Rf_allocVector(REALSXP, count));
  for (R_xlen_t i = 0; i < count; ++i) REAL(vector)[i] = or_na(numbers[i]);
  UNPROTECT(1);
  return vector;
}

/* A copy, because some functions repair the array. */
static double* copy_of(SEXP array) {
  double* copy = (double*)R_alloc((size_t)Rf_xlength(array) + 1, sizeof(double));
  memcpy(copy, REAL(array), (size_t)Rf_xlength(array) * sizeof(double));
  return copy;
}

static void call_row(Call* call) {
  KelrArgument arguments[24];
  const char* letters = call->function->arguments;
  int given = 0;
  for (int i = 0; letters[i]; ++i) {
    arguments[i].number = 0;
    arguments[i].array = NULL;
    if (strchr("vsn", letters[i])) continue;
    SEXP value = VECTOR_ELT(call->arguments, given++);
    if (TYPEOF(value) == VECSXP) {
      arguments[i].array = copy_of(VECTOR_ELT(value, call->row % Rf_xlength(value)));
    } else {
      arguments[i].number = at(value, call->row);
      if (letters[i] != 'd' && ISNAN(arguments[i].number)) Rf_error("a flag or whole number is missing");
    }
  }
  call->status = kelr_call(call->function, arguments, &call->result);
}

static SEXP chart_of(const KelrResult* result, int is_surface) {
  const R_xlen_t y_count = is_surface ? result->y_count : result->x_count;
  SEXP chart = PROTECT(Rf_allocVector(VECSXP, is_surface ? 3 : 2));
  SEXP names = PROTECT(Rf_allocVector(STRSXP, is_surface ? 3 : 2));
  SET_VECTOR_ELT(chart, 0, numbers_of(result->x, result->x_count));
  SET_VECTOR_ELT(chart, 1, numbers_of(result->y, y_count));
  SET_STRING_ELT(names, 0, Rf_mkChar("x"));
  SET_STRING_ELT(names, 1, Rf_mkChar("y"));
  if (is_surface) {
    /* R counts the rows of a matrix first. */
    SEXP z = Rf_allocMatrix(REALSXP, result->x_count, result->y_count);
    SET_VECTOR_ELT(chart, 2, z);
    SET_STRING_ELT(names, 2, Rf_mkChar("z"));
    for (R_xlen_t i = 0; i < result->x_count; ++i) {
      for (R_xlen_t j = 0; j < y_count; ++j) {
        REAL(z)[i + j * result->x_count] = or_na(result->z[i * y_count + j]);
      }
    }
  }
  Rf_setAttrib(chart, R_NamesSymbol, names);
  UNPROTECT(2);
  return chart;
}

/* What a call gave besides a number: a chart or sizes. */
static SEXP read_result(void* payload) {
  const Call* call = payload;
  const char letter = call->function->result;
  if (letter == 'x' || letter == 'z') return chart_of(&call->result, letter == 'z');
  return numbers_of(call->result.sizes, (R_xlen_t)call->result.size_count);
}

static void release_result(void* payload) { kelr_release(&((Call*)payload)->result); }

static int fits(const KelrFunction* function, SEXP arguments) {
  int wanted = 0;
  for (const char* letter = function->arguments; *letter; ++letter) wanted += !strchr("vsn", *letter);
  return wanted == Rf_length(arguments) && strlen(function->arguments) <= 24;
}

/* Calls an export for each row. Gives the numbers and, of those that give more, a list of charts or sizes; NULL when the
   user has stopped it. */
SEXP kelr_export(SEXP name, SEXP arguments, SEXP rows) {
  Call call = {kelr_find(CHAR(STRING_ELT(name, 0))), arguments, 0, {0}, 0};
  const R_xlen_t count = (R_xlen_t)Rf_asReal(rows);
  if (!call.function || !fits(call.function, arguments)) Rf_error("there is no such function");
  const int has_more = strchr("xz", call.function->result) || strchr(call.function->arguments, 'v');
  SEXP value = PROTECT(Rf_allocVector(VECSXP, 2));
  SEXP numbers = Rf_allocVector(REALSXP, count);
  SET_VECTOR_ELT(value, 0, numbers);
  if (has_more) SET_VECTOR_ELT(value, 1, Rf_allocVector(VECSXP, count));
  for (; call.row < count; ++call.row) {
    const void* memory = vmaxget();
    if (call.row % ROWS_BETWEEN_CHECKS == 0) R_CheckUserInterrupt();
    call_row(&call);
    vmaxset(memory);
    if (call.status != KELR_OK) break;
    REAL(numbers)[call.row] = or_na(call.result.number);
    if (has_more) {
      SEXP more = R_ExecWithCleanup(read_result, &call, release_result, &call);
      SET_VECTOR_ELT(VECTOR_ELT(value, 1), call.row, more);
    }
  }
  UNPROTECT(1);
  if (call.status == KELR_STOPPED) {
    kelr_release(&call.result);
    return R_NilValue;
  }
  if (call.status != KELR_OK) Rf_error("there is not enough memory");
  return value;
}
