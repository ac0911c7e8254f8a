#include <R_ext/Rdynload.h>
#include <R_ext/Visibility.h>

#include "glue.h"

static const R_CallMethodDef routines[] = {
    {"C_without_null", (DL_FUNC)&kelr_without_null, 1},
    {"C_version", (DL_FUNC)&kelr_version, 0},
    {"C_describe", (DL_FUNC)&kelr_describe, 0},
    {"C_ask", (DL_FUNC)&kelr_ask, 2},
    {"C_run", (DL_FUNC)&kelr_run, 3},
    {"C_distribution", (DL_FUNC)&kelr_distribution, 4},
    {"C_export", (DL_FUNC)&kelr_export, 3},
    {NULL, NULL, 0},
};

void attribute_visible R_init_kelpower(DllInfo* library) {
  R_registerRoutines(library, NULL, routines, NULL, NULL);
  R_useDynamicSymbols(library, FALSE);
  R_forceSymbols(library, TRUE);
}
