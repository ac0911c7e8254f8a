#include <string>

#include "catalogue/charts.h"
#include "catalogue/two_proportions.h"

namespace planner {
namespace {

/// A chart, whichever way the proportions are given.
struct Drawing {
  std::string name;
  std::vector<Axis> axes;
  std::string options;  // of its examples
};

/// Proportions for the examples, in the order of the effects.
const char* const exampleEffects[] = {"--proportions 0.5,0.75", "--proportion1 0.5 --risk-difference -0.25",
                                      "--proportion1 0.6 --risk-ratio 1.5", "--proportion1 0.5 --odds-ratio 0.5"};

}  // namespace

std::vector<Chart> ChartsOfTwoProportions() {
  const std::vector<Drawing> drawings = {
      {"sizes", SizeAxesOfTwoProportions(), "--n 50,60"},
      {"proportions", ProportionAxesOfTwoProportions(), "--n 50 --test conditional --step 0.05"},
      {"ratio", {SizeRatioAxisOfTwoProportions()}, "--n 40,80 --pooled"},
      {"risk-difference", {RiskDifferenceAxisOfTwoProportions()}, "--n 50 --exact"},
      {"risk-ratio", {RiskRatioAxisOfTwoProportions()}, "--n 90 --test likelihood-ratio"},
      {"odds-ratio", {OddsRatioAxisOfTwoProportions()}, "--n 90 --one-sided"},
  };
  const std::vector<Names> effects = EffectsOfTwoProportions();
  std::vector<Chart> charts;
  for (const Drawing& drawing : drawings) {
    for (std::size_t i = 0; i < effects.size(); ++i) {
      const std::string example =
          std::string("two-proportions ") + exampleEffects[i] + " " + drawing.options + " --chart " + drawing.name;
      charts.push_back({.name = drawing.name,
                        .axes = drawing.axes,
                        .needs = With(effects[i], "n"),
                        .accepts = OptionsOfTwoProportions(),
                        .example = example,
                        .isAnotherWay = i > 0,
                        .steps = StepsOfTwoProportionsPower});
    }
  }
  return charts;
}

}  // namespace planner
