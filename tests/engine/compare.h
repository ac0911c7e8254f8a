#ifndef KELPOWER_TESTS_ENGINE_COMPARE_H
#define KELPOWER_TESTS_ENGINE_COMPARE_H

namespace keltest {

/// How a number is compared with its reference.
enum class Metric {
  Value,  // a double: difference absolute or relative, whichever is smaller
  Grid,   // a coordinate of a chart: the same, with a tighter bound
  Single  // a value rounded to single precision: difference in units in the last place of a float
};

/// The largest difference that a comparison accepts.
double Bound(Metric metric);

/// The difference of `actual` from `expected`. Infinite when they must agree exactly and do not: NaN, infinities, the
/// missing value and, but for coordinates, the answers -1 and -2 to invalid input. Infinite, too, when `expected` was
/// rounded to single precision and `actual` was not.
double Difference(double actual, double expected, Metric metric);

}  // namespace keltest

#endif
