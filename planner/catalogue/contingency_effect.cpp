#include <cmath>

#include "catalogue/contingency.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace chi_square = kelpower::chi_square;

double PearsonW(const Inputs& in) {
  return std::sqrt(OrNaN(chi_square::EffectOfTable(TableOf(in), in.Number("rows"), chi_square::Statistic::Pearson)));
}

double W(const Inputs& in) {
  if (in.Has("effect-w")) return in.Number("effect-w");
  if (!in.Has("cramers-v")) return PearsonW(in);
  return chi_square::WOfCramersV(in.Number("cramers-v"), in.Number("rows"), in.Number("columns"));
}

double V(const Inputs& in) { return chi_square::CramersV(W(in), in.Number("rows"), ColumnsOf(in)); }

/// Of two rows and columns alone, with the sign of the association.
double Phi(const Inputs& in) {
  const Numbers table = TableOf(in);
  if (table.size() != 4) return OrNaN(kelpower::NoValue::Refused);
  return std::copysign(W(in), table[0] * table[3] - table[1] * table[2]);
}

double Df(const Inputs& in) { return chi_square::TableDf(in.Number("rows"), ColumnsOf(in)); }

}  // namespace

Numbers TableOf(const Inputs& in) {
  if (in.Has("table")) return in.List("table");
  return chi_square::TableOfProfiles(in.List("profiles"), in.Number("rows"),
                                     in.Has("ratios") ? in.List("ratios") : Numbers{});
}

double ColumnsOf(const Inputs& in) {
  if (in.Has("columns")) return in.Number("columns");
  const Numbers& cells = in.List(in.Has("table") ? Name("table") : Name("profiles"));
  return static_cast<double>(cells.size()) / in.Number("rows");
}

std::vector<Derived> FiguresOfContingency() {
  std::vector<Derived> figures;
  for (Name cells : {Name("table"), Name("profiles")}) {
    figures.push_back({.name = "effect-w", .label = "effect size w", .needs = {cells, "rows"}, .call = W});
    figures.push_back({.name = "cramers-v", .label = "Cramer's V", .needs = {cells, "rows"}, .call = V});
    figures.push_back({.name = "phi", .label = "phi", .needs = {cells, "rows"}, .call = Phi});
    figures.push_back({.name = "df", .label = "degrees of freedom", .needs = {cells, "rows"}, .call = Df});
  }
  figures.push_back({.name = "cramers-v", .label = "Cramer's V", .needs = {"effect-w", "rows", "columns"}, .call = V});
  figures.push_back(
      {.name = "effect-w", .label = "effect size w", .needs = {"cramers-v", "rows", "columns"}, .call = W});
  figures.push_back({.name = "df", .label = "degrees of freedom", .needs = {"rows", "columns"}, .call = Df});
  return figures;
}

}  // namespace planner
