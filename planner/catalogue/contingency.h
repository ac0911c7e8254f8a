#ifndef KELPOWER_PLANNER_CATALOGUE_CONTINGENCY_H
#define KELPOWER_PLANNER_CATALOGUE_CONTINGENCY_H

#include <vector>

#include "catalogue/chi_square.h"

// What the questions about a contingency table share.
namespace planner {

/// The joint proportions expected, from a table or from the profiles of its rows.
Numbers TableOf(const Inputs& in);

/// The columns of the table, given or counted.
double ColumnsOf(const Inputs& in);

/// From a table, profiles, Cramer's V or w.
ChiSquareDesign DesignOfContingency(const Inputs& in);

std::vector<Route> RoutesOfContingency();
std::vector<Condition> ConditionsOfContingency();
std::vector<Condition> SizeExistsForContingency();
std::vector<Derived> FiguresOfContingency();

}  // namespace planner

#endif
