#ifndef KELPOWER_CORRELATION_FISHER_H
#define KELPOWER_CORRELATION_FISHER_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/stop.h"

// What the tests and intervals of correlations share: they go by Fisher's z, the inverse hyperbolic tangent of a
// correlation, which is nearly normal.

namespace kelpower::correlation {

/// The level and the direction of a test, with the critical value that follows.
struct Level {
  double alpha;
  bool isOneSided;
  double critical;  ///< normal quantile

  Level(double level, bool oneSided);

  /// The power of a statistic that is normal with mean `shift` and standard deviation `spread`. A one-sided test looks
  /// for the alternative above the null where it is above it, and below it otherwise.
  double Power(double shift, double spread, bool isAbove) const;
};

/// A statistic under the alternative: normal with mean `shift` and standard deviation `spread`, which are 0 and 1 under
/// the null hypothesis.
struct ShiftedNormal {
  double shift;
  double spread;
};

/// The confidence of an interval, 1 - alpha, as the normal quantile that half-widths are multiplied by.
struct Confidence {
  double quantile;

  explicit Confidence(double alpha);
};

/// What is tested: that the correlation is `null`, where it is `alternative`.
struct Hypotheses {
  double alternative;
  double null;
};

/// What lies outside [-1, 1] is no correlation, and what lies outside (0, 1) no level.
bool Rejects(const Hypotheses& hypotheses, const Level& level);

/// The difference of Fisher's z of the two correlations. Where either is 1 or -1 it is the largest double with its
/// sign, positive where both are 1 or both are -1; that is intended.
double FisherDifference(const Hypotheses& hypotheses);

/// Half the length of the interval from tanh(z - h) to tanh(z + h), without the cancellation of that difference.
double BackTransformedHalfWidth(double z, double h);

/// The sizes between which a search starts.
struct Bracket {
  double lower;
  double upper;  ///< doubled until the bracket holds the size
};

constexpr Bracket usualBracket{4, 400};

/// The size, unrounded, at which `powerAt` reaches a power. It is a number below every power where there is no test.
/// `neverFalls` says that the power is known not to fall as the size grows.
Answer SizeForPower(FunctionView<double(double size)> powerAt, bool neverFalls, const Bracket& bracket, double power,
                    Stop stop);

/// The size, unrounded, at which `halfWidthAt` falls to a half-width.
Answer SizeForHalfWidth(FunctionView<double(double size)> halfWidthAt, const Bracket& bracket, double halfWidth,
                        Stop stop);

}  // namespace kelpower::correlation

#endif
