#ifndef KELPOWER_R_WATCH_H
#define KELPOWER_R_WATCH_H

/* Whether the user wants to interrupt a long call. */

#ifdef __cplusplus
extern "C" {
#endif

/* When R was last asked, in the units of clock(). */
typedef struct {
  long checked;
} KelrWatch;

KelrWatch kelr_watch(void);

/* Not 0 when the user wants to interrupt. `watch` is a KelrWatch of the call. */
int kelr_should_stop(void* watch);

#ifdef __cplusplus
}
#endif

#endif
