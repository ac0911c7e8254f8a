#ifndef KELPOWER_PLANNER_CATALOGUE_PROPORTION_MARGINS_H
#define KELPOWER_PLANNER_CATALOGUE_PROPORTION_MARGINS_H

#include <string>
#include <vector>

#include "model/details.h"
#include "model/inputs.h"
#include "model/test.h"
#include "proportions/constrained_proportions.h"
#include "proportions/one_sample_margins.h"

// Margins about a proportion, and what they share with those of two.
namespace planner {

/// How a margin compares proportions: by their difference, their ratio or their odds ratio.
Parameter MarginScale();
kelpower::proportions::Contrast MarginContrast(const Inputs& in);

/// The number of no effect on the scale of the margin.
double NoContrast(const Inputs& in);

/// The proportion that has the contrast to `reference`.
double AtContrast(kelpower::proportions::Contrast contrast, double reference, double limit);

/// The contrast of two proportions.
double ContrastOf(kelpower::proportions::Contrast contrast, double reference, double proportion);

/// The middle of the limits of equivalence, near which the power is highest.
double MiddleOfLimits(const Inputs& in);

/// The proportions that the test must exclude.
kelpower::proportions::ProportionLimits ProportionLimitsOf(const Inputs& in);
kelpower::proportions::OneSampleMarginDesign OneSampleMarginDesignOf(const Inputs& in);

std::vector<Parameter> MarginParametersOfProportion();
std::vector<Route> MarginRoutesOfProportion();
std::vector<Condition> MarginConditionsOfProportion();
std::vector<Condition> MarginSizeExistsForProportion();
std::vector<Derived> MarginFiguresOfProportion();
std::vector<Assumption> MarginAssumptionsOfProportion();

/// Adds them to the description of the test.
void AddMarginsOfProportion(Test& test);

std::vector<Phrase> PhrasesOfProportion();
std::vector<Example> MarginExamplesOfProportion();
Details MarginDetailsOfProportion(const Inputs& in);

}  // namespace planner

#endif
