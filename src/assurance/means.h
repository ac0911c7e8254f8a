#ifndef KELPOWER_ASSURANCE_MEANS_H
#define KELPOWER_ASSURANCE_MEANS_H

#include <vector>

#include "assurance/wish.h"
#include "frame/answer.h"

namespace kelpower::assurance {

/// An estimate from normal data whose variance is sd^2 variance / size, where sd is estimated on
/// perSize * size - groups degrees of freedom: a mean, a difference or a contrast of means.
struct MeanEstimate {
  double sd;        ///< within groups, in the unit of the half-width
  double variance;  ///< of the estimate at a size of 1, over sd^2
  double perSize;   ///< observations for each unit of the size, at least 1
  double groups;    ///< means that are estimated, 1 to `mostGroups`
  double smallest;  ///< whole size that gives each group an observation, and a degree of freedom

  static constexpr double mostGroups = 10000;

  /// One mean; for pairs the mean of their differences, with the standard deviation of the differences. The size counts
  /// the observations or the pairs.
  static MeanEstimate OfMean(double sd);

  /// The difference of two means with one standard deviation. The size is that of group 1, and group 2 has `ratio`
  /// times as many, unrounded.
  static MeanEstimate OfDifference(double sd, double ratio);

  /// The contrast sum c_i m_i, with groups of the sizes total * weight / sum of the weights, unrounded. The size is the
  /// total one. Both lists have one number a group; the rest of the longer one is ignored.
  static MeanEstimate OfContrast(const std::vector<double>& coefficients, const std::vector<double>& weights,
                                 double sd);
};

/// The probability, 0 to 1, that the interval at a size is at most as wide as wished: with df degrees of freedom
///
///   P(t s sqrt(variance / size) <= halfWidth) = P(chi-square on df <= df size halfWidth^2 / (t^2 sd^2 variance)).
///
/// Refused for no degree of freedom, a standard deviation or a variance that is not above 0, what is no wish and too
/// many groups.
Answer Assurance(const MeanEstimate& estimate, const Wish& wish, double size);

/// The first whole size of the assurance, which lies in (0, 1). Not reached where no size up to `largestCount` has it.
Answer FirstSize(const MeanEstimate& estimate, const Wish& wish, double assurance);

}  // namespace kelpower::assurance

#endif
