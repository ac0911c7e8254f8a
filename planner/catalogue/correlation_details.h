#ifndef KELPOWER_PLANNER_CATALOGUE_CORRELATION_DETAILS_H
#define KELPOWER_PLANNER_CATALOGUE_CORRELATION_DETAILS_H

#include "correlation/fisher.h"
#include "correlation/pearson.h"
#include "model/details.h"
#include "model/inputs.h"

// What is behind the answers for correlations by Fisher's z.
namespace planner {

/// The power of a test, from its normal statistic.
Details DetailsOfShift(const kelpower::correlation::Level& level, const kelpower::correlation::ShiftedNormal& statistic,
                       const Inputs& in);

/// A half-width, from the standard error of z.
Details DetailsOfZInterval(const Inputs& in, double error, double halfWidth);

/// How R is asked for an interval around z itself.
void AddRInterval(Details& details);

/// What the tests of Pearson's and of a partial correlation have in common.
Details DetailsOfPearsonTest(const kelpower::correlation::PearsonTest& test, const Inputs& in);
Details DetailsOfPearsonInterval(const kelpower::correlation::PearsonInterval& interval, const Inputs& in);

/// The power of the exact test of Pearson's correlation, from its critical values.
Details DetailsOfExactPearson(const Inputs& in);

}  // namespace planner

#endif
