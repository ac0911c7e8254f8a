#include <cmath>

#include "catalogue/details.h"
#include "catalogue/mean.h"
#include "catalogue/mean_parameters.h"
#include "means/one_sample.h"

namespace planner {
namespace {

namespace means = kelpower::means;

Details OfHalfWidth(const Inputs& in) {
  const double n = in.Number("n");
  Details details;
  AddIntervalT(details, in.Alpha(), n - 1);
  details.value = means::HalfWidth(means::MeanInterval{in.Number("sd"), in.Alpha()}, n);
  details.formula = "half-width = t sd / sqrt(n) = {quantile-t} x {sd} / sqrt({n})";
  details.source = "Hahn and Meeker (1991), Statistical Intervals, section 4.2";
  details.equivalents = {{.program = "R", .call = "qt(1 - {alpha} / 2, {df}) * {sd} / sqrt({n})"}};
  return details;
}

}  // namespace

Details DetailsOfMean(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  if (HasMargins(in)) return DetailsOfMeanWithMargins(in);
  const double d =
      in.Has("effect-d") ? in.Number("effect-d") : (in.Number("mean") - in.Number("test-value")) / in.Number("sd");
  const means::TTestOfAMean test = means::OneSampleTest(SidesOf(in), in.Number("n"), in.Alpha());
  Details details;
  details.Add("d", "effect size d", IsOneSided(in) ? std::abs(d) : d);
  AddTTest(details, test.AtCriticalValue(), test.Noncentrality(d), IsOneSided(in),
           "noncentrality = sqrt(n) d = sqrt({n}) x {d}");
  details.source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., chapter 2, with the "
      "noncentral t distribution";
  details.equivalents.insert(
      details.equivalents.begin(),
      {Equivalent{.program = "pwr",
                  .call = "pwr.t.test({n-or-power}, d = {d}, sig.level = {alpha}, type = \"one.sample\", alternative = "
                          "{alternative}){answer}"},
       Equivalent{.program = "R",
                  .call = "power.t.test({n-or-power}, delta = {d}, sd = 1, sig.level = {alpha}, type = \"one.sample\", "
                          "alternative = {r-alternative}, strict = TRUE){answer}",
                  .remark = "strict = TRUE counts both tails of a two-sided test"}});
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "t tests > Means: Difference from constant (one sample case); tails {tails}, effect size d {d}, alpha "
               "{alpha}, {gpower-n}"});
  if (in.Has("mean")) {
    details.equivalents.push_back(
        {.program = "SAS",
         .call = "proc power; onesamplemeans test=t nullmean={test-value} mean={mean} stddev={sd} sides={sides} "
                 "alpha={alpha} ntotal={n-or-dot} power={power-or-dot}; run;"});
  }
  return details;
}

}  // namespace planner
