#ifndef KELPOWER_ANOVA_COVARIANCE_H
#define KELPOWER_ANOVA_COVARIANCE_H

#include "anova/one_effect.h"
#include "frame/answer.h"

// The F test of adjusted group means with covariates: one-way analysis of covariance.

namespace kelpower::anova {

/// The test at one total size and level.
///
/// The covariates are drawn with the subjects, from a normal distribution that is the same in all groups. By chance their
/// means differ between the groups, and adjusting for that costs precision. At covariates as observed, F is noncentral on
/// k - 1 and N - k - p degrees of freedom with noncentrality lambda B, where lambda is that of groups that do not differ
/// in the covariates. Over the covariates, B has the beta distribution with parameters (N - 1 - p) / 2 and p / 2:
///
/// With k - 1 standardized contrasts, B is a diagonal element of (I + U S^-1 U')^-1, where U, of p columns, holds those of
/// the covariates and S, Wishart on N - k degrees of freedom, their products within the groups. The inverse is
/// I - U (S + U'U)^-1 U', and for a row u of U, u' (S + U'U)^-1 u is beta with p / 2 and (N - k + k - 1 - p) / 2 (Rao 1973,
/// Linear Statistical Inference and Its Applications, 2nd ed., section 8b). Shieh (2020), Psychometrika 85:101-120, has
/// the mixture, for two groups with the same parameters.
class CovarianceTest {
public:
  /// Beyond it the density of B could not be told from rounding.
  static constexpr double mostCovariates = 1000;

  /// The power is refused for fewer than two groups, a number of covariates that is none and without degrees of freedom of the error.
  CovarianceTest(double numGroups, double totalSize, double covariates, double alpha);

  /// Averaged over the covariates. Without any it is that of the one-way test.
  Answer Power(double noncentrality) const;

  /// As if the groups did not differ in the covariates (B = 1), which is too much.
  Answer PowerOfBalancedCovariates(double noncentrality) const { return test_.Power(noncentrality); }

  const EffectTest& AtBalancedCovariates() const { return test_; }

  /// The mean of B: the share of the noncentrality that is left.
  double MeanShare() const;

private:
  double totalSize_;
  double covariates_;
  EffectTest test_;
};

}  // namespace kelpower::anova

#endif
