#ifndef KELPOWER_PROPORTIONS_ONE_SAMPLE_INTERVAL_H
#define KELPOWER_PROPORTIONS_ONE_SAMPLE_INTERVAL_H

#include "frame/answer.h"
#include "frame/stop.h"

namespace kelpower::proportions {

/// Confidence intervals of one proportion; Wilson's is the score interval.
enum class OneSampleMethod { Wald, LogitAdjusted, Logit, ClopperPearson, Jeffreys, Wilson, AgrestiCoull };

/// The confidence interval of one proportion.
class OneSampleInterval {
public:
  struct Design {
    OneSampleMethod method;
    double proportion;  ///< expected
    double alpha;       ///< 1 minus the confidence level
    bool isCorrected;   ///< for continuity; the methods of Wald and Wilson only
  };

  explicit OneSampleInterval(const Design& design);

  /// NaN where the interval is not real, such as a corrected one of Wilson at few cases.
  double HalfWidth(double size) const;

  /// The size, unrounded.
  Answer SizeFor(double halfWidth, Stop stop = {}) const;

private:
  Design design_;
  double z_;
};

}  // namespace kelpower::proportions

#endif
