#ifndef KELPOWER_PLANNER_SOLVE_WHOLE_SIZES_H
#define KELPOWER_PLANNER_SOLVE_WHOLE_SIZES_H

#include <optional>

#include "frame/function_view.h"
#include "model/inputs.h"
#include "model/test.h"

namespace planner {

/// Beyond this many a study cannot count its observations, nor a power tell one of them apart.
inline constexpr double largestNumber = 1e15;

/// The sizes that a study can have, in the order of their sum: one number tells them all. It is the size of the first of
/// two groups, and the total of several, each with its share. Of clusters that are assigned whole they are counted.
class WholeSizes {
public:
  WholeSizes(const Test& test, const Inputs& inputs);

  /// The sizes that belong to a number.
  Numbers At(double number) const;
  /// The number of sizes that were found.
  double NumberOf(const Numbers& sizes) const;
  double Smallest() const { return smallest_; }
  /// Larger ones are as good as their neighbours.
  bool AreCountable(const Numbers& sizes) const;

private:
  double Members(double number) const;

  bool hasRatio_;  // two groups, of which the second follows from the first
  double ratio_ = 1;
  double unit_ = 1;  // members of a cluster
  Numbers weights_;
  double least_;  // of each group
  double smallest_;
};

using Reaches = kelpower::FunctionView<bool(double number)>;

/// The smallest number from `smallest` on from which on the target is reached, if it is reached from some number on. The
/// search starts at `start`, near which the result lies, and takes few steps where it is that number.
std::optional<double> FirstWhole(double start, double smallest, Reaches reaches);

/// What the power of an exact test, which is a sawtooth in the size, makes of it: the first number that reaches the
/// target, and the first from which on all do, as far as it was looked.
struct UnevenSizes {
  double first;
  double lasting;
};

/// Looks at every number around `number`, where the target is reached; at fewer where that is slow.
UnevenSizes AroundUneven(double number, double smallest, bool isSlow, Reaches reaches);

}  // namespace planner

#endif
