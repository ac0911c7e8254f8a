#include "anova/covariance.h"

#include <gtest/gtest.h>

#include <random>

#include "anova/overall.h"
#include "simulation/linear_model.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

struct Groups {
  std::vector<double> means;
  std::vector<double> sizes;
  int covariates;
  double residualSd;
};

/// Studies with covariates of their own, on which the outcome depends: it is fitted, so that the slopes do not count.
void ExpectPowerOfStudies(const Groups& groups, unsigned seed) {
  std::vector<std::size_t> groupOf;
  for (std::size_t group = 0; group < groups.sizes.size(); ++group) {
    groupOf.insert(groupOf.end(), static_cast<std::size_t>(groups.sizes[group]), group);
  }
  const auto count = static_cast<int>(groups.means.size());
  const auto total = static_cast<double>(groupOf.size());
  const CovarianceTest test(count, total, groups.covariates, 0.05);
  const double noncentrality = GroupSpread::Of(groups.means, groups.sizes).Noncentrality(groups.residualSd, total);
  const double critical = test.AtBalancedCovariates().AtCriticalValue()->critical;

  std::vector<Column> indicators;
  for (std::size_t group = 1; group < groups.means.size(); ++group) {
    Column indicator;
    for (std::size_t of : groupOf) indicator.push_back(of == group ? 1 : 0);
    indicators.push_back(indicator);
  }
  Column y(groupOf.size());
  Column covariate(groupOf.size());
  const auto rejects = [&](std::mt19937_64& engine) {
    std::normal_distribution<double> normal(0, 1);
    for (std::size_t i = 0; i < y.size(); ++i) y[i] = groups.means[groupOf[i]] + groups.residualSd * normal(engine);
    LinearModel model;
    model.Add(Column(y.size(), 1), false);
    for (int c = 0; c < groups.covariates; ++c) {
      for (std::size_t i = 0; i < y.size(); ++i) covariate[i] = normal(engine);
      for (std::size_t i = 0; i < y.size(); ++i) y[i] += 0.7 * covariate[i];
      model.Add(covariate, false);
    }
    for (const Column& indicator : indicators) model.Add(indicator, true);
    return model.F(y) > critical;
  };
  const SimulatedShare share = Simulate(1000000, seed, rejects);
  EXPECT_LT(share.StandardErrorsFrom(*test.Power(noncentrality)), kMostStandardErrors) << *test.Power(noncentrality);
  EXPECT_GT(share.StandardErrorsFrom(*test.PowerOfBalancedCovariates(noncentrality)), 10 * kMostStandardErrors);
}

TEST(CovarianceStudies, ThreeGroupsFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{400, 450, 500}, {6, 6, 6}, 1, std::sqrt(1900.0)}, 11);
}

TEST(CovarianceStudies, UnequalGroupsWithSeveralCovariatesFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{0, 1, 3}, {3, 5, 4}, 3, 1.5}, 12);
}

TEST(CovarianceStudies, TwoGroupsWithManyCovariatesFindTheirEffectAsOftenAsPlanned) {
  ExpectPowerOfStudies({{0, 2}, {7, 5}, 6, 1}, 13);
}

}  // namespace
}  // namespace kelpower::anova
