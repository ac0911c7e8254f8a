#ifndef KELPOWER_R_GLUE_H
#define KELPOWER_R_GLUE_H

/* What the parts of the glue between R and the C interface offer each other. Everything is C, so that R may leave any
   of it by longjmp: no C++ frame is ever below a call of R. */

#include <R.h>
#include <Rinternals.h>

/* The R value of a JSON text: objects are named lists; arrays of numbers, flags or texts are vectors; null is NA. */
SEXP kelr_read_json(const char* text);

/* The JSON of an R value: a named list is an object, another list and a longer vector is an array. Memory of R_alloc. */
const char* kelr_write_json(SEXP value);

/* The routines of the package. */
SEXP kelr_without_null(SEXP list);
SEXP kelr_version(void);
SEXP kelr_describe(void);
SEXP kelr_ask(SEXP door, SEXP request);
SEXP kelr_run(SEXP request, SEXP columns, SEXP rows);
SEXP kelr_distribution(SEXP name, SEXP arguments, SEXP lower, SEXP rows);
SEXP kelr_export(SEXP name, SEXP arguments, SEXP rows);

#endif
