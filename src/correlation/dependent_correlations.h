#ifndef KELPOWER_CORRELATION_DEPENDENT_CORRELATIONS_H
#define KELPOWER_CORRELATION_DEPENDENT_CORRELATIONS_H

#include "correlation/fisher.h"
#include "frame/answer.h"

// The test that two correlations in one sample are equal: the difference of Fisher's z of both, which are correlated
// themselves (Dunn and Clark 1969, Journal of the American Statistical Association 64, 366-377; Steiger 1980,
// Psychological Bulletin 87, 245-251).

namespace kelpower::correlation {

/// Correlations of three variables: of 1 with 2 is compared with that of 1 with 3.
struct SharedVariable {
  double r12;
  double r13;
  double r23;

  double First() const { return r12; }
  double Second() const { return r13; }
  SharedVariable With(double compared) const { return {compared, compared, r23}; }
};

/// Correlations of four variables: of 1 with 2 is compared with that of 3 with 4.
struct SeparatePairs {
  double r12;
  double r34;
  double r13;
  double r14;
  double r23;
  double r24;

  double First() const { return r12; }
  double Second() const { return r34; }
  SeparatePairs With(double compared) const { return {compared, compared, r13, r14, r23, r24}; }
};

/// Whether there are variables with such correlations, none of which is a linear function of the others.
bool IsPositiveDefinite(const SharedVariable& correlations);
bool IsPositiveDefinite(const SeparatePairs& correlations);

/// Between which the second of the correlations compared lies, given the others. NaN where these contradict each other.
struct PossibleCorrelations {
  double low;
  double high;
};

PossibleCorrelations PossibleSecond(const SharedVariable& correlations);
PossibleCorrelations PossibleSecond(const SeparatePairs& correlations);

/// The correlation of Fisher's z of the two correlations compared.
double CorrelationOfZ(const SharedVariable& correlations);
double CorrelationOfZ(const SeparatePairs& correlations);

/// What both correlations are taken to be under the null hypothesis, for the standard error there.
enum class NullCorrelations {
  First,    ///< the first one
  Average,  ///< their average
  Expected  ///< each its own, so that the standard error is that under the alternative
};

SharedVariable UnderNull(const SharedVariable& correlations, NullCorrelations null);
SeparatePairs UnderNull(const SeparatePairs& correlations, NullCorrelations null);

/// The standard error of the difference of z: sqrt((2 - 2 c) / (size - 3)), c the correlation of both.
double StandardErrorOfDifference(double correlationOfZ, double size);

/// The difference of z in units of its standard error under the null hypothesis. Nothing is checked.
ShiftedNormal UnderAlternative(const SharedVariable& correlations, NullCorrelations null, double size);
ShiftedNormal UnderAlternative(const SeparatePairs& correlations, NullCorrelations null, double size);

/// Refused for a size of 3 or less, what is no level, and correlations that are not positive definite, as expected or
/// under the null hypothesis. A one-sided test looks in the direction of the difference.
Answer Power(const Level& level, const SharedVariable& correlations, NullCorrelations null, double size);
Answer Power(const Level& level, const SeparatePairs& correlations, NullCorrelations null, double size);

}  // namespace kelpower::correlation

#endif
