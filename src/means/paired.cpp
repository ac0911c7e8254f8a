#include "means/paired.h"

#include <algorithm>

#include "frame/rejection.h"
#include "frame/scale.h"
#include "means/one_sample.h"

namespace kelpower::means {

// sd1^2 + sd2^2 - 2 correlation sd1 sd2, as (sd1 - sd2)^2 + 2 (1 - correlation) sd1 sd2. The plain sum cancels when the
// measurements agree closely (sd1 = 4, sd2 = 4.0000001, correlation 1), and squares of unscaled terms can overflow.
DifferenceVariance DifferenceVariance::Of(const PairedSpread& spread) {
  const double scale = BinaryScale(std::max(std::fabs(spread.sd1), std::fabs(spread.sd2)));
  const double u = spread.sd1 / scale;
  const double v = spread.sd2 / scale;
  return {scale, (u - v) * (u - v) + 2 * (1 - spread.correlation) * u * v};
}

double HalfWidth(const PairedInterval& interval, double size) {
  return HalfWidth(MeanInterval{DifferenceVariance::Of(interval.spread).StandardDeviation(), interval.alpha}, size);
}

// As for one sample. Divides by the variance, not by its root: a correlation beyond 1 makes it negative, and no size is
// found.
Answer SizeForHalfWidth(const PairedInterval& interval, double halfWidth) {
  const DifferenceVariance variance = DifferenceVariance::Of(interval.spread);
  const double relativeWidth = halfWidth / variance.scale;
  const double squaredWidth = relativeWidth * relativeWidth / variance.relative;
  return SizeForHalfWidth({squaredWidth, 1, interval.alpha, [](double n) { return n - 1; }});
}

}  // namespace kelpower::means
