#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "effects/correlation.h"
#include "effects/explained_variance.h"
#include "effects/mean_difference.h"
#include "effects/two_proportions.h"

namespace kelpower::effects {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kOdd[] = {0, -1,   5e-324, 1e-9,  0.05,      0.3,        1,
                           2, 30.5, 1e6,    1e300, kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()};

int given = 0;  ///< estimates that were given

void ExpectOrdered(const std::optional<Estimate>& estimate) {
  if (!estimate) return;
  ++given;
  const bool hasNaN = std::isnan(estimate->interval.lower + estimate->interval.upper + estimate->value);
  EXPECT_TRUE(hasNaN || estimate->interval.lower <= estimate->interval.upper)
      << estimate->value << ' ' << estimate->interval.lower << ' ' << estimate->interval.upper;
}

TEST(Totality, OfEffects) {
  for (const double a : kOdd) {
    for (const double b : kOdd) {
      for (const double c : kOdd) {
        ExpectOrdered(CohensD({a, b, 10}, {1, c, 12}, 0.05));
        ExpectOrdered(CohensD({a, 1, b}, {1, 2, c}, 0.05));
        ExpectOrdered(CohensDOfT(a, b, 20, c));
        ExpectOrdered(CohensDOfOneSampleT(a, b, c));
        ExpectOrdered(HedgesG({a, {b, b + 1}}, c));
        ExpectOrdered(CohensF({a, b, c, 50}, 0.05));
        ExpectOrdered(OmegaSquared({a, 2, 40, b}, c));
        ExpectOrdered(FisherInterval(a, b, c));
        ExpectOrdered(CohensQ({a, b}, {0.2, 40}, c));
        ExpectOrdered(OddsRatio({a, b}, {12, 30}, c));
        ExpectOrdered(RiskRatio({a, b}, {12, 30}, c));
        ExpectOrdered(RiskDifference({a, b}, {12, 30}, c));
      }
    }
  }
  EXPECT_GT(given, 1000);
}

}  // namespace
}  // namespace kelpower::effects
