#ifndef KELPOWER_PLANNER_CATALOGUE_CORE_H
#define KELPOWER_PLANNER_CATALOGUE_CORE_H

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "anova/sizes.h"
#include "frame/answer.h"
#include "frame/stop.h"
#include "model/inputs.h"
#include "model/stop_request.h"

// How descriptions call the core and hand on its answers.
namespace planner {

/// A value as routes and derived figures give it: NaN where there is none.
inline double OrNaN(kelpower::Answer answer) { return answer.ValueOr(std::numeric_limits<double>::quiet_NaN()); }

/// One size, rounded up; no sizes where there is none.
inline Numbers RoundedUp(kelpower::Answer size) { return size ? Numbers{std::ceil(*size)} : Numbers{}; }

/// The sizes of two groups from the unrounded first one, the second one with at least `smallest`.
inline Numbers RoundedUp(kelpower::Answer first, double ratio, double smallest) {
  if (!first) return {};
  return {std::ceil(*first), std::max(smallest, std::ceil(*first * ratio))};
}

/// A total size for a power, spread over the groups.
inline Numbers SpreadByShares(kelpower::Answer total, const Numbers& weights) {
  return total ? kelpower::anova::SpreadByShares(*total, weights) : Numbers{};
}

/// A total size for a half-width, spread over the groups.
inline Numbers SpreadByRatios(kelpower::Answer total, const Numbers& weights) {
  return total ? kelpower::anova::SpreadByRatios(*total, weights) : Numbers{};
}

/// The code of a choice that stands for a value of an enumeration.
template <typename Enumeration>
consteval int CodeOf(Enumeration value) {
  return static_cast<int>(value);
}

/// The front end's stop request.
inline kelpower::Stop StopOf(const Inputs& in) { return in.Stop() ? kelpower::Stop(*in.Stop()) : kelpower::Stop(); }

/// What a test keeps between designs that share it, as the points of a chart do. The designs share it while the numbers
/// that made it stay the same. A copy starts afresh, so that copies serve threads side by side.
template <typename Test, std::size_t keys>
class Kept {
public:
  using Key = std::array<double, keys>;

  Kept() = default;
  Kept(const Kept&) {}
  Kept& operator=(const Kept&) = delete;

  /// The test that `arguments` make, which follow from the key.
  template <typename... Arguments>
  Test& For(const Key& key, const Arguments&... arguments) {
    if (!test_ || key != key_) {
      test_.emplace(arguments...);
      key_ = key;
    }
    return *test_;
  }

private:
  Key key_ = {};
  std::optional<Test> test_;
};

}  // namespace planner

#endif
