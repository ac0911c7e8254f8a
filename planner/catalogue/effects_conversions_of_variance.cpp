#include "catalogue/effects_parts.h"

namespace planner {
namespace {

using Gives = std::vector<std::string>;

const Gives fromF{"f2", "f", "eta-squared", "omega-squared", "noncentrality"};
const Gives fromRSquared{"f2", "r-squared", "adjusted-r-squared", "noncentrality"};

const std::vector<EffectUse> usesOfF{{"anova", "effect-f", {"f"}}};
const std::vector<EffectUse> usesOfF2{{"regression", "effect-f2", {"f2"}}};

}  // namespace

void AddConversionsOfVariance(Effects& effects) {
  const auto add = [&](std::string title, Names needs, Names accepts, std::string given, const std::string& tells,
                       Gives gives, std::vector<EffectUse> uses) {
    effects.conversions.push_back({std::move(title), std::move(needs), std::move(accepts), std::move(given), tells,
                                   std::move(gives), std::move(uses)});
  };
  add("Analysis of variance", {"f-statistic", "df"}, {"n"},
      "an F of {f-statistic} on {df} degrees of freedom{in-sample}", "f", fromF, usesOfF);
  add("", {"eta-squared"}, {}, "an eta squared of {eta-squared}", "f", fromF, usesOfF);
  add("", {"eta-squared", "df"}, {"n"}, "an eta squared of {eta-squared} on {df} degrees of freedom{in-sample}", "f",
      fromF, usesOfF);
  add("", {"effect-f"}, {}, "a Cohen's f of {effect-f}", "eta-squared", fromF, usesOfF);
  add("", {"effect-f", "df"}, {"n"}, "a Cohen's f of {effect-f} on {df} degrees of freedom{in-sample}", "eta-squared",
      fromF, usesOfF);
  add("Regression", {"r-squared"}, {}, "an R squared of {r-squared}", "f2", fromRSquared, usesOfF2);
  add("", {"r-squared", "predictors", "n"}, {}, "an R squared of {r-squared}{with-predictors}{in-sample}", "f2",
      fromRSquared, usesOfF2);
  add("", {"effect-f2"}, {}, "an f squared of {effect-f2}", "r-squared", fromRSquared, usesOfF2);
  add("", {"effect-f2", "predictors", "n"}, {}, "an f squared of {effect-f2}{with-predictors}{in-sample}", "r-squared",
      fromRSquared, usesOfF2);
}

}  // namespace planner
