#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "support/chart_records.h"

using namespace kelpower;

namespace {

using KelCommon::KelMV;

const std::vector<double> usualMeans = {10, 12, 15};
const std::vector<double> usualSizes = {20, 20, 20};

/// The group sizes scaled to a total.
std::vector<double> Scaled(double total) {
  std::vector<double> sizes = usualSizes;
  for (double& size : sizes) size *= total / 60;
  return sizes;
}

TEST(PlotNOverallTest, HoldsThePowerAtEverySize) {
  const CurveRecord plot(PlotNOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 3, 90, 0.05));
  ASSERT_EQ(plot.count, 88);
  for (int i = 0; i < plot.count; ++i) {
    EXPECT_EQ(plot.x[i], 3 + i);
    EXPECT_NEAR(plot.y[i], PowerOverallTest(3, usualMeans.data(), 6, Scaled(plot.x[i]).data(), 0.05), 1e-13);
  }
}

TEST(PlotNOverallTest, TakesAnAutomaticRangeWhenEitherEndIsZero) {
  const double power = PowerOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0.05);
  const CurveRecord plot(PlotNOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0, 50, 0.05));
  ASSERT_GT(plot.count, 1);
  EXPECT_EQ(plot.x[0], std::fmax(6, std::floor((1 - power) * 60)));
  EXPECT_EQ(plot.x[plot.count - 1], std::ceil((2 - power) * 60));
}

TEST(PlotNOverallTest, RejectsRangesThatStartOrEndAtOne) {
  for (const std::vector<int>& range :
       std::vector<std::vector<int>>{{1, 5}, {5, 4}, {-1, 5}, {0, 1}, {1, 1}, {-3, -2}}) {
    const CurveRecord plot(PlotNOverallTest(3, usualMeans.data(), 6, usualSizes.data(), range[0], range[1], 0.05));
    EXPECT_EQ(plot.count, 0);
    EXPECT_EQ(plot.x, nullptr);
    EXPECT_EQ(plot.y, nullptr);
  }
}

TEST(PlotNOverallTest, ChartsASizeWithoutErrorDegreesOfFreedom) {
  const std::vector<double> sizes = {10, 10};
  const CurveRecord plot(PlotNOverallTest(2, usualMeans.data(), 6, sizes.data(), 2, 2, 0.05));
  ASSERT_EQ(plot.count, 1);
  EXPECT_EQ(plot.x[0], 2);
  EXPECT_EQ(plot.y[0], 1);
}

TEST(PlotESOverallTest, OfAProportionOfVarianceStopsShortOfOne) {
  const CurveRecord eta(PlotESOverallTest(3, 1, usualSizes.data(), 0, 0, 0.05, 0.25));
  const CurveRecord f(PlotESOverallTest(3, 0, usualSizes.data(), 0, 0, 0.05, 0.25));
  ASSERT_EQ(eta.count, 4);
  ASSERT_EQ(f.count, 5);
  for (int i = 0; i < eta.count; ++i) {
    EXPECT_EQ(eta.x[i], 0.25 * i);
    EXPECT_EQ(eta.y[i], Single(PowerOverallTestwES(3, eta.x[i], 1, usualSizes.data(), 0.05)));
  }
  for (int i = 0; i < f.count; ++i) {
    EXPECT_EQ(f.x[i], 0.5 * i);
    EXPECT_EQ(f.y[i], Single(PowerOverallTestwES(3, f.x[i], 0, usualSizes.data(), 0.05)));
  }
}

TEST(PlotSDOverallTest, EndsAtItsEndExactly) {
  const CurveRecord plot(PlotSDOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 2, 9, 0.05, 0.3));
  ASSERT_EQ(plot.count, 5);
  EXPECT_EQ(plot.x[4], 9);
  for (int i = 0; i < plot.count; ++i) {
    EXPECT_EQ(plot.y[i], Single(PowerOverallTest(3, usualMeans.data(), plot.x[i], usualSizes.data(), 0.05)));
  }
}

