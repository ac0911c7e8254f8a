#include <cmath>

#include "catalogue/details.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/paired_means.h"
#include "means/one_sample.h"
#include "means/paired.h"

namespace planner {
namespace {

namespace means = kelpower::means;

Details OfHalfWidth(const Inputs& in) {
  const double n = in.Number("n");
  Details details;
  details.Add("sd-of-differences", "standard deviation of the differences", SdOfPairedDifferences(in));
  AddIntervalT(details, in.Alpha(), n - 1);
  details.value = means::HalfWidth(means::MeanInterval{SdOfPairedDifferences(in), in.Alpha()}, n);
  details.formula = "half-width = t sd / sqrt(n) = {quantile-t} x {sd-of-differences} / sqrt({n})";
  details.source = "Hahn and Meeker (1991), Statistical Intervals, section 4.2, of the differences";
  details.equivalents = {{.program = "R", .call = "qt(1 - {alpha} / 2, {df}) * {sd-of-differences} / sqrt({n})"}};
  return details;
}

void AddSas(Details& details, const Inputs& in) {
  const std::string rest = " sides={sides} alpha={alpha} npairs={n-or-dot} power={power-or-dot}; run;";
  if (in.Has("means")) {
    details.equivalents.push_back(
        {.program = "SAS",
         .call =
             "proc power; pairedmeans test=diff pairedmeans={means|} pairedstddevs={sds|} corr={correlation}" + rest});
  } else if (in.Has("mean-difference")) {
    details.equivalents.push_back(
        {.program = "SAS",
         .call = "proc power; pairedmeans test=diff meandiff={mean-difference} stddev={sd-difference} corr=0.5" + rest,
         .remark = "stddev is that of each measurement; at a correlation of 0.5 it is that of the differences too"});
  }
}

}  // namespace

Details DetailsOfPairedMeans(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  if (HasMargins(in)) return DetailsOfPairedMeansWithMargins(in);
  const double d = EffectOfPairedMeans(in);
  const means::TTestOfAMean test = means::OneSampleTest(SidesOf(in), in.Number("n"), in.Alpha());
  Details details;
  if (in.Has("sds"))
    details.Add("sd-of-differences", "standard deviation of the differences", SdOfPairedDifferences(in));
  details.Add("d", "mean difference over its standard deviation", IsOneSided(in) ? std::abs(d) : d);
  AddTTest(details, test.AtCriticalValue(), test.Noncentrality(d), IsOneSided(in),
           "noncentrality = sqrt(n) d = sqrt({n}) x {d}");
  details.source =
      "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section 2.3.5, with "
      "the noncentral t distribution";
  details.equivalents.insert(
      details.equivalents.begin(),
      {Equivalent{.program = "pwr",
                  .call = "pwr.t.test({n-or-power}, d = {d}, sig.level = {alpha}, type = \"paired\", alternative = "
                          "{alternative}){answer}",
                  .remark = "n counts pairs; d is over the standard deviation of the differences"},
       Equivalent{
           .program = "R",
           .call =
               "power.t.test({n-or-power}, delta = {d}, sd = 1, sig.level = {alpha}, type = \"paired\", alternative = "
               "{r-alternative}, strict = TRUE){answer}",
           .remark = "n counts pairs, sd is that of the differences; strict = TRUE counts both tails"}});
  details.equivalents.push_back(
      {.program = "G*Power",
       .call = "t tests > Means: Difference between two dependent means (matched pairs); tails {tails}, effect size dz "
               "{d}, alpha {alpha}, {gpower-n}"});
  AddSas(details, in);
  return details;
}

}  // namespace planner
