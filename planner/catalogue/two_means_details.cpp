#include <cmath>

#include "catalogue/details.h"
#include "catalogue/mean_parameters.h"
#include "catalogue/two_means.h"
#include "means/independent.h"

namespace planner {
namespace {

namespace means = kelpower::means;

/// In units of the standard deviation where only that is given.
double DifferenceOf(const Inputs& in) {
  if (in.Has("means")) return in.List("means")[0] - in.List("means")[1];
  return in.Number(in.Has("mean-difference") ? Name("mean-difference") : Name("effect-d"));
}

void AddError(Details& details, const Inputs& in) {
  const means::GroupSpreads spreads = SpreadsOfTwoMeans(in);
  const means::DifferenceDistribution at = spreads.At(in.List("n")[0], in.List("n")[1]);
  details.Add("standard-error", "standard error of the difference", at.standardError);
}

const char* SourceOf(const means::GroupSpreads& spreads) {
  return spreads.isPooled ? "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., sections "
                            "2.2 and 2.3, with the noncentral t distribution"
                          : "Welch (1938), Biometrika 29, 350-362; Satterthwaite (1946), Biometrics Bulletin 2, "
                            "110-114; degrees of freedom at the standard deviations expected";
}

Details OfHalfWidth(const Inputs& in) {
  const means::GroupSpreads spreads = SpreadsOfTwoMeans(in);
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  Details details;
  AddError(details, in);
  AddIntervalT(details, in.Alpha(), spreads.At(n1, n2).df);
  details.value = means::HalfWidth({spreads, in.Alpha()}, n1, n2);
  details.formula = "half-width = t x standard error = {quantile-t} x {standard-error}";
  details.source = SourceOf(spreads);
  details.equivalents = {{.program = "R", .call = "qt(1 - {alpha} / 2, {df}) * {standard-error}"}};
  return details;
}

}  // namespace

Details DetailsOfTwoMeans(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  if (HasMargins(in) || in.Has("mean-ratio")) return DetailsOfTwoMeansWithMargins(in);
  const means::GroupSpreads spreads = SpreadsOfTwoMeans(in);
  const double n1 = in.List("n")[0];
  const double n2 = in.List("n")[1];
  const double difference = DifferenceOf(in);
  const auto test = means::TwoSampleTest(spreads, SidesOf(in), in.Alpha(), n1, n2);
  Details details;
  if (!test) return details;
  if (spreads.isPooled) {
    const double d = difference / spreads.sd1;
    details.Add("d", "effect size d", IsOneSided(in) ? std::abs(d) : d);
  }
  AddError(details, in);
  details.Add("difference", "difference of the means", IsOneSided(in) ? std::abs(difference) : difference);
  AddTTest(details, test->AtCriticalValue(), test->Noncentrality(difference), IsOneSided(in),
           "noncentrality = difference / standard error = {difference} / {standard-error}");
  details.source = SourceOf(spreads);
  if (spreads.isPooled) {
    AddPooledPrograms(details, in);
  } else {
    details.equivalents.push_back({.program = "G*Power",
                                   .call = "t tests > Means: Difference between two independent means (two groups)",
                                   .isSame = false,
                                   .remark = "always pools the standard deviations"});
  }
  AddSas(details, in);
  return details;
}

}  // namespace planner
