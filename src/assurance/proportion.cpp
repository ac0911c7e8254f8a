#include "assurance/proportion.h"

#include <algorithm>
#include <cmath>

#include "kelcommon/kel_dist_fun.h"

// At a size n let the counts first(n), ..., last(n) be those up to n / 2 whose interval is short enough; above n / 2
// they are mirrored. They stay short enough as n grows, so first(n) never rises and last(n) never falls. At one count k
// P(X <= k) falls as n grows, for events and for non-events. So over the sizes from n1 to n2 the assurance is
//
//   at most   P(X <= last(n2); n1) - P(X < first(n2); n2),  the same for the non-events added,
//   at least  P(X <= last(n1); n2) - P(X < first(n1); n1),  the same for the non-events added,
//
// and where even the interval of n1 / 2 events is short enough, at least 1 - P(X < first(n1); n1) less that of the
// non-events.

namespace kelpower::assurance {

using KelMath::KelDistFun;

namespace {

constexpr double mostFirstCounts = 64;

/// The bounds below have rounding errors. They tell nothing of an assurance that is as near to 0 or 1, and a search for it
/// would try every size.
constexpr double slack = 1e-12;
constexpr double leastAssurance = 1e-9;

/// The counts up to half the size whose interval is short enough.
struct ShortCounts {
  bool isEmpty;
  double first;
  double last;
  bool isFull;  ///< from the first to half the size
};

struct Bounds {
  double least;
  double most;
};

class Proportion {
public:
  explicit Proportion(const ProportionWish& wish) : wish_(wish) {}

  double Assurance(double size) const {
    const ShortCounts counts = CountsAt(size);
    if (counts.isEmpty) return 0;
    const double before = Tails(counts.first - 1, size);
    if (counts.last == std::floor(size / 2)) return std::clamp(1 - before, 0.0, 1.0);
    return std::clamp(Tails(counts.last, size) - before, 0.0, 1.0);
  }

  /// Of the assurance at all sizes from `from` to `to`.
  Bounds Over(double from, double to) const {
    const ShortCounts outer = CountsAt(to);
    if (outer.isEmpty) return {0, 0};
    const double most = std::min(1.0, Tails(outer.last, from)) - Tails(outer.first - 1, to);
    const ShortCounts inner = CountsAt(from);
    if (inner.isEmpty) return {0, most};
    const double before = Tails(inner.first - 1, from);
    return {(inner.isFull ? 1 : Tails(inner.last, to)) - before, most};
  }

private:
  bool IsShort(double size, double events) const { return wish_.halfWidthAt(size, events) <= wish_.halfWidth; }

  ShortCounts CountsAt(double size) const {
    const double middle = std::floor(size / 2);
    double first = 0;
    while (!IsShort(size, first)) {
      ++first;
      if (first > middle || first >= mostFirstCounts) return {true, 0, 0, false};
    }
    if (IsShort(size, middle)) return {false, first, middle, IsShort(size, size / 2)};
    double last = first;
    double tooLong = middle;
    while (tooLong - last > 1) {
      const double count = std::floor(last + (tooLong - last) / 2);
      (IsShort(size, count) ? last : tooLong) = count;
    }
    return {false, first, last, false};
  }

  /// P(X <= count) of the events and of the non-events.
  double Tails(double count, double size) const {
    if (count < 0) return 0;
    long error = 0;
    return KelDistFun::CdfBin(count, size, wish_.proportion, error) +
           KelDistFun::CdfBin(count, size, 1 - wish_.proportion, error);
  }

  ProportionWish wish_;
};

/// Which size is looked for.
enum class Sought { FirstThatReaches, LastThatDoesNot };

class Search {
public:
  Search(const ProportionWish& wish, double assurance, Sought sought, Stop stop)
      : proportion_(wish), assurance_(assurance), sought_(sought), stop_(stop) {}

  /// The size looked for among those from `from` to `to`.
  Answer Within(double from, double to) const {
    if (AnswersStop(stop_)) return NoValue::Stopped;
    if (from == to) return IsSought(from) ? Answer(from) : NoValue::NotReached;
    const Bounds bounds = proportion_.Over(from, to);
    const bool isFirst = sought_ == Sought::FirstThatReaches;
    if (bounds.most < assurance_ - slack) return isFirst ? NoValue::NotReached : Answer(to);
    if (bounds.least >= assurance_ + slack) return isFirst ? Answer(from) : NoValue::NotReached;

    const double middle = std::floor(from + (to - from) / 2);
    const Answer nearer = isFirst ? Within(from, middle) : Within(middle + 1, to);
    if (nearer.Reason() != NoValue::NotReached) return nearer;
    return isFirst ? Within(middle + 1, to) : Within(from, middle);
  }

private:
  bool IsSought(double size) const {
    return (proportion_.Assurance(size) >= assurance_) == (sought_ == Sought::FirstThatReaches);
  }

  Proportion proportion_;
  double assurance_;
  Sought sought_;
  Stop stop_;
};

bool RejectsProportion(double proportion) { return proportion < 0 || proportion > 1; }
bool RejectsSize(double size) { return !(size >= 1 && size <= largestCount && size == std::floor(size)); }

bool RejectsSearch(const ProportionWish& wish, double assurance, double largest) {
  if (RejectsProportion(wish.proportion) || std::isnan(wish.proportion)) return true;
  if (!(assurance >= leastAssurance && assurance <= 1 - leastAssurance)) return true;
  return RejectsSize(largest);
}

}  // namespace

Answer Assurance(const ProportionWish& wish, double size) {
  if (RejectsProportion(wish.proportion)) return NoValue::Refused;
  if (RejectsSize(size)) return NoValue::Refused;
  if (std::isnan(wish.proportion)) return wish.proportion;
  return Proportion(wish).Assurance(size);
}

Answer FirstSize(const ProportionWish& wish, double assurance, double largest, Stop stop) {
  if (RejectsSearch(wish, assurance, largest)) return NoValue::Refused;
  return Search(wish, assurance, Sought::FirstThatReaches, stop).Within(1, largest);
}

Answer LastingSize(const ProportionWish& wish, double assurance, double largest, Stop stop) {
  if (RejectsSearch(wish, assurance, largest)) return NoValue::Refused;
  const Answer last = Search(wish, assurance, Sought::LastThatDoesNot, stop).Within(1, largest);
  if (!last) return last.Reason() == NoValue::NotReached ? Answer(1) : last;
  return *last < largest ? Answer(*last + 1) : NoValue::NotReached;
}

}  // namespace kelpower::assurance
