#include "catalogue/exact_proportions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"

namespace planner {

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

constexpr double kLargestSize = 2147483647;  // that the exact tests count to
constexpr double kMostPairs = 100000;        // whose conditional powers are tabulated

double Cdf(double count, double n, double p) {
  long error = 0;
  return KelDistFun::CdfBin(count, n, p, error);
}

double Mass(double count, double n, double p) {
  long error = 0;
  return KelDistFun::PdfBin(count, n, p, error);
}

/// The largest count with a lower-tail probability of at most `probability`, -1 when there is none.
double Quantile(double probability, double n, double p) {
  long error = 0;
  return KelDistFun::IdfBin(probability, n, p, error);
}

template <typename Test>
double TailLevel(const Test& test) {
  return test.isOneSided ? test.alpha : test.alpha / 2;
}

double Power(const OneProportion& test, double n) {
  return PowerOneSampBinom(n, test.alternative, test.null, 1, test.isOneSided, test.alpha, 0, nullptr);
}

double Power(const DiscordantProportions& test, double n) {
  return PowerbyPRelSampBionm(n, test.p12, test.p21, test.isOneSided, 1, test.alpha, nullptr);
}

// The upper tail of a one-sample test starts above the smallest count whose lower-tail probability is at least
// 1 - level; that of the sign test two above the largest whose probability is at most 1 - level. They differ at ties.
double UpperCount(const OneProportion& test, double n) {
  const double level = 1 - TailLevel(test);
  const double count = Quantile(level, n, test.null);
  return Cdf(count, n, test.null) >= level ? count + 1 : count + 2;
}

double UpperCount(const DiscordantProportions& test, double m) {
  const double count = Quantile(1 - TailLevel(test), m, 0.5);
  return count < 0 ? m + 1 : std::min(count + 2, m + 1);
}

double Divergence(double x, double p) {
  const double successes = x > 0 ? x * std::log(x / p) : 0;
  const double failures = x < 1 ? (1 - x) * std::log((1 - x) / (1 - p)) : 0;
  return successes + failures;
}

/// A size from which on a test that rejects at X <= c, at `level` under p0, is certain to have the power 1 - miss under
/// p1 < p0. For any x between them P(X <= n x; p0) <= exp(-n D(x, p0)) and P(X >= n x; p1) <= exp(-n D(x, p1)):
/// Chernoff, H. (1952), Annals of Mathematical Statistics 23, 493-507. Where D(x, p0) : D(x, p1) is as the logarithms
/// of the two probabilities, that size is smallest.
double CertainSize(double p1, double p0, double level, double miss) {
  const double a = -std::log(level);
  const double b = -std::log(miss);
  double low = p1;
  double high = p0;
  for (int i = 0; i < 40; ++i) {
    const double x = low + (high - low) / 2;
    (Divergence(x, p1) * a > Divergence(x, p0) * b ? high : low) = x;
  }
  const double x = low + (high - low) / 2;
  return std::ceil(std::max(a / Divergence(x, p0), b / Divergence(x, p1)));
}

/// The tail of a one-sample test that lies in the direction of the alternative, told in successes or in failures such
/// that it is a lower one.
class OneSampleTail {
public:
  explicit OneSampleTail(const OneProportion& test) : test_(test), isUpper_(test.alternative > test.null) {}

  double Alternative() const { return isUpper_ ? 1 - test_.alternative : test_.alternative; }
  double Null() const { return isUpper_ ? 1 - test_.null : test_.null; }

  /// The largest count that rejects at size n; it never falls as n grows.
  double Count(double n) const {
    return isUpper_ ? n - UpperCount(test_, n) : Quantile(TailLevel(test_), n, test_.null);
  }

