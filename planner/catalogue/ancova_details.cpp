#include <cmath>

#include "catalogue/ancova.h"
#include "catalogue/axes.h"
#include "catalogue/details.h"

namespace planner {
namespace {

/// R takes the mean over the distribution of B as an integral too.
void AddExactPrograms(Details& details) {
  details.equivalents = {
      {.program = "R",
       .call =
           "integrate(function(x) sin(2 * x) * dbeta(cos(x)^2, {beta-a}, {beta-b}) * pf(qf(1 - {alpha}, {df1}, {df2}), "
           "{df1}, {df2}, {noncentrality} * cos(x)^2, lower.tail = FALSE), 0, pi / 2, rel.tol = 1e-10)$value",
       .remark = "the formula, from the noncentrality on"}};
}

}  // namespace

Details DetailsOfAncova(Question, const Inputs& in) {
  const auto test = CovarianceTestOf(in);
  Details details;
  if (!test.AtBalancedCovariates().AtCriticalValue()) return details;
  const double total = TotalSize(in);
  const double covariates = in.Number("covariates");
  const double noncentrality = NoncentralityOfAdjustedMeans(in);
  details.Add("f", "effect size f in residual standard deviations", std::sqrt(noncentrality / total));
  AddFTest(details, *test.AtBalancedCovariates().AtCriticalValue(), noncentrality,
           "noncentrality = N f^2 = {total} x {f}^2");
  const Equivalent gpower = {
      .program = "G*Power",
      .call =
          "F tests > ANCOVA: Fixed effects, main effects and interactions; effect size f {f}, alpha {alpha}, "
          "numerator df {df1}, number of groups {groups}, number of covariates {covariates}, {gpower-n}",
      .isSame = in.Flag("approximate") || covariates == 0,
      .remark = "takes the groups as equal in the covariates, as --approximate does"};
  details.source = "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section 8.3.5";
  details.equivalents = {
      {.program = "R",
       .call = "pf(qf(1 - {alpha}, {df1}, {df2}), {df1}, {df2}, {noncentrality}, lower.tail = FALSE)",
       .remark = "the formula, from the noncentrality on"}};
  if (!in.Flag("approximate") && covariates > 0) {
    details.Add("beta-a", "first parameter of B", (total - 1 - covariates) / 2);
    details.Add("beta-b", "second parameter of B", covariates / 2);
    details.Add("mean-share", "mean of B", test.MeanShare());
    details.value = OrNaN(test.Power(noncentrality));
    details.statistic.reset();
    details.formula =
        "noncentrality = N f^2 = {total} x {f}^2 = {noncentrality}; power = E P(F > {critical-f}), F noncentral F on "
        "{df1} and {df2} degrees of freedom with {noncentrality} x B, B beta distributed with {beta-a} and {beta-b}";
    details.source =
        "Shieh (2020), Psychometrika 85:101-120, with the distribution of B for any number of groups: docs/ancova.md";
    AddExactPrograms(details);
  }
  details.equivalents.push_back(gpower);
  return details;
}

}  // namespace planner
