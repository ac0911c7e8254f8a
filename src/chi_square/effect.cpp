#include "chi_square/effect.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace kelpower::chi_square {

namespace {

using Numbers = std::vector<double>;

// An entry that is not negative; NaN is none.
bool IsCount(double value) { return value >= 0 && std::isfinite(value); }

bool AreCounts(const Numbers& values) { return std::all_of(values.begin(), values.end(), IsCount); }

double Sum(const Numbers& values) {
  double sum = 0;
  for (const double value : values) sum += value;
  return sum;
}

// The list on a scale on which its largest entry is 1, so that no sum overflows.
Numbers Scaled(Numbers values) {
  const double largest = *std::max_element(values.begin(), values.end());
  for (double& value : values) value /= largest;
  return values;
}

Numbers Proportions(const Numbers& values) {
  Numbers proportions = Scaled(values);
  const double sum = Sum(proportions);
  for (double& proportion : proportions) proportion /= sum;
  return proportions;
}

// (1 + d) log(1 + d) - d, d >= -1: a term of the divergence, less what sums to 0. Near 0 its series, sum_{k >= 2}
// (-d)^k / (k (k - 1)), without the cancellation.
double DivergenceTerm(double d) {
  constexpr double near = 0.1;
  if (d <= -1) return 1;
  if (std::fabs(d) > near) return (1 + d) * std::log1p(d) - d;
  constexpr int terms = 18;
  double sum = 0;
  for (int k = terms; k >= 2; --k) sum = sum * -d + 1.0 / (k * (k - 1));
  return sum * d * d;
}

// What a cell adds. `difference` is p1 - p0, to more digits than p1 and p0 have.
double CellEffect(double null, double difference, Statistic statistic) {
  const double d = difference / null;
  return null * (statistic == Statistic::Pearson ? d * d : 2 * DivergenceTerm(d));
}

// The rows and columns of a table by its list; no columns where it is none.
struct Shape {
  Shape(const Numbers& table, double rowsIn) {
    if (!(rowsIn >= 2) || rowsIn > static_cast<double>(table.size()) || rowsIn != std::floor(rowsIn)) return;
    rows = static_cast<std::size_t>(rowsIn);
    columns = table.size() % rows == 0 ? table.size() / rows : 0;
  }

  std::size_t rows = 0;
  std::size_t columns = 0;
};

// The sums of rows and of columns.
struct Margins {
  Margins(const Numbers& table, const Shape& shape) : rows(shape.rows), columns(shape.columns) {
    for (std::size_t i = 0; i < shape.rows; ++i) {
      for (std::size_t j = 0; j < shape.columns; ++j) {
        rows[i] += table[i * shape.columns + j];
        columns[j] += table[i * shape.columns + j];
      }
    }
  }

  bool AreFilled() const {
    const auto isFilled = [](double sum) { return sum > 0; };
    return std::all_of(rows.begin(), rows.end(), isFilled) && std::all_of(columns.begin(), columns.end(), isFilled);
  }

  Numbers rows;
  Numbers columns;
};

}  // namespace

Answer EffectOfFit(const Numbers& null, const Numbers& expected, Statistic statistic) {
  if (null.size() < 2 || null.size() != expected.size()) return NoValue::Refused;
  if (!AreCounts(null) || !AreCounts(expected)) return NoValue::Refused;
  if (!(Sum(Scaled(expected)) > 0)) return NoValue::Refused;
  const Numbers p0 = Proportions(null);
  const Numbers p1 = Proportions(expected);
  double effect = 0;
  for (std::size_t i = 0; i < p0.size(); ++i) {
    if (!(p0[i] > 0)) return NoValue::Refused;
    effect += CellEffect(p0[i], p1[i] - p0[i], statistic);
  }
  return effect;
}

Answer EffectOfTable(const Numbers& table, double rows, Statistic statistic) {
  const Shape shape(table, rows);
  if (shape.columns < 2 || !AreCounts(table)) return NoValue::Refused;
  const Numbers joint = Proportions(table);
  const Margins margins(joint, shape);
  if (!margins.AreFilled()) return NoValue::Refused;
  double effect = 0;
  for (std::size_t i = 0; i < shape.rows; ++i) {
    for (std::size_t j = 0; j < shape.columns; ++j) {
      const double independent = margins.rows[i] * margins.columns[j];
      if (!(independent > 0)) return NoValue::Refused;
      effect += CellEffect(independent, joint[i * shape.columns + j] - independent, statistic);
    }
  }
  return effect;
}

Numbers TableOfProfiles(const Numbers& profiles, double rows, const Numbers& shares) {
  const Shape shape(profiles, rows);
  if (shape.columns < 2 || !AreCounts(profiles) || !AreCounts(shares)) return {};
  if (!shares.empty() && shares.size() != shape.rows) return {};
  const Numbers weights = shares.empty() ? Numbers(shape.rows, 1.0) : Scaled(shares);
  Numbers table;
  for (std::size_t i = 0; i < shape.rows; ++i) {
    const auto first = profiles.begin() + static_cast<std::ptrdiff_t>(i * shape.columns);
    const Numbers row = Proportions({first, first + static_cast<std::ptrdiff_t>(shape.columns)});
    if (!(Sum(row) > 0) || !(weights[i] > 0)) return {};
    for (const double proportion : row) table.push_back(proportion * weights[i]);
  }
  return table;
}

double CramersV(double w, double rows, double columns) { return w / std::sqrt(std::min(rows, columns) - 1); }

double WOfCramersV(double v, double rows, double columns) { return v * std::sqrt(std::min(rows, columns) - 1); }

}  // namespace kelpower::chi_square
