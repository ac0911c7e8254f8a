#include "catalogue/effects.h"

#include "catalogue/effects_parts.h"

namespace planner {
namespace {

Effects Described() {
  Effects effects{.inputs = {.name = "effect",
                             .title = "Effect sizes",
                             .about =
                                 "Converts what a study reports into effect sizes: means and standard deviations, "
                                 "test statistics, correlations,\nproportions and counts, or another effect size."}};
  effects.inputs.whenNot =
      "With the sizes of the study each has its confidence interval. What you give decides what is converted.";
  effects.inputs.parameters = ParametersOfEffects();
  effects.inputs.conditions = ConditionsOfEffects();
  effects.inputs.examples = ExamplesOfEffects();
  AddEffectsOfTwoMeans(effects);
  AddEffectsFromD(effects);
  AddEffectsOfOneSample(effects);
  AddEffectsOfVariance(effects);
  AddEffectsFromFSquared(effects);
  AddEffectsOfCorrelations(effects);
  AddEffectsOfProportions(effects);
  AddEffectsOfRatios(effects);
  AddConversionsOfTwoMeans(effects);
  AddConversionsOfOneSample(effects);
  AddConversionsOfVariance(effects);
  AddConversionsOfCorrelations(effects);
  AddConversionsOfProportions(effects);
  for (const EffectConversion& conversion : effects.conversions) {
    effects.inputs.routes.push_back({.question = Question::EffectSizes,
                                     .needs = conversion.needs,
                                     .accepts = conversion.accepts,
                                     .exportName = ""});
  }
  return effects;
}

}  // namespace

const Effects& EffectSizes() {
  static const Effects effects = Described();
  return effects;
}

}  // namespace planner
