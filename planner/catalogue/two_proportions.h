#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_H

#include <vector>

#include "frame/stop.h"
#include "model/chart.h"
#include "model/inputs.h"
#include "model/test.h"
#include "proportions/independent_design.h"
#include "proportions/independent_sizes.h"

// What the questions about two independent proportions and their charts share.
namespace planner {

// The work of an exact power grows with its tables. Groups up to this size take less than a second.
constexpr double largestExactGroup = 10000;

kelpower::proportions::TwoProportionTest TestOf(const Inputs& in);
bool IsConditional(const Inputs& in);
bool IsExact(const Inputs& in);

/// Whether the standard error takes the proportions to be equal, as the null hypothesis does.
bool IsPooled(const Inputs& in);

/// The proportions, whichever way their difference is given.
double FirstProportion(const Inputs& in);
double SecondProportion(const Inputs& in);

/// The stop request of the conditional test. The other exact tests ask it once a table, which takes up to some hundred
/// times as long as their power; they end in a tenth of a second without it.
kelpower::Stop StopOfTables(const Inputs& in);

/// The proportion of all observations together, which an exact test's attained level is taken at.
double CommonProportion(const Inputs& in);

/// NaN for a large-sample test.
double AttainedLevelOfTwoProportions(const Inputs& in);

double RiskDifference(const Inputs& in);
double RiskRatio(const Inputs& in);
double OddsRatio(const Inputs& in);

/// The second proportion that a first one has with an odds ratio.
double SecondOfOddsRatio(double first, double oddsRatio);

kelpower::proportions::IndependentDesign DesignOf(const Inputs& in);

/// What is wanted of the sizes to find.
kelpower::proportions::IndependentSizes WantedOf(const Inputs& in);

/// The sizes that a test for large samples needs.
Numbers LargeSampleSizes(const Inputs& in, kelpower::proportions::TwoProportionTest test);

/// The ways to give the two proportions: the inputs of each.
std::vector<Names> EffectsOfTwoProportions();

/// The inputs that choose the test.
Names OptionsOfTwoProportions();

/// The names and one more.
Names With(Names names, Name name);

std::vector<Parameter> ParametersOfTwoProportions();
std::vector<Route> RoutesOfTwoProportions();
std::vector<Unknown> UnknownsOfTwoProportions();
std::vector<Condition> ConditionsOfTwoProportions();
std::vector<Condition> SizeConditionsOfTwoProportions();
std::vector<Condition> SizeExistsForTwoProportions();
std::vector<Derived> FiguresOfTwoProportions();
std::vector<Assumption> AssumptionsOfTwoProportions();
std::vector<Axis> AxesOfTwoProportions();

/// About how many steps a power takes.
double StepsOfPower(const Inputs& in);

}  // namespace planner

#endif
