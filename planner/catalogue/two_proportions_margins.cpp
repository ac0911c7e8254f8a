#include "catalogue/two_proportions_margins.h"

#include <algorithm>
#include <iterator>

#include "catalogue/core.h"
#include "catalogue/margins.h"
#include "catalogue/mean_margins.h"
#include "catalogue/proportion_margins.h"
#include "catalogue/two_proportions.h"

namespace planner {

namespace proportions = kelpower::proportions;
using proportions::Contrast;
using proportions::MarginMethod;

namespace {

/// The effect, on its own scale, that has a limit on the scale of the margin.
double EffectAt(const Inputs& in, Contrast effect, double limit) {
  const double first = FirstProportion(in);
  return ContrastOf(effect, first, AtContrast(MarginContrast(in), first, limit));
}

}  // namespace

proportions::ContrastLimits ContrastLimitsOf(const Inputs& in) {
  proportions::ContrastLimits limits;
  limits.contrast = MarginContrast(in);
  if (IsEquivalence(in)) {
    limits.lower = in.List("equivalence")[0];
    limits.upper = in.List("equivalence")[1];
  } else {
    (IsAboveMargin(in, NoContrast(in)) ? limits.lower : limits.upper) = in.Number("margin");
  }
  return limits;
}

proportions::IndependentMarginDesign IndependentMarginDesignOf(const Inputs& in) {
  return {ContrastLimitsOf(in), MarginMethod(in.Choice("margin-method")), in.Alpha(), in.Flag("correction")};
}

proportions::TwoProportions TwoProportionsOf(const Inputs& in) { return {FirstProportion(in), SecondProportion(in)}; }

double ExpectedContrast(const Inputs& in) {
  return ContrastOf(MarginContrast(in), FirstProportion(in), SecondProportion(in));
}

std::vector<Parameter> MarginParametersOfTwoProportions() {
  std::vector<Parameter> parameters =
      MarginParameters("difference or ratio of the proportions (second group to first)");
  parameters.push_back(MarginScale());
  parameters.push_back(
      OneOf("margin-method", "test with a margin",
            "standard error of a test with a margin; pooled is for comparison only",
            {{"farrington-manning", CodeOf(MarginMethod::FarringtonManning), "Farrington-Manning score test"},
             {"miettinen-nurminen", CodeOf(MarginMethod::MiettinenNurminen), "Miettinen-Nurminen score test"},
             {"wald", CodeOf(MarginMethod::Wald), "Wald (unpooled) z test"},
             {"pooled", CodeOf(MarginMethod::Pooled), "pooled z test"}})
          .Default("farrington-manning"));
  return parameters;
}

std::vector<Derived> MarginFiguresOfTwoProportions() {
  std::vector<Derived> figures;
  for (Name way : {Name("margin"), Name("equivalence")}) {
    figures.push_back({.name = "attained-at-margin",
                       .label = "significance level attained",
                       .needs = {"n", "exact", way},
                       .call = AttainedLevelOfMargins,
                       .isTold = IsExact});
  }
  return figures;
}

Piece PieceOfContrast(const Inputs& in, Contrast effect, Piece all) {
  if (!IsEquivalence(in)) return IsAboveMargin(in, NoContrast(in)) ? all : Piece{all.high, all.low};
  return {EffectAt(in, effect, in.List("equivalence")[1]), EffectAt(in, effect, MiddleOfLimits(in))};
}

Piece PieceOfContrastBelow(const Inputs& in, Contrast effect, Piece all) {
  if (IsEquivalence(in)) {
    return {EffectAt(in, effect, MiddleOfLimits(in)), EffectAt(in, effect, in.List("equivalence")[0])};
  }
  const Piece piece = PieceOfContrast(in, effect, all);
  return {piece.high, piece.low};
}

void AddMarginsOfTwoProportions(Test& test) {
  const auto add = [](auto& to, auto added) { std::move(added.begin(), added.end(), std::back_inserter(to)); };
  add(test.parameters, MarginParametersOfTwoProportions());
  add(test.routes, MarginRoutesOfTwoProportions());
  add(test.conditions, MarginConditionsOfTwoProportions());
  add(test.sizeExists, MarginSizeExistsForTwoProportions());
  add(test.derived, MarginFiguresOfTwoProportions());
  test.unknowns.push_back(
      UnknownMargin([](const Inputs& in) { return PieceOfMargin(in, ExpectedContrast(in), NoContrast(in)); }));
}

}  // namespace planner
