#include "proportions/independent_masses.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"
#include "proportions/running_mass.h"

namespace kelpower::proportions {

GroupSize GroupSize::Of(double size) {
  if (!(size >= 0) || IsUncountable(size)) return {size, -1, 0};
  return {size, static_cast<std::int64_t>(std::floor(size)), static_cast<std::int64_t>(std::ceil(size + 1))};
}

// From the mode outwards, until the masses are negligible.
BinomialMasses BinomialMasses::Of(const GroupSize& group, double p) {
  constexpr double smallest = std::numeric_limits<double>::min();
  BinomialMasses masses;
  const double n = group.size;
  const double last = static_cast<double>(group.whole);
  const double mode = std::clamp(std::floor((n + 1) * p), 0.0, last);
  long err = 0;
  KelMath::KelDistFun::PdfBin(mode, n, p, err);
  masses.failed = err != 0;
  if (masses.failed) return masses;

  const RunningMass atMode(n, p, mode);
  RunningMass down = atMode;
  for (double x = mode; x >= 1; --x) {
    down.LowerCount();
    if (!(down.Value() >= smallest)) break;
    masses.mass.push_back(down.Value());
  }
  masses.first = static_cast<std::int64_t>(mode) - static_cast<std::int64_t>(masses.mass.size());
  std::reverse(masses.mass.begin(), masses.mass.end());
  masses.mass.push_back(atMode.Value());
  RunningMass up = atMode;
  for (double x = mode; x < last; ++x) {
    up.RaiseCount();
    if (!(up.Value() >= smallest)) break;
    masses.mass.push_back(up.Value());
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
