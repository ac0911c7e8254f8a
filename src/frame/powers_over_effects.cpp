#include "frame/powers_over_effects.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

namespace {

using KelMath::KelDistFun;

// Tails below this part of 1 change no digit of a power.
constexpr double negligible = 1e-18;

// More tails take longer than the distribution function itself, and collect more rounding.
constexpr double mostTails = 2000;

// Above this half of the noncentrality the first Poisson probability underflows.
constexpr double largestMean = 600;

}  // namespace

// Neighbouring tails differ by g_j = I_j - I_{j+1} = x^{a+j} y^b / ((a + j) B(a + j, b)), which is largest at the j
// where g_{j+1} / g_j = x (a + b + j) / (a + j + 1) is 1. There the difference of two tails keeps most of its digits;
// the ratio gives the others, and their sums from the far end the tails.
PowersOverEffects::PowersOverEffects(const FTest& test) : test_(test) {
  const double a = test.df1 / 2;
  const double b = test.df2 / 2;
  const double odds = test.df1 / test.df2 * test.critical;
  const double x = odds / (1 + odds);
  const double y = 1 / (1 + odds);
  if (!(x > 0 && y > 0)) return;
  const double mode = std::max(0.0, std::floor((x * (a + b) - a - 1) / y));
  if (!(mode < mostTails)) return;
  const auto ratio = [&](double j) { return x * (a + b + j) / (a + j + 1); };

  const double largest = KelDistFun::CdfBeta(x, a + mode, b) - KelDistFun::CdfBeta(x, a + mode + 1, b);
  if (!(largest > 0)) return;
  std::vector<double> steps(static_cast<std::size_t>(mode) + 1, largest);
  for (double j = mode - 1; j >= 0; --j) {
    const auto at = static_cast<std::size_t>(j);
    steps[at] = steps[at + 1] / ratio(j);
  }
  for (double j = mode; steps.back() > negligible * (1 - ratio(j)) || ratio(j) >= 1; ++j) {
    if (j >= mostTails) return;
    steps.push_back(steps.back() * ratio(j));
  }
  for (std::size_t j = steps.size() - 1; j > 0; --j) steps[j - 1] += steps[j];
  tails_ = std::move(steps);
}

double PowersOverEffects::Power(double noncentrality) const {
  const double mean = noncentrality / 2;
  if (tails_.empty() || !(mean >= 0 && mean <= largestMean)) return test_.Power(noncentrality);
  double mass = std::exp(-mean);
  double sum = mass * tails_.front();
  for (std::size_t j = 1; j < tails_.size(); ++j) {
    mass *= mean / static_cast<double>(j);
    sum += mass * tails_[j];
  }
  return std::clamp(1 - sum, 0.0, 1.0);
}

}  // namespace kelpower
