#include "proportions/independent_power.h"

#include "frame/checks.h"
#include "proportions/results.h"

namespace kelpower {

namespace {

bool RejectsDesign(const IndependentTest& test, double sampleSize1, double sampleSize2) {
  if (RejectsGroupSize(sampleSize1)) return true;
  if (RejectsGroupSize(sampleSize2)) return true;
  if (RejectsAlpha(test.alpha)) return true;
  // The t test has N1 + N2 - 2 degrees of freedom.
  return test.statistic == TwoProportionStatistic::T && sampleSize1 + sampleSize2 <= 2;
}

}  // namespace

IndependentPower::IndependentPower(const IndependentTest& test, double sampleSize1, double sampleSize2) {
  if (RejectsDesign(test, sampleSize1, sampleSize2)) return;
  if (!test.exact)
    computation_.emplace<LargeSampleTest>(test, sampleSize1, sampleSize2);
  else if (test.statistic == TwoProportionStatistic::ArcsineOrConditional)
    computation_.emplace<ConditionalTest>(test, sampleSize1, sampleSize2);
  else
    computation_.emplace<EnumeratedTest>(test, sampleSize1, sampleSize2);
}

double IndependentPower::At(double p1, double p2, StopRequest* stop) {
  if (RejectsInnerProportion(p1)) return kInvalid;
  if (RejectsInnerProportion(p2)) return kInvalid;
  if (auto* const largeSample = std::get_if<LargeSampleTest>(&computation_)) return largeSample->Power(p1, p2);
  if (auto* const enumerated = std::get_if<EnumeratedTest>(&computation_)) return enumerated->Power(p1, p2, stop);
  if (auto* const conditional = std::get_if<ConditionalTest>(&computation_)) return conditional->Power(p1, p2, stop);
  return kInvalid;
}

}  // namespace kelpower
