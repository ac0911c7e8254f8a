#include <string>

#include "catalogue/details.h"
#include "catalogue/mean_margins.h"
#include "catalogue/mean_parameters.h"
#include "means/margins.h"

namespace planner {
namespace {

namespace means = kelpower::means;

void AddOneSided(Details& details, const Inputs& in, const MeanQuestion& question, const kelpower::TTest& test) {
  const double distance = DistanceFromMargin(in, question);
  details.Add("distance", question.isRatio ? "log distance from the margin" : "distance from the margin", distance);
  AddTTest(details, test, distance / question.estimate.standardError, true,
           "noncentrality = distance from the margin / standard error = {distance} / {standard-error}");
}

void AddAgainstNoEffect(Details& details, const Inputs& in, const MeanQuestion& question) {
  const means::DifferenceDistribution& estimate = question.estimate;
  const means::TTestOfAMean test(SidesOf(in), in.Alpha(), estimate.df, estimate.standardError);
  const double effect = question.Above(question.NoEffect());
  details.Add("effect", question.isRatio ? "logarithm of the ratio" : "difference of the means", effect);
  AddTTest(details, test.AtCriticalValue(), test.Noncentrality(effect), IsOneSided(in),
           "noncentrality = effect / standard error = {effect} / {standard-error}");
}

void AddEquivalence(Details& details, const Inputs& in, const MeanQuestion& question, const kelpower::TTest& test) {
  const double error = question.estimate.standardError;
  means::Insides distances = DistancesFromLimits(in, question);
  distances = {distances.aboveLower / error, distances.belowUpper / error};
  details.Add("above-lower", "distance above the lower limit, in standard errors", distances.aboveLower);
  details.Add("below-upper", "distance below the upper limit, in standard errors", distances.belowUpper);
  details.Add("df", "degrees of freedom", test.df);
  details.Add("critical-t", "critical value of t", test.critical);
  details.value = means::PowerOfTwoTests(test, distances);
  details.formula =
      "power = E[Phi({below-upper} - t u) - Phi(t u - {above-lower})], t = {critical-t}, over u below ({above-lower} + "
      "{below-upper}) / (2 t), u the root of chi-square over its {df} degrees of freedom";
  details.equivalents = {
      {.program = "R",
       .call = "integrate(function(u) (pnorm({below-upper} - {critical-t} * u) - pnorm({critical-t} * u - "
               "{above-lower})) * 2 * {df} * u * dchisq({df} * u^2, {df}), 0, ({above-lower} + {below-upper}) / (2 * "
               "{critical-t}), rel.tol = 1e-10)$value",
       .remark = "the formula, from the distances on"}};
}

const char* SourceOf(const Inputs& in) {
  if (IsEquivalence(in)) {
    return "Schuirmann (1987), J. Pharmacokinet. Biopharm. 15, 657-680; exact by Owen (1965), Biometrika 52, 437-446, "
           "and Phillips (1990), J. Pharmacokinet. Biopharm. 18, 137-144; ";
  }
  return HasMargins(in) ? "Blackwelder (1982), Controlled Clinical Trials 3, 345-353, with the noncentral t "
                          "distribution; "
                        : "";
}

}  // namespace

Details DetailsOfMeanMargins(const Inputs& in, const MeanQuestion& question, const std::string& source) {
  Details details;
  const auto test = means::OneSidedTest(in.Alpha(), question.estimate);
  if (!test) return details;
  if (in.Has("cv"))
    details.Add("sd-of-logs", "standard deviation of the logarithms", means::SdOfLogarithms(in.Number("cv")));
  details.Add("standard-error", question.isRatio ? "standard error of the log ratio" : "standard error",
              question.estimate.standardError);
  if (IsEquivalence(in)) {
    AddEquivalence(details, in, question, *test);
  } else if (HasMargins(in)) {
    AddOneSided(details, in, question, *test);
  } else {
    AddAgainstNoEffect(details, in, question);
  }
  details.source = SourceOf(in) + source;
  return details;
}

}  // namespace planner
