#ifndef KELPOWER_ANOVA_GROUPS_H
#define KELPOWER_ANOVA_GROUPS_H

#include <algorithm>
#include <cmath>
#include <vector>

namespace kelpower::anova {

/// One number for each group: means, sizes, allocation ratios or coefficients. They are borrowed.
class PerGroup {
public:
  PerGroup(const double* values, int count) : values_(values), count_(count) {}
  PerGroup(const std::vector<double>& values)  // NOLINT(google-explicit-constructor): it is the same, borrowed
      : PerGroup(values.data(), static_cast<int>(values.size())) {}

  int Count() const { return count_; }
  double operator[](int i) const { return values_[i]; }
  const double* begin() const { return values_; }
  const double* end() const { return count_ > 0 ? values_ + count_ : values_; }

private:
  const double* values_;
  int count_;
};

/// 0 without groups.
inline double Sum(PerGroup values) {
  double sum = 0;
  for (const double value : values) sum += value;
  return sum;
}

/// The largest |value|, 0 without groups.
inline double LargestMagnitude(PerGroup values) {
  double largest = 0;
  for (const double value : values) largest = std::max(largest, std::fabs(value));
  return largest;
}

}  // namespace kelpower::anova

#endif
