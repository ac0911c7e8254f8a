#ifndef KELPOWER_EXPORTS_PROPORTIONS_DESIGNS_H
#define KELPOWER_EXPORTS_PROPORTIONS_DESIGNS_H

#include <cmath>
#include <cstdint>
#include <optional>

#include "frame/axes.h"
#include "proportions/independent_design.h"
#include "proportions/mcnemar.h"
#include "proportions/one_sample_tests.h"

// What the exports' numbers and flags stand for. All tests are chosen by flags that count as set for every value but 0.

namespace kelpower::exports {

inline proportions::OneSampleDesign OneSampleDesignOf(int method, int oneSided, double alpha,
                                                      std::uint8_t continuityCorrection) {
  return {method != 0, oneSided != 0, alpha, continuityCorrection != 0};
}

inline proportions::McNemarDesign McNemarDesignOf(int oneSided, int exact, double alpha) {
  return {exact != 0, oneSided != 0, alpha};
}

/// A method outside 0 to 2 is the fourth one, which is the arcsine test for large samples and the conditional test when
/// exact.
inline proportions::IndependentDesign IndependentDesignOf(int exact, int method, int oneSided, double alpha,
                                                          int continuityCorrection, int pooledVariance) {
  using proportions::TwoProportionTest;
  const TwoProportionTest fourth = exact != 0 ? TwoProportionTest::Conditional : TwoProportionTest::Arcsine;
  const bool isFourth = method < 0 || method > 2;
  return {isFourth ? fourth : TwoProportionTest(method),
          exact != 0,
          oneSided != 0,
          alpha,
          continuityCorrection != 0,
          pooledVariance != 0};
}

/// The axis of a chart over proportions inside (0, 1): step, 2 step, ..., 1 - step or so.
inline std::optional<Axis> ProportionGrid(double step) { return InnerAxis(-std::trunc(-1 / step) - 1, 0, step); }

}  // namespace kelpower::exports

#endif
