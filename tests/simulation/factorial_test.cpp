#include "anova/factorial.h"

#include <gtest/gtest.h>

#include <random>

#include "anova/one_effect.h"
#include "simulation/linear_model.h"
#include "support/share_of_studies.h"

namespace kelpower::anova {
namespace {

/// A two-way design and the effects that are drawn from.
struct TwoWay {
  int rows;
  int columns;
  std::vector<double> term;
  std::vector<double> means;
  std::vector<int> sizes;
  double sd;
};

bool IsTested(const TwoWay& design, bool ofRows, bool ofColumns) {
  const std::vector<double> term =
      ofRows && ofColumns ? std::vector<double>{1, 2} : std::vector<double>{ofRows ? 1. : 2.};
  return term == design.term;
}

/// The model of deviations, whose effects are those of unweighted means, with the tested ones last.
LinearModel ModelOf(const TwoWay& design, const std::vector<int>& cellOf) {
  LinearModel model;
  for (const bool isTested : {false, true}) {
    for (int row = -1; row < design.rows - 1; ++row) {
      for (int column = -1; column < design.columns - 1; ++column) {
        if (IsTested(design, row >= 0, column >= 0) != isTested && (row >= 0 || column >= 0)) continue;
        if (row < 0 && column < 0 && isTested) continue;
        Column coded;
        for (int cell : cellOf) {
          const double ofRow = row < 0 ? 1 : Deviation(cell / design.columns, row, design.rows);
          const double ofColumn = column < 0 ? 1 : Deviation(cell % design.columns, column, design.columns);
          coded.push_back(ofRow * ofColumn);
        }
        model.Add(coded, isTested);
      }
    }
  }
  return model;
}

void ExpectPowerOfStudies(const TwoWay& design, unsigned seed) {
  std::vector<int> cellOf;
  std::vector<double> sizes;
  for (std::size_t cell = 0; cell < design.sizes.size(); ++cell) {
    cellOf.insert(cellOf.end(), static_cast<std::size_t>(design.sizes[cell]), static_cast<int>(cell));
    sizes.push_back(design.sizes[cell]);
  }
  const auto term = FactorialTerm::Of({double(design.rows), double(design.columns)}, design.term);
  const auto total = static_cast<double>(cellOf.size());
  const EffectTest test(term->Df(), total - term->Cells(), 0.05);
  const double power = *test.Power(*term->Noncentrality(design.means, sizes, design.sd));

  const LinearModel model = ModelOf(design, cellOf);
  ASSERT_EQ(model.Tested(), term->Df());
  ASSERT_EQ(model.Columns(), term->Cells());
  Column y(cellOf.size());
  const auto rejects = [&](std::mt19937_64& engine) {
    std::normal_distribution<double> normal(0, design.sd);
    for (std::size_t i = 0; i < y.size(); ++i)
      y[i] = design.means[static_cast<std::size_t>(cellOf[i])] + normal(engine);
    return model.F(y) > test.AtCriticalValue()->critical;
  };
  EXPECT_LT(Simulate(1000000, seed, rejects).StandardErrorsFrom(power), kMostStandardErrors) << power;
}

TEST(FactorialStudies, InteractionOfUnequalCellsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({2, 3, {1, 2}, {10, 12, 15, 10, 11, 9}, {2, 3, 4, 3, 2, 1}, 3}, 1);
}

TEST(FactorialStudies, MainEffectOfUnequalCellsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({2, 3, {2}, {10, 12, 15, 10, 11, 9}, {2, 3, 4, 3, 2, 1}, 2}, 2);
}

TEST(FactorialStudies, InteractionOfThreeLevelsIsFoundAsOftenAsPlanned) {
  ExpectPowerOfStudies({3, 3, {1, 2}, {1, 2, 3, 2, 5, 4, 0, 1, 7}, {1, 2, 3, 2, 1, 2, 3, 2, 2}, 2}, 3);
}

}  // namespace
}  // namespace kelpower::anova
