#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_MASSES_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_MASSES_H

#include <cstdint>
#include <vector>

#include "frame/counts.h"

namespace kelpower::proportions {

/// True for a size whose tables cannot be counted.
inline bool IsUncountable(double size) { return size > largestCount; }

/// The size of a group as the exact tests use it. It may be fractional.
struct GroupSize {
  double size;
  std::int64_t whole;       ///< largest count in [0, size]; -1 when there is none
  std::int64_t loopCounts;  ///< how many x = 0, 1, ... lie below size + 1, which is what the definition loops over

  /// No counts for NaN and for a size that is uncountable.
  static GroupSize Of(double size);
};

/// The binomial masses of the counts first, first + 1, ...; all others are below the smallest normal double.
struct BinomialMasses {
  std::int64_t first = 0;
  std::vector<double> mass;
  bool failed = false;  ///< the distribution function reported an error

  static BinomialMasses Of(const GroupSize& group, double p);

  std::int64_t Last() const { return first + static_cast<std::int64_t>(mass.size()) - 1; }
  double At(std::int64_t x) const { return mass[static_cast<std::size_t>(x - first)]; }
};

/// Sums of masses from either end, so that a small tail keeps its digits.
class BinomialTails {
public:
  explicit BinomialTails(const BinomialMasses& masses);

  double Below(std::int64_t x) const { return below_[Index(x)]; }    ///< P(X < x)
  double AtLeast(std::int64_t x) const { return above_[Index(x)]; }  ///< P(X >= x)

private:
  std::size_t Index(std::int64_t x) const;

  std::int64_t first_;
  std::vector<double> below_;
  std::vector<double> above_;
};

}  // namespace kelpower::proportions

#endif
