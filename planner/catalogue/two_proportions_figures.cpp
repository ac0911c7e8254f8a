#include "catalogue/two_proportions.h"

namespace planner {

double FirstProportion(const Inputs& in) {
  return in.Has("proportions") ? in.List("proportions")[0] : in.Number("proportion1");
}

double SecondProportion(const Inputs& in) {
  if (in.Has("proportions")) return in.List("proportions")[1];
  const double first = FirstProportion(in);
  if (in.Has("risk-difference")) return first - in.Number("risk-difference");
  if (in.Has("risk-ratio")) return first / in.Number("risk-ratio");
  return SecondOfOddsRatio(first, in.Number("odds-ratio"));
}

double RiskDifference(const Inputs& in) { return FirstProportion(in) - SecondProportion(in); }

double RiskRatio(const Inputs& in) { return FirstProportion(in) / SecondProportion(in); }

double OddsRatio(const Inputs& in) {
  const double first = FirstProportion(in);
  const double second = SecondProportion(in);
  return first / (1 - first) / (second / (1 - second));
}

double SecondOfOddsRatio(double first, double oddsRatio) { return first / (first + oddsRatio * (1 - first)); }

std::vector<Derived> FiguresOfTwoProportions() {
  return {
      {.name = "proportion2", .label = "second proportion", .needs = {"proportion1"}, .call = SecondProportion},
      {.name = "risk-difference", .label = "risk difference", .needs = {"proportions"}, .call = RiskDifference},
      {.name = "risk-ratio", .label = "risk ratio", .needs = {"proportions"}, .call = RiskRatio},
      {.name = "odds-ratio", .label = "odds ratio", .needs = {"proportions"}, .call = OddsRatio},
  };
}

}  // namespace planner
