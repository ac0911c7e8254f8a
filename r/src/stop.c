#include "glue.h"

static void check(void* payload) {
  (void)payload;
  R_CheckUserInterrupt();
}

/* R would leave the library by longjmp, over C++ that has to clean up. So the check runs on a level of its own, and the
   interrupt is raised again when the library has returned. */
int kelr_should_stop(void* payload) { return !R_ToplevelExec(check, payload); }