  /// What the power is at least, at every size from `from` to `to`.
  double LeastPower(double from, double to) const { return Cdf(Count(from), to, Alternative()); }

private:
  OneProportion test_;
  bool isUpper_;
};

/// The largest size from `from` to `to` below the power, 0 when there is none. Stretches over which the smallest
/// critical value already does for the largest size are passed as one.
double LastSizeBelow(const OneProportion& test, const OneSampleTail& tail, double power, double from, double to) {
  if (from > to) return 0;
  if (tail.LeastPower(from, to) >= power) return 0;
  if (from == to) return Power(test, from) < power ? from : 0;
  const double middle = std::floor(from + (to - from) / 2);
  const double upper = LastSizeBelow(test, tail, power, middle + 1, to);
  return upper > 0 ? upper : LastSizeBelow(test, tail, power, from, middle);
}

/// A lower bound, growing in m, of the power of the sign test given m discordant pairs, m = 0, 1, ...; its last value
/// holds for all m from there on. Empty when it would be too long.
std::vector<double> LeastSignTestPowers(const DiscordantProportions& test, double power) {
  const double rarer = std::min(test.p12, test.p21) / (test.p12 + test.p21);
  const double miss = (1 - power) / 1000;  // small enough not to matter to a mean power
  const double pairs = CertainSize(rarer, 0.5, TailLevel(test), miss);
  if (!(pairs <= kMostPairs)) return {};

  const bool isUpper = test.p21 > test.p12;
  std::vector<double> powers(static_cast<std::size_t>(pairs) + 1);
  double least = 1 - miss;
  for (double m = pairs; m >= 0; --m) {
    if (m < pairs) {
      const double count = isUpper ? m - UpperCount(test, m) : Quantile(TailLevel(test), m, 0.5);
      least = std::min(least, Cdf(count, m, rarer));
    }
    powers[static_cast<std::size_t>(m)] = least;
  }
  return powers;
}

/// The mean of the bound over the number of discordant pairs among n; it grows with n.
double MeanOf(const std::vector<double>& leastPowers, double n, double discordant) {
  const double last = static_cast<double>(leastPowers.size() - 1);
  double mean = leastPowers.back() * (1 - Cdf(last - 1, n, discordant));
  for (double m = 0; m < last && m <= n; ++m) mean += leastPowers[static_cast<std::size_t>(m)] * Mass(m, n, discordant);
  return mean;
}

}  // namespace

CriticalRegion CriticalCounts(const OneProportion& test, double n) {
  CriticalRegion region = {-1, n + 1};
  const bool isUpper = test.alternative > test.null;
  if (!test.isOneSided || !isUpper) region.lower = Quantile(TailLevel(test), n, test.null);
  if (!test.isOneSided || isUpper) region.upper = UpperCount(test, n);
  return region;
}

CriticalRegion CriticalCounts(const DiscordantProportions& test, double m) {
  CriticalRegion region = {-1, m + 1};
  const bool isUpper = test.p21 > test.p12;
  if (!test.isOneSided || !isUpper) region.lower = Quantile(TailLevel(test), m, 0.5);
  if (!test.isOneSided || isUpper) region.upper = UpperCount(test, m);
  return region;
}

double AttainedLevel(const OneProportion& test, double n) {
  const CriticalRegion region = CriticalCounts(test, n);
  return Cdf(region.lower, n, test.null) + 1 - Cdf(region.upper - 1, n, test.null);
}

double AttainedLevel(const DiscordantProportions& test, double n) {
  const double half = (test.p12 + test.p21) / 2;
  return PowerbyPRelSampBionm(n, half, half, test.isOneSided, 1, test.alpha, nullptr);
}

double LastingSize(const OneProportion& test, double power) {
  if (power >= 1 || test.alternative == test.null) return KelMV::Missing();
  const OneSampleTail tail(test);
  const double certain = CertainSize(tail.Alternative(), tail.Null(), TailLevel(test), 1 - power);
  if (!(certain <= kLargestSize)) return KelMV::Missing();
  return LastSizeBelow(test, tail, power, 1, certain) + 1;
}

double LastingSize(const DiscordantProportions& test, double power) {
  if (power >= 1 || test.p12 == test.p21) return KelMV::Missing();
  const std::vector<double> leastPowers = LeastSignTestPowers(test, power);
  if (leastPowers.empty()) return KelMV::Missing();

  // The power is certain from the smallest size at which its bound reaches it; how far below it still holds is tried.
  const double discordant = test.p12 + test.p21;
  const auto isCertain = [&](double n) { return MeanOf(leastPowers, n, discordant) >= power; };
  double low = 1;
  double high = 2;
  while (high <= kLargestSize && !isCertain(high)) {
    low = high;
    high *= 2;
  }
  if (high > kLargestSize) return KelMV::Missing();
  while (high - low > 1) {
    const double middle = std::floor(low + (high - low) / 2);
    (isCertain(middle) ? high : low) = middle;
  }
  while (high > 2 && Power(test, high - 1) >= power) high -= 1;
  return high;
}

}  // namespace planner
