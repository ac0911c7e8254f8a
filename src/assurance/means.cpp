#include "assurance/means.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "assurance/first_size.h"
#include "frame/rejection.h"
#include "kelcommon/distributions.h"

// The assurance may fall before it rises. Let c = size halfWidth^2 / (t^2 sd^2 variance), so that the assurance is
// P(X <= c df), X chi-square on df. Where c is small, more degrees of freedom make it unlikelier that X / df is so far
// below 1. But
//
// - where c <= 0.7, it is at most exp(-df (c - 1 - ln c) / 2) <= exp(-0.028 df) by Chernoff's bound, less than the
//   wished one from 36 ln(1 / wished) degrees of freedom on;
// - where c >= 0.7, it rises from 14 degrees of freedom on, once they are as many as the groups. With a = df / 2 the
//   threshold x = a c of X / 2 grows by a factor of at least 1 / a + 1 / (a + groups / 2) per unit of a, in sizes of
//   one observation a unit or more. The quantile of X / 2 at the same probability grows by no more: at c = 1 by about
//   1 + 1 / (6 a) per unit; below, by less in itself, because gamma distributions disperse as their shape grows; above,
//   by less relative to itself, because they are ordered by skewness (Shaked and Shanthikumar 2007, "Stochastic
//   Orders", chapters 3.B and 4.B).
//
// So the sizes before these degrees of freedom are tried one by one, and bisection finds the first of the others.

namespace kelpower::assurance {

using kelcommon::CdfChiSquare;

namespace {

bool Rejects(const MeanEstimate& estimate) {
  if (RejectsStandardDeviation(estimate.sd)) return true;
  if (estimate.variance <= 0) return true;
  if (estimate.perSize < 1) return true;
  return estimate.groups < 1 || estimate.groups > MeanEstimate::mostGroups;
}

double AssuranceAt(const MeanEstimate& estimate, const Wish& wish, double size) {
  const double df = estimate.perSize * size - estimate.groups;
  const double relativeWidth = wish.halfWidth / (IntervalQuantileT(wish.alpha, df) * estimate.sd);
  return CdfChiSquare(df * (size / estimate.variance) * relativeWidth * relativeWidth, df);
}

/// The first whole size with at least one degree of freedom.
double WithFreedom(double perSize, double groups) { return std::max(1.0, std::ceil((groups + 1) / perSize)); }

}  // namespace

MeanEstimate MeanEstimate::OfMean(double sd) { return {sd, 1, 1, 1, WithFreedom(1, 1)}; }

MeanEstimate MeanEstimate::OfDifference(double sd, double ratio) {
  return {sd, 1 + 1 / ratio, 1 + ratio, 2, std::max(std::ceil(1 / ratio), WithFreedom(1 + ratio, 2))};
}

MeanEstimate MeanEstimate::OfContrast(const std::vector<double>& coefficients, const std::vector<double>& weights,
                                      double sd) {
  const std::size_t groups = std::min(coefficients.size(), weights.size());
  double sum = 0;
  for (std::size_t i = 0; i < groups; ++i) sum += weights[i];
  double variance = 0;
  double smallest = WithFreedom(1, static_cast<double>(groups));
  for (std::size_t i = 0; i < groups; ++i) {
    const double perObservation = sum / weights[i];
    if (coefficients[i] != 0) variance += coefficients[i] * coefficients[i] * perObservation;
    smallest = std::max(smallest, std::ceil(perObservation));
  }
  return {sd, variance, 1, static_cast<double>(groups), smallest};
}

Answer Assurance(const MeanEstimate& estimate, const Wish& wish, double size) {
  if (Rejects(estimate)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  if (estimate.perSize * size - estimate.groups <= 0) return NoValue::Refused;
  return AssuranceAt(estimate, wish, size);
}

Answer FirstSize(const MeanEstimate& estimate, const Wish& wish, double assurance) {
  if (Rejects(estimate)) return NoValue::Refused;
  if (Rejects(wish)) return NoValue::Refused;
  if (RejectsOpenUnit(assurance)) return NoValue::Refused;
  const double scannedDf = std::max({14.0, estimate.groups, -36 * std::log(assurance)});
  const SizeSearch search{estimate.smallest, (scannedDf + estimate.groups) / estimate.perSize};
  return FirstSize(
      search, [&](double size) { return AssuranceAt(estimate, wish, size); }, assurance);
}

}  // namespace kelpower::assurance
