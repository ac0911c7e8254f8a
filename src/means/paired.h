#ifndef KELPOWER_MEANS_PAIRED_H
#define KELPOWER_MEANS_PAIRED_H

#include <optional>

#include "means/mean_test.h"

namespace kelpower {

/// Two measurements on the same units.
struct PairedDesign {
  double mean1;
  double sd1;
  double mean2;
  double sd2;
  double correlation;
};

/// The effect size of the differences, mean over standard deviation. A `sd2` of 0 says that `sd1` is already the
/// standard deviation of the differences.
double EffectSizeOfDifferences(const PairedDesign& design);

/// The checks of a design that the tests and their chart share: all but the upper end of the correlation.
bool RejectsDesign(const PairedDesign& design);

/// The effect size for a test at level `alpha`; none where the test refuses its input.
std::optional<double> AcceptedEffectSize(Sides sides, const PairedDesign& design, double alpha);

}  // namespace kelpower

#endif
