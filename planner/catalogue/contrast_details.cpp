#include "catalogue/contrast_details.h"

#include <cmath>

#include "catalogue/axes.h"
#include "catalogue/contrast.h"
#include "catalogue/details.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

Details OfHalfWidth(const AskedContrast& contrast, const Inputs& in) {
  const double total = TotalSize(in);
  const anova::ContrastInterval interval{contrast.coefficients, in.List("n"), in.Number("sd"), contrast.level};
  Details details;
  details.Add("level", "significance level of the comparison", contrast.level);
  details.Add("variance", "sum of c_i^2 / n_i", anova::ContrastVariance(contrast.coefficients, in.List("n")));
  AddIntervalT(details, contrast.level, total - in.Groups());
  details.value = anova::HalfWidth(interval, total);
  details.formula = "half-width = t sd sqrt(sum c_i^2 / n_i) = {quantile-t} x {sd} x sqrt({variance})";
  details.source = "Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5";
  details.equivalents = {{.program = "R", .call = "qt(1 - {level} / 2, {df}) * {sd} * sqrt({variance})"}};
  return details;
}

Details OfPower(const AskedContrast& asked, const Inputs& in) {
  const double total = TotalSize(in);
  const anova::WeightedContrast contrast(asked.coefficients, in.List("n"));
  const double noncentrality = contrast.Noncentrality(asked.effectSize, contrast.RelativeSize(total));
  const anova::ContrastTest test(in.Groups(), total, asked.isOneSided, asked.level);
  Details details;
  details.Add("level", "significance level of the comparison", asked.level);
  details.Add("d", "standardized contrast d", asked.effectSize);
  details.Add("variance", "sum of c_i^2 / n_i", anova::ContrastVariance(asked.coefficients, in.List("n")));
  if (test.OneSided()) {
    AddTTest(details, *test.OneSided(), std::sqrt(noncentrality), true,
             "noncentrality = |d| / sqrt(sum c_i^2 / n_i) = |{d}| / sqrt({variance})");
  } else if (test.TwoSided()) {
    AddFTest(details, *test.TwoSided(), noncentrality, "noncentrality = d^2 / (sum c_i^2 / n_i) = {d}^2 / {variance}");
    details.equivalents = {
        {.program = "R",
         .call = "pf(qf(1 - {level}, 1, {df2}), 1, {df2}, {noncentrality}, lower.tail = FALSE)",
         .remark = "the formula, from the noncentrality on"},
        {.program = "G*Power",
         .call = "F tests > ANOVA: Fixed effects, special, main effects and interactions; effect size f {f}, alpha "
                 "{level}, {gpower-n}, numerator df 1, number of groups {groups}",
         .remark = "f^2 is the noncentrality over the total sample size"}};
  }
  details.Add("f", "effect size f", std::sqrt(noncentrality / total));
  details.source =
      "Maxwell and Delaney (2004), Designing Experiments and Analyzing Data, 2nd ed., chapters 4 and 5, "
      "with the noncentral F distribution, or t for one side";
  return details;
}

}  // namespace

Details DetailsOf(const AskedContrast& asked, Question question, const Inputs& in) {
  return IsAboutPower(question) ? OfPower(asked, in) : OfHalfWidth(asked, in);
}

Details DetailsOfContrast(Question question, const Inputs& in) {
  const double effect = IsAboutPower(question) ? EffectOfContrast(in) : 0;
  Details details = DetailsOf({CoefficientsOfContrast(in), effect, IsOneSided(in), in.Alpha()}, question, in);
  if (IsAboutPower(question) && in.Has("means")) {
    details.equivalents.push_back(
        {.program = "SAS",
         .call = "proc power; onewayanova test=contrast contrast=({coefficients_}) groupmeans={means|} stddev={sd} "
                 "sides={sides} alpha={alpha} groupns={n|} power=.; run;"});
  }
  return details;
}

}  // namespace planner
