#include "proportions/independent_large_sample.h"

#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "proportions/divergence.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr QuantileTuning tuning{1e-20, 1e-12};

TTest TTestAt(const IndependentDesign& design, double df) {
  return design.isOneSided ? TTest::OneSided(design.alpha, df, tuning) : TTest::TwoSided(design.alpha, df, tuning);
}

/// A probability that has left [0, 1] by no more than rounding is at the end that it has passed.
double InUnit(double probability) {
  constexpr double rounding = 1e-15;
  if (probability < 0 && probability > -rounding) return 0;
  if (probability > 1 && probability < 1 + rounding) return 1;
  return probability;
}

}  // namespace

LargeSampleTest::LargeSampleTest(const IndependentDesign& design, double sampleSize1, double sampleSize2)
    : design_(design), n1_(sampleSize1), n2_(sampleSize2) {
  // Halves, so that the total of two sizes near the largest double does not overflow.
  const double halfTotal = 0.5 * n1_ + 0.5 * n2_;
  share1_ = 0.5 * n1_ / halfTotal;
  share2_ = 0.5 * n2_ / halfTotal;
  reciprocals_ = 1 / n1_ + 1 / n2_;
  criticalZ_ = KelDistFun::IdfStdNorm(1 - design.TailLevel());
  testT_ = {};
  if (design.test == TwoProportionTest::T) testT_ = TTestAt(design, n1_ + n2_ - 2);
}

Answer LargeSampleTest::Power(double p1, double p2) const {
  switch (design_.test) {
    case TwoProportionTest::Z: return PowerZ(p1, p2);
    case TwoProportionTest::T: return PowerT(p1, p2);
    case TwoProportionTest::LikelihoodRatio: return PowerLikelihoodRatio(p1, p2);
    case TwoProportionTest::Arcsine: return PowerArcsine(p1, p2);
    case TwoProportionTest::Conditional: break;
  }
  return NoValue::Refused;
}

double LargeSampleTest::Noncentrality(double p1, double p2) const {
  switch (design_.test) {
    case TwoProportionTest::T: return NoncentralityT(p1, p2);
    case TwoProportionTest::LikelihoodRatio: return RootOfLikelihoodRatio(p1, p2);
    default: return MeanOfArcsine(p1, p2);
  }
}

// Fleiss, J. L., Levin, B. and Paik, M. C. (2003), Statistical Methods for Rates and Proportions, 3rd ed., ch. 4.
ZStatistic LargeSampleTest::Statistic(double p1, double p2) const {
  const double sd = std::sqrt(p1 * (1 - p1) / n1_ + p2 * (1 - p2) / n2_);
  const double mean = (0.5 * n1_ * p1 + 0.5 * n2_ * p2) / (0.5 * n1_ + 0.5 * n2_);
  const double nullSd = design_.isPooled ? std::sqrt((1 - mean) * mean * reciprocals_) : sd;
  return {nullSd, sd, design_.isCorrected ? reciprocals_ / 2 : 0};
}

double LargeSampleTest::PowerZ(double p1, double p2) const {
  const double difference = p1 - p2;
  const auto& [nullSd, sd, correction] = Statistic(p1, p2);
  const double margin = criticalZ_ * nullSd;
  const double below = KelDistFun::CdfStdNorm((margin + difference + correction) / sd);
  const double above = KelDistFun::CdfStdNorm((difference - margin - correction) / sd);
  switch (AlternativeOf(design_, p1, p2)) {
    case Alternative::SecondGreater: return 1 - below;
    case Alternative::FirstGreater: return above;
    case Alternative::TwoSided: break;
  }
  return above + (1 - below);
}

