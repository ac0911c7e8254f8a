#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H

#include <variant>

#include "frame/answer.h"
#include "frame/stop.h"
#include "proportions/independent_conditional.h"
#include "proportions/independent_design.h"
#include "proportions/independent_enumeration.h"
#include "proportions/independent_large_sample.h"

namespace kelpower::proportions {

/// The power of a test of two independent proportions at fixed group sizes, for as many pairs of proportions as wanted.
/// What does not depend on the proportions is computed once.
class IndependentPower {
public:
  IndependentPower(const IndependentDesign& design, double size1, double size2);

  /// Refused for sizes below 1, a level or proportions outside (0, 1), and sizes that the test does not exist for.
  Answer At(double p1, double p2, Stop stop = {});

  /// The significance level that an exact test of an alternative attains where both proportions are `p`. Refused for
  /// the tests for large samples.
  Answer AttainedLevel(Alternative alternative, double p, Stop stop = {});

private:
  struct Invalid {};
  std::variant<Invalid, LargeSampleTest, EnumeratedTest, ConditionalTest> computation_;
};

}  // namespace kelpower::proportions

#endif
