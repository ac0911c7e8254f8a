#include "catalogue/details.h"
#include "catalogue/margins.h"
#include "catalogue/proportion.h"
#include "catalogue/proportion_margins.h"
#include "proportions/one_sample_tests.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;

Details OfNormalTest(const proportions::OneSampleTest& test, const proportions::OneSampleProportions& expected,
                     const Inputs& in) {
  const proportions::NormalStatistic of = test.Statistic(in.Number("n"), expected);
  Details details;
  AddCriticalZ(details, of.critical);
  details.Add("shift", "sqrt(n) (p0 - p)", of.shift);
  details.Add("null-sd", "standard deviation under the null hypothesis", of.nullSd);
  details.Add("sd", "standard deviation at the proportion expected", of.sd);
  if (in.Flag("correction")) details.Add("correction", "continuity correction", of.correction);
  SetNormalStatistic(details, -of.shift / of.nullSd, of.sd / of.nullSd, of.critical + of.correction / of.nullSd,
                     TailsOf(in.Flag("one-sided"), expected.alternative > expected.null));
  const std::string c = in.Flag("correction") ? " - {correction}" : "";
  const std::string below = "(({shift}) - {null-sd} * {critical-z}" + c + ") / {sd}";
  const std::string above = "(-({shift}) - {null-sd} * {critical-z}" + c + ") / {sd}";
  const bool isOneSided = in.Flag("one-sided");
  const bool isAbove = expected.alternative > expected.null;
  details.formula = "power = ";
  std::string call;
  if (!isOneSided || !isAbove) {
    details.formula += "Phi(" + below + ")";
    call += "pnorm(" + below + ")";
  }
  if (!isOneSided) {
    details.formula += " + ";
    call += " + ";
  }
  if (!isOneSided || isAbove) {
    details.formula += "Phi(" + above + ")";
    call += "pnorm(" + above + ")";
  }
  details.source = "Fleiss, Levin and Paik (2003), Statistical Methods for Rates and Proportions, 3rd ed., section 2.5";
  details.equivalents = {
      {.program = "R", .call = call, .remark = "the formula, from the statistic on"},
      {.program = "pwr",
       .call = "pwr.p.test({n-or-power}, h = ES.h({proportion}, {null}), sig.level = {alpha}, alternative = "
               "{r-proportion-direction}){answer}",
       .isSame = false,
       .remark = "compares arcsines of roots of the proportions"},
      {.program = "SAS",
       .call = std::string("proc power; onesamplefreq test=") + (in.Flag("correction") ? "adjz" : "z") +
               " method=normal nullproportion={null} proportion={proportion} sides={sides} alpha={alpha} "
               "ntotal={n-or-dot} power={power-or-dot}; run;"}};
  return details;
}

}  // namespace

Details DetailsOfProportion(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return IntervalDetailsOfProportion(in);
  if (HasMargins(in)) return MarginDetailsOfProportion(in);
  const proportions::OneSampleProportions expected{in.Number("proportion"), in.Number("null")};
  proportions::OneSampleTest test({in.Flag("exact"), in.Flag("one-sided"), in.Alpha(), in.Flag("correction")});
  Details details = in.Flag("exact") ? ExactDetailsOfProportion(test, expected, in) : OfNormalTest(test, expected, in);
  details.value = OrNaN(test.Power(in.Number("n"), expected));
  return details;
}

}  // namespace planner
