#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_INTERVAL_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_INTERVAL_H

#include "frame/answer.h"
#include "frame/stop.h"

namespace kelpower::proportions {

/// Confidence intervals of the difference of two independent proportions.
enum class IndependentMethod {
  Wald,
  AgrestiCaffo,
  AgrestiCaffoUnbiased,  ///< with divisors of unbiased variances
  HalfAdded,             ///< half a success and half a failure added to each group
  UnbiasedCorrected,     ///< Wald's with unbiased variances, always corrected for continuity
  Newcombe
};

class IndependentInterval {
public:
  struct Design {
    IndependentMethod method;
    double p1;         ///< expected in group 1
    double p2;         ///< expected in group 2
    double alpha;      ///< 1 minus the confidence level
    bool isCorrected;  ///< for continuity; the methods of Wald and Newcombe only
  };

  explicit IndependentInterval(const Design& design);

  /// NaN where the interval is not real, such as a corrected one of Newcombe at few cases.
  double HalfWidth(double size1, double size2) const;

  /// The size of group 1, unrounded, with `ratio` times that in group 2.
  Answer FirstSizeFor(double halfWidth, double ratio, Stop stop = {}) const;

private:
  Design design_;
  double z_;
};

}  // namespace kelpower::proportions

#endif
