#ifndef KELCOMMON_SRC_NORMAL_H
#define KELCOMMON_SRC_NORMAL_H

namespace KelMath {

/// The probability of the standard normal distribution above z.
double NormalUpperTail(double z);

/// The z with probability p above it, 0 < p < 1. The relative error is below 4e-16, also near p = 1/2.
double NormalUpperQuantile(double p);

}  // namespace KelMath

#endif
