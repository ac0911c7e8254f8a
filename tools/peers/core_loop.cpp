// A loop over a function of the library, for those who call it from elsewhere: what the same calls take without them.

#include <cstddef>

#include "kelpower.h"

/// The powers of two-sided two-sample t tests, each for an effect and two sizes.
extern "C" __attribute__((visibility("default"))) void PowersOfTwoMeans(std::size_t count, const double* effects,
                                                                        const double* firstSizes,
                                                                        const double* secondSizes, double alpha,
                                                                        double* powers) {
  for (std::size_t i = 0; i < count; ++i) {
    powers[i] = PowerIndependentNondirectionalES(firstSizes[i], secondSizes[i], effects[i], alpha);
  }
}
