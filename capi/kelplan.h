/*
 * kelplan.h: plan studies from any language.
 *
 * Two doors lead to the same answers. A request in JSON is answered in JSON: kelplan_solve, kelplan_draw,
 * kelplan_convert, kelplan_describe. Many designs are answered in arrays of doubles: kelplan_prepare, kelplan_run.
 *
 * Text is UTF-8 and ends with a zero. Every function may be called from any thread at any time. The caller's memory is
 * read and written during a call only. A text that a function puts into `*answer` is released with kelplan_free, a batch
 * with kelplan_release; a text that a function returns is constant and never released.
 *
 * docs/c.md describes requests and answers, capi/schema holds their JSON schemas.
 */
#ifndef KELPOWER_CAPI_KELPLAN_H
#define KELPOWER_CAPI_KELPLAN_H

#include <stddef.h>

/* Where the sources are part of a larger library, it defines this as nothing. */
#ifndef KELPLAN_EXPORT
#if defined(__GNUC__) && !defined(_WIN32)
#define KELPLAN_EXPORT __attribute__((visibility("default")))
#else
#define KELPLAN_EXPORT
#endif
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* The number of this interface. It grows when a function changes or goes, not when one is added. */
#define KELPLAN_API 1

/* How a call, or a row of a batch, ended. The program `kelpower` exits with the same numbers. */
enum kelplan_status {
  KELPLAN_OK = 0,
  KELPLAN_FAILED = 1,      /* a fault of the library; please report it */
  KELPLAN_BAD_INPUT = 2,   /* the request or an input is wrong, or inputs do not go together */
  KELPLAN_NO_SOLUTION = 3, /* the inputs are allowed, but the question has no answer */
  KELPLAN_NO_MEMORY = 4,
  KELPLAN_STOPPED = 130 /* should_stop asked for it */
};

/* How a call is made. Members may be added at the end; a shorter structure of an earlier header is accepted. */
typedef struct kelplan_options {
  size_t size;                       /* sizeof(kelplan_options) */
  int (*should_stop)(void* payload); /* asked about every millisecond, in the thread that calls; not 0 ends the call */
  void* payload;
} kelplan_options;

/* A question with its route chosen, to be asked of many designs. */
typedef struct kelplan_batch kelplan_batch;

/* The release of the library: "0.2.0". Constant text. */
KELPLAN_EXPORT const char* kelplan_version(void);

/*
 * All tests with their inputs, questions, results and examples, and the conversions of effect sizes, as JSON. Constant
 * text; null when there is no memory.
 */
KELPLAN_EXPORT const char* kelplan_describe(void);

/*
 * Answers one design, or all combinations of alternatives as a table.
 *   request   {"test": "two-means", "inputs": {"effect-d": 0.5, "power": 0.8}}
 *   options   null for none
 *   answer    receives the JSON of the answer or of the error; null where it is not wanted
 * Gives a status.
 */
KELPLAN_EXPORT int kelplan_solve(const char* request, const kelplan_options* options, char** answer);

/* The points of a chart: a request as above with "chart", "from", "to" and "step" besides. */
KELPLAN_EXPORT int kelplan_draw(const char* request, const kelplan_options* options, char** answer);

/* The effect sizes that follow from published results: {"inputs": {"t": 2.3, "n": 20}}. */
KELPLAN_EXPORT int kelplan_convert(const char* request, const kelplan_options* options, char** answer);

/* Releases an answer. Null is allowed. */
KELPLAN_EXPORT void kelplan_free(char* answer);

/*
 * Prepares a question for many designs.
 *   request   {"test": "two-means", "inputs": {"n": 40}, "columns": ["effect-d"]}: the inputs that all designs share,
 *             and those that vary, each a name or {"name": "means", "entry": 0}, an entry of a list
 *   batch     receives the batch; null unless the status is KELPLAN_OK
 *   answer    receives JSON with the columns and the results of a row in their order, or of the error
 * Gives a status.
 */
KELPLAN_EXPORT int kelplan_prepare(const char* request, kelplan_batch** batch, char** answer);

/*
 * Answers `rows` designs. Several threads may run one batch at once.
 *   columns          for each column the address of its first number
 *   column_strides   for each column the bytes from a number to the next: 0 repeats the first, below 0 goes back; null
 *                    where all numbers stand side by side
 *   results          for each result the address of its first number, null for a result that is not wanted
 *   result_strides   as for columns, but never 0
 *   status           the address of the first row's status, null where none is wanted
 *   status_stride    the bytes from a status to the next
 *   options          null for none
 * A row that is not answered has NaN in all results and tells why in its status; the rows after it are answered all the
 * same. When the call is stopped, the rows that were not reached have KELPLAN_STOPPED.
 * Gives KELPLAN_OK when all rows were gone through, whatever their statuses; KELPLAN_BAD_INPUT for null in place of a
 * batch or of arrays; KELPLAN_NO_MEMORY when there is none to start with; KELPLAN_STOPPED.
 */
KELPLAN_EXPORT int kelplan_run(const kelplan_batch* batch, size_t rows, const double* const* columns,
                               const ptrdiff_t* column_strides, double* const* results, const ptrdiff_t* result_strides,
                               int* status, ptrdiff_t status_stride, const kelplan_options* options);

/* Releases a batch, which no thread may still run. Null is allowed. */
KELPLAN_EXPORT void kelplan_release(kelplan_batch* batch);

#ifdef __cplusplus
}
#endif

#endif
