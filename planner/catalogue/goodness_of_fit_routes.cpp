#include "catalogue/core.h"
#include "catalogue/goodness_of_fit.h"

namespace planner {
namespace {

namespace chi_square = kelpower::chi_square;

double EffectOfW(const Inputs& in) { return in.Number("effect-w") * in.Number("effect-w"); }

double GivenDf(const Inputs& in) { return in.Number("df"); }

double EffectOfProportions(const Inputs& in) {
  return OrNaN(chi_square::EffectOfFit(NullProportions(in), in.List("proportions"), StatisticOf(in)));
}

double DfOfProportions(const Inputs& in) {
  return static_cast<double>(in.List("proportions").size()) - 1 - in.Number("estimated");
}

constexpr ChiSquareDesign ofW{EffectOfW, GivenDf};
constexpr ChiSquareDesign ofProportions{EffectOfProportions, DfOfProportions};

}  // namespace

Numbers NullProportions(const Inputs& in) {
  if (in.Has("null-proportions")) return in.List("null-proportions");
  return Numbers(in.List("proportions").size(), 1.0);
}

ChiSquareDesign DesignOfGoodnessOfFit(const Inputs& in) { return in.Has("effect-w") ? ofW : ofProportions; }

std::vector<Route> RoutesOfGoodnessOfFit() {
  std::vector<Route> routes;
  AddRoutes(routes, {"proportions"}, {"null-proportions", "estimated", "likelihood-ratio"}, ofProportions);
  AddRoutes(routes, {"effect-w", "df"}, {}, ofW);
  return routes;
}

}  // namespace planner
