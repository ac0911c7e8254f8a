#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "kelpower.h"
#include "support/chart_records.h"

using namespace kelpower;

namespace {

TEST(PlotNOneSample, HoldsThePowerAtEverySize) {
  for (int directional : {0, 1, -7}) {
    const CurveRecord raw(PlotNOneSample(99, 12, 4, 2, 10, directional, 10, 0.05));
    const CurveRecord standardised(PlotNOneSampleFES(0.5, 2, 10, directional, 0.05));
    ASSERT_EQ(raw.count, 9);
    ASSERT_EQ(standardised.count, 9);
    for (int i = 0; i < 9; ++i) {
      const double n = 2 + i;
      EXPECT_EQ(raw.x[i], n);
      const double power = directional != 0 ? PowerOneSampleDirectional(n, 12, 4, 10, 0.05)
                                            : PowerOneSampleNondirectional(n, 12, 4, 10, 0.05);
      EXPECT_EQ(raw.y[i], Single(power));
      EXPECT_EQ(standardised.y[i], Single(power));
    }
  }
}

TEST(PlotNOneSample, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, 1, 10, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, 0, 10, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, -5, 10, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, 7, 7, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, 8, 7, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 0, 2, 10, 0, 10, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNOneSample(0, 12, 4, 2, 10, 0, 10, 1)));
  EXPECT_TRUE(IsEmpty(PlotNOneSampleFES(0.5, 2, 10, 0, 0)));
}

TEST(PlotESOneSample, StartsAtZeroForMinusFiveWhenTwoSided) {
  EXPECT_EQ(TakeX(PlotESOneSample(20, -5, 1, 0, 0.05, 0.25)), (std::vector<double>{0, 0.25, 0.5, 0.75, 1}));
  EXPECT_TRUE(IsEmpty(PlotESOneSample(20, -4, 1, 0, 0.05, 0.25)));
  EXPECT_EQ(TakeX(PlotESOneSample(20, -5, 1, 1, 0.05, 0.5)), (std::vector<double>{-5, -2, 1}));
  EXPECT_EQ(TakeX(PlotESOneSample(20, -4, 1, 1, 0.05, 0.5)), (std::vector<double>{-4, -1.5, 1}));
}

TEST(PlotESOneSample, EndsAtItsEndExactly) {
  EXPECT_EQ(TakeX(PlotESOneSample(20, 0, 1, 0, 0.05, 0.3)), (std::vector<double>{0, 0.3, 0.6, 3 * 0.3, 1}));
}

TEST(PlotESOneSample, OfAnEmptyRangeHasOnePoint) {
  EXPECT_EQ(TakeX(PlotESOneSample(20, 0.5, 0.5, 0, 0.05, 0.25)), std::vector<double>{0.5});
}

TEST(PlotESOneSample, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotESOneSample(1, 0, 1, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESOneSample(20, 2, 1, 0, 0.05, 0.25)));
  EXPECT_TRUE(IsEmpty(PlotESOneSample(20, 0, 1, 0, 1, 0.25)));
  for (double fraction : {0.0, -0.25, 1e-300, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(IsEmpty(PlotESOneSample(20, 0, 1, 0, 0.05, fraction)));
    EXPECT_TRUE(IsEmpty(PlotNaESOneSample(2, 6, 0, 1, 0, 0.05, fraction)));
  }
}

TEST(PlotESRelated, HoldsThePowerAtEveryEffectSize) {
  for (int directional : {0, 1}) {
    const CurveRecord plot(PlotESRelated(20, 0.1, 1, directional, 0.05, 0.07));
    ASSERT_EQ(plot.count, 16);
    for (int i = 0; i < plot.count; ++i) {
      const double power = directional != 0 ? PowerRelatedDirectionalES(20, plot.x[i], 0.05)
                                            : PowerRelatedNondirectionalES(20, plot.x[i], 0.05);
      EXPECT_EQ(plot.y[i], Single(power));
    }
  }
}

