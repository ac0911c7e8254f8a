#include "catalogue/contingency.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace chi_square = kelpower::chi_square;

double EffectOfCells(const Inputs& in) {
  return OrNaN(chi_square::EffectOfTable(TableOf(in), in.Number("rows"), StatisticOf(in)));
}

double EffectOfW(const Inputs& in) { return in.Number("effect-w") * in.Number("effect-w"); }

double EffectOfV(const Inputs& in) {
  const double w = chi_square::WOfCramersV(in.Number("cramers-v"), in.Number("rows"), in.Number("columns"));
  return w * w;
}

double DfOfShape(const Inputs& in) { return chi_square::TableDf(in.Number("rows"), ColumnsOf(in)); }

double GivenDf(const Inputs& in) { return in.Number("df"); }

constexpr ChiSquareDesign ofCells{EffectOfCells, DfOfShape};
constexpr ChiSquareDesign ofV{EffectOfV, DfOfShape};
constexpr ChiSquareDesign ofW{EffectOfW, GivenDf};
constexpr ChiSquareDesign ofShapedW{EffectOfW, DfOfShape};

}  // namespace

ChiSquareDesign DesignOfContingency(const Inputs& in) {
  if (in.Has("cramers-v")) return ofV;
  if (in.Has("effect-w")) return in.Has("df") ? ofW : ofShapedW;
  return ofCells;
}

std::vector<Route> RoutesOfContingency() {
  std::vector<Route> routes;
  AddRoutes(routes, {"table", "rows"}, {"likelihood-ratio"}, ofCells);
  AddRoutes(routes, {"profiles", "rows"}, {"ratios", "likelihood-ratio"}, ofCells);
  AddRoutes(routes, {"effect-w", "rows", "columns"}, {}, ofShapedW);
  AddRoutes(routes, {"effect-w", "df"}, {}, ofW);
  AddRoutes(routes, {"cramers-v", "rows", "columns"}, {}, ofV);
  return routes;
}

}  // namespace planner
