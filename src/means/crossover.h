#ifndef KELPOWER_MEANS_CROSSOVER_H
#define KELPOWER_MEANS_CROSSOVER_H

#include "frame/answer.h"
#include "means/independent.h"

// The 2x2 crossover: one group of subjects receives the treatments in one order, the other in the reverse order. The
// treatment effect is half the difference, between the groups, of the means of the differences between the periods
// (Jones and Kenward 2014, "Design and Analysis of Cross-Over Trials", 3rd ed., chapter 2). A difference of two
// measurements on a subject has the variance 2 sd^2, where sd is the standard deviation within subjects.

namespace kelpower::means {

/// The estimate of the treatment effect from n1 and n2 subjects in the two sequences: its standard error is
/// sd sqrt((1 / n1 + 1 / n2) / 2), on n1 + n2 - 2 degrees of freedom.
DifferenceDistribution CrossoverDifference(double n1, double n2, double sd);

/// Of the confidence interval of the treatment effect.
double CrossoverHalfWidth(double n1, double n2, double sd, double alpha);

/// The unrounded size of each sequence at which the half-width is reached.
Answer CrossoverSizeForHalfWidth(double halfWidth, double sd, double alpha);

}  // namespace kelpower::means

#endif
