#include "anova/contrast.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "anova/sizes.h"
#include "frame/checks.h"
#include "frame/scale.h"

namespace kelpower::anova {

namespace {

double ScaledVariance(PerGroup coefficients, PerGroup sizes, double scale) {
  double variance = 0;
  for (int i = 0; i < coefficients.Count(); ++i) {
    const double coefficient = coefficients[i] / scale;
    variance += coefficient * coefficient / sizes[i];
  }
  return variance;
}

}  // namespace

double ContrastValue(PerGroup coefficients, PerGroup means) {
  double value = 0;
  for (int i = 0; i < coefficients.Count(); ++i) value += coefficients[i] * means[i];
  return value;
}

double ContrastVariance(PerGroup coefficients, PerGroup sizes) { return ScaledVariance(coefficients, sizes, 1); }

WeightedContrast::WeightedContrast(PerGroup coefficients, PerGroup weights)
    : scale_(BinaryScale(LargestMagnitude(coefficients))),
      scaledVariance_(ScaledVariance(coefficients, weights, scale_)),
      sumOfWeights_(Sum(weights)) {}

double WeightedContrast::Noncentrality(double effectSize, double relativeSize) const {
  const double effect = effectSize / scale_;
  const double explained = relativeSize * effect * effect;
  if (std::isinf(scaledVariance_) && !std::isnan(explained)) return 0;
  return explained / scaledVariance_;
}

std::vector<double> PairContrast(int numGroups, int firstGroup, int secondGroup) {
  const auto size = static_cast<std::size_t>(numGroups > 0 ? numGroups : 0);
  std::vector<double> contrast(size, 0.0);
  if (firstGroup >= 1 && firstGroup <= numGroups) contrast[static_cast<std::size_t>(firstGroup) - 1] = 1.0;
  if (secondGroup >= 1 && secondGroup <= numGroups) contrast[static_cast<std::size_t>(secondGroup) - 1] = -1.0;
  return contrast;
}

double AdjustedAlpha(Adjustment adjustment, int numGroups, double alpha) {
  const double k = numGroups;
  switch (adjustment) {
    case Adjustment::Bonferroni: return (alpha + alpha) / k / (k - 1);
    case Adjustment::Sidak: return 1 - std::pow(1 - alpha, 2.0 / k / (k - 1));  // Sidak (1967)
    case Adjustment::None: break;
  }
  return alpha;
}

ContrastTest::ContrastTest(int numGroups, double totalSize, bool isOneSided, double alpha) {
  if (numGroups <= 1) return;
  if (numGroups > totalSize) return;
  if (RejectsAlpha(alpha)) return;
  const double df = totalSize - numGroups;
  if (isOneSided)
    tTest_ = TTest::OneSided(alpha, df);
  else
    fTest_ = FTest::AtLevel(alpha, 1, df);
}

Answer ContrastTest::Power(double noncentrality) const {
  if (tTest_) return tTest_->PowerUpperTail(std::sqrt(noncentrality));
  if (fTest_) return fTest_->Power(noncentrality);
  return NoValue::Refused;
}

Answer Power(const ContrastDesign& design, double totalSize) {
  const WeightedContrast contrast(design.coefficients, design.weights);
  return ContrastTest(design.coefficients.Count(), totalSize, design.isOneSided, design.alpha)
      .Power(contrast.Noncentrality(design.effectSize, contrast.RelativeSize(totalSize)));
}

Answer TotalForPower(const ContrastDesign& design, double power) {
  const int numGroups = design.coefficients.Count();
  const WeightedContrast contrast(design.coefficients, SharesOf(design.weights));
  const auto powerAt = [&](double total) {
    return ContrastTest(numGroups, total, design.isOneSided, design.alpha)
        .Power(contrast.Noncentrality(design.effectSize, contrast.RelativeSize(total)));
  };
  return TotalForPower(numGroups, powerAt, power);
}

double HalfWidth(const ContrastInterval& interval, double totalSize) {
  const double variance = ContrastVariance(interval.coefficients, interval.weights);
  const double df = totalSize - interval.coefficients.Count();
  return std::sqrt(variance * Sum(interval.weights) / totalSize) *
         (IntervalQuantileT(interval.alpha, df) * interval.sd);
}

Answer TotalForHalfWidth(const ContrastInterval& interval, double halfWidth) {
  const double variance = ContrastVariance(interval.coefficients, interval.weights);
  const double relativeWidth = halfWidth / interval.sd;
  const double slope = relativeWidth * relativeWidth / Sum(interval.weights);
  return TotalForHalfWidth(interval.coefficients.Count(), slope, variance, interval.alpha);
}

}  // namespace kelpower::anova
