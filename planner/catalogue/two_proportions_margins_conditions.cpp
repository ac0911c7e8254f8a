#include <algorithm>
#include <cmath>

#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_margins.h"
#include "proportions/unconditional_margins.h"

namespace planner {
namespace {

using kelpower::proportions::Contrast;
using kelpower::proportions::MarginMethod;

// A search tries some hundred sizes around the first one, each in up to some ten milliseconds.
constexpr double largestExactMarginSearch = 300;

bool IsLimit(const Inputs& in, double limit) {
  return MarginContrast(in) == Contrast::Difference ? std::fabs(limit) < 1 : limit > 0;
}

bool AreLimits(const Inputs& in) {
  return IsLimit(in, in.List("equivalence")[0]) && IsLimit(in, in.List("equivalence")[1]);
}

bool HasMethod(const Inputs& in) {
  switch (MarginMethod(in.Choice("margin-method"))) {
    case MarginMethod::Pooled: return MarginContrast(in) == Contrast::Difference;
    case MarginMethod::MiettinenNurminen: return MarginContrast(in) != Contrast::OddsRatio;
    case MarginMethod::FarringtonManning:
    case MarginMethod::Wald: break;
  }
  return true;
}

bool CanCount(const Inputs& in) {
  if (!HasMargins(in) || !in.Flag("exact")) return true;
  const Numbers& n = in.List("n");
  return std::max(n[0], n[1]) <= kelpower::proportions::UnconditionalMarginTest::largestGroup;
}

bool IsShortMarginSearch(const Inputs& in) {
  if (!HasMargins(in) || !in.Flag("exact")) return true;
  const Numbers sizes = LargeSampleMarginSizes(in);
  return !sizes.empty() && std::max(sizes[0], sizes[1]) <= largestExactMarginSearch;
}

bool IsWithin(const Inputs& in) { return IsWithinMargins(in, ExpectedContrast(in), NoContrast(in)); }

}  // namespace

std::vector<Condition> MarginConditionsOfTwoProportions() {
  return {
      {.code = "margin-range",
       .about = {"margin"},
       .holds = [](const Inputs& in) { return IsLimit(in, in.Number("margin")); },
       .sentence =
           "{margin} must be above -1 and below 1 for a difference, and above 0 for a ratio, which {margin-scale} "
           "chooses."},
      LimitsInOrder(),
      {.code = "limits-range",
       .about = {"equivalence"},
       .holds = AreLimits,
       .sentence = "{equivalence} must be above -1 and below 1 for a difference, and above 0 for a ratio, which "
                   "{margin-scale} chooses."},
      {.code = "margin-method-scale",
       .about = {"margin-method", "margin-scale"},
       .holds = HasMethod,
       .sentence =
           "{margin-method} pooled goes with a difference only, and miettinen-nurminen not with an odds ratio."},
      {.code = "corrected-ratio",
       .about = {"correction", "margin-scale"},
       .holds = [](const Inputs& in) { return !in.Flag("correction") || MarginContrast(in) == Contrast::Difference; },
       .sentence = "{correction} goes with a margin of the difference only."},
      {.code = "exact-margin-size",
       .about = {"n", "exact"},
       .holds = CanCount,
       .sentence = "{n} of an exact test with a margin must be at most 1000."},
  };
}

std::vector<Condition> MarginSizeExistsForTwoProportions() {
  std::vector<Condition> conditions = WithinMargins("power", "difference or ratio", IsWithin);
  conditions.push_back({.code = "long-margin-search",
                        .about = {"power"},
                        .holds = IsShortMarginSearch,
                        .sentence = "Exact tests with a margin are searched up to about 300 observations in a group: "
                                    "use a large-sample test for more."});
  return conditions;
}

}  // namespace planner
