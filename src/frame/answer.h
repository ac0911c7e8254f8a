#ifndef KELPOWER_FRAME_ANSWER_H
#define KELPOWER_FRAME_ANSWER_H

#include <cassert>
#include <limits>

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
  Answer(double value) : value_(value), hasValue_(true) {}  // NOLINT(google-explicit-constructor): a number is one
  Answer(NoValue reason) : reason_(reason) {}               // NOLINT(google-explicit-constructor): so is a reason

  bool HasValue() const { return hasValue_; }
  explicit operator bool() const { return hasValue_; }

  /// Only where there is one.
  double operator*() const {
    assert(hasValue_);
    return value_;
  }
  NoValue Reason() const {
    assert(!hasValue_);
    return reason_;
  }

  double ValueOr(double otherwise) const { return hasValue_ ? value_ : otherwise; }

private:
  double value_ = 0;
  NoValue reason_ = NoValue::Refused;
  bool hasValue_ = false;
};

/// What a search for a power takes for the power of a design that has none: less than every target.
constexpr double belowEveryPower = -std::numeric_limits<double>::max();

}  // namespace kelpower

#endif
