#ifndef KELPOWER_PLANNER_CATALOGUE_EFFECTS_PARTS_H
#define KELPOWER_PLANNER_CATALOGUE_EFFECTS_PARTS_H

#include <vector>

#include "model/effect.h"

// The parts of the description of effect sizes, a file each. Families add their effect sizes and formulas, and what they
// are converted from.
namespace planner {

std::vector<Parameter> ParametersOfEffects();
void AddParametersOfProportions(std::vector<Parameter>& parameters);
std::vector<Condition> ConditionsOfEffects();
std::vector<Example> ExamplesOfEffects();
void AddConditionsOfProportions(std::vector<Condition>& conditions);

void AddEffectsOfTwoMeans(Effects& effects);
void AddEffectsFromD(Effects& effects);
void AddEffectsOfOneSample(Effects& effects);
void AddEffectsOfVariance(Effects& effects);
void AddEffectsFromFSquared(Effects& effects);
void AddCorrectedShares(Effects& effects);
void AddEffectsOfCorrelations(Effects& effects);
void AddEffectsOfProportions(Effects& effects);
void AddEffectsOfRatios(Effects& effects);

void AddConversionsOfTwoMeans(Effects& effects);
void AddConversionsOfOneSample(Effects& effects);
void AddConversionsOfVariance(Effects& effects);
void AddConversionsOfCorrelations(Effects& effects);
void AddConversionsOfProportions(Effects& effects);

}  // namespace planner

#endif
