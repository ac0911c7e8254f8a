#include "proportions/critical_counts.h"

#include <algorithm>
#include <cmath>

#include "frame/function_view.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

/// Count at the normal quantile `z` of a binomial distribution, within about one of the exact quantile: Cornish, E. A.
/// and Fisher, R. A. (1938), Revue de l'Institut International de Statistique 5, 307-320, to the term in the skewness.
double QuantileGuess(double size, double p, double z) {
  const double sd = std::sqrt(size * p * (1 - p));
  return std::ceil(size * p + z * sd + (z * z - 1) * (1 - 2 * p) / 6 - 0.5);
}

/// The smallest whole number in [0, top] that `reaches`, which holds from some number on and at `top`. Gallops away
/// from the guess until it is enclosed, then bisects: two evaluations when the guess is right.
double SmallestReaching(double guess, double top, FunctionView<bool(double count)> reaches) {
  double below = -1;
  double above = top;
  double probe = guess > 0 ? std::min(guess, top) : 0;
  double stride = 1;
  while (above - below > 1) {
    double next;
    if (reaches(probe)) {
      above = probe;
      next = above - stride;
    } else {
      below = probe;
      next = below + stride;
    }
    stride *= 2;
    probe = next > below && next < above ? next : std::floor(below + (above - below) / 2);
  }
  return above;
}

}  // namespace

TailLevel::TailLevel(double tailLevel) : level(tailLevel), z(KelDistFun::IdfStdNorm(1 - tailLevel)) {}

double FirstCountAbove(double size, double p, double probability, double z) {
  long error = 0;
  return SmallestReaching(QuantileGuess(size, p, z), std::ceil(size),
                          [&](double count) { return KelDistFun::CdfBin(count, size, p, error) > probability; });
}

double FirstCountReaching(double size, double p, double probability, double z) {
  long error = 0;
  return SmallestReaching(QuantileGuess(size, p, z), std::trunc(size) + 1,
                          [&](double count) { return KelDistFun::CdfBin(count, size, p, error) >= probability; });
}

CriticalCount LowerCritical(double size, double nullProportion, const TailLevel& tail) {
  if (std::isnan(size)) return {0, 1};
  const double top = std::ceil(size);
  if (std::isnan(tail.level) || std::isnan(nullProportion)) return {top, top + 1};
  const double first = FirstCountAbove(size, nullProportion, tail.level, -tail.z);
  return {first - 1, first + 1};
}

CriticalCount UpperCritical(double size, double nullProportion, const TailLevel& tail) {
  if (std::isnan(size)) return {0, 1};
  const double wholeSize = std::trunc(size);
  if (std::isnan(tail.level) || std::isnan(nullProportion)) return {0, wholeSize + 1};
  const double count = FirstCountReaching(size, nullProportion, 1 - tail.level, tail.z);
  return {count, std::min(wholeSize + 1 - count, wholeSize) + 1};
}

}  // namespace kelpower::proportions
