#include "proportions/independent_power.h"

#include <algorithm>

#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "frame/root_finders.h"

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

double FirstArcsineSize(const IndependentSizes& wanted) {
  const auto& [p1, p2, ratio] = wanted;
  if (p1 > p2) return std::max(0.5 / ((1 - p2) * ratio), 0.5 / p1);
  return std::max(1 / (2 * ratio * p2), 0.5 / (1 - p1));
}

bool NeverFalls(const IndependentDesign& design, double ratio) {
  switch (design.test) {
    // The critical difference is a multiple of the standard error, while both sizes grow; the correction falls faster.
    case TwoProportionTest::Z: return 2 * ratio >= 1;
    // The squared noncentrality is 1 / (v / n1 + w / n2), and the degrees of freedom grow. That of the likelihood ratio
    // is the least of the sums n1 KL(p1, m) + n2 KL(p2, m).
    case TwoProportionTest::T:
    case TwoProportionTest::LikelihoodRatio: return true;
    // The arcsine test's correction can turn the sign of its effect; the powers of exact tests jump.
    case TwoProportionTest::Arcsine:
    case TwoProportionTest::Conditional: break;
  }
  return false;
}

Answer FirstSizeForPower(double lower, double upper, FunctionView<double(double)> powerAt, bool neverFalls,
                         double power, Stop stop) {
  constexpr double tolerance = 1e-9;
  return neverFalls ? SolveIncreasingPower(lower, upper, tolerance, powerAt, power, stop)
                    : SolvePower(lower, upper, tolerance, powerAt, power, stop);
}

Answer FirstSizeForPower(const IndependentDesign& design, const IndependentSizes& wanted, double power, Stop stop) {
  if (design.isExact) return NoValue::Refused;
  const bool isArcsine = design.test == TwoProportionTest::Arcsine;
  const double lower = isArcsine ? FirstArcsineSize(wanted) : 2;
  const double upper = isArcsine ? lower + 400 : 400;
  const auto powerAt = [&](double size1) {
    IndependentPower test(design, size1, std::max(1.0, wanted.ratio * size1));
    return test.At(wanted.p1, wanted.p2).ValueOr(belowEveryPower);
  };
  return FirstSizeForPower(lower, upper, powerAt, NeverFalls(design, wanted.ratio), power, stop);
}

}  // namespace kelpower::proportions
