#include "proportions/independent_masses.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::proportions {

GroupSize GroupSize::Of(double size) {
  if (!(size >= 0) || IsUncountable(size)) return {size, -1, 0};
  return {size, static_cast<std::int64_t>(std::floor(size)), static_cast<std::int64_t>(std::ceil(size + 1))};
}

// From the mode outwards by the ratio of neighbours, mass(x + 1) / mass(x) = (n - x) / (x + 1) p / (1 - p), which holds
// for fractional n too. The error of a step is a rounding, and what is far from the mode weighs little.
BinomialMasses BinomialMasses::Of(const GroupSize& group, double p) {
  constexpr double smallest = std::numeric_limits<double>::min();
  BinomialMasses masses;
  const double n = group.size;
  const double mode = std::clamp(std::floor((n + 1) * p), 0.0, static_cast<double>(group.whole));
  long err = 0;
  const double atMode = KelMath::KelDistFun::PdfBin(mode, n, p, err);
  masses.failed = err != 0;
  if (masses.failed) return masses;

  const double odds = p / (1 - p);
  double mass = atMode;
  for (double x = mode; x >= 1; --x) {
    mass *= x / ((n - x + 1) * odds);
    if (!(mass >= smallest)) break;
    masses.mass.push_back(mass);
  }
  masses.first = static_cast<std::int64_t>(mode) - static_cast<std::int64_t>(masses.mass.size());
  std::reverse(masses.mass.begin(), masses.mass.end());
  masses.mass.push_back(atMode);
  mass = atMode;
  for (double x = mode; x < static_cast<double>(group.whole); ++x) {
    mass *= (n - x) * odds / (x + 1);
    if (!(mass >= smallest)) break;
    masses.mass.push_back(mass);
  }
  return masses;
}

BinomialTails::BinomialTails(const BinomialMasses& masses)
    : first_(masses.first), below_(masses.mass.size() + 1), above_(masses.mass.size() + 1) {
  const std::size_t count = masses.mass.size();
  for (std::size_t i = 0; i < count; ++i) below_[i + 1] = below_[i] + masses.mass[i];
  for (std::size_t i = count; i > 0; --i) above_[i - 1] = above_[i] + masses.mass[i - 1];
}

std::size_t BinomialTails::Index(std::int64_t x) const {
  const std::int64_t last = static_cast<std::int64_t>(below_.size()) - 1;
  return static_cast<std::size_t>(std::clamp<std::int64_t>(x - first_, 0, last));
}

}  // namespace kelpower::proportions