// Without pooling the sizes are crossed, deliberately: that is the variance p1 q1 / n1 + p2 q2 / n2 times n1 n2.
double LargeSampleTest::NoncentralityT(double p1, double p2) const {
  const double variance1 = p1 * (1 - p1);
  const double variance2 = p2 * (1 - p2);
  const double variance = design_.isPooled ? n1_ * variance1 + n2_ * variance2 : n1_ * variance2 + n2_ * variance1;
  // sqrt(n1) sqrt(n2), because n1 n2 overflows from sizes of 1e154 on.
  const double perUnit = std::sqrt(n1_) * std::sqrt(n2_) / std::sqrt(variance);
  return (design_.isOneSided ? std::fabs(p1 - p2) : p1 - p2) * perUnit;
}

double LargeSampleTest::PowerT(double p1, double p2) const {
  const double noncentrality = NoncentralityT(p1, p2);
  return design_.isOneSided ? testT_.PowerUpperTail(noncentrality) : testT_.PowerBothTails(noncentrality);
}

// G = 2 sum n_i KL(p_i, mean) is the noncentrality of the likelihood-ratio statistic. Agresti, A. (2013), Categorical
// Data Analysis, 3rd ed., sect. 6.6.
double LargeSampleTest::RootOfLikelihoodRatio(double p1, double p2) const {
  const double mean = share1_ * p1 + share2_ * p2;
  const double notMean = share1_ * (1 - p1) + share2_ * (1 - p2);
  const double difference = p1 - p2;
  return std::sqrt(2 * (n1_ * Divergence(p1, mean, notMean, share2_ * difference) +
                        n2_ * Divergence(p2, mean, notMean, -share1_ * difference)));
}

double LargeSampleTest::PowerLikelihoodRatio(double p1, double p2) const {
  const double root = RootOfLikelihoodRatio(p1, p2);
  if (design_.isOneSided) return KelDistFun::CdfStdNorm(root - criticalZ_);
  return 1 - KelDistFun::CdfStdNorm(root + criticalZ_) + KelDistFun::CdfStdNorm(root - criticalZ_);
}

// Cohen, J. (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ch. 6, with the proportions pulled
// towards each other by half a unit. The difference of the arcsines a - b is taken as the angle whose sine is
// (a' - b') / (sqrt(a' (1 - b')) + sqrt(b' (1 - a'))), for the plain difference has no digits left at large sizes.
// At the smallest sizes a' or 1 - b' is 0, and may round to less: n1 = 0.5 / p1 with p1 = 0.56 gives b' = -3e-17.
double LargeSampleTest::MeanOfArcsine(double p1, double p2) const {
  const double sign = p1 >= p2 ? 1 : -1;
  const double half1 = 0.5 / n1_;
  const double half2 = 0.5 / n2_;
  const double a = InUnit(p2 + sign * half2);
  const double notA = InUnit(1 - p2 - sign * half2);
  const double b = InUnit(p1 - sign * half1);
  const double notB = InUnit(1 - p1 + sign * half1);
  const double crossed1 = std::sqrt(a) * std::sqrt(notB);
  const double crossed2 = std::sqrt(b) * std::sqrt(notA);
  const double sine = (p2 - p1 + sign * (half1 + half2)) / (crossed1 + crossed2);
  const double cosine = std::sqrt(notA) * std::sqrt(notB) + std::sqrt(a) * std::sqrt(b);
  return p1 == p2 ? 0 : 2 * std::sqrt(1 / reciprocals_) * std::atan2(sine, cosine);
}

Answer LargeSampleTest::PowerArcsine(double p1, double p2) const {
  constexpr double slack = 1e-12;  // a size that rounding has taken below its limit is valid
  if (p1 > p2 && (n1_ < 0.5 / p1 - slack || n2_ < 0.5 / (1 - p2) - slack)) return NoValue::Refused;
  if (p1 < p2 && (n1_ < 0.5 / (1 - p1) - slack || n2_ < 0.5 / p2 - slack)) return NoValue::Refused;

  const double effect = MeanOfArcsine(p1, p2);
  const double above = KelDistFun::CdfStdNorm(effect - criticalZ_);
  const double below = 1 - KelDistFun::CdfStdNorm(effect + criticalZ_);
  if (!design_.isOneSided) return above + below;
  return p1 < p2 ? above : below;
}

}  // namespace kelpower::proportions
