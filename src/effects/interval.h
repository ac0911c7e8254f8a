#ifndef KELPOWER_EFFECTS_INTERVAL_H
#define KELPOWER_EFFECTS_INTERVAL_H

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::effects {

/// A confidence interval.
struct Interval {
  double lower;
  double upper;
};

/// An effect size as data give it, with its confidence interval.
struct Estimate {
  double value;
  Interval interval;
};

/// Both limits times a factor above 0.
inline Interval Scaled(const Interval& interval, double factor) {
  return {interval.lower * factor, interval.upper * factor};
}

/// The normal quantile that standard errors are multiplied by for an interval at level 1 - alpha.
inline double NormalQuantile(double alpha) { return -KelMath::KelDistFun::IdfStdNorm(alpha / 2); }

}  // namespace kelpower::effects

#endif
