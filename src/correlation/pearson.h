#ifndef KELPOWER_CORRELATION_PEARSON_H
#define KELPOWER_CORRELATION_PEARSON_H

#include "correlation/fisher.h"
#include "frame/answer.h"
#include "frame/stop.h"

// Pearson correlations and partial ones, whose Fisher's z has about the variance 1 / (N - 3 - k).

namespace kelpower::correlation {

struct PearsonTest {
  Level level;
  double partialledOut = 0;  ///< k, the number of variables partialled out
  /// Takes the mean and the variance of z to the second order of 1 / (N - 1 - k) (Fisher 1921; Hotelling 1953).
  bool isCorrected = false;

  /// Whether the power is known never to fall as the size grows. Near the null and at few cases the correction for bias
  /// outweighs the difference of the correlations, and the power falls.
  bool NeverFalls() const { return !isCorrected; }
};

/// The difference of Fisher's z over its standard error 1 / sqrt(N - 3 - k). Nothing is checked.
ShiftedNormal UnderAlternative(const PearsonTest& test, double size, const Hypotheses& hypotheses);

/// Refused for a size of k + 3 or less, a negative k, and what is no correlation or no level.
Answer Power(const PearsonTest& test, double size, const Hypotheses& hypotheses);

/// The search for the size of a partial correlation starts where its test does not exist yet.
inline Bracket PartialBracket(double partialledOut) { return {partialledOut + 3, partialledOut + 400}; }

/// The size, unrounded, at which the test reaches `power`.
Answer SizeForPower(const PearsonTest& test, const Hypotheses& hypotheses, double power, Stop stop = {});

/// A confidence interval.
struct PearsonInterval {
  Confidence confidence;
  double correlation;        ///< expected
  double partialledOut = 0;  ///< k
  bool isCorrected = false;  ///< its centre for bias, to the first order
};

/// NaN where there is no such interval.
double HalfWidth(const PearsonInterval& interval, double size);

/// The size, unrounded.
Answer SizeForHalfWidth(const PearsonInterval& interval, double halfWidth, Stop stop = {});

}  // namespace kelpower::correlation

#endif
