#include "anova/overall.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "anova/sizes.h"
#include "frame/checks.h"

namespace kelpower::anova {

namespace {

/// The largest |m_i - center|, in whose units squares of deviations neither overflow nor underflow.
double LargestDistance(PerGroup means, double center) {
  double largest = 0;
  for (const double mean : means) {
    const double distance = std::fabs(mean - center);
    if (!(distance <= largest)) largest = distance;
  }
  return largest;
}

bool AreEqual(PerGroup values) {
  return std::all_of(values.begin(), values.end(), [&](double value) { return value == values[0]; });
}

}  // namespace

double WeightedGrandMean(PerGroup means, PerGroup sizes) {
  if (means.Count() <= 0) return std::numeric_limits<double>::quiet_NaN();
  const double totalSize = Sum(sizes);
  double offset = 0;
  for (int i = 0; i < means.Count(); ++i) offset += sizes[i] / totalSize * (means[i] - means[0]);
  return means[0] + offset;
}

GroupSpread GroupSpread::Of(PerGroup means, PerGroup sizes) {
  const double grandMean = WeightedGrandMean(means, sizes);
  const double scale = LargestDistance(means, grandMean);
  if (scale == 0) return {0, 0};

  const double totalSize = Sum(sizes);
  double scaledVariance = 0;
  for (int i = 0; i < means.Count(); ++i) {
    const double deviation = (means[i] - grandMean) / scale;
    scaledVariance += sizes[i] / totalSize * deviation * deviation;
  }
  return {scale, scaledVariance};
}

// Where the quotient of scale and sd overflows, S can still be small: only groups without weight lie apart.
double GroupSpread::Noncentrality(double sd, double totalSize) const {
  const double relativeScale = scale / sd;
  const double noncentrality = relativeScale * totalSize * relativeScale * scaledVariance;
  if (std::isfinite(noncentrality) || !(scaledVariance >= 0)) return noncentrality;
  const double relativeSpread = scale * std::sqrt(scaledVariance) / sd;
  return relativeSpread * totalSize * relativeSpread;
}

double WeightedDistance(PerGroup means, PerGroup sizes) {
  if (means.Count() > 0 && AreEqual(means)) return 0;
  double weighted = 0;
  for (int i = 0; i < means.Count(); ++i) weighted += means[i] * sizes[i];
  const double grandMean = weighted / Sum(sizes);
  double squares = 0;
  for (int i = 0; i < means.Count(); ++i) squares += sizes[i] * ((means[i] - grandMean) * (means[i] - grandMean));
  if (std::isnormal(squares)) return std::sqrt(squares);
  const GroupSpread spread = GroupSpread::Of(means, sizes);
  return spread.scale * std::sqrt(spread.scaledVariance * Sum(sizes));
}

double RootMeanSquareEffect(PerGroup means, PerGroup sizes, double sd) {
  const double grandMean = WeightedGrandMean(means, sizes);
  const double scale = LargestDistance(means, grandMean);
  if (scale == 0) return scale / sd;
  double sumOfSquares = 0;
  for (const double mean : means) {
    const double deviation = (mean - grandMean) / scale;
    sumOfSquares += deviation * deviation;
  }
  return std::sqrt(sumOfSquares / (means.Count() - 1)) * (scale / sd);
}

double EffectSize::Noncentrality(double totalSize) const {
  if (isEtaSquared) return value * totalSize / (1 - value);
  return value * totalSize * value;
}

OverallTest::OverallTest(int numGroups, double totalSize, double alpha) {
  if (numGroups <= 1) return;
  if (numGroups > totalSize) return;
  if (RejectsAlpha(alpha)) return;
  test_ = FTest::AtLevel(alpha, numGroups - 1, totalSize - numGroups);
}

Answer OverallTest::Power(double noncentrality) const {
  return test_ ? Answer(test_->Power(noncentrality)) : NoValue::Refused;
}

Answer OverallTest::PowerOfMany(double noncentrality) {
  if (!test_) return NoValue::Refused;
  if (!many_) many_.emplace(*test_);
  return many_->Power(noncentrality);
}

Answer PowerOfMeans(const GroupSpread& spread, double sd, int numGroups, double totalSize, double alpha) {
  if (RejectsStandardDeviation(sd)) return NoValue::Refused;
  return OverallTest(numGroups, totalSize, alpha).Power(spread.Noncentrality(sd, totalSize));
}

Answer PowerOfEffect(const EffectSize& effect, int numGroups, double totalSize, double alpha) {
  return OverallTest(numGroups, totalSize, alpha).Power(effect.Noncentrality(totalSize));
}

Answer TotalForPowerOfMeans(PerGroup means, double sd, PerGroup ratios, double power, double alpha) {
  const GroupSpread spread = GroupSpread::Of(means, ratios);
  const int numGroups = means.Count();
  const auto powerAt = [&](double total) { return PowerOfMeans(spread, sd, numGroups, total, alpha); };
  return TotalForPower(numGroups, powerAt, power);
}

Answer TotalForPowerOfEffect(const EffectSize& effect, int numGroups, double power, double alpha) {
  const auto powerAt = [&](double total) { return PowerOfEffect(effect, numGroups, total, alpha); };
  return TotalForPower(numGroups, powerAt, power);
}

// The half-width equation t sd / sqrt(N) = w, squared and multiplied by N / sd^2, so that it grows with N.
Answer TotalForHalfWidthOfGrandMean(double halfWidth, int numGroups, double sd, double alpha) {
  const double relativeWidth = halfWidth / sd;
  return TotalForHalfWidth(numGroups, relativeWidth * relativeWidth, 1, alpha);
}

double HalfWidthOfGrandMean(int numGroups, double totalSize, double sd, double alpha) {
  return IntervalQuantileT(alpha, totalSize - numGroups) * sd / std::sqrt(totalSize);
}

}  // namespace kelpower::anova
