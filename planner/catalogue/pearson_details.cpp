#include "catalogue/correlation_details.h"
#include "catalogue/details.h"

namespace planner {

namespace correlation = kelpower::correlation;

Details DetailsOfPearson(Question question, const Inputs& in) {
  const bool isCorrected = in.Flag("adjust-bias");
  if (!IsAboutPower(question)) {
    return DetailsOfPearsonInterval({correlation::Confidence(in.Alpha()), in.Number("r"), 0, isCorrected}, in);
  }
  if (in.Flag("exact")) return DetailsOfExactPearson(in);
  Details details = DetailsOfPearsonTest({{in.Alpha(), in.Flag("one-sided")}, 0, isCorrected}, in);
  if (in.Number("null") == 0) {
    details.equivalents.push_back(
        {.program = "pwr",
         .call = "pwr.r.test({n-or-power}, r = {r}, sig.level = {alpha}, alternative = {r-direction}){answer}",
         .isSame = false,
         .remark = "takes the critical value from t on n - 2 degrees of freedom, and corrects z for bias to the first "
                   "order"});
  }
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "Exact > Correlation: Bivariate normal model; tails {tails}, correlation rho H1 {r}, alpha {alpha}, "
               "{gpower-n}, correlation rho H0 {null}",
       .isSame = false,
       .remark = "takes the exact distribution of r in place of Fisher's z, as --exact does"});
  details.equivalents.push_back(
      {.program = "SAS",
       .call = "proc power; onecorr dist=fisherz nullcorr={null} corr={r} sides={sides} alpha={alpha} "
               "ntotal={n-or-dot} power={power-or-dot}; run;",
       .isSame = isCorrected,
       .remark = "corrects the mean and the variance of z for bias, as --adjust-bias does"});
  return details;
}

}  // namespace planner
