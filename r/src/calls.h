#ifndef KELPOWER_R_CALLS_H
#define KELPOWER_R_CALLS_H

/* Calls of the C++ library from C. None throws, none calls R but to ask whether the user wants to stop. */

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A function of the library. `arguments` has one letter an argument: d double, i int, b one-byte flag, p array that is
   read, P array that may change, v vector that receives sizes, s stop request, n unused pointer. `result` is d for a
   double, x for a curve, z for a surface, 0 for none. */
typedef struct {
  const char* name;
  const char* arguments;
  char result;
} KelrFunction;

typedef struct {
  double number;
  double* array; /* of p and P */
} KelrArgument;

/* What a call gave; released with kelr_release. */
typedef struct {
  double number;
  int x_count;
  int y_count;
  double* x;
  double* y;
  double* z;
  size_t size_count;
  double* sizes;
} KelrResult;

enum { KELR_OK = 0, KELR_NO_MEMORY = 4, KELR_STOPPED = 130 };

/* The function of that name, or null. */
const KelrFunction* kelr_find(const char* name);
int kelr_call(const KelrFunction* function, const KelrArgument* arguments, KelrResult* result);
void kelr_release(KelrResult* result);

double kelr_missing(void);

/* A distribution. It takes `count` numbers and whether the lower tail is meant. */
typedef struct {
  const char* name;
  int count;
  double (*value)(const double* numbers, int lower);
} KelrDistribution;

/* The distribution of that name, or null. */
const KelrDistribution* kelr_find_distribution(const char* name);

#ifdef __cplusplus
}
#endif

#endif
