#include "proportions/lasting_size.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "frame/counts.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/binomial.h"
#include "proportions/certain_size.h"
#include "proportions/signs.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr double mostPairs = 100000;  // whose conditional powers are tabulated

/// The tail of a one-sample test that lies in the direction of the alternative, told in successes or in failures such
/// that it is a lower one.
class OneSampleTail {
public:
  OneSampleTail(const OneSampleDesign& design, const OneSampleProportions& proportions)
      : tail_(design.TailLevel()), proportions_(proportions), isUpper_(proportions.alternative > proportions.null) {}

  double Alternative() const { return isUpper_ ? 1 - proportions_.alternative : proportions_.alternative; }
  double Null() const { return isUpper_ ? 1 - proportions_.null : proportions_.null; }

  /// The largest count that rejects at a size; it never falls as the size grows.
  double Count(double size) const {
    return isUpper_ ? size - UpperCritical(size, proportions_.null, tail_).count - 1
                    : LowerCritical(size, proportions_.null, tail_).count;
  }

  /// What the power is at least, at every size from `from` to `to`.
  double LeastPower(double from, double to) const { return BinomialCdf(Count(from), to, Alternative()); }

private:
  TailLevel tail_;
  OneSampleProportions proportions_;
  bool isUpper_;
};

using ReachesAt = FunctionView<bool(double size)>;

/// The largest size from `from` to `to` that does not reach the power, 0 when there is none. Stretches over which the
/// smallest critical value already does for the largest size are passed as one.
double LastSizeBelow(const OneSampleTail& tail, double power, ReachesAt reaches, double from, double to) {
  if (from > to) return 0;
  if (tail.LeastPower(from, to) >= power) return 0;
  if (from == to) return reaches(from) ? 0 : from;
  const double middle = std::floor(from + (to - from) / 2);
  const double upper = LastSizeBelow(tail, power, reaches, middle + 1, to);
  return upper > 0 ? upper : LastSizeBelow(tail, power, reaches, from, middle);
}

/// A lower bound, growing in m, of the power of the sign test given m discordant pairs, m = 0, 1, ...; its last value
/// holds for all m from there on. Empty when it would be too long.
std::vector<double> LeastSignPowers(const McNemarDesign& design, const DiscordantPairs& discordant, double power) {
  const double rarer = std::min(discordant.p12, discordant.p21) / (discordant.p12 + discordant.p21);
  const double miss = (1 - power) / 1000;  // small enough not to matter to a mean power
  const double pairs = CertainSize(rarer, 0.5, design.TailLevel(), miss);
  if (!(pairs <= mostPairs)) return {};

  const bool isUpper = discordant.p21 > discordant.p12;
  std::vector<double> powers(static_cast<std::size_t>(pairs) + 1);
  SignRegions regions(TailLevel(design.TailLevel()), 1);
  for (double m = 1; m < pairs; ++m) {
    const SignRegion& region = regions.At(m);
    powers[static_cast<std::size_t>(m)] = BinomialCdf(isUpper ? region.upper : region.lower, m, rarer);
  }
  powers.back() = 1 - miss;
  for (std::size_t m = powers.size() - 1; m > 0; --m) powers[m - 1] = std::min(powers[m - 1], powers[m]);
  return powers;
}

/// The mean of the bound over the number of discordant pairs among `size`; it grows with the size.
double MeanOf(const std::vector<double>& leastPowers, double size, double discordant) {
  const double last = static_cast<double>(leastPowers.size() - 1);
  double mean = leastPowers.back() * (1 - BinomialCdf(last - 1, size, discordant));
  for (double m = 0; m < last && m <= size; ++m)
    mean += leastPowers[static_cast<std::size_t>(m)] * BinomialMass(m, size, discordant);
  return mean;
}

}  // namespace

Answer LastingSize(const OneSampleDesign& design, const OneSampleProportions& proportions, double power) {
  if (power >= 1 || proportions.alternative == proportions.null) return NoValue::NotReached;
  const OneSampleTail tail(design, proportions);
  const double certain = CertainSize(tail.Alternative(), tail.Null(), design.TailLevel(), 1 - power);
  if (!(certain <= largestCount)) return NoValue::Uncountable;
  OneSampleTest test(design);
  const auto reaches = [&](double size) { return test.Power(size, proportions).ValueOr(belowEveryPower) >= power; };
  return LastSizeBelow(tail, power, reaches, 1, certain) + 1;
}

Answer LastingSize(const McNemarDesign& design, const DiscordantPairs& pairs, double power) {
  if (power >= 1 || pairs.p12 == pairs.p21) return NoValue::NotReached;
  const std::vector<double> leastPowers = LeastSignPowers(design, pairs, power);
  if (leastPowers.empty()) return NoValue::Uncountable;

  // The power is certain from the smallest size at which its bound reaches it; how far below it still holds is tried.
  const double discordant = pairs.p12 + pairs.p21;
  const auto isCertain = [&](double size) { return MeanOf(leastPowers, size, discordant) >= power; };
  double low = 1;
  double high = 2;
  while (high <= largestCount && !isCertain(high)) {
    low = high;
    high *= 2;
  }
  if (high > largestCount) return NoValue::Uncountable;
  while (high - low > 1) {
    const double middle = std::floor(low + (high - low) / 2);
    (isCertain(middle) ? high : low) = middle;
  }
  McNemarTest test(design);
  while (high > 2 && test.Power(high - 1, pairs).ValueOr(belowEveryPower) >= power) high -= 1;
  return high;
}

}  // namespace kelpower::proportions
