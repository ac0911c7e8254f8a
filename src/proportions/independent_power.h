#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_POWER_H

#include <variant>

#include "frame/answer.h"
#include "frame/function_view.h"
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

/// The two proportions, and what is wanted of their group sizes.
struct IndependentSizes {
  double p1;
  double p2;
  double ratio;  ///< the size of group 2 over that of group 1
};

/// The size of group 1 from which on the arcsine test is valid.
double FirstArcsineSize(const IndependentSizes& wanted);

/// Whether the power of a test for large samples is known never to fall as the groups grow from two subjects in group 1
/// on.
bool NeverFalls(const IndependentDesign& design, double ratio);

/// The size of group 1, unrounded, at which `powerAt` reaches `power`.
Answer FirstSizeForPower(double lower, double upper, FunctionView<double(double size1)> powerAt, bool neverFalls,
                         double power, Stop stop);

/// The size of group 1, unrounded, at which a test for large samples reaches `power`. Group 2 has at least one subject.
Answer FirstSizeForPower(const IndependentDesign& design, const IndependentSizes& wanted, double power, Stop stop = {});

}  // namespace kelpower::proportions

#endif
