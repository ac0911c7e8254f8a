#ifndef KELPOWER_PLANNER_CATALOGUE_CORRELATION_PARAMETERS_H
#define KELPOWER_PLANNER_CATALOGUE_CORRELATION_PARAMETERS_H

#include <string>

#include "correlation/fisher.h"
#include "model/inputs.h"
#include "model/test.h"

// What the descriptions of the tests of one correlation share.
namespace planner {

Parameter Correlation(std::string meaning);
Parameter NullCorrelation();
Parameter CaseCount(double smallest);
Parameter TowardsCorrelation();

kelpower::correlation::Hypotheses HypothesesOf(const Inputs& in);

/// The condition for a size that the correlations differ.
Condition CorrelationsDiffer();

}  // namespace planner

#endif
