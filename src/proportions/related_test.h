#ifndef KELPOWER_PROPORTIONS_RELATED_TEST_H
#define KELPOWER_PROPORTIONS_RELATED_TEST_H

#include <optional>

#include "kelpower.h"
#include "proportions/sign_test.h"

namespace kelpower {

/// The probabilities of the two kinds of discordant pairs.
struct DiscordantPairs {
  double p12;
  double p21;

  /// Of two measures with given success proportions and correlation. A probability within 1e-14 of 0 is 0.
  static DiscordantPairs FromMarginals(double marginal1, double marginal2, double correlation);
};

bool RejectsMarginals(double marginal1, double marginal2);

/// McNemar's test of two proportions measured on the same subjects, with what its successive calls share: the critical
/// values of the exact test, and its power given the number of discordant pairs while their odds stay the same.
class RelatedTest {
public:
  RelatedTest(int oneSided, int exact, double alpha);
  RelatedTest(const RelatedTest&) = delete;
  RelatedTest& operator=(const RelatedTest&) = delete;

  /// The power; -1 for invalid input, -2 where a binomial probability has none, missing when `stop` answers true.
  double Power(double size, const DiscordantPairs& pairs, StopRequest* stop = nullptr);

  /// The same from the marginal proportions; -1 for invalid ones.
  double PowerOfMarginals(double size, double marginal1, double marginal2, double correlation);

private:
  double NormalPower(double size, const DiscordantPairs& pairs) const;
  double ExactPower(double size, const DiscordantPairs& pairs, StopRequest* stop);
  double ExactPowerWithoutPairs(double size, StopRequest* stop) const;
  SignTestTails Tails(const DiscordantPairs& pairs) const;
  SignTestPowers& SharedPowers(SignTestTails tails, double second);

  bool isOneSided_;
  bool isExact_;
  double alpha_;
  double level_;
  double z_;

  std::optional<SignTestRegions> regions_;
  std::optional<SignTestPowers> powers_;
  SignTestTails tails_ = SignTestTails::Both;
  double second_ = 0;
};

}  // namespace kelpower

#endif
