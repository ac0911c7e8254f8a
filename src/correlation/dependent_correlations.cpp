#include "correlation/dependent_correlations.h"

#include <cmath>
#include <limits>

#include "frame/checks.h"

namespace kelpower::correlation {

namespace {

constexpr int mostVariables = 4;

/// Whether the pivots of the decomposition into triangular factors are positive.
bool HasPositivePivots(double (&matrix)[mostVariables][mostVariables], int variables) {
  for (int k = 0; k < variables; ++k) {
    const double pivot = matrix[k][k];
    if (!(pivot > 0)) return false;
    for (int i = k + 1; i < variables; ++i) {
      for (int j = k + 1; j < variables; ++j) matrix[i][j] -= matrix[i][k] / pivot * matrix[k][j];
    }
  }
  return true;
}

template <typename Correlations>
Correlations UnderNullOf(const Correlations& correlations, NullCorrelations null) {
  if (null == NullCorrelations::Expected) return correlations;
  const double first = correlations.First();
  return correlations.With(null == NullCorrelations::First ? first : (first + correlations.Second()) / 2);
}

template <typename Correlations>
ShiftedNormal UnderAlternativeOf(const Correlations& correlations, NullCorrelations null, double size) {
  const double atNull = StandardErrorOfDifference(CorrelationOfZ(UnderNull(correlations, null)), size);
  const double error = StandardErrorOfDifference(CorrelationOfZ(correlations), size);
  return {FisherDifference({correlations.First(), correlations.Second()}) / atNull, error / atNull};
}

template <typename Correlations>
Answer PowerOf(const Level& level, const Correlations& correlations, NullCorrelations null, double size) {
  if (size <= 3) return NoValue::Refused;
  if (RejectsOpenUnit(level.alpha)) return NoValue::Refused;
  if (!IsPositiveDefinite(correlations)) return NoValue::Refused;
  if (!IsPositiveDefinite(UnderNull(correlations, null))) return NoValue::Refused;
  const auto [shift, spread] = UnderAlternative(correlations, null, size);
  return level.Power(shift, spread, shift > 0);
}

}  // namespace

bool IsPositiveDefinite(const SharedVariable& c) {
  double matrix[mostVariables][mostVariables] = {{1, c.r12, c.r13}, {c.r12, 1, c.r23}, {c.r13, c.r23, 1}};
  return HasPositivePivots(matrix, 3);
}

bool IsPositiveDefinite(const SeparatePairs& c) {
  double matrix[mostVariables][mostVariables] = {
      {1, c.r12, c.r13, c.r14}, {c.r12, 1, c.r23, c.r24}, {c.r13, c.r23, 1, c.r34}, {c.r14, c.r24, c.r34, 1}};
  return HasPositivePivots(matrix, 4);
}

// The correlation that is left of 1 and 3 given 2 lies between -1 and 1.
PossibleCorrelations PossibleSecond(const SharedVariable& c) {
  const double mean = c.r12 * c.r23;
  const double reach = std::sqrt((1 - c.r12 * c.r12) * (1 - c.r23 * c.r23));
  return {mean - reach, mean + reach};
}

// So does that of 3 and 4 given 1 and 2.
PossibleCorrelations PossibleSecond(const SeparatePairs& c) {
  const double left = 1 - c.r12 * c.r12;
  const auto explained = [&](double first1, double first2, double second1, double second2) {
    return (first1 * second1 + first2 * second2 - c.r12 * (first1 * second2 + first2 * second1)) / left;
  };
  const double mean = explained(c.r13, c.r23, c.r14, c.r24);
  const double left3 = 1 - explained(c.r13, c.r23, c.r13, c.r23);
  const double left4 = 1 - explained(c.r14, c.r24, c.r14, c.r24);
  const double reach = left3 < 0 ? std::numeric_limits<double>::quiet_NaN() : std::sqrt(left3 * left4);
  return {mean - reach, mean + reach};
}

// Steiger (1980), equation 3, over the variances (1 - r^2)^2 of both correlations and their slopes of z.
double CorrelationOfZ(const SharedVariable& c) {
  const double left12 = (1 - c.r12) * (1 + c.r12);
  const double left13 = (1 - c.r13) * (1 + c.r13);
  const double left = 1 - c.r12 * c.r12 - c.r13 * c.r13;
  return (c.r23 * left - c.r12 * c.r13 * (left - c.r23 * c.r23) / 2) / left12 / left13;
}

// Steiger (1980), equation 2, after Pearson and Filon (1898).
double CorrelationOfZ(const SeparatePairs& c) {
  const double sum =
      (c.r13 - c.r12 * c.r23) * (c.r24 - c.r23 * c.r34) + (c.r14 - c.r13 * c.r34) * (c.r23 - c.r12 * c.r13) +
      (c.r13 - c.r14 * c.r34) * (c.r24 - c.r12 * c.r14) + (c.r14 - c.r12 * c.r24) * (c.r23 - c.r24 * c.r34);
  return sum / 2 / ((1 - c.r12) * (1 + c.r12)) / ((1 - c.r34) * (1 + c.r34));
}

SharedVariable UnderNull(const SharedVariable& correlations, NullCorrelations null) {
  return UnderNullOf(correlations, null);
}

SeparatePairs UnderNull(const SeparatePairs& correlations, NullCorrelations null) {
  return UnderNullOf(correlations, null);
}

double StandardErrorOfDifference(double correlationOfZ, double size) {
  return std::sqrt((2 - 2 * correlationOfZ) / (size - 3));
}

ShiftedNormal UnderAlternative(const SharedVariable& correlations, NullCorrelations null, double size) {
  return UnderAlternativeOf(correlations, null, size);
}

ShiftedNormal UnderAlternative(const SeparatePairs& correlations, NullCorrelations null, double size) {
  return UnderAlternativeOf(correlations, null, size);
}

Answer Power(const Level& level, const SharedVariable& correlations, NullCorrelations null, double size) {
  return PowerOf(level, correlations, null, size);
}

Answer Power(const Level& level, const SeparatePairs& correlations, NullCorrelations null, double size) {
  return PowerOf(level, correlations, null, size);
}

}  // namespace kelpower::correlation
