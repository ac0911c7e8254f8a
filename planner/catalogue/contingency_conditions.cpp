#include <algorithm>
#include <cmath>

#include "catalogue/contingency.h"
#include "catalogue/core.h"

namespace planner {
namespace {

namespace chi_square = kelpower::chi_square;

bool IsRectangle(const Numbers& cells, double rows) {
  const double columns = static_cast<double>(cells.size()) / rows;
  return columns >= 2 && columns == std::floor(columns);
}

bool IsFilled(const Inputs& in) {
  return static_cast<bool>(chi_square::EffectOfTable(TableOf(in), in.Number("rows"), StatisticOf(in)));
}

double LargestW(const Inputs& in) { return chi_square::WOfCramersV(1, in.Number("rows"), in.Number("columns")); }

bool HasAssociation(const Inputs& in) { return DesignOfContingency(in).effect(in) > leastEffect; }

}  // namespace

std::vector<Condition> ConditionsOfContingency() {
  return {
      {.code = "table-shape",
       .about = {"table", "rows"},
       .holds = [](const Inputs& in) { return IsRectangle(in.List("table"), in.Number("rows")); },
       .sentence = "{table} must have as many numbers in each of its {rows}, row by row, and at least two."},
      {.code = "table-shape",
       .about = {"profiles", "rows"},
       .holds = [](const Inputs& in) { return IsRectangle(in.List("profiles"), in.Number("rows")); },
       .sentence = "{profiles} must have as many numbers in each of its {rows}, row by row, and at least two."},
      {.code = "allocation",
       .about = {"profiles", "rows", "ratios"},
       .holds = [](const Inputs& in) { return static_cast<double>(in.List("ratios").size()) == in.Number("rows"); },
       .sentence = "{ratios} must have one number for each of the {rows}."},
      {.code = "empty-margin",
       .about = {"table", "rows"},
       .holds = IsFilled,
       .sentence = "Each row and each column of {table} needs a number above 0."},
      {.code = "empty-margin",
       .about = {"profiles", "rows"},
       .holds = IsFilled,
       .sentence = "Each row and each column of {profiles} needs a number above 0."},
      {.code = "effect-too-large",
       .about = {"effect-w", "rows", "columns"},
       .holds = [](const Inputs& in) { return in.Number("effect-w") <= LargestW(in); },
       .sentence = "{effect-w} must not exceed the root of the smaller one of {rows} and {columns} less 1."},
  };
}

std::vector<Condition> SizeExistsForContingency() {
  return {
      HasChiSquareEffect({"effect-w"}, HasAssociation),
      HasChiSquareEffect({"cramers-v"}, HasAssociation),
      HasChiSquareEffect({"table"}, HasAssociation),
      HasChiSquareEffect({"profiles"}, HasAssociation),
  };
}

}  // namespace planner
