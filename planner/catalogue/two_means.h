#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_MEANS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_MEANS_H

#include <vector>

#include "catalogue/mean_margins.h"
#include "means/independent.h"
#include "model/details.h"
#include "model/inputs.h"
#include "model/test.h"

// What the parts of the t test of two means share.
namespace planner {

/// The standard deviations, of which equal ones select the pooled test. An effect size is a difference in their unit.
kelpower::means::GroupSpreads SpreadsOfTwoMeans(const Inputs& in);

/// Of a second group whose size follows from the ratio.
constexpr double smallestSecondGroup = 2;

std::vector<Route> RoutesOfTwoMeans();
/// Those of a ratio, and those against margins.
std::vector<Route> RoutesOfTwoMeansWithMargins();
std::vector<Condition> ConditionsOfTwoMeans();
std::vector<Condition> SizeExistsForTwoMeans();
/// Whether the difference or ratio lies where it is to be shown.
bool IsWithinMarginsOfTwoMeans(const Inputs& in);
/// The test of a ratio or against margins, at the sizes of the design.
MeanQuestion QuestionOfTwoMeans(const Inputs& in);
Details DetailsOfTwoMeansWithMargins(const Inputs& in);
std::vector<Unknown> UnknownsOfTwoMeans();

/// Adds how other programs are asked for the same power of the pooled test.
void AddPooledPrograms(Details& details, const Inputs& in);
void AddSas(Details& details, const Inputs& in);

}  // namespace planner

#endif
