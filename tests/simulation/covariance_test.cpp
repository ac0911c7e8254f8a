#include "anova/covariance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "anova/overall.h"
#include "support/drawn_covariates.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

void ExpectPowerOfStudies(const CovariateStudy& study, unsigned seed) {
  const GroupSpread spread = GroupSpread::Of(study.means, study.sizes);
  const double total = std::accumulate(study.sizes.begin(), study.sizes.end(), 0.0);
  const CovarianceTest test(static_cast<int>(study.means.size()), total, study.covariates, 0.05);
  const double noncentrality = spread.Noncentrality(study.residualSd, total);
  const double critical = test.AtBalancedCovariates().AtCriticalValue()->critical;
  CovarianceAnalysis analysis(study);
  const SimulatedShare share = Simulate(1000000, seed, [&](auto& engine) { return analysis.F(engine) > critical; });
  EXPECT_LT(share.StandardErrorsFrom(*test.Power(noncentrality)), kMostStandardErrors) << *test.Power(noncentrality);
  EXPECT_GT(share.StandardErrorsFrom(*test.PowerOfBalancedCovariates(noncentrality)), 10 * kMostStandardErrors);
}

TEST(CovarianceStudies, ThreeGroupsFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{400, 450, 500}, {6, 6, 6}, 1, 0.7, std::sqrt(1900.0)}, 11);
}

TEST(CovarianceStudies, UnequalGroupsWithSeveralCovariatesFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{0, 1, 3}, {3, 5, 4}, 3, 0.7, 1.5}, 12);
}

TEST(CovarianceStudies, TwoGroupsWithManyCovariatesFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{0, 2}, {7, 5}, 6, 0.7, 1}, 13);
}

}  // namespace
}  // namespace kelpower::anova
