#include <time.h>

#include "glue.h"
#include "watch.h"

enum { CHECKS_PER_SECOND = 25 };

static SEXP check(void* payload) {
  (void)payload;
  R_CheckUserInterrupt();
  return R_NilValue;
}

static SEXP note_interrupt(SEXP condition, void* is_asked) {
  (void)condition;
  *(int*)is_asked = 1;
  return R_NilValue;
}

static void check_with_handler(void* is_asked) {
  SEXP classes = PROTECT(Rf_mkString("interrupt"));
  R_tryCatch(check, NULL, classes, note_interrupt, is_asked, NULL, NULL);
  UNPROTECT(1);
}

KelrWatch kelr_watch(void) {
  KelrWatch watch = {(long)clock()};
  return watch;
}

/* R would leave the library by longjmp, over C++ that has to clean up. So the check catches the interrupt, on a level of
   its own that no other condition leaves, and the interrupt is raised again when the library has returned. That takes R
   some 0.2 milliseconds, for which a short call has no time. */
int kelr_should_stop(void* payload) {
  KelrWatch* watch = payload;
  const long now = (long)clock();
  int is_asked = 0;
  if (now - watch->checked < CLOCKS_PER_SEC / CHECKS_PER_SECOND) return 0;
  watch->checked = now;
  return !R_ToplevelExec(check_with_handler, &is_asked) || is_asked;
}
