#ifndef KELPOWER_PROPORTIONS_SCORE_REGION_H
#define KELPOWER_PROPORTIONS_SCORE_REGION_H

#include "proportions/table_region.h"

// The exact unconditional test of a difference of two proportions, with tables in the order of the score statistic: Chan,
// I. S. F. (1998), Statistics in Medicine 17, 1403-1413; Chan, I. S. F. and Zhang, Z. (1999), Biometrics 55, 1202-1209.

namespace kelpower::proportions {

/// The statistic of Farrington and Manning for H0: p2 - p1 <= difference, at x1 of n1 and x2 of n2 successes.
double ScoreStatistic(const GroupSizes& sizes, double difference, std::int64_t x1, std::int64_t x2);

/// The tables that the test of H0: p2 - p1 <= difference rejects: as many in the order of the statistic, those of equal
/// statistic together, as have a probability of at most `alpha` whichever two proportions have the difference.
TableRegion ScoreRegion(const GroupSizes& sizes, double difference, double alpha);

}  // namespace kelpower::proportions

#endif
