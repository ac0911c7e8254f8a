#ifndef KELPOWER_MEANS_PAIRED_H
#define KELPOWER_MEANS_PAIRED_H

#include <cmath>

#include "frame/answer.h"

// Two measurements on the same units. Their t test is that of one sample of differences (Cohen 1988, section 2.3.5).

namespace kelpower::means {

/// How two measurements scatter.
struct PairedSpread {
  double sd1;          ///< standard deviation of the first measurement
  double sd2;          ///< standard deviation of the second
  double correlation;  ///< between them
};

/// The variance of the differences is scale^2 * relative.
struct DifferenceVariance {
  double scale;
  double relative;

  static DifferenceVariance Of(const PairedSpread& spread);

  double StandardDeviation() const { return scale * std::sqrt(relative); }
};

/// A confidence interval of the mean difference.
struct PairedInterval {
  PairedSpread spread;
  double alpha;  ///< 1 minus the confidence level
};

double HalfWidth(const PairedInterval& interval, double size);

/// The unrounded number of pairs.
Answer SizeForHalfWidth(const PairedInterval& interval, double halfWidth);

}  // namespace kelpower::means

#endif
