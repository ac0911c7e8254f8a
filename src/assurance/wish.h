#ifndef KELPOWER_ASSURANCE_WISH_H
#define KELPOWER_ASSURANCE_WISH_H

#include "frame/checks.h"

// The width of an interval depends on the data. So a size that gives the wished half-width at the expected data misses
// it in about every other study. The assurance of a size is the probability that the interval which the data will give
// is at most as wide as wished (Kupper and Hafner 1989, "How appropriate are popular sample size formulas?", The
// American Statistician 43, 101-105). It counts every interval, whether or not it covers the true value.

namespace kelpower::assurance {

/// What is wished of a confidence interval.
struct Wish {
  double halfWidth;  ///< at most, in the unit of the estimate
  double alpha;      ///< 1 minus the confidence level
};

/// A half-width below 0 and what is no level are no wish.
inline bool Rejects(const Wish& wish) { return wish.halfWidth < 0 || RejectsAlpha(wish.alpha); }

}  // namespace kelpower::assurance

#endif
