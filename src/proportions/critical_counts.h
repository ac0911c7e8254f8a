#ifndef KELPOWER_PROPORTIONS_CRITICAL_COUNTS_H
#define KELPOWER_PROPORTIONS_CRITICAL_COUNTS_H

namespace kelpower::proportions {

// The inversion of a binomial distribution, X ~ Binomial(size, p). It starts at the normal quantile of the probability
// and takes two evaluations of the distribution function where that is right.

/// The smallest count k with P(X <= k) above `probability`; `size`, rounded up, when there is none. `z` is the normal
/// quantile of the probability.
double FirstCountAbove(double size, double p, double probability, double z);

/// The smallest count k with P(X <= k) at least `probability`; one above the size when there is none.
double FirstCountReaching(double size, double p, double probability, double z);

/// A share of the significance level in one tail of the null distribution, with its normal quantile, which is where the
/// inversion starts.
struct TailLevel {
  double level;
  double z;

  explicit TailLevel(double level);
};

/// A critical value of the exact test of one proportion: it rejects at X <= lower, or at X > upper. Both are what
/// stepping through the distribution function one count at a time would find.
struct CriticalCount {
  double count;
  double questions;  ///< how often the stop request is asked: once for each step that would take
};

/// The largest count k with P(X <= k) at most the level, -1 when there is none. Stepping starts at -1. When no count
/// satisfies the comparisons (a NaN level or proportion) it is the first whole number not below `size`.
CriticalCount LowerCritical(double size, double nullProportion, const TailLevel& tail);

/// The smallest count k with P(X <= k) at least 1 minus the level, so that P(X > k) is at most the level. Stepping
/// starts above `size`, and ends at 0 at the latest.
CriticalCount UpperCritical(double size, double nullProportion, const TailLevel& tail);

/// The counts that an exact test rejects: X <= lower and X >= upper. A tail without such a count has `lower` -1, or
/// `upper` one above the number of trials.
struct CriticalRegion {
  double lower;
  double upper;
};

/// Which tails of the distribution a test rejects in.
enum class Tails { Lower, Upper, Both };

}  // namespace kelpower::proportions

#endif
