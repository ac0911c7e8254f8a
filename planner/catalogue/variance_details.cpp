#include "catalogue/details.h"
#include "catalogue/variance.h"

namespace planner {
namespace {

/// The formula, or its call in R, of the tails that the test has: both or that on the side of the alternative.
std::string OfTails(const Inputs& in, const std::string& above, const std::string& below) {
  if (!IsOneSided(in)) return above + " + " + below;
  return VarianceRatio(in) < 1 ? below : above;
}

}  // namespace

Details DetailsOfVariance(Question, const Inputs& in) {
  const auto test = TestOfVariance(in);
  Details details;
  if (!test) return details;
  const double ratio = VarianceRatio(in);
  const bool hasUpper = !IsOneSided(in) || ratio >= 1;
  const bool hasLower = !IsOneSided(in) || ratio < 1;
  details.Add("ratio", "ratio of the variances", ratio);
  details.Add("df", "degrees of freedom", test->Df());
  if (hasUpper) details.Add("upper-chi-square", "upper critical value of chi-square", test->UpperCritical());
  if (hasLower) details.Add("lower-chi-square", "lower critical value of chi-square", test->LowerCritical());
  details.value = OrNaN(test->Power(ratio));
  details.formula =
      "power = " +
      OfTails(in, "P(chi-square > {upper-chi-square} / {ratio})", "P(chi-square < {lower-chi-square} / {ratio})") +
      ", chi-square on {df} degrees of freedom";
  details.source =
      "NIST/SEMATECH e-Handbook of Statistical Methods, section 1.3.5.8; exact for normal populations, with half of the "
      "level in each tail of the two-sided test";
  details.equivalents = {
      {.program = "R",
       .call = OfTails(
           in, "pchisq(qchisq({alpha} / {sides}, {df}, lower.tail = FALSE) / {ratio}, {df}, lower.tail = FALSE)",
           "pchisq(qchisq({alpha} / {sides}, {df}) / {ratio}, {df})"),
       .remark = "the formula"},
      {.program = "G*Power",
       .call =
           "chi-square tests > Variance: Difference from constant (one sample case); {tails} tails, ratio var1/var0 "
           "{ratio}, alpha {alpha}, {gpower-n}"}};
  return details;
}

}  // namespace planner
