#ifndef KELPOWER_RANKS_NEARLY_NORMAL_H
#define KELPOWER_RANKS_NEARLY_NORMAL_H

// What the tests of ranks share: their statistics are nearly normal.

namespace kelpower::ranks {

/// Which alternative a test has: one-sided, in the direction in which the effect lies, or two-sided.
enum class Sides { One, Two };

/// A statistic that is nearly normal, and 0 on average without an effect.
struct NearlyNormal {
  double effect;     ///< its mean, at least 0: a test looks where the effect lies
  double nullSd;     ///< its standard deviation without an effect
  double threshold;  ///< what its distance from 0 must exceed
  double sd;         ///< its standard deviation with the effect; 0 leaves nothing to chance
};

/// A test at a level, by the normal distribution.
class NormalTest {
public:
  NormalTest(Sides sides, double alpha);

  /// The probability of rejection. A two-sided test counts the tail away from the effect too.
  double Power(const NearlyNormal& statistic) const;

  /// The normal quantile that thresholds are made with.
  double Critical() const { return critical_; }

private:
  Sides sides_;
  double critical_;
};

/// Whether some ranks of two groups without ties are extreme enough to reject: the exact p-value of groups that do not
/// overlap is one over the number of ways to choose a group, or twice that. Sizes need not be whole.
bool CanRejectTwoGroups(Sides sides, double alpha, double n1, double n2);

/// The same of the signed ranks of one sample, whose signs are all the same in one of 2^n cases.
bool CanRejectSigns(Sides sides, double alpha, double n);

}  // namespace kelpower::ranks

#endif
