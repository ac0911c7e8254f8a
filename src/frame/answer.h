#ifndef KELPOWER_FRAME_ANSWER_H
#define KELPOWER_FRAME_ANSWER_H

#include <cassert>
#include <limits>
#include <optional>

namespace kelpower {

/// Why a computation has no value.
enum class NoValue {
  Refused,         ///< there is no such test or interval: a check rejected the design
  NoDistribution,  ///< a binomial distribution of an exact test does not exist
  Uncountable,     ///< an exact test would have to count beyond `largestCount`
  Stopped,         ///< the caller asked for an end
  NotReached       ///< no size reaches the target
};

/// A number, or why there is none.
class Answer {
public:
  Answer(double value) : value_(value) {}      // NOLINT(google-explicit-constructor): a number is one
  Answer(NoValue reason) : reason_(reason) {}  // NOLINT(google-explicit-constructor): so is a reason

  explicit operator bool() const { return !reason_; }

  /// Only where there is one.
  double operator*() const {
    assert(!reason_);
    return value_;
  }

  /// None where there is a number.
  std::optional<NoValue> Reason() const { return reason_; }

  double ValueOr(double otherwise) const { return reason_ ? otherwise : value_; }

private:
  double value_ = 0;
  std::optional<NoValue> reason_;
};

/// What a search for a power takes for the power of a design that has none: less than every target.
constexpr double belowEveryPower = -std::numeric_limits<double>::max();

}  // namespace kelpower

#endif
