#ifndef KELPOWER_CORRELATION_TWO_CORRELATIONS_H
#define KELPOWER_CORRELATION_TWO_CORRELATIONS_H

#include "correlation/fisher.h"
#include "frame/answer.h"

// The test that two independent groups have the same correlation: the difference q of Fisher's z of both, which is
// nearly normal with variance 1 / (n1 - 3) + 1 / (n2 - 3) (Fisher 1921, Metron 1, 3-32; Cohen 1988, Statistical Power
// Analysis for the Behavioral Sciences, 2nd ed., chapter 4).

namespace kelpower::correlation {

/// Pairs in each group.
struct GroupSizes {
  double first;
  double second;
};

/// The standard error of q.
double StandardError(const GroupSizes& sizes);

/// Refused for a size of 3 or less and what is no level. A one-sided test looks in the direction of q.
Answer PowerOfDifference(const Level& level, double q, const GroupSizes& sizes);

}  // namespace kelpower::correlation

#endif
