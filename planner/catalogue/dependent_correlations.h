#ifndef KELPOWER_PLANNER_CATALOGUE_DEPENDENT_CORRELATIONS_H
#define KELPOWER_PLANNER_CATALOGUE_DEPENDENT_CORRELATIONS_H

#include <vector>

#include "correlation/dependent_correlations.h"
#include "model/inputs.h"
#include "model/test.h"

// What the parts of the test of two dependent correlations share.
namespace planner {

/// Whether the correlations compared have no variable in common.
bool ArePairsSeparate(const Inputs& in);

kelpower::correlation::SharedVariable SharedVariableOf(const Inputs& in);
kelpower::correlation::SeparatePairs SeparatePairsOf(const Inputs& in);
kelpower::correlation::NullCorrelations NullCorrelationsOf(const Inputs& in);

/// The first Fisher's z less the second.
double DifferenceOfZ(const Inputs& in);

std::vector<Condition> ConditionsOfDependentCorrelations();
std::vector<Condition> SizeExistsForDependentCorrelations();
std::vector<Unknown> UnknownsOfDependentCorrelations();

}  // namespace planner

#endif
