#include "anova/factorial.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

#include "anova/cell_table.h"
#include "anova/quadratic_form.h"
#include "frame/checks.h"
#include "frame/scale.h"

namespace kelpower::anova {

namespace {

bool AreAbove0(PerGroup values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return value > 0; });
}

/// Estimates and their variances over what is left of a term, in the units of the cells.
struct TermTable {
  CellTable estimates;
  CellTable variances;
};

/// Takes the factors outside the term out of the tables, and those with two levels, of which one contrast remains.
void Reduce(TermTable& table, const std::vector<bool>& isInTerm) {
  const std::vector<int> levels = table.estimates.Levels();
  for (std::size_t factor = 0; factor < levels.size(); ++factor) {
    const double share = 1.0 / levels[factor];
    if (!isInTerm[factor]) {
      table.estimates.SumOver(factor, share);
      table.variances.SumOver(factor, share * share);
    } else if (levels[factor] == 2) {
      table.estimates.Difference(factor);
      table.variances.SumOver(factor, 1);
    }
  }
}

/// The factors of which several levels are left.
std::vector<std::size_t> FactorsLeft(const TermTable& table) {
  std::vector<std::size_t> left;
  for (std::size_t factor = 0; factor < table.estimates.Levels().size(); ++factor) {
    if (table.estimates.Levels()[factor] > 1) left.push_back(factor);
  }
  return left;
}

/// Independent estimates of one mean: the weighted sum of squares about their weighted mean.
double SpreadOfOneFactor(const TermTable& table) {
  const std::vector<double>& estimates = table.estimates.Values();
  const std::vector<double>& variances = table.variances.Values();
  double weights = 0;
  double sum = 0;
  for (std::size_t i = 0; i < estimates.size(); ++i) {
    weights += 1 / variances[i];
    sum += (estimates[i] - estimates[0]) / variances[i];
  }
  const double mean = estimates[0] + sum / weights;
  double squares = 0;
  for (std::size_t i = 0; i < estimates.size(); ++i) {
    squares += (estimates[i] - mean) * (estimates[i] - mean) / variances[i];
  }
  return squares;
}

/// Of equal variances: the sum of squares of the effects of the term.
double SpreadOfEqualVariances(TermTable table, const std::vector<std::size_t>& left) {
  for (const std::size_t factor : left) table.estimates.Centre(factor);
  double squares = 0;
  for (const double effect : table.estimates.Values()) squares += effect * effect;
  return squares / table.variances.Values().front();
}

/// In general: the quadratic form of orthonormal contrasts and their covariance matrix.
double SpreadOfContrasts(TermTable table, const std::vector<std::size_t>& left) {
  const std::vector<int> levels = table.estimates.Levels();
  const std::vector<double> variances = table.variances.Values();
  for (const std::size_t factor : left) table.estimates.Contrast(factor);
  const std::size_t contrasts = table.estimates.Values().size();

  // The covariance matrix is H V H'. Its columns are the contrasts of those of V H', and these are those of H, which
  // are its rows, times the variances. As H applied to unit vectors gives H by columns, H' is laid out first.
  std::vector<double> rows(contrasts * variances.size());
  for (std::size_t cell = 0; cell < variances.size(); ++cell) {
    std::vector<double> unit(variances.size(), 0.0);
    unit[cell] = 1;
    CellTable column(levels, std::move(unit));
    for (const std::size_t factor : left) column.Contrast(factor);
    for (std::size_t r = 0; r < contrasts; ++r) rows[r * variances.size() + cell] = column.Values()[r];
  }
  std::vector<double> covariances;
  covariances.reserve(contrasts * contrasts);
  for (std::size_t r = 0; r < contrasts; ++r) {
    std::vector<double> weighted(variances);
    for (std::size_t cell = 0; cell < weighted.size(); ++cell) weighted[cell] *= rows[r * weighted.size() + cell];
    CellTable column(levels, std::move(weighted));
    for (const std::size_t factor : left) column.Contrast(factor);
    covariances.insert(covariances.end(), column.Values().begin(), column.Values().end());
  }
  return InverseQuadraticForm(std::move(covariances), table.estimates.Values());
}

double Spread(TermTable table) {
  const std::vector<std::size_t> left = FactorsLeft(table);
  const std::vector<double>& variances = table.variances.Values();
  if (left.empty()) return table.estimates.Values()[0] * table.estimates.Values()[0] / variances[0];
  if (left.size() == 1) return SpreadOfOneFactor(table);
  const bool areEqual =
      std::all_of(variances.begin(), variances.end(), [&](double variance) { return variance == variances.front(); });
  return areEqual ? SpreadOfEqualVariances(std::move(table), left) : SpreadOfContrasts(std::move(table), left);
}

/// Whether the contrasts of the term are what rounding makes of 0 where no mean is larger than `magnitude`.
bool IsNoEffect(TermTable table, double magnitude) {
  const double rounding = 64 * std::numeric_limits<double>::epsilon() * magnitude;
  for (const std::size_t factor : FactorsLeft(table)) table.estimates.Centre(factor);
  const std::vector<double>& effects = table.estimates.Values();
  return std::all_of(effects.begin(), effects.end(), [&](double effect) { return std::fabs(effect) <= rounding; });
}

bool AreFinite(PerGroup values) {
  return std::all_of(values.begin(), values.end(), [](double value) { return std::isfinite(value); });
}

}  // namespace

std::optional<FactorialTerm> FactorialTerm::Of(const std::vector<double>& levels, const std::vector<double>& term) {
  FactorialTerm found;
  for (const double level : levels) {
    if (!(level >= 2 && level <= mostCells) || level != std::floor(level)) return std::nullopt;
    found.cells_ *= static_cast<int>(level);
    if (found.cells_ > mostCells) return std::nullopt;
    found.levels_.push_back(static_cast<int>(level));
  }
  found.isInTerm_.assign(levels.size(), false);
  for (const double factor : term) {
    if (!(factor >= 1 && factor <= static_cast<double>(levels.size())) || factor != std::floor(factor)) {
      return std::nullopt;
    }
    const auto index = static_cast<std::size_t>(factor) - 1;
    if (found.isInTerm_[index]) return std::nullopt;
    found.isInTerm_[index] = true;
  }
  if (term.empty()) return std::nullopt;
  return found;
}

double FactorialTerm::Df() const {
  double df = 1;
  for (std::size_t factor = 0; factor < levels_.size(); ++factor) {
    if (isInTerm_[factor]) df *= levels_[factor] - 1;
  }
  return df;
}

// Around the first mean, and in units near the largest distance from it, whose square may overflow.
Answer FactorialTerm::Noncentrality(PerGroup means, PerGroup sizes, double sd) const {
  if (means.Count() != cells_ || sizes.Count() != cells_) return NoValue::Refused;
  if (!AreAbove0(sizes) || RejectsStandardDeviation(sd)) return NoValue::Refused;
  std::vector<double> distances;
  std::vector<double> variances;
  for (int i = 0; i < cells_; ++i) {
    distances.push_back(means[i] - means[0]);
    variances.push_back(1 / sizes[i]);
  }
  if (!AreFinite(distances)) return NoValue::Refused;
  const double scale = BinaryScale(LargestMagnitude(distances));
  for (double& distance : distances) distance /= scale;

  TermTable table{CellTable(levels_, std::move(distances)), CellTable(levels_, std::move(variances))};
  Reduce(table, isInTerm_);
  if (IsNoEffect(table, LargestMagnitude(means) / scale)) return 0;
  const double effect = std::sqrt(Spread(std::move(table))) * (scale / sd);
  return effect * effect;
}

}  // namespace kelpower::anova
