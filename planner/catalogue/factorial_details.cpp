#include <cmath>

#include "anova/one_effect.h"
#include "catalogue/axes.h"
#include "catalogue/details.h"
#include "catalogue/factorial.h"

namespace planner {

Details DetailsOfFactorial(Question, const Inputs& in) {
  Details details;
  const auto term = TermOf(in);
  if (!term) return details;
  const double total = TotalSize(in);
  const double noncentrality = NoncentralityOfTerm(in);
  const kelpower::anova::EffectTest test(term->Df(), total - term->Cells(), in.Alpha());
  if (!test.AtCriticalValue()) return details;
  details.Add("f", "effect size f", std::sqrt(noncentrality / total));
  details.Add("cells", "cells", term->Cells());
  AddFTest(details, *test.AtCriticalValue(), noncentrality, "noncentrality = N f^2 = {total} x {f}^2");
  details.source =
      "Searle (1987), Linear Models for Unbalanced Data, chapters 4 and 9, and Cohen (1988), Statistical Power Analysis "
      "for the Behavioral Sciences, 2nd ed., chapter 8, with the noncentral F distribution";
  details.equivalents = {
      {.program = "pwr",
       .call =
           "pwr.f2.test(u = {df1}, v = {df2}, f2 = {noncentrality} / ({df1} + {df2} + 1), sig.level = {alpha})$power",
       .remark = "its noncentrality is f2 (u + v + 1), where N counts the cells in place of u + 1"},
      {.program = "R",
       .call = "pf(qf(1 - {alpha}, {df1}, {df2}), {df1}, {df2}, {noncentrality}, lower.tail = FALSE)",
       .remark = "the formula, from the noncentrality on"},
      {.program = "G*Power",
       .call =
           "F tests > ANOVA: Fixed effects, special, main effects and interactions; effect size f {f}, alpha {alpha}, "
           "numerator df {df1}, number of groups {cells}, {gpower-n}",
       .remark = "the sample size is the total"}};
  return details;
}

}  // namespace planner
