#include "catalogue/details.h"
#include "catalogue/two_proportions.h"
#include "catalogue/two_proportions_details.h"

namespace planner {

namespace proportions = kelpower::proportions;

void AddArcsine(Details& details, const proportions::LargeSampleTest& test, const Inputs& in) {
  AddCriticalZ(details, test.CriticalZ());
  details.Add("shift", "mean of the statistic", test.Noncentrality(FirstProportion(in), SecondProportion(in)));
  const bool isAboveZero = FirstProportion(in) < SecondProportion(in);
  SetNormalStatistic(details, test.Noncentrality(FirstProportion(in), SecondProportion(in)), 1, test.CriticalZ(),
                     TailsOf(in.Flag("one-sided"), isAboveZero));
  const std::string above = "pnorm(({shift}) - {critical-z})";
  const std::string below = "pnorm(-({shift}) - {critical-z})";
  const std::string call = in.Flag("one-sided") ? (isAboveZero ? above : below) : above + " + " + below;
  details.formula = std::string("power = ") + (in.Flag("one-sided") ? "Phi(|m| - z)" : "Phi(m - z) + Phi(-m - z)") +
                    ", m = {shift}, z = {critical-z}; m compares arcsines of roots of the proportions, each moved "
                    "towards the other by 1 / (2 n)";
  details.source = "Walters (1979), Journal of the Royal Statistical Society D 28, 115-122, of Cohen (1988), chapter 6";
  details.equivalents = {{.program = "R", .call = call, .remark = "the formula, from the statistic on"}};
  if (HasEqualGroups(in)) {
    details.equivalents.push_back(
        {.program = "pwr",
         .call = "pwr.2p.test({n-or-power}, h = ES.h({p1}, {p2}), sig.level = {alpha}, alternative = "
                 "{r-groups-direction}){answer}",
         .isSame = false,
         .remark = "does not move the proportions towards each other by 1 / (2 n)"});
  } else {
    details.equivalents.push_back({.program = "pwr",
                                   .call = "pwr.2p2n.test(h = ES.h({p1}, {p2}), n1 = {n1}, n2 = {n2}, sig.level = "
                                           "{alpha}, alternative = {r-groups-direction})$power",
                                   .isSame = false,
                                   .remark = "does not move the proportions towards each other by 1 / (2 n)"});
  }
}

}  // namespace planner
