#include <string>

#include "catalogue/core.h"
#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_margins.h"
#include "proportions/unconditional_margins.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::MarginMethod;

/// The figures of a limit's test, and its deviate as a formula of R, which is read as one too.
std::string AddLimit(Details& details, const std::string& side, const proportions::LimitStatistic& of,
                     bool isCorrected) {
  details.Add(side + "-distance", "distance from the " + side + " limit", of.distance);
  details.Add(side + "-null-error", "standard error in the test of the " + side + " limit", of.nullError);
  details.Add(side + "-error", "standard error at the proportions expected", of.error);
  return "({" + side + "-distance} - {critical-z} * {" + side + "-null-error}" +
         (isCorrected ? " - {correction}" : "") + ") / {" + side + "-error}";
}

void AddLargeSample(Details& details, const Inputs& in) {
  const proportions::IndependentMarginDesign design = IndependentMarginDesignOf(in);
  const proportions::ContrastLimits& limits = design.limits;
  const proportions::TwoProportions of = TwoProportionsOf(in);
  const double ratio = in.List("n")[1] / in.List("n")[0];
  const proportions::IndependentMarginTest test(design, in.List("n")[0], in.List("n")[1]);
  AddCriticalZ(details, test.CriticalZ());
  if (design.isCorrected) {
    details.Add("correction", "continuity correction",
                (limits.HasLower() ? test.AtLower(of) : test.AtUpper(of)).correction);
  }
  const auto addMostLikely = [&](const std::string& side, double limit) {
    if (design.method == MarginMethod::Wald || design.method == MarginMethod::Pooled) return;
    const auto most = proportions::ConstrainedProportions(limits.contrast, limit, of, ratio);
    details.Add(side + "-p1", "most likely first proportion at the " + side + " limit", most.p1);
    details.Add(side + "-p2", "most likely second proportion at the " + side + " limit", most.p2);
  };
  std::string lower;
  std::string upper;
  if (limits.HasLower()) addMostLikely("lower", limits.lower);
  if (limits.HasLower()) lower = AddLimit(details, "lower", test.AtLower(of), design.isCorrected);
  if (limits.HasUpper()) addMostLikely("upper", limits.upper);
  if (limits.HasUpper()) upper = AddLimit(details, "upper", test.AtUpper(of), design.isCorrected);
  details.source = SourceOfMargins(design);
  std::string call;
  if (IsEquivalence(in)) {
    details.formula = "power = max(0, Phi(" + lower + ") + Phi(" + upper + ") - 1)";
    call = "max(0, pnorm(" + lower + ") + pnorm(" + upper + ") - 1)";
  } else {
    const std::string& deviate = limits.HasLower() ? lower : upper;
    details.formula = "power = Phi(" + deviate + ")";
    call = "pnorm(" + deviate + ")";
    const proportions::LimitStatistic at = limits.HasLower() ? test.AtLower(of) : test.AtUpper(of);
    SetNormalStatistic(details, (limits.HasLower() ? 1 : -1) * at.distance / at.nullError, at.error / at.nullError,
                       test.CriticalZ() + at.correction / at.nullError, TailsOf(true, limits.HasLower()));
  }
  details.equivalents = {{.program = "R", .call = call, .remark = "the formula, from the standard errors on"}};
  details.value = OrNaN(test.Power(of));
}

void AddExactWithMargins(Details& details, const Inputs& in) {
  const Numbers& n = in.List("n");
  const proportions::UnconditionalMarginTest test(ContrastLimitsOf(in), in.Alpha(), n[0], n[1]);
  details.Add("attained-level", "significance level attained", OrNaN(test.AttainedLevel()));
  details.value = OrNaN(test.Power(TwoProportionsOf(in)));
  details.formula =
      "power = the sum of the probabilities of all tables that the test rejects: in the order of the score statistic "
      "as many as have a probability of at most alpha whichever proportions lie at the limit";
  details.source = "Chan (1998), Statistics in Medicine 17, 1403-1413; Chan and Zhang (1999), Biometrics 55, 1202-1209";
}

}  // namespace

Details MarginDetailsOfTwoProportions(const Inputs& in) {
  Details details;
  details.Add("p1", "first proportion", FirstProportion(in));
  details.Add("p2", "second proportion", SecondProportion(in));
  if (in.Flag("exact")) {
    AddExactWithMargins(details, in);
  } else {
    AddLargeSample(details, in);
  }
  return details;
}

}  // namespace planner
