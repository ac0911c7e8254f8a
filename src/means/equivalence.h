#ifndef KELPOWER_MEANS_EQUIVALENCE_H
#define KELPOWER_MEANS_EQUIVALENCE_H

#include "frame/answer.h"
#include "frame/rejection.h"
#include "means/independent.h"

// The equivalence of means: two one-sided t tests, of which one is to show that a difference lies above the lower limit
// and the other that it lies below the upper one (Schuirmann 1987, Journal of Pharmacokinetics and Biopharmaceutics 15,
// 657-680). That is the case where the interval with confidence 1 - 2 alpha lies between the limits.

namespace kelpower::means {

/// How far the true difference is inside each limit; negative outside.
struct Insides {
  double aboveLower;
  double belowUpper;
};

/// The power of the two tests, exactly (Owen 1965, Biometrika 52, 437-446; Phillips 1990, Journal of Pharmacokinetics and
/// Biopharmaceutics 18, 137-144). With u the estimated standard error over the true one, Z standard normal, and both
/// distances in standard errors,
///   power = P(t u - aboveLower < Z < belowUpper - t u) = E[Phi(belowUpper - t u) - Phi(t u - aboveLower)],
/// where only u below (aboveLower + belowUpper) / (2 t) leave room for Z.
Answer PowerBetweenLimits(const Insides& distances, double alpha, const DifferenceDistribution& estimate);

/// The same from the critical value and distances in standard errors.
double PowerOfTwoTests(const TTest& test, const Insides& inStandardErrors);

}  // namespace kelpower::means

#endif
