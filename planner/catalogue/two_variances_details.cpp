#include "catalogue/details.h"
#include "catalogue/variance.h"

namespace planner {
namespace {

/// The formula, or its call in R, of the tails that the test has: both or that on the side of the alternative.
std::string OfTails(const Inputs& in, const std::string& above, const std::string& below) {
  if (!IsOneSided(in)) return above + " + " + below;
  return RatioOfVariances(in) < 1 ? below : above;
}

}  // namespace

Details DetailsOfTwoVariances(Question, const Inputs& in) {
  const auto test = TestOfTwoVariances(in);
  Details details;
  if (!test) return details;
  const double ratio = RatioOfVariances(in);
  const bool hasUpper = !IsOneSided(in) || ratio >= 1;
  const bool hasLower = !IsOneSided(in) || ratio < 1;
  details.Add("ratio", "ratio of the variances", ratio);
  details.Add("inverse-ratio", "second variance over the first", 1 / ratio);
  details.Add("df1", "degrees of freedom of the first group", test->Df1());
  details.Add("df2", "degrees of freedom of the second group", test->Df2());
  if (hasUpper) details.Add("upper-f", "upper critical value of F", test->UpperCritical());
  if (hasLower) details.Add("lower-f", "lower critical value of F", test->LowerCritical());
  details.value = OrNaN(test->Power(ratio));
  details.formula = "power = " + OfTails(in, "P(F > {upper-f} / {ratio})", "P(F < {lower-f} / {ratio})") +
                    ", F on {df1} and {df2} degrees of freedom";
  details.source =
      "NIST/SEMATECH e-Handbook of Statistical Methods, section 1.3.5.9; exact for normal populations, with half of the "
      "level in each tail of the two-sided test";
  details.equivalents = {
      {.program = "R",
       .call =
           OfTails(in,
                   "pf(qf({alpha} / {sides}, {df1}, {df2}, lower.tail = FALSE) / {ratio}, {df1}, {df2}, lower.tail = "
                   "FALSE)",
                   "pf(qf({alpha} / {sides}, {df1}, {df2}) / {ratio}, {df1}, {df2})"),
       .remark = "the formula"},
      {.program = "G*Power",
       .call =
           "F tests > Variance: Test of equality (two sample case); {tails} tails, ratio var2/var1 {inverse-ratio}, "
           "alpha {alpha}, {gpower-n}",
       .remark = "its ratio is the second variance over the first"}};
  return details;
}

}  // namespace planner
