#include "anova/repeated.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "support/drawn_measurements.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

RepeatedEffect EffectOf(const MeasuredStudy& study) {
  if (study.effect == MeasuredEffect::Between) return RepeatedEffect::Between;
  return study.effect == MeasuredEffect::Within ? RepeatedEffect::Within : RepeatedEffect::Interaction;
}

void ExpectPowerOfStudies(const MeasuredStudy& study, unsigned seed) {
  const auto groups = static_cast<double>(study.Groups());
  const RepeatedDesign design{EffectOf(study), groups, static_cast<double>(study.measurements), study.correlation, 1};
  const double total = std::accumulate(study.sizes.begin(), study.sizes.end(), 0.0);
  const EffectTest test = design.TestAt(total, 0.05);
  const double power = *test.Power(*design.NoncentralityOfMeans(study.means, study.sizes, study.sd));

  MeasuredAnalysis analysis(study);
  ASSERT_EQ(analysis.Model().Tested(), design.Df1());
  const double critical = test.AtCriticalValue()->critical;
  const auto rejects = [&](auto& engine) { return analysis.F(engine) > critical; };
  EXPECT_LT(Simulate(1000000, seed, rejects).StandardErrorsFrom(power), kMostStandardErrors) << power;
}

const std::vector<double> table = {10, 10, 11, 10, 12, 14};

TEST(RepeatedStudies, InteractionIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({MeasuredEffect::Interaction, 3, 0.5, table, {5, 3}, 2}, 21);
}

TEST(RepeatedStudies, EffectWithinSubjectsOfUnequalGroupsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({MeasuredEffect::Within, 3, 0.3, table, {2, 6}, 2}, 22);
}

TEST(RepeatedStudies, EffectBetweenGroupsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({MeasuredEffect::Between, 3, 0.6, table, {6, 4}, 1.5}, 23);
}

}  // namespace
}  // namespace kelpower::anova