TEST(PlotNaESOneSample, TakesEverySecondSizeOfALongAxis) {
  struct Case {
    int to;
    int count;
    double last;
  };
  for (const Case& c : std::vector<Case>{{1001, 1000, 1001}, {1002, 501, 1002}, {1003, 502, 1004}}) {
    const SurfaceRecord plot(PlotNaESOneSample(2, c.to, 0, 1, 1, 0.05, 1));
    ASSERT_EQ(plot.yCount, c.count);
    EXPECT_EQ(plot.y[c.count - 1], c.last);
  }
}

TEST(PlotNaESOneSample, HoldsThePowerAtEveryPoint) {
  for (int directional : {0, 1}) {
    const SurfaceRecord oneSample(PlotNaESOneSample(2, 8, 0.2, 1.3, directional, 0.05, 0.3));
    const SurfaceRecord paired(PlotNaESRelated(2, 8, 0.2, 1.3, directional, 0.05, 0.3));
    ASSERT_EQ(oneSample.xCount, 5);
    ASSERT_EQ(oneSample.yCount, 7);
    ASSERT_EQ(paired.xCount * paired.yCount, 35);
    for (int i = 0; i < 5; ++i) {
      for (int j = 0; j < 7; ++j) {
        const double d = oneSample.x[i];
        const double n = oneSample.y[j];
        const double power =
            directional != 0 ? PowerOneSampleDirectionalES(n, d, 0.05) : PowerOneSampleNondirectionalES(n, d, 0.05);
        EXPECT_EQ(oneSample.z[i * 7 + j], Single(power));
        EXPECT_EQ(paired.z[i * 7 + j], Single(power));
      }
    }
    EXPECT_EQ(oneSample.x[4], 1.3);
  }
}

TEST(PlotNaESRelated, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotNaESRelated(2, 8, 0.5, 0.5, 0, 0.05, 0.3)));
  EXPECT_TRUE(IsEmpty(PlotNaESRelated(1, 8, 0, 1, 0, 0.05, 0.3)));
  EXPECT_TRUE(IsEmpty(PlotNaESRelated(8, 8, 0, 1, 0, 0.05, 0.3)));
  EXPECT_TRUE(IsEmpty(PlotNaESRelated(2, 8, -1, 1, 0, 0.05, 0.3)));
  EXPECT_TRUE(IsEmpty(PlotNaESRelated(2, 8, 0, 1, 0, 0, 0.3)));
}

TEST(PlotNRelated, HoldsThePowerAtEverySize) {
  for (int directional : {0, 1}) {
    const CurveRecord plot(PlotNRelated(99, 10, 4, 8, 3, 2, 10, 0.5, directional, 0.05));
    ASSERT_EQ(plot.count, 9);
    for (int i = 0; i < 9; ++i) {
      const double power = directional != 0 ? PowerRelatedDirectional(plot.x[i], 10, 4, 8, 3, 0.5, 0.05)
                                            : PowerRelatedNondirectional(plot.x[i], 10, 4, 8, 3, 0.5, 0.05);
      EXPECT_EQ(plot.y[i], Single(power));
    }
  }
}

TEST(PlotNRelated, HasMissingPointsForACorrelationThatOnlyTheTestRefuses) {
  struct Case {
    double correlation;
    int directional;
  };
  for (const Case& c : std::vector<Case>{{1.5, 0}, {1.5, 1}, {1, 1}}) {
    const CurveRecord plot(PlotNRelated(0, 10, 4, 8, 3, 2, 6, c.correlation, c.directional, 0.05));
    ASSERT_EQ(plot.count, 5);
    // The missing value is beyond single precision.
    for (int i = 0; i < 5; ++i) EXPECT_EQ(plot.y[i], -std::numeric_limits<double>::infinity());
  }
}

TEST(PlotNRelated, IsEmptyForInvalidInput) {
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, 3, 2, 10, 0, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, 3, 2, 10, -1.5, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 0, 8, 3, 2, 10, 0.5, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, -1, 2, 10, 0.5, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, 4, 2, 10, -1, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, 3, 1, 10, 0.5, 0, 0.05)));
  EXPECT_TRUE(IsEmpty(PlotNRelated(0, 10, 4, 8, 3, 2, 10, 1.5, 0, 1)));
}

}  // namespace
