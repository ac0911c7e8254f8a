#ifndef KELPOWER_COMPARISONS_TUKEY_H
#define KELPOWER_COMPARISONS_TUKEY_H

#include <vector>

#include "frame/answer.h"

// Tukey's test of all pairs of group means, which holds the level of the family, and its extension by Kramer to unequal
// sizes (Tukey 1953, "The problem of multiple comparisons"; Kramer 1956, Biometrics 12).

namespace kelpower::comparisons {

/// Groups whose means all differ are integrated one by one; beyond this many any pair's power is refused.
constexpr int mostGroups = 1000;

/// The test at one number of groups, one level and one error mean square.
class TukeyTest {
public:
  /// @param df error degrees of freedom
  TukeyTest(int groups, double df, double alpha);

  /// False with less than two groups, without degrees of freedom, or without such a level.
  bool IsValid() const { return isValid_; }

  double Df() const { return df_; }

  /// The quantile of the studentized range that is exceeded with probability alpha where all means are equal.
  double CriticalRange() const { return critical_; }

  /// What the t statistic of one pair is compared with: the critical range over the square root of 2.
  double CriticalT() const;

  /// The power for one pair, whose t statistic has that noncentrality.
  Answer PowerOfPair(double noncentrality) const;

  /// The probability that at least one pair differs significantly, with groups of equal size n: that the studentized
  /// range of the group means exceeds the critical range.
  /// @param means in standard errors of one mean, that is times sqrt(n) / sd
  Answer PowerOfAnyPair(const std::vector<double>& means) const;

private:
  int groups_;
  double df_;
  double critical_ = 0;
  bool isValid_ = false;
};

/// The noncentrality of a pair's t statistic, from the difference of its means in standard deviations.
double NoncentralityOfPair(double difference, double size1, double size2);

/// The power for one pair, at group sizes that may be unequal.
Answer PowerOfPair(double difference, double size1, double size2, int groups, double totalSize, double alpha);

/// The power for any pair of groups of equal size, from their means in standard deviations.
Answer PowerOfAnyPair(const std::vector<double>& means, double size, double alpha);

/// The half-width of a pair's interval, simultaneous with those of all pairs.
double HalfWidthOfPair(double sd, double size1, double size2, int groups, double totalSize, double alpha);

}  // namespace kelpower::comparisons

#endif
