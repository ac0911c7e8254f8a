#ifndef KELPOWER_PROPORTIONS_LASTING_SIZE_H
#define KELPOWER_PROPORTIONS_LASTING_SIZE_H

#include "frame/answer.h"
#include "proportions/mcnemar.h"
#include "proportions/one_sample_tests.h"

namespace kelpower::proportions {

// The smallest size from which on every size reaches a power. The power of an exact test is a sawtooth in its size, so
// this is often a few more than the smallest size that reaches it. `isExact` is taken for granted.

/// Not reached for a power of 1 or more and without an effect; uncountable where the size would be above
/// `largestCount`.
Answer LastingSize(const OneSampleDesign& design, const OneSampleProportions& proportions, double power);

/// The same; uncountable too where more than 100,000 discordant pairs would have to be tabulated.
Answer LastingSize(const McNemarDesign& design, const DiscordantPairs& pairs, double power);

}  // namespace kelpower::proportions

#endif
