#include "proportions/independent_power.h"

#include "frame/checks.h"

namespace kelpower::proportions {

namespace {

bool RejectsDesign(const IndependentDesign& design, double size1, double size2) {
  if (RejectsGroupSize(size1)) return true;
  if (RejectsGroupSize(size2)) return true;
  if (RejectsAlpha(design.alpha)) return true;
  // The t test has N1 + N2 - 2 degrees of freedom.
  return design.test == TwoProportionTest::T && size1 + size2 <= 2;
}

}  // namespace

IndependentPower::IndependentPower(const IndependentDesign& design, double size1, double size2) {
  if (RejectsDesign(design, size1, size2)) return;
  if (!design.isExact)
    computation_.emplace<LargeSampleTest>(design, size1, size2);
  else if (design.test == TwoProportionTest::Conditional)
    computation_.emplace<ConditionalTest>(design, size1, size2);
  else if (design.test != TwoProportionTest::Arcsine)
    computation_.emplace<EnumeratedTest>(design, size1, size2);
}

Answer IndependentPower::At(double p1, double p2, Stop stop) {
  if (RejectsInnerProportion(p1)) return NoValue::Refused;
  if (RejectsInnerProportion(p2)) return NoValue::Refused;
  if (auto* const largeSample = std::get_if<LargeSampleTest>(&computation_)) return largeSample->Power(p1, p2);
  if (auto* const enumerated = std::get_if<EnumeratedTest>(&computation_)) return enumerated->Power(p1, p2, stop);
  if (auto* const conditional = std::get_if<ConditionalTest>(&computation_)) return conditional->Power(p1, p2, stop);
  return NoValue::Refused;
}

Answer IndependentPower::AttainedLevel(Alternative alternative, double p, Stop stop) {
  if (RejectsInnerProportion(p)) return NoValue::Refused;
  if (auto* const test = std::get_if<EnumeratedTest>(&computation_)) return test->PowerAgainst(alternative, p, p, stop);
  if (auto* const test = std::get_if<ConditionalTest>(&computation_))
    return test->PowerAgainst(alternative, p, p, stop);
  return NoValue::Refused;
}

}  // namespace kelpower::proportions
