#ifndef KELPOWER_EXPORTS_MEANS_PAIRED_H
#define KELPOWER_EXPORTS_MEANS_PAIRED_H

#include <optional>

#include "means/t_test_of_a_mean.h"

namespace kelpower::exports {

/// Two measurements on the same units.
struct PairedDesign {
  double mean1;
  double sd1;
  double mean2;
  double sd2;
  double correlation;
};

/// The checks of a design that the tests and their chart share: all but the upper end of the correlation.
bool RejectsDesign(const PairedDesign& design);

/// The effect size for a test at level `alpha`; none where the test refuses its input.
std::optional<double> AcceptedEffectSize(means::Sides sides, const PairedDesign& design, double alpha);

}  // namespace kelpower::exports

#endif
