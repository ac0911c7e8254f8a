#include "independent_literal.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

namespace kelpower {

using namespace proportions;
using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

bool AnswersStop(StopRequest* stop) { return stop != nullptr && stop->ShouldStop(); }

double XLogX(double x) {
  if (x == 0) return 0;
  return x < 0 ? -1 : x * std::log(x);
}

double Statistic(const IndependentDesign& test, double n1, double n2, bool isFirstGreater, double x1, double x2) {
  if (x1 > n1 || x2 > n2) return -1;
  if (test.test == TwoProportionTest::LikelihoodRatio) {
    const double a = XLogX(x1) + XLogX(x2) + XLogX(n1 - x1) + XLogX(n2 - x2) + XLogX(n1 + n2);
    const double b = XLogX(n1 + n2 - x1 - x2) + XLogX(x1 + x2) + XLogX(n1) + XLogX(n2);
    return 2 * a - 2 * b;
  }

  const double successes = x1 + x2;
  double p1 = x1 / n1;
  double p2 = x2 / n2;
  if (successes == 0) {
    p1 = 0.001 / n1;
    p2 = 0.001 / n2;
  } else if (successes == n1 + n2) {
    p1 = (n1 - 0.001) / n1;
    p2 = (n2 - 0.001) / n2;
  }
  const double q1 = 1 - p1;
  const double q2 = 1 - p2;
  double difference = std::fabs(p1 - p2);
  if (test.isOneSided) difference = isFirstGreater ? p1 - p2 : p2 - p1;
  if (test.test == TwoProportionTest::T) {
    const double pooled = std::sqrt((p1 * n1 * q1 + p2 * n2 * q2) * (n1 + n2) / (n1 + n2 - 2));
    const double crossed = std::sqrt((p1 * n2 * q1 + p2 * n1 * q2) * (n1 + n2) / (n1 + n2 - 2));
    return difference * std::sqrt(n1 * n2) / (test.isPooled ? pooled : crossed);
  }
  const double mean = (p1 * n1 + p2 * n2) / (n1 + n2);
  const double k = 1 / n1 + 1 / n2;
  if (test.isCorrected) difference = test.isOneSided ? difference + k / 2 : difference - k / 2;
  return difference / std::sqrt((1 - mean) * mean * k);
}

bool IsRejected(const IndependentDesign& test, double statistic, double critical) {
  if (test.test == TwoProportionTest::LikelihoodRatio) return statistic >= 0 && std::sqrt(statistic) > critical;
  return statistic > critical;
}

}  // namespace

double LiteralEnumeratedPower(const IndependentDesign& test, double n1, double n2, double p1, double p2,
                              StopRequest* stop) {
  const double probability = 1 - (test.isOneSided ? test.alpha : test.alpha / 2);
  const bool isT = test.test == TwoProportionTest::T;
  const double critical =
      isT ? KelDistFun::IdfT(probability, n1 + n2 - 2, 1e-20, 1e-12) : KelDistFun::IdfStdNorm(probability);
  std::vector<std::pair<double, double>> region;
  for (double x1 = 0; x1 < n1 + 1; ++x1) {
    for (double x2 = 0; x2 < n2 + 1; ++x2) {
      if (AnswersStop(stop)) return KelMV::Missing();
      if (x1 > n1 || x2 > n2) continue;  // such a pair is never rejected
      if (IsRejected(test, Statistic(test, n1, n2, p1 > p2, x1, x2), critical)) region.emplace_back(x1, x2);
    }
  }
  double power = 0;
  for (const auto& [x1, x2] : region) {
    if (test.test != TwoProportionTest::Z && AnswersStop(stop)) return KelMV::Missing();
    long err1 = 0;
    long err2 = 0;
    power += KelDistFun::PdfBin(x1, n1, p1, err1) * KelDistFun::PdfBin(x2, n2, p2, err2);
    if (err1 != 0 || err2 != 0) return -2;
  }
  return power;
}

namespace {

/// The conditional distribution of the successes of group 1, given s successes in all.
struct Conditional {
  double n1;
  double n2;
  double s;

  double First() const { return std::ceil(std::max(s - n2, 0.0)); }
  double Last() const { return std::floor(std::min(s, n1)); }

  double Term(double x, double oddsRatio) const {
    return Combination(n2, s - x) * Combination(n1, x) * std::pow(oddsRatio, x);
  }

  double Mass(double x, double oddsRatio) const {
    if (x < 0 || x > s) return 0;
    double sum = 0;
    for (double j = First(); j <= Last(); ++j) sum += Term(j, oddsRatio);
    return Term(x, oddsRatio) / sum;
  }

  double Sum(double from, double to, double oddsRatio) const {
    double sum = 0;
    for (double x = from; x <= to; ++x) sum += Mass(x, oddsRatio);
    return sum;
  }

  double Upper(double level) const {
    for (double k = Last(); k >= First(); --k) {
      const double tail = Sum(k, Last(), 1);
      if (tail <= level && tail + Mass(k - 1, 1) > level) return k;
    }
    return First() - 1;
  }

  double Lower(double level) const {
    for (double k = First(); k <= Last(); ++k) {
      const double tail = Sum(First(), k, 1);
      if (tail <= level && tail + Mass(k + 1, 1) > level) return k;
    }
    return Last() + 1;
  }

  double Total(double p1, double p2) const {
    double sum = 0;
    for (double x = First(); x <= Last(); ++x) {
      long err1 = 0;
      long err2 = 0;
      sum += KelDistFun::PdfBin(x, n1, p1, err1) * KelDistFun::PdfBin(s - x, n2, p2, err2);
    }
    return sum;
  }
};

}  // namespace

double LiteralConditionalPower(const IndependentDesign& test, double n1, double n2, double p1, double p2,
                               StopRequest* stop) {
  const double oddsRatio = p1 / (1 - p1) / (p2 / (1 - p2));
  double power = 0;
  for (double s = 0; s <= n1 + n2; ++s) {
    if (AnswersStop(stop)) return KelMV::Missing();
    const Conditional given{n1, n2, s};
    const double first = given.First();
    const double last = given.Last();
    const double level = test.isOneSided ? test.alpha : test.alpha / 2;
    double tails = 0;
    if (!test.isOneSided || p1 <= p2) {
      const double lower = given.Lower(level);
      if (first <= lower && lower <= last) tails += given.Sum(first, lower, oddsRatio);
    }
    if (!test.isOneSided || p1 > p2) {
      const double upper = given.Upper(level);
      if (first <= upper && upper <= last) tails += given.Sum(upper, last, oddsRatio);
    }
    power += given.Total(p1, p2) * tails;
  }
  return power;
}

double LiteralExactPower(const IndependentDesign& test, double n1, double n2, double p1, double p2, StopRequest* stop) {
  return test.test == TwoProportionTest::Conditional ? LiteralConditionalPower(test, n1, n2, p1, p2, stop)
                                                     : LiteralEnumeratedPower(test, n1, n2, p1, p2, stop);
}

}  // namespace kelpower
