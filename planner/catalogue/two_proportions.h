#ifndef KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_H
#define KELPOWER_PLANNER_CATALOGUE_TWO_PROPORTIONS_H

#include <vector>

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

/// The proportions, whichever way their difference is given.
double FirstProportion(const Inputs& in);
double SecondProportion(const Inputs& in);

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
std::vector<Condition> ConditionsOfTwoProportions();
std::vector<Condition> SizeConditionsOfTwoProportions();
std::vector<Condition> SizeExistsForTwoProportions();
std::vector<Derived> FiguresOfTwoProportions();

/// About how many steps a power takes: the conditional test goes over tables, the other exact ones over rows.
double StepsOfTwoProportionsPower(const Inputs& in);

/// Gives the inputs the first proportion of the design and this second one.
void KeepFirstProportion(Inputs& in, const Inputs& design, double second);

std::vector<Axis> SizeAxesOfTwoProportions();
std::vector<Axis> ProportionAxesOfTwoProportions();
Axis SizeRatioAxisOfTwoProportions();
Axis RiskDifferenceAxisOfTwoProportions();
Axis RiskRatioAxisOfTwoProportions();
Axis OddsRatioAxisOfTwoProportions();

}  // namespace planner

#endif
