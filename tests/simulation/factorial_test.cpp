#include "anova/factorial.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "anova/one_effect.h"
#include "support/drawn_factorial.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

void ExpectPowerOfStudies(const FactorialStudy& study, unsigned seed) {
  std::vector<double> term;
  for (int factor : study.term) term.push_back(factor + 1);
  const auto tested = FactorialTerm::Of({study.levels.begin(), study.levels.end()}, term);
  const double total = std::accumulate(study.sizes.begin(), study.sizes.end(), 0.0);
  const EffectTest test(tested->Df(), total - tested->Cells(), 0.05);
  const double power = *test.Power(*tested->Noncentrality(study.means, study.sizes, study.sd));

  FactorialAnalysis analysis(study);
  ASSERT_EQ(analysis.Model().Tested(), tested->Df());
  ASSERT_EQ(analysis.Model().Columns(), tested->Cells());
  const double critical = test.AtCriticalValue()->critical;
  const auto rejects = [&](auto& engine) { return analysis.F(engine) > critical; };
  EXPECT_LT(Simulate(1000000, seed, rejects).StandardErrorsFrom(power), kMostStandardErrors) << power;
}

TEST(FactorialStudies, InteractionOfUnequalCellsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{2, 3}, {0, 1}, {10, 12, 15, 10, 11, 9}, {2, 3, 4, 3, 2, 1}, 3}, 1);
}

TEST(FactorialStudies, MainEffectOfUnequalCellsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{2, 3}, {1}, {10, 12, 15, 10, 11, 9}, {2, 3, 4, 3, 2, 1}, 2}, 2);
}

TEST(FactorialStudies, InteractionOfThreeLevelsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({{3, 3}, {0, 1}, {1, 2, 3, 2, 5, 4, 0, 1, 7}, {1, 2, 3, 2, 1, 2, 3, 2, 2}, 2}, 3);
}

}  // namespace
}  // namespace kelpower::anova