TEST(PlotSDOverallTest, TakesTheAutomaticRangeWhenItStartsAtZero) {
  const CurveRecord plot(PlotSDOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0, 9, 0.05, 0.1));
  const double distance = std::sqrt(20 * (std::pow(7.0 / 3, 2) + std::pow(1.0 / 3, 2) + std::pow(8.0 / 3, 2)));
  ASSERT_EQ(plot.count, 11);
  EXPECT_NEAR(plot.x[0], distance / 5, 1e-13);
  EXPECT_NEAR(plot.x[10], distance * 5, 1e-12);
}

TEST(Surfaces, HoldTheScalarPowers) {
  const SurfaceRecord bySD(PlotNaSDOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 30, 40, 3, 9, 0.05, 0.25));
  ASSERT_EQ(bySD.xCount, 11);
  ASSERT_EQ(bySD.yCount, 5);
  const SurfaceRecord byEffect(PlotNaESOverallTest(3, 0.3, 0, usualSizes.data(), 30, 40, 0.1, 0.9, 0.05, 0.25));
  ASSERT_EQ(byEffect.yCount, 5);
  for (int i = 0; i < 11; ++i) {
    for (int j = 0; j < 5; ++j) {
      const std::vector<double> sizes = Scaled(bySD.x[i]);
      EXPECT_NEAR(bySD.z[i * 5 + j], PowerOverallTest(3, usualMeans.data(), bySD.y[j], sizes.data(), 0.05), 1e-13);
      EXPECT_NEAR(byEffect.z[i * 5 + j], PowerOverallTestwES(3, byEffect.y[j], 0, sizes.data(), 0.05), 1e-13);
    }
  }
}

TEST(Surfaces, OfTheOverallTestDoNotRejectALevelAboveOne) {
  const SurfaceRecord plot(PlotNaSDOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 30, 32, 3, 9, 1.5, 0.5));
  ASSERT_EQ(plot.xCount * plot.yCount, 9);
  for (int i = 0; i < 9; ++i) EXPECT_TRUE(KelMV::IsMissing(plot.z[i]));

  EXPECT_EQ(PlotNaSDOverallTest(3, usualMeans.data(), 6, usualSizes.data(), 0, 0, 3, 9, 1.5, 0.5).x, nullptr);
  std::vector<double> coefficients = {1, 0, -1};
  EXPECT_EQ(PlotNaSDSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 30, 32, 3, 9, 0, 1.5, 0.5).x,
            nullptr);
}

TEST(PlotNSCFES, TakesAZeroAsItStands) {
  const std::vector<double> coefficients = {1, 0, -1};
  const CurveRecord plot(PlotNSCFES(3, 0.5, usualSizes.data(), coefficients.data(), 0, 3, 0, 0.05));
  ASSERT_EQ(plot.count, 4);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(plot.x[i], i);
    EXPECT_TRUE(KelMV::IsMissing(plot.y[i]));  // fewer subjects than groups
  }
  EXPECT_EQ(plot.y[3], 1);  // no error degrees of freedom
}

TEST(ContrastCharts, HoldTheScalarPowers) {
  for (const int isDirectional : {0, 1}) {
    std::vector<double> coefficients = {0.5, 0.5, -1};
    const CurveRecord bySize(
        PlotNSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 9, 60, isDirectional, 0.05));
    ASSERT_EQ(bySize.count, 52);
    for (int i = 0; i < bySize.count; ++i) {
      EXPECT_NEAR(
          bySize.y[i],
          PowerSC(3, usualMeans.data(), 6, Scaled(bySize.x[i]).data(), coefficients.data(), isDirectional, 0.05),
          1e-13);
    }
    const CurveRecord bySD(
        PlotSDSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 2, 9, isDirectional, 0.05, 0.1));
    for (int i = 0; i < bySD.count; ++i) {
      const double power =
          PowerSC(3, usualMeans.data(), bySD.x[i], usualSizes.data(), coefficients.data(), isDirectional, 0.05);
      EXPECT_NEAR(bySD.y[i], power, 1e-7);
    }
    const SurfaceRecord surface(PlotNaSDSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 9, 20, 2, 9,
                                           isDirectional, 0.05, 0.5));
    for (int i = 0; i < surface.xCount; ++i) {
      for (int j = 0; j < surface.yCount; ++j) {
        EXPECT_NEAR(surface.z[i * surface.yCount + j],
                    PowerSC(3, usualMeans.data(), surface.y[j], Scaled(surface.x[i]).data(), coefficients.data(),
                            isDirectional, 0.05),
                    1e-13);
      }
    }
  }
}

