#ifndef KELPOWER_ANOVA_OVERALL_POWER_H
#define KELPOWER_ANOVA_OVERALL_POWER_H

#include <optional>

#include "frame/rejection.h"

namespace kelpower {

/// sum(m_i n_i) / sum(n_i), formed around the first mean, so that equal means give exactly that mean and large means
/// close to each other keep the digits of their differences. NaN without groups.
double WeightedGrandMean(int numGroups, const double* groupMeans, const double* groupSizes);

/// The largest |m_i - center|, in whose units squares of deviations neither overflow nor underflow.
double LargestDistance(int numGroups, const double* groupMeans, double center);

/// How far the group means lie apart, weighted by the group sizes: S = sum (n_i / W) (m_i - G)^2.
/// S is kept as scale^2 * scaledVariance, because neither the square of a deviation nor its product with a total size
/// may overflow where the noncentrality does not.
struct GroupSpread {
  double scale;           ///< LargestDistance from the grand mean G
  double scaledVariance;  ///< S / scale^2

  static GroupSpread Of(int numGroups, const double* groupMeans, const double* groupSizes);

  /// S / (pooledSD^2 / sampleSize)
  double Noncentrality(double pooledSD, double sampleSize) const;
};

/// The noncentrality of an effect: f^2 N, or eta^2 N / (1 - eta^2) when the effect is a proportion of variance.
/// Cohen, J. (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., eqs. 8.2.19 and 8.3.1.
double NoncentralityFromEffectSize(double effectSize, bool isEtaSquared, double sampleSize);

/// The overall F test at one total size and level: what its power at every effect shares.
class OverallTest {
public:
  OverallTest(int numGroups, double sampleSize, double alpha);

  /// The power at a noncentrality; missing when there are too few groups, fewer subjects than groups, or no such level.
  double Power(double noncentrality) const;

private:
  std::optional<FTest> test_;
};

double OverallPowerFromMeans(int numGroups, const GroupSpread& spread, double pooledSD, double sampleSize,
                             double alpha);

double OverallPowerFromEffectSize(int numGroups, double effectSize, bool isEtaSquared, double sampleSize, double alpha);

}  // namespace kelpower

#endif
