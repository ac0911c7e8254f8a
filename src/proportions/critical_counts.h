#ifndef KELPOWER_PROPORTIONS_CRITICAL_COUNTS_H
#define KELPOWER_PROPORTIONS_CRITICAL_COUNTS_H

namespace kelpower {

/// Critical values of the exact test of one proportion, X ~ Binomial(size, nullProportion): it rejects at X <= lower,
/// or at X > upper. Both are what stepping through the distribution function one count at a time would find.
struct CriticalCount {
  double count;
  double steps;  ///< how many steps that would take
};

/// A share of the significance level in one tail of the null distribution, with its normal quantile, which is where the
/// inversion starts.
struct TailLevel {
  double level;
  double z;

  explicit TailLevel(double level);
};

/// The largest count k with P(X <= k) at most the level, -1 when there is none. Stepping starts at -1. When no count
/// satisfies the comparisons (a NaN level or proportion) it is the first whole number not below `size`.
CriticalCount LowerCritical(double size, double nullProportion, const TailLevel& tail);

/// The smallest count k with P(X <= k) at least 1 minus the level, so that P(X > k) is at most the level. Stepping
/// starts above `size`, and ends at 0 at the latest.
CriticalCount UpperCritical(double size, double nullProportion, const TailLevel& tail);

}  // namespace kelpower

#endif
