#include "anova/repeated.h"

#include <cmath>
#include <vector>

#include "anova/contrast.h"
#include "anova/factorial.h"

namespace kelpower::anova {

namespace {

bool IsNone(const RepeatedDesign& design) {
  if (!(design.measurements >= 2)) return true;
  if (!(design.groups >= (design.effect == RepeatedEffect::Within ? 1 : 2))) return true;
  const double steps = design.measurements - 1;
  if (!(design.correlation < 1 && design.correlation * steps > -1)) return true;
  return !(design.epsilon <= 1 && design.epsilon * steps >= 1 - 1e-9);
}

}  // namespace

double RepeatedDesign::Df1() const {
  const double steps = measurements - 1;
  switch (effect) {
    case RepeatedEffect::Between: return groups - 1;
    case RepeatedEffect::Within: return steps * epsilon;
    case RepeatedEffect::Interaction: break;
  }
  return (groups - 1) * steps * epsilon;
}

double RepeatedDesign::Df2(double totalSize) const {
  const double subjects = totalSize - groups;
  return effect == RepeatedEffect::Between ? subjects : subjects * (measurements - 1) * epsilon;
}

EffectTest RepeatedDesign::TestAt(double totalSize, double alpha) const {
  return IsNone(*this) ? EffectTest(0, 0, alpha) : EffectTest(Df1(), Df2(totalSize), alpha);
}

EffectTest RepeatedDesign::ContrastTestAt(double totalSize, double alpha) const {
  const bool isTest = !IsNone(*this) && effect == RepeatedEffect::Within && epsilon == 1;
  return EffectTest(isTest ? 1 : 0, Df2(totalSize), alpha);
}

// Means of m measurements have variance sd^2 (1 + (m - 1) rho) / m, contrasts of them of length 1 sd^2 (1 - rho).
double RepeatedDesign::ErrorVariance() const {
  if (effect == RepeatedEffect::Between) return (1 + (measurements - 1) * correlation) / measurements;
  return (1 - correlation) / epsilon;
}

double RepeatedDesign::NoncentralityOfF(double f, RepeatedF kind, double totalSize) const {
  const bool isBetween = effect == RepeatedEffect::Between;
  switch (kind) {
    case RepeatedF::Means: return f * totalSize * f * (isBetween ? 1 : measurements) / ErrorVariance();
    case RepeatedF::Sample: return f * Df2(totalSize) * f;
    case RepeatedF::Cohen: break;
  }
  return f * totalSize * f * (isBetween ? 1 : (measurements - 1) * epsilon);
}

// Cells of independent observations whose variance is that of the error have the same contrasts: crossed factors, the
// groups and the measurements.
Answer RepeatedDesign::NoncentralityOfMeans(PerGroup means, PerGroup sizes, double sd) const {
  if (IsNone(*this)) return NoValue::Refused;
  const bool isOneGroup = groups == 1;
  std::vector<double> term;
  if (effect != RepeatedEffect::Within) term.push_back(1);
  if (effect != RepeatedEffect::Between) term.push_back(isOneGroup ? 1 : 2);
  const auto factors =
      FactorialTerm::Of(isOneGroup ? std::vector{measurements} : std::vector{groups, measurements}, term);
  if (!factors || sizes.Count() != groups || means.Count() != factors->Cells()) return NoValue::Refused;

  const auto times = static_cast<int>(measurements);
  std::vector<double> cells;
  for (int cell = 0; cell < means.Count(); ++cell) cells.push_back(sizes[cell / times]);
  // The mean over the measurements of independent cells has variance sd^2 / m.
  const double variance = ErrorVariance() * (effect == RepeatedEffect::Between ? measurements : 1);
  return factors->Noncentrality(means, cells, sd * std::sqrt(variance));
}

Answer RepeatedDesign::NoncentralityOfContrast(PerGroup coefficients, PerGroup means, PerGroup sizes, double sd) const {
  if (!NoncentralityOfMeans(means, sizes, sd)) return NoValue::Refused;
  if (coefficients.Count() != measurements) return NoValue::Refused;
  std::vector<double> ofCells;
  std::vector<double> cells;
  for (int cell = 0; cell < means.Count(); ++cell) {
    ofCells.push_back(coefficients[cell % coefficients.Count()] / groups);
    cells.push_back(sizes[cell / coefficients.Count()]);
  }
  const double variance = ErrorVariance() * ContrastVariance(ofCells, cells);
  const double effectSize = ContrastValue(ofCells, means) / sd / std::sqrt(variance);
  return effectSize * effectSize;
}

}  // namespace kelpower::anova
