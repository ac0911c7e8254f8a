#include "catalogue/proportion_margins.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/margins.h"

namespace planner {

namespace proportions = kelpower::proportions;
using proportions::Contrast;

namespace {

/// Where a standard error is taken.
constexpr int atLimit = 0;
constexpr int observed = 1;

}  // namespace

Parameter MarginScale() {
  return OneOf("margin-scale", "scale of the margin",
               "whether margin and limits of equivalence are a difference, a ratio or an odds ratio",
               {{"difference", CodeOf(Contrast::Difference), "difference"},
                {"ratio", CodeOf(Contrast::RiskRatio), "ratio"},
                {"odds-ratio", CodeOf(Contrast::OddsRatio), "odds ratio"}})
      .Default("difference");
}

Contrast MarginContrast(const Inputs& in) { return Contrast(in.Choice("margin-scale")); }

double NoContrast(const Inputs& in) { return MarginContrast(in) == Contrast::Difference ? noDifference : noRatio; }

double AtContrast(Contrast contrast, double reference, double limit) {
  switch (contrast) {
    case Contrast::RiskRatio: return reference * limit;
    case Contrast::OddsRatio: return reference / (reference + (1 - reference) / limit);
    case Contrast::Difference: break;
  }
  return reference + limit;
}

double ContrastOf(Contrast contrast, double reference, double proportion) {
  switch (contrast) {
    case Contrast::RiskRatio: return proportion / reference;
    case Contrast::OddsRatio: return proportion / (1 - proportion) / (reference / (1 - reference));
    case Contrast::Difference: break;
  }
  return proportion - reference;
}

double MiddleOfLimits(const Inputs& in) {
  const Numbers& limits = in.List("equivalence");
  return MarginContrast(in) == Contrast::Difference ? limits[0] / 2 + limits[1] / 2
                                                    : std::sqrt(limits[0]) * std::sqrt(limits[1]);
}

proportions::ProportionLimits ProportionLimitsOf(const Inputs& in) {
  const auto at = [&](double limit) { return AtContrast(MarginContrast(in), in.Number("null"), limit); };
  proportions::ProportionLimits limits;
  if (IsEquivalence(in)) {
    limits.lower = at(in.List("equivalence")[0]);
    limits.upper = at(in.List("equivalence")[1]);
  } else {
    (IsAboveMargin(in, NoContrast(in)) ? limits.lower : limits.upper) = at(in.Number("margin"));
  }
  return limits;
}

proportions::OneSampleMarginDesign OneSampleMarginDesignOf(const Inputs& in) {
  return {ProportionLimitsOf(in), in.Alpha(), in.Flag("exact"), in.Flag("correction"),
          in.Choice("standard-error") == observed};
}

std::vector<Parameter> MarginParametersOfProportion() {
  std::vector<Parameter> parameters = MarginParameters("difference from the null proportion");
  parameters.push_back(MarginScale());
  parameters.push_back(OneOf("standard-error", "standard error",
                             "where a z test with a margin takes its standard error",
                             {{"limit", atLimit, "at the limit"}, {"observed", observed, "at the proportion observed"}})
                           .Default("limit"));
  return parameters;
}

void AddMarginsOfProportion(Test& test) {
  const auto add = [](auto& to, auto added) { std::move(added.begin(), added.end(), std::back_inserter(to)); };
  add(test.routes, MarginRoutesOfProportion());
  add(test.conditions, MarginConditionsOfProportion());
  add(test.sizeExists, MarginSizeExistsForProportion());
  add(test.derived, MarginFiguresOfProportion());
  add(test.assumptions, MarginAssumptionsOfProportion());
}

}  // namespace planner
