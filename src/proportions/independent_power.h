#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H

#include <variant>

#include "kelpower.h"
#include "proportions/independent_conditional.h"
#include "proportions/independent_enumeration.h"
#include "proportions/independent_large_sample.h"
#include "proportions/independent_test.h"

namespace kelpower {

/// The power of a test of two independent proportions at fixed group sizes, for as many pairs of proportions as wanted.
/// What does not depend on the proportions is computed once.
class IndependentPower {
public:
  IndependentPower(const IndependentTest& test, double sampleSize1, double sampleSize2);

  /// -1 for invalid sizes, level or proportions, -2 when the binomial distribution reports an error, missing when
  /// `stop` answers true.
  double At(double p1, double p2, StopRequest* stop = nullptr);

private:
  struct Invalid {};
  std::variant<Invalid, LargeSampleTest, EnumeratedTest, ConditionalTest> computation_;
};

}  // namespace kelpower

#endif
