/* A program in C outside the project that calls every function of the installed C interface. */

#include <kelplan.h>
#include <stdio.h>
#include <string.h>

static int never(void* payload) {
  ++*(int*)payload;
  return 0;
}

static void show(const char* what, int status, char* answer) {
  printf("%s %d %s\n", what, status, strstr(answer, "\"error\"") ? "error" : "answer");
  kelplan_free(answer);
}

static void show_batch(void) {
  const double r[] = {0.2, 0.3};
  const double* columns[1];
  double power[2] = {0, 0};
  double* results[1];
  int status[2] = {-1, -1};
  int asked = 0;
  kelplan_options options;
  kelplan_batch* batch = NULL;
  char* answer = NULL;
  const int prepared =
      kelplan_prepare("{\"test\":\"pearson\",\"inputs\":{\"n\":84},\"columns\":[\"r\"]}", &batch, &answer);
  show("prepare", prepared, answer);
  options.size = sizeof options;
  options.should_stop = never;
  options.payload = &asked;
  columns[0] = r;
  results[0] = power;
  printf("run %d", kelplan_run(batch, 2, columns, NULL, results, NULL, status, sizeof(int), &options));
  printf(": %.4f %d, %.4f %d, asked %d\n", power[0], status[0], power[1], status[1], asked > 0);
  kelplan_release(batch);
}

int main(void) {
  const char* const request =
      "{\"test\":\"two-means\",\"inputs\":{\"means\":[52,47],\"sd\":10,\"n\":50},\"chart\":\"n\"}";
  char* answer = NULL;
  int status;
  printf("interface %d, version %d\n", KELPLAN_API, strlen(kelplan_version()) > 0);
  printf("describe %d\n", strstr(kelplan_describe(), "\"two-means\"") != NULL);
  status = kelplan_solve("{\"test\":\"anova\",\"inputs\":{\"effect-f\":0.25,\"groups\":3,\"power\":0.8}}", NULL, &answer);
  show("solve", status, answer);
  status = kelplan_draw(request, NULL, &answer);
  show("draw", status, answer);
  status = kelplan_convert("{\"inputs\":{\"t\":2.3,\"n\":20}}", NULL, &answer);
  show("convert", status, answer);
  status = kelplan_solve("no JSON", NULL, &answer);
  show("solve", status, answer);
  show_batch();
  return 0;
}
