#include "proportions/independent_large_sample.h"

#include <cmath>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

using KelMath::KelDistFun;

namespace {

constexpr QuantileTuning kTuning{1e-20, 1e-12};

TTest TTestAt(const IndependentTest& test, double df) {
  return test.oneSided ? TTest::OneSided(test.alpha, df, kTuning) : TTest::TwoSided(test.alpha, df, kTuning);
}

/// x ln(x / m) + m - x for x = m + difference, without the cancellation of the plain form near x = m.
/// Loader, C. (2000), Fast and accurate computation of binomial probabilities, eq. for bd0.
double Deviance(double x, double m, double difference) {
  const double v = difference / (x + m);
  if (!(std::fabs(v) < 0.1)) return x * std::log(x / m) - difference;
  double sum = difference * v;
  double power = 2 * x * v;
  for (double j = 3;; j += 2) {
    power *= v * v;
    const double next = sum + power / j;
    if (next == sum) return sum;
    sum = next;
  }
}

/// Kullback-Leibler divergence of the Bernoulli distributions of p and m = p - difference. It is a sum of two terms
/// that are not negative, and exactly 0 where p = m.
double Divergence(double p, double m, double notM, double difference) {
  return Deviance(p, m, difference) + Deviance(1 - p, notM, -difference);
}

}  // namespace

LargeSampleTest::LargeSampleTest(const IndependentTest& test, double sampleSize1, double sampleSize2)
    : test_(test), n1_(sampleSize1), n2_(sampleSize2) {
  // Halves, so that the total of two sizes near the largest double does not overflow.
  const double halfTotal = 0.5 * n1_ + 0.5 * n2_;
  share1_ = 0.5 * n1_ / halfTotal;
  share2_ = 0.5 * n2_ / halfTotal;
  reciprocals_ = 1 / n1_ + 1 / n2_;
  criticalZ_ = KelDistFun::IdfStdNorm(1 - test.TailLevel());
  testT_ = {};
  if (test.statistic == TwoProportionStatistic::T) testT_ = TTestAt(test, n1_ + n2_ - 2);
}

double LargeSampleTest::Power(double p1, double p2) const {
  switch (test_.statistic) {
    case TwoProportionStatistic::Z: return PowerZ(p1, p2);
    case TwoProportionStatistic::T: return PowerT(p1, p2);
    case TwoProportionStatistic::LikelihoodRatio: return PowerLikelihoodRatio(p1, p2);
    case TwoProportionStatistic::ArcsineOrConditional: break;
  }
  return PowerArcsine(p1, p2);
}

// Fleiss, J. L., Levin, B. and Paik, M. C. (2003), Statistical Methods for Rates and Proportions, 3rd ed., ch. 4.
double LargeSampleTest::PowerZ(double p1, double p2) const {
  const double difference = p1 - p2;
  const double sd = std::sqrt(p1 * (1 - p1) / n1_ + p2 * (1 - p2) / n2_);
  const double mean = (0.5 * n1_ * p1 + 0.5 * n2_ * p2) / (0.5 * n1_ + 0.5 * n2_);
  const double nullSd = test_.pooledVariance ? std::sqrt((1 - mean) * mean * reciprocals_) : sd;
  const double margin = criticalZ_ * nullSd;
  const double correction = test_.continuityCorrection ? reciprocals_ / 2 : 0;

  const double below = KelDistFun::CdfStdNorm((margin + difference + correction) / sd);
  const double above = KelDistFun::CdfStdNorm((difference - margin - correction) / sd);
  switch (AlternativeOf(test_, p1, p2)) {
    case Alternative::SecondGreater: return 1 - below;
    case Alternative::FirstGreater: return above;
    case Alternative::TwoSided: break;
  }
  return above + (1 - below);
}

// Without pooling the sizes are crossed, deliberately: that is the variance p1 q1 / n1 + p2 q2 / n2 times n1 n2.
double LargeSampleTest::PowerT(double p1, double p2) const {
  const double variance1 = p1 * (1 - p1);
  const double variance2 = p2 * (1 - p2);
  const double variance = test_.pooledVariance ? n1_ * variance1 + n2_ * variance2 : n1_ * variance2 + n2_ * variance1;
  // sqrt(n1) sqrt(n2), because n1 n2 overflows from sizes of 1e154 on.
  const double perUnit = std::sqrt(n1_) * std::sqrt(n2_) / std::sqrt(variance);
  if (test_.oneSided) return testT_.PowerUpperTail(std::fabs(p1 - p2) * perUnit);
  return testT_.PowerBothTails((p1 - p2) * perUnit);
}

// G = 2 sum n_i KL(p_i, mean) is the noncentrality of the likelihood-ratio statistic. Agresti, A. (2013), Categorical
// Data Analysis, 3rd ed., sect. 6.6.
double LargeSampleTest::PowerLikelihoodRatio(double p1, double p2) const {
  const double mean = share1_ * p1 + share2_ * p2;
  const double notMean = share1_ * (1 - p1) + share2_ * (1 - p2);
  const double difference = p1 - p2;
  const double root = std::sqrt(2 * (n1_ * Divergence(p1, mean, notMean, share2_ * difference) +
                                     n2_ * Divergence(p2, mean, notMean, -share1_ * difference)));
  if (test_.oneSided) return KelDistFun::CdfStdNorm(root - criticalZ_);
  return 1 - KelDistFun::CdfStdNorm(root + criticalZ_) + KelDistFun::CdfStdNorm(root - criticalZ_);
}

// Cohen, J. (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., ch. 6, with the proportions pulled
// towards each other by half a unit. The difference of the arcsines a - b is taken as the angle whose sine is
// (a' - b') / (sqrt(a' (1 - b')) + sqrt(b' (1 - a'))), for the plain difference has no digits left at large sizes.
double LargeSampleTest::PowerArcsine(double p1, double p2) const {
  constexpr double kSlack = 1e-12;  // a size that is exactly at its limit but for rounding is valid
  if (p1 > p2 && (n1_ < 0.5 / p1 - kSlack || n2_ < 0.5 / (1 - p2) - kSlack)) return -1;
  if (p1 < p2 && (n1_ < 0.5 / (1 - p1) - kSlack || n2_ < 0.5 / p2 - kSlack)) return -1;

  const double sign = p1 >= p2 ? 1 : -1;
  const double half1 = 0.5 / n1_;
  const double half2 = 0.5 / n2_;
  const double a = p2 + sign * half2;
  const double notA = 1 - p2 - sign * half2;
  const double b = p1 - sign * half1;
  const double notB = 1 - p1 + sign * half1;
  const double crossed1 = std::sqrt(a) * std::sqrt(notB);
  const double crossed2 = std::sqrt(b) * std::sqrt(notA);
  const double sine = (p2 - p1 + sign * (half1 + half2)) / (crossed1 + crossed2);
  const double cosine = std::sqrt(notA) * std::sqrt(notB) + std::sqrt(a) * std::sqrt(b);
  const double effect = p1 == p2 ? 0 : 2 * std::sqrt(1 / reciprocals_) * std::atan2(sine, cosine);

  const double above = KelDistFun::CdfStdNorm(effect - criticalZ_);
  const double below = 1 - KelDistFun::CdfStdNorm(effect + criticalZ_);
  if (!test_.oneSided) return above + below;
  return p1 < p2 ? above : below;
}

}  // namespace kelpower
