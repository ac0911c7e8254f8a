#ifndef KELPOWER_PROPORTIONS_MCNEMAR_H
#define KELPOWER_PROPORTIONS_MCNEMAR_H

#include <optional>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/critical_counts.h"
#include "proportions/signs.h"

// McNemar's test of two proportions measured on the same subjects.

namespace kelpower::proportions {

/// The probabilities of the two kinds of discordant pairs.
struct DiscordantPairs {
  double p12;  ///< success first, failure second
  double p21;  ///< the reverse

  /// Of two measures with given success proportions and correlation. A probability within 1e-14 of 0 is 0.
  static DiscordantPairs FromMarginals(double marginal1, double marginal2, double correlation);
};

/// What lies outside (0, 1) has no variance.
bool RejectsMarginals(double marginal1, double marginal2);

/// How the pairs are tested.
struct McNemarDesign {
  bool isExact;     ///< the sign test given the number of discordant pairs, instead of the normal distribution
  bool isOneSided;  ///< in the direction of the difference
  double alpha;     ///< significance level

  /// The level of one tail.
  double TailLevel() const { return isOneSided ? alpha : alpha / 2; }
};

/// What the power of the normal test is made of.
struct PairedStatistic {
  double shift;     ///< sqrt(N) (p12 - p21)
  double nullSd;    ///< of one pair's difference under the null hypothesis
  double sd;        ///< under the alternative
  double critical;  ///< normal quantile
};

/// The test, with what its successive calls share: the critical values of the exact test, and its power given the
/// number of discordant pairs while their odds stay the same.
class McNemarTest {
public:
  explicit McNemarTest(const McNemarDesign& design);
  McNemarTest(const McNemarTest&) = delete;
  McNemarTest& operator=(const McNemarTest&) = delete;

  /// Refused for fewer than two pairs, probabilities that are none or exceed 1 together, and a level outside (0, 1).
  Answer Power(double size, const DiscordantPairs& pairs, Stop stop = {});

  /// What the normal test goes by.
  PairedStatistic Statistic(double size, const DiscordantPairs& pairs) const;

  /// The numbers of pairs of the second kind, among `discordant`, that the exact test rejects.
  CriticalRegion Region(double discordant, const DiscordantPairs& pairs) const;

  /// The significance level that the exact test attains with `size` pairs, of which the discordant share is the same
  /// under the null hypothesis.
  Answer AttainedLevel(double size, const DiscordantPairs& pairs);

private:
  Answer NormalPower(double size, const DiscordantPairs& pairs) const;
  Answer ExactPower(double size, const DiscordantPairs& pairs, Stop stop);
  Answer ExactPowerWithoutPairs(double size, Stop stop) const;
  Tails TailsOf(const DiscordantPairs& pairs) const;
  SignPowers& SharedPowers(Tails tails, double second);

  McNemarDesign design_;
  TailLevel tail_;

  std::optional<SignRegions> regions_;
  std::optional<SignPowers> powers_;
  Tails tails_ = Tails::Both;
  double second_ = 0;
};

/// The number of pairs, unrounded, at which the power of the normal test, as `powerAt` gives it, reaches `power`. It
/// never falls: the tail on the side of the difference grows with sqrt(N), and the other one, further out, loses less.
Answer PairsForNormalPower(FunctionView<double(double size)> powerAt, double power);

/// The number of pairs at which the test reaches `power`: unrounded of the normal test, by `SolveExactSize` of the
/// exact one.
Answer SizeForPower(const McNemarDesign& design, const DiscordantPairs& pairs, double power, Stop stop = {});

}  // namespace kelpower::proportions

#endif
