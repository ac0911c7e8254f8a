#ifndef KELPOWER_ASSURANCE_PROPORTION_H
#define KELPOWER_ASSURANCE_PROPORTION_H

#include "frame/answer.h"
#include "frame/counts.h"
#include "frame/function_view.h"
#include "frame/stop.h"

namespace kelpower::assurance {

/// Half the length of the interval of a proportion that `events` among `size` give; NaN where they give none, which is
/// not short enough. Both may be fractions. It is to be such that
///
/// - events and non-events may be swapped;
/// - at one size it rises with the events up to half the size, but for the first counts, where it may be NaN or fall,
///   the shortest of them among the first 64;
/// - at one count, and at half the size, it does not rise with the size from twice the count on.
///
/// All intervals of `proportions::OneSampleInterval` are: at levels 1e-50 and above for logit, whose length falls up to
/// about z^2 / 3.7 events.
using HalfWidthOfCount = FunctionView<double(double size, double events)>;

/// A proportion and what is wished of its interval.
struct ProportionWish {
  HalfWidthOfCount halfWidthAt;
  double proportion;  ///< true one, 0 to 1
  double halfWidth;   ///< at most
};

/// The probability, 0 to 1, that the interval of the binomial count at a whole size is at most as wide as wished: the
/// sum of the probabilities of all counts whose interval is. Some methods are short for the wrong reason: that of Wald
/// has no length at 0 events.
///
/// Refused for a size that is not a whole number from 1 to `largestCount`, and what is no proportion.
Answer Assurance(const ProportionWish& wish, double size);

// The assurance is a sawtooth in the size. Neither search takes it to rise: stretches of sizes are passed as one only
// where bounds show that none, or all, of them have the assurance.

/// The first size that has the assurance, in [1e-9, 1 - 1e-9]. Not reached where none up to `largest` has it.
Answer FirstSize(const ProportionWish& wish, double assurance, double largest = largestCount, Stop stop = {});

/// The smallest size from which on every size up to `largest` has the assurance. Not reached where `largest` itself has
/// not.
Answer LastingSize(const ProportionWish& wish, double assurance, double largest = largestCount, Stop stop = {});

}  // namespace kelpower::assurance

#endif
