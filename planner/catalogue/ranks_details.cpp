#include "catalogue/ranks.h"

namespace planner {

using kelpower::ranks::Parent;

std::string ParentInGPower(Parent parent) {
  switch (parent) {
    case Parent::Normal: return "Normal";
    case Parent::Logistic: return "Logistic";
    case Parent::Laplace: return "Laplace";
    case Parent::Uniform:
    case Parent::Minimum: break;
  }
  return "";
}

void AddNearlyNormal(Details& details, const kelpower::ranks::NormalTest& test,
                     const kelpower::ranks::NearlyNormal& statistic, bool isOneSided) {
  const auto& [effect, nullSd, threshold, sd] = statistic;
  AddCriticalZ(details, test.Critical());
  details.Add("effect", "mean of the statistic", effect);
  details.Add("null-sd", "standard deviation without an effect", nullSd);
  details.Add("threshold", "what its distance from 0 must exceed", threshold);
  details.Add("sd-with-effect", "standard deviation with the effect", sd);
  details.value = test.Power(statistic);
  // A correction for continuity moves each tail by itself, so that they are not areas of one distribution.
  const bool isCorrected = threshold != test.Critical() * nullSd;
  if (!isCorrected) {
    SetNormalStatistic(details, effect / nullSd, sd / nullSd, test.Critical(), TailsOf(isOneSided, true));
  }
  const std::string near = "pnorm(({effect} - {threshold}) / {sd-with-effect})";
  details.equivalents.push_back(
      {.program = "R",
       .call = isOneSided ? near : near + " + pnorm((-{effect} - {threshold}) / {sd-with-effect})",
       .remark = "the formula, from the moments of the statistic on"});
}

}  // namespace planner
