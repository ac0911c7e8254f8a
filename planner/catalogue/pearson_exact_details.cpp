#include "catalogue/correlation_details.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/details.h"
#include "correlation/exact_pearson.h"

namespace planner {

namespace correlation = kelpower::correlation;

Details DetailsOfExactPearson(const Inputs& in) {
  const bool isOneSided = in.Flag("one-sided");
  const correlation::Hypotheses hypotheses = HypothesesOf(in);
  const double n = in.Number("n");
  const auto critical = correlation::CriticalValues({in.Alpha(), isOneSided}, n, hypotheses);
  const bool looksBelow = !isOneSided || hypotheses.alternative < hypotheses.null;
  const bool looksAbove = !isOneSided || !looksBelow;
  Details details;
  std::string tails;
  if (looksBelow) {
    details.Add("rejects-to", "rejects correlations up to", critical.below);
    tails = "P(R <= {rejects-to})";
  }
  if (looksAbove) {
    details.Add("rejects-from", "rejects correlations from", critical.above);
    tails += (looksBelow ? " + " : "") + std::string("P(R >= {rejects-from})");
  }
  details.value = critical.Power(n, hypotheses.alternative);
  details.formula = "power = " + tails + ", R the correlation of a sample of {n} from a bivariate normal with {r}";
  details.source =
      "Fisher (1915), Biometrika 10, 507-521; Hotelling (1953), Journal of the Royal Statistical Society B 15, 193-232; "
      "each tail rejects " +
      std::string(isOneSided ? "alpha" : "alpha / 2");
  if (hypotheses.null == 0) details.source += "; with a null correlation of 0 this is the t test of a correlation";
  details.equivalents = {
      {.program = "G*Power",
       .call = "Exact > Correlation: Bivariate normal model; tails {tails}, correlation rho H1 {r}, alpha {alpha}, "
               "{gpower-n}, correlation rho H0 {null}",
       .remark = "with the exact distribution in its options"},
      {.program = "SAS",
       .call = "proc power; onecorr dist=fisherz nullcorr={null} corr={r} sides={sides} alpha={alpha} "
               "ntotal={n-or-dot} power={power-or-dot}; run;",
       .isSame = false,
       .remark = "goes by Fisher's z"}};
  return details;
}

}  // namespace planner
