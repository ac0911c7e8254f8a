#include "catalogue/core.h"
#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/proportion_margins.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

void AddLimits(Details& details, const proportions::ProportionLimits& limits) {
  if (limits.HasLower()) details.Add("lower-limit", "proportion to be above", limits.lower);
  if (limits.HasUpper()) details.Add("upper-limit", "proportion to be below", limits.upper);
}

/// The deviate of a limit as a formula of R, which is read as one too.
std::string Deviate(const std::string& distance, const std::string& error, bool isCorrected) {
  return "(" + distance + " - {critical-z} * {" + error + "}" + (isCorrected ? " - {correction}" : "") + ") / {error}";
}

Details OfNormal(const proportions::OneSampleMarginDesign& design, const Inputs& in) {
  const auto of = proportions::OneSampleMarginTest(design).Statistic(in.Number("n"), in.Number("proportion"));
  const proportions::ProportionLimits& limits = design.limits;
  Details details;
  AddLimits(details, limits);
  AddCriticalZ(details, of.critical);
  if (limits.HasLower()) details.Add("lower-error", "standard error in the test of the lower limit", of.lowerError);
  if (limits.HasUpper()) details.Add("upper-error", "standard error in the test of the upper limit", of.upperError);
  details.Add("error", "standard error at the proportion expected", of.error);
  if (design.isCorrected) details.Add("correction", "continuity correction", of.correction);
  const std::string lower = Deviate("{proportion} - {lower-limit}", "lower-error", design.isCorrected);
  const std::string upper = Deviate("{upper-limit} - {proportion}", "upper-error", design.isCorrected);
  std::string call;
  if (IsEquivalence(in)) {
    details.formula = "power = max(0, Phi(" + lower + ") + Phi(" + upper + ") - 1)";
    call = "max(0, pnorm(" + lower + ") + pnorm(" + upper + ") - 1)";
  } else {
    const std::string& deviate = limits.HasLower() ? lower : upper;
    details.formula = "power = Phi(" + deviate + ")";
    call = "pnorm(" + deviate + ")";
    const double nullError = limits.HasLower() ? of.lowerError : of.upperError;
    const double distance = in.Number("proportion") - (limits.HasLower() ? limits.lower : limits.upper);
    SetNormalStatistic(details, distance / nullError, of.error / nullError, of.critical + of.correction / nullError,
                       TailsOf(true, limits.HasLower()));
  }
  details.source =
      "Chow, Shao, Wang and Lokhnygina (2018), Sample Size Calculations in Clinical Research, 3rd ed., section 4.1";
  details.equivalents = {{.program = "R", .call = call, .remark = "the formula, from the standard errors on"}};
  return details;
}

Details OfExact(const proportions::OneSampleMarginDesign& design, const Inputs& in) {
  const proportions::OneSampleMarginTest test(design);
  const double n = in.Number("n");
  const proportions::CriticalRegion region = test.Region(n);
  Details details;
  AddLimits(details, design.limits);
  details.Add("least-count", "smallest count that shows it", region.lower);
  details.Add("most-count", "largest count that shows it", region.upper);
  details.Add("attained-level", "significance level attained", test.AttainedLevel(n));
  details.formula = "power = P({least-count} <= X <= {most-count}), X binomial with n = {n} and p = {proportion}";
  details.source =
      "Chow, Shao, Wang and Lokhnygina (2018), Sample Size Calculations in Clinical Research, 3rd ed., section 4.1; "
      "each limit's test rejects at most alpha";
  details.equivalents = {
      {.program = "R",
       .call = "max(0, pbinom({most-count}, {n}, {proportion}) - pbinom({least-count} - 1, {n}, {proportion}))"}};
  if (IsEquivalence(in)) return details;
  details.statistic = {.family = StatisticFamily::Count,
                       .trials = n,
                       .nullProportion = design.limits.HasLower() ? design.limits.lower : design.limits.upper,
                       .proportion = in.Number("proportion"),
                       .rejectsTo = design.limits.HasLower() ? -1 : region.upper,
                       .rejectsFrom = design.limits.HasLower() ? region.lower : n + 1};
  return details;
}

}  // namespace

Details MarginDetailsOfProportion(const Inputs& in) {
  const proportions::OneSampleMarginDesign design = OneSampleMarginDesignOf(in);
  Details details = design.isExact ? OfExact(design, in) : OfNormal(design, in);
  details.value = OrNaN(proportions::OneSampleMarginTest(design).Power(in.Number("n"), in.Number("proportion")));
  return details;
}

}  // namespace planner
