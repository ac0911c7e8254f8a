#include "anova/contrast_power.h"

#include <cmath>
#include <limits>

#include "anova/group_sizes.h"
#include "frame/checks.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace kelpower {

using KelCommon::KelMV;

double ContrastValue(int numGroups, const double* groupMeans, const double* contrastCoefficients) {
  double value = 0;
  for (int i = 0; i < numGroups; ++i) value += contrastCoefficients[i] * groupMeans[i];
  return value;
}

double StandardisedContrast(double value, double pooledSD) {
  return pooledSD > 0 ? value / pooledSD : KelMV::Missing();
}

double ContrastVariance(int numGroups, const double* contrastCoefficients, const double* groupSizes) {
  double variance = 0;
  for (int i = 0; i < numGroups; ++i) variance += contrastCoefficients[i] * contrastCoefficients[i] / groupSizes[i];
  return variance;
}

double ContrastNoncentrality(double effectSize, double relativeSize, double variance) {
  const double effect = KelMV::IsMissing(effectSize) ? std::numeric_limits<double>::infinity() : effectSize;
  return relativeSize * effect * effect / variance;
}

ContrastTest::ContrastTest(int numGroups, double sampleSize, bool isDirectional, double alpha) {
  if (numGroups <= 1) return;
  if (numGroups > sampleSize) return;
  if (RejectsAlpha(alpha)) return;
  const double df = sampleSize - numGroups;
  if (isDirectional)
    tTest_ = TTest::OneSided(alpha, df);
  else
    fTest_ = FTest::AtLevel(alpha, 1, df);
}

double ContrastTest::Power(double noncentrality) const {
  if (tTest_) return tTest_->PowerUpperTail(std::sqrt(noncentrality));
  if (fTest_) return fTest_->Power(noncentrality);
  return KelMV::Missing();
}

double SolveContrastTotal(int numGroups, double effectSize, const double* groupRatios,
                          const double* contrastCoefficients, double power, bool isDirectional, double alpha) {
  const DoubleVector shares = SharesOf(numGroups, groupRatios);
  const double sumOfShares = SampleSizeTotal(numGroups, shares.data());
  const double variance = ContrastVariance(numGroups, contrastCoefficients, shares.data());
  const auto powerAt = [&](double size) {
    const ContrastTest test(numGroups, size, isDirectional, alpha);
    return test.Power(ContrastNoncentrality(effectSize, size / sumOfShares, variance));
  };
  return SolveTotalForPower(numGroups, powerAt, power);
}

ChartedContrast::ChartedContrast(int numGroups, const double* groupMeans, const double* groupSizes,
                                 double* contrastCoefficients)
    : numGroups_(numGroups),
      groupMeans_(groupMeans),
      groupSizes_(groupSizes),
      coefficients_(contrastCoefficients),
      totalSize_(SampleSizeTotal(numGroups, groupSizes)) {}

double ChartedContrast::Noncentrality(double pooledSD, double sampleSize) {
  const double effectSize = EffectSize(pooledSD);
  return ContrastNoncentrality(effectSize, sampleSize / totalSize_, variance_);
}

double ChartedContrast::EffectSize(double pooledSD) {
  if (repaired_) return StandardisedContrast(value_, pooledSD);
  repaired_ = true;
  const double effectSize = EffectSizeSC(numGroups_, groupMeans_, pooledSD, coefficients_);
  value_ = ContrastValue(numGroups_, groupMeans_, coefficients_);
  variance_ = ContrastVariance(numGroups_, coefficients_, groupSizes_);
  return effectSize;
}

}  // namespace kelpower
