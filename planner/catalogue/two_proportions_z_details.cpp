#include "catalogue/details.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_details.h"

namespace planner {

namespace proportions = kelpower::proportions;

void AddZ(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  const proportions::ZStatistic of = test.Statistic(FirstProportion(in), SecondProportion(in));
  AddCriticalZ(details, test.CriticalZ());
  details.Add("difference", "difference of the proportions, first minus second",
              FirstProportion(in) - SecondProportion(in));
  details.Add("null-error", IsPooled(in) ? "standard error, pooled" : "standard error, unpooled", of.nullError);
  details.Add("error", "standard error at the proportions expected", of.error);
  const bool isCorrected = in.Flag("correction");
  if (isCorrected) details.Add("correction", "continuity correction", of.correction);
  const double difference = FirstProportion(in) - SecondProportion(in);
  SetNormalStatistic(details, difference / of.nullError, of.error / of.nullError,
                     test.CriticalZ() + (isCorrected ? of.correction / of.nullError : 0),
                     TailsOf(in.Flag("one-sided"), difference > 0));
  const std::string c = isCorrected ? " - {correction}" : "";
  const std::string above = "(({difference}) - {null-error} * {critical-z}" + c + ") / {error}";
  const std::string below = "(-({difference}) - {null-error} * {critical-z}" + c + ") / {error}";
  std::string formula = "Phi(" + above + ") + Phi(" + below + ")";
  std::string call = "pnorm(" + above + ") + pnorm(" + below + ")";
  if (in.Flag("one-sided")) {
    const std::string& tail = FirstProportion(in) > SecondProportion(in) ? above : below;
    formula = "Phi(" + tail + ")";
    call = "pnorm(" + tail + ")";
  }
  details.formula = "power = " + formula;
  details.source = "Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., chapter 4";
  details.equivalents.push_back({.program = "R", .call = call, .remark = "the formula, from the errors on"});
  const bool isAsInR = IsPooled(in) && !isCorrected;
  std::string why;
  if (!isAsInR) why = isCorrected ? "has no continuity correction" : "pools the proportions in the critical value";
  if (HasEqualGroups(in)) {
    details.equivalents.push_back({.program = "R",
                                   .call = "power.prop.test({n-or-power}, p1 = {p1}, p2 = {p2}, sig.level = {alpha}, "
                                           "alternative = {r-alternative}, strict = TRUE){answer}",
                                   .isSame = isAsInR,
                                   .remark = isAsInR ? "n counts one group; strict = TRUE counts both tails" : why});
  }
  if (isCorrected) return;
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "z tests > Proportions: Difference between two independent proportions; tails {tails}, proportion p2 "
               "{p1}, proportion p1 {p2}, alpha {alpha}, {gpower-n}",
       .isSame = isAsInR,
       .remark = why});
}

}  // namespace planner
