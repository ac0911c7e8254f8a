#include "catalogue/details.h"
#include "catalogue/two_correlations.h"

namespace planner {

namespace correlation = kelpower::correlation;

Details DetailsOfTwoCorrelations(Question, const Inputs& in) {
  const correlation::Level level(in.Alpha(), in.Flag("one-sided"));
  const double q = EffectQ(in);
  const double error = correlation::StandardError(SizesOfGroups(in));
  Details details;
  AddCriticalZ(details, level.critical);
  details.Add("q", "effect size q, first minus second Fisher's z", q);
  details.Add("standard-error", "standard error of q", error);
  details.value = level.Power(q / error, 1, q > 0);
  SetNormalStatistic(details, q / error, 1, level.critical, TailsOf(level.isOneSided, q > 0));
  const std::string above = "({q} / {standard-error} - {critical-z})";
  const std::string below = "(-({q}) / {standard-error} - {critical-z})";
  const std::string& tail = q > 0 ? above : below;
  details.formula = "power = " + (level.isOneSided ? "Phi" + tail : "Phi" + above + " + Phi" + below) +
                    ", standard error of q = sqrt(1 / (n1 - 3) + 1 / (n2 - 3))";
  details.source =
      "Fisher (1921), Metron 1, 3-32; Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., "
      "chapter 4";
  details.equivalents = {
      {.program = "R",
       .call = level.isOneSided ? "pnorm" + tail : "pnorm" + above + " + pnorm" + below,
       .remark = "the formula, from q on"},
      {.program = "G*Power",
       .call = "z tests > Correlations: Two independent Pearson r's; tails {tails}, effect size q {q}, alpha {alpha}, "
               "{gpower-n}"}};
  return details;
}

}  // namespace planner
