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

// ---------------------------------------------------------------------------------------------------------------------
// Frame
// ---------------------------------------------------------------------------------------------------------------------

/// Binomial coefficient C(n, k); 1 when `k` is 0 or `n`.
///
/// For fractional arguments: the product of the whole numbers from n - m + 1, truncated, to n, divided by that of the
/// whole numbers up to m, where m is the smaller of k and n - k. So it is 1 for k < 0 or k > n.
/// \param n number of things, any double
/// \param k number chosen, any double
/// \return the coefficient, plus infinity where it is not representable; NaN when an argument is (but k = 0 gives 1)
KELPOWER_API double Combination(double n, double k);

/// Inverse hyperbolic tangent, Fisher's z of a correlation.
/// \param x any double; a correlation
/// \return atanh(x), with plus and minus infinity at 1 and -1; `x` itself when |x| < 1e-12; -1 when |x| > 1
KELPOWER_API double InvTanh(double x);

/// Releases the arrays of a curve. `x` becomes null; `y` and `count` stay as they were, so a record must be released
/// only once.
/// \param record a record that this library returned
KELPOWER_API void FreeMemXYPlot(XYPlot* record);

/// Releases the arrays of a surface. `x` and `y` become null; `z` and the counts stay as they were, so a record must be
/// released only once.
/// \param record a record that this library returned
KELPOWER_API void FreeMemXYZPlot(XYZPlot* record);

}  // extern "C"

#endif
