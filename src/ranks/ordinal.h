#ifndef KELPOWER_RANKS_ORDINAL_H
#define KELPOWER_RANKS_ORDINAL_H

#include <cstddef>
#include <optional>

#include "frame/answer.h"
#include "ranks/nearly_normal.h"

// The Wilcoxon-Mann-Whitney test of two independent groups whose values are ordered categories, with ties in ranks.

namespace kelpower::ranks {

/// How the power is approximated.
enum class OrdinalMethod {
  /// By the logarithm of the odds that a value of the one group exceeds one of the other (O'Brien and Castelloe 2006,
  /// SUGI 31, paper 209).
  LogOdds,
  /// By the score test of the odds ratio, where the odds are proportional (Whitehead 1993, Statistics in Medicine 12,
  /// 2257-2271). The information is that of his sample size.
  ProportionalOdds,
  /// By the probability itself (Happ, Bathke and Brunner 2019, Statistics in Medicine 38, 363-375).
  Probability
};

struct OrdinalTest {
  OrdinalMethod method;
  Sides sides;
  double alpha;  ///< significance level
};

/// How two groups are spread over categories, from the lowest to the highest. The probabilities are on any scale. Those
/// of the second group are given, or follow from an odds ratio: that of a higher category, over the first group's, the
/// same at each cut.
struct OrderedGroups {
  const double* first;
  const double* second;  ///< null where the odds ratio tells it
  double oddsRatio;      ///< 0 where it is not known
  std::size_t categories;
};

/// What the groups come to. The shares are those of the other group below a value, ties counting half.
struct OrdinalMoments {
  double excess;           ///< the probability that a value of the first group exceeds one of the second, less 1/2
  double firstVariance;    ///< of the share of the second group below a value of the first
  double secondVariance;   ///< of the share of the first group below a value of the second
  double mixtureVariance;  ///< of the share of the mixture of the groups below its values
};

/// In the mixture the first group has the weight `firstShare`. None for entries that are below 0 or all 0, for an odds
/// ratio that is not above 0, and for a single category that can occur.
std::optional<OrdinalMoments> MomentsOf(const OrderedGroups& groups, double firstShare);

/// Refused for a level outside (0, 1), for groups that are too small for any ranks to reject, for log odds of groups
/// that do not overlap, and for proportional odds without an odds ratio.
std::optional<NearlyNormal> StatisticOf(const OrdinalTest& test, const OrderedGroups& groups, double n1, double n2);
Answer Power(const OrdinalTest& test, const OrderedGroups& groups, double n1, double n2);

}  // namespace kelpower::ranks

#endif
