/* Plans a study with the C interface: one design in JSON, then many in arrays. */
#include <kelplan.h>
#include <stdio.h>
#include <string.h>

/* Prints the value of a key of the answer that is a text without quotes in it. */
static void print_text(const char* answer, const char* key) {
  const char* start = strstr(answer, key);
  const char* end;
  if (!start) return;
  start += strlen(key) + 3; /* the quote, the colon and the quote after it */
  end = strchr(start, '"');
  if (end) printf("%.*s\n", (int)(end - start), start);
}

static int solve(const char* request) {
  char* answer = NULL;
  const int status = kelplan_solve(request, NULL, &answer);
  print_text(answer, status == KELPLAN_OK ? "sentence" : "message");
  kelplan_free(answer);
  return status;
}

/* The power of four effects with 50 observations in each group. */
static int powers(void) {
  const double effects[] = {0.2, 0.5, 0.8, -3e9};
  const double size = 50;
  const double* columns[2];
  const ptrdiff_t strides[] = {sizeof(double), 0}; /* the size is the same in all rows */
  double power[4];
  double* results[2] = {NULL, NULL}; /* the total size, which is not wanted, and the power */
  int status[4];
  kelplan_batch* batch = NULL;
  int row;
  int done = kelplan_prepare("{\"test\":\"two-means\",\"columns\":[\"effect-d\",\"n\"]}", &batch, NULL);
  if (done != KELPLAN_OK) return done;
  columns[0] = effects;
  columns[1] = &size;
  results[1] = power;
  done = kelplan_run(batch, 4, columns, strides, results, NULL, status, sizeof(int), NULL);
  for (row = 0; done == KELPLAN_OK && row < 4; ++row) {
    if (status[row] == KELPLAN_OK) printf("d = %g: power %.4f\n", effects[row], power[row]);
    if (status[row] != KELPLAN_OK) printf("d = %g: status %d\n", effects[row], status[row]);
  }
  kelplan_release(batch);
  return done;
}

int main(void) {
  if (solve("{\"test\":\"two-means\",\"inputs\":{\"effect-d\":0.5,\"power\":0.9}}") != KELPLAN_OK) return 1;
  if (solve("{\"test\":\"two-means\",\"inputs\":{\"effect-d\":0.5,\"power\":90}}") != KELPLAN_BAD_INPUT) return 1;
  return powers();
}
