#include "catalogue/dependent_correlations.h"
#include "catalogue/details.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

/// The standard errors of the difference, and the statistic that they make.
template <typename Correlations>
correlation::ShiftedNormal AddErrors(Details& details, const Correlations& correlations, const Inputs& in) {
  const double n = in.Number("n");
  const correlation::NullCorrelations null = NullCorrelationsOf(in);
  const double atNull = correlation::CorrelationOfZ(UnderNull(correlations, null));
  const double here = correlation::CorrelationOfZ(correlations);
  details.Add("null-correlation-of-z", "correlation of both z under the null hypothesis", atNull);
  details.Add("correlation-of-z", "correlation of both z expected", here);
  details.Add("null-error", "standard error under the null hypothesis",
              correlation::StandardErrorOfDifference(atNull, n));
  details.Add("error", "standard error expected", correlation::StandardErrorOfDifference(here, n));
  return correlation::UnderAlternative(correlations, null, n);
}

}  // namespace

Details DetailsOfDependentCorrelations(Question, const Inputs& in) {
  const correlation::Level level(in.Alpha(), in.Flag("one-sided"));
  const bool areSeparate = ArePairsSeparate(in);
  Details details;
  AddCriticalZ(details, level.critical);
  details.Add("difference", "difference of Fisher's z, first minus second", DifferenceOfZ(in));
  const auto [shift, spread] =
      areSeparate ? AddErrors(details, SeparatePairsOf(in), in) : AddErrors(details, SharedVariableOf(in), in);
  const bool isAbove = shift > 0;
  details.value = level.Power(shift, spread, isAbove);
  SetNormalStatistic(details, shift, spread, level.critical, TailsOf(level.isOneSided, isAbove));
  const std::string above = "(({difference} - {critical-z} * {null-error}) / {error})";
  const std::string below = "((-({difference}) - {critical-z} * {null-error}) / {error})";
  const std::string& tail = isAbove ? above : below;
  details.formula = "power = " + (level.isOneSided ? "Phi" + tail : "Phi" + above + " + Phi" + below) +
                    ", standard error = sqrt((2 - 2 c) / (n - 3)), c the correlation of both z";
  details.source =
      "Dunn and Clark (1969), Journal of the American Statistical Association 64, 366-377; Steiger (1980), "
      "Psychological Bulletin 87, 245-251";
  details.equivalents.push_back({.program = "R",
                                 .call = level.isOneSided ? "pnorm" + tail : "pnorm" + above + " + pnorm" + below,
                                 .remark = "the formula, from the errors on"});
  const bool isSame = NullCorrelationsOf(in) == correlation::NullCorrelations::First;
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = areSeparate
                   ? "z tests > Correlations: Two dependent Pearson r's (no common index); tails {tails}, H1 corr "
                     "rho_cd {r34}, alpha {alpha}, {gpower-n}, H0 corr rho_ab {r12}, rho_ac {r13}, rho_ad {r14}, "
                     "rho_bc {r23}, rho_bd {r24}"
                   : "z tests > Correlations: Two dependent Pearson r's (common index); tails {tails}, H1 corr "
                     "rho_ac {r13}, alpha {alpha}, {gpower-n}, H0 corr rho_ab {r12}, rho_bc {r23}",
       .isSame = isSame,
       .remark = isSame ? "" : "takes both correlations as the first under the null hypothesis"});
  return details;
}

}  // namespace planner