TEST(ContrastCharts, RepairTheCallersCoefficientsAtTheFirstPointComputed) {
  std::vector<double> coefficients = {1, 1, 5};
  const CurveRecord plot(PlotSDSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 2, 4, 0, 0.05, 0.5));
  EXPECT_EQ(coefficients[2], -2);
  ASSERT_EQ(plot.count, 3);
  EXPECT_EQ(plot.y[0], 1);  // the repaired coefficient is out of range: an effect without bound
  EXPECT_LT(plot.y[2], 1);  // the next point finds coefficients that sum to zero

  coefficients = {1, 0, 0};
  const CurveRecord nothing(PlotNSC(3, usualMeans.data(), 6, usualSizes.data(), coefficients.data(), 2, 2, 0, 0.05));
  EXPECT_TRUE(KelMV::IsMissing(nothing.y[0]));
  EXPECT_EQ(coefficients[2], 0);  // no power was computed
}

// The smallest group bounds an automatic range below, the largest above: here about 2^31, where the ints end.
TEST(PlotNOverallTestFES, HasNoAutomaticRangeThatEndsBeyondTheInts) {
  const auto pointsUpTo = [](double end) {
    constexpr double from = 2147483600;
    std::vector<double> sizes(500000, 4000);
    const double total = static_cast<double>(sizes.size() - 2) * 4000 / (1 - 2 / from - 5000 / end);
    sizes.front() = total * 2 / from;
    sizes.back() = total * 5000 / end;
    return CurveRecord(PlotNOverallTestFES(500000, 0, 0, sizes.data(), 0, 0, 0.05)).count;
  };
  EXPECT_NEAR(pointsUpTo(2147483645), 45, 2);
  EXPECT_EQ(pointsUpTo(2147483650), 0);
}

TEST(ContrastCharts, WithoutGroupsReadNothing) {
  const SurfaceRecord plot(PlotNaSDSC(0, nullptr, 6, nullptr, nullptr, 5, 6, 2, 4, 0, 0.05, 0.5));
  ASSERT_EQ(plot.xCount * plot.yCount, 6);
  for (int i = 0; i < 6; ++i) EXPECT_TRUE(KelMV::IsMissing(plot.z[i]));
}

// The number of points is rounded up from D = sqrt(sum n_i (m_i - G)^2) as it is written.
TEST(PlotSD, CountsTheAutomaticRangeFromTheDistanceAsItIsWritten) {
  const auto countOf = [](const std::vector<double>& means, const std::vector<double>& sizes, double fraction) {
    const int numGroups = static_cast<int>(means.size());
    std::vector<double> contrast(means.size(), 0.0);
    contrast[0] = 1;
    contrast[1] = -1;
    const CurveRecord overall(PlotSDOverallTest(numGroups, means.data(), 3, sizes.data(), 0, 0, 0.05, fraction));
    const CurveRecord single(
        PlotSDSC(numGroups, means.data(), 3, sizes.data(), contrast.data(), 0, 0, 0, 0.05, fraction));
    EXPECT_EQ(overall.count, single.count);
    return overall.count;
  };
  EXPECT_EQ(countOf({16.3, 57.5}, {5, 25}, 0.01), 101);
  EXPECT_EQ(countOf({54.7, 79.9}, {20, 25}, 1.0 / 3), 4);
  EXPECT_EQ(countOf({5.1, 5.1, 5.1}, {3, 7, 11}, 0.1), 1);
  EXPECT_EQ(countOf({1e-170, 2e-170}, {10, 10}, 0.25), 5);  // the squares underflow
  EXPECT_EQ(countOf({1e170, 2e170}, {10, 10}, 0.25), 5);
}

}  // namespace
