#include <algorithm>
#include <cmath>

#include "anova/overall.h"
#include "catalogue/axes.h"
#include "catalogue/details.h"

namespace planner {
namespace {

namespace anova = kelpower::anova;

double Noncentrality(const Inputs& in) {
  const double total = TotalSize(in);
  if (in.Has("means")) {
    return anova::GroupSpread::Of(in.List("means"), in.List("n")).Noncentrality(in.Number("sd"), total);
  }
  if (in.Has("eta-squared")) return anova::EffectSize{in.Number("eta-squared"), true}.Noncentrality(total);
  return anova::EffectSize{in.Number("effect-f"), false}.Noncentrality(total);
}

Details OfHalfWidth(const Inputs& in) {
  const double total = TotalSize(in);
  Details details;
  AddIntervalT(details, in.Alpha(), total - in.Groups());
  details.value = anova::HalfWidthOfGrandMean(in.Groups(), total, in.Number("sd"), in.Alpha());
  details.formula = "half-width = t sd / sqrt(N) = {quantile-t} x {sd} / sqrt({total})";
  details.source = "Hahn and Meeker (1991), Statistical Intervals, section 4.2, with the error of the model";
  details.equivalents = {{.program = "R", .call = "qt(1 - {alpha} / 2, {df}) * {sd} / sqrt({total})"}};
  return details;
}

void AddPrograms(Details& details, const Inputs& in) {
  const Numbers& n = in.List("n");
  const bool isEqual = std::all_of(n.begin(), n.end(), [&](double size) { return size == n.front(); });
  auto& programs = details.equivalents;
  if (isEqual) {
    programs = {{.program = "pwr",
                 .call = "pwr.anova.test({n-or-power}, k = {groups}, f = {f}, sig.level = {alpha}){answer}",
                 .remark = "n counts one group"},
                {.program = "R",
                 .call = "power.anova.test({n-or-power}, groups = {groups}, between.var = {f}^2 * {groups} / "
                         "({groups} - 1), within.var = 1, sig.level = {alpha}){answer}",
                 .remark = "n counts one group; between.var is var(means), with divisor groups - 1"}};
  }
  programs.push_back({.program = "R",
                      .call = "pf(qf(1 - {alpha}, {df1}, {df2}), {df1}, {df2}, {noncentrality}, lower.tail = FALSE)",
                      .remark = "the formula, from the noncentrality on"});
  programs.push_back({.program = "G*Power",
                      .call = "F tests > ANOVA: Fixed effects, omnibus, one-way; effect size f {f}, alpha {alpha}, "
                              "number of groups {groups}, {gpower-n}",
                      .remark = "the sample size is the total"});
  if (in.Has("means")) {
    programs.push_back({.program = "SAS",
                        .call = std::string("proc power; onewayanova test=overall groupmeans={means|} stddev={sd} "
                                            "alpha={alpha} ") +
                                (isEqual ? "npergroup={n-or-dot} power={power-or-dot}" : "groupns={n|} power=.") +
                                "; run;"});
  }
}

}  // namespace

Details DetailsOfAnova(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  const double total = TotalSize(in);
  const double noncentrality = Noncentrality(in);
  const anova::OverallTest test(in.Groups(), total, in.Alpha());
  Details details;
  if (!test.AtCriticalValue()) return details;
  details.Add("f", "effect size f", std::sqrt(noncentrality / total));
  AddFTest(details, *test.AtCriticalValue(), noncentrality, "noncentrality = N f^2 = {total} x {f}^2");
  details.source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 8, with the "
      "noncentral F distribution";
  AddPrograms(details, in);
  return details;
}

}  // namespace planner
