#ifndef KELPOWER_H
#define KELPOWER_H

/// \file
/// Statistical power analysis: power, sample size, precision and chart series of the supported tests.
///
/// Every function is plain, undecorated and free of state; any number of threads may call them at once. Nothing is
/// thrown, printed or kept between calls, and no pointer to a caller's array outlives the call it is passed to.
///
/// Recurring terms:
/// - *missing*: the system-missing value, the most negative finite double.
/// - *flag*: an int or a byte in which 0 means no and every other value yes, unless stated otherwise.
/// - Checks reject what lies outside a range and nothing else, so a NaN argument passes them and gives a NaN result.

#include <cstdint>
#include <vector>

#if defined(__GNUC__)
#define KELPOWER_API __attribute__((visibility("default")))
#else
#define KELPOWER_API
#endif

/// A growable sequence of doubles, owned by the caller, into which sample-size functions of groups write group sizes.
/// Caller and library must be built against the same standard library.
using DoubleVector = std::vector<double>;

/// Lets the caller of a long computation end it. A null pointer means that it is never stopped.
class StopRequest {
public:
  virtual ~StopRequest() = default;

  /// Asked between steps, from the thread that called the library; true ends the computation with the missing value.
  virtual bool ShouldStop() = 0;
};

/// A curve: `count` points (x[i], y[i]). The arrays belong to the caller, who releases them with `FreeMemXYPlot`.
/// The empty record, the answer to invalid input, has count 0 and null arrays.
struct XYPlot {
  std::int32_t count;
  double* x;
  double* y;
};

/// A surface: z[i * yCount + j] is the value at (x[i], y[j]). The arrays belong to the caller, who releases them with
/// `FreeMemXYZPlot`. The empty record has counts 0 and null arrays.
struct XYZPlot {
  std::int32_t xCount;
  std::int32_t yCount;
  double* x;
  double* y;
  double* z;
};

extern "C" {

KELPOWER_API double Combination(double n, double k);

}  // extern "C"

#endif
