#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "kelpower.h"
#include "support/chart_records.h"

namespace kelpower {
namespace {

struct Choice {
  int exact;
  int method;
  int oneSided;
};

const std::vector<Choice> choices = {{0, 0, 0}, {0, 1, 1}, {0, 2, 0}, {0, 3, 1}, {1, 0, 0},
                                     {1, 0, 1}, {1, 1, 0}, {1, 2, 1}, {1, 3, 0}, {1, 3, 1}};

double PowerOf(const Choice& choice, double n1, double n2, double p1, double p2) {
  return Single(PowerIndSampBinom(n1, n2, p1, p2, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, nullptr));
}

XYZPlot SizeSurface(const Choice& choice, int min1, int max1, int min2, int max2) {
  return PlotNIndSampBinom(20, 30, 0.3, 0.5, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, min1, max1, min2,
                           max2);
}

TEST(IndependentSizeSurface, HoldsTheScalarPowers) {
  for (const Choice& choice : choices) {
    const SurfaceRecord surface(SizeSurface(choice, 5, 12, 7, 10));
    ASSERT_EQ(surface.xCount, 8);
    ASSERT_EQ(surface.yCount, 4);
    for (int i = 0; i < surface.xCount; ++i) {
      EXPECT_EQ(surface.x[i], 5 + i);
      for (int j = 0; j < surface.yCount; ++j) {
        EXPECT_EQ(surface.At(i, j), PowerOf(choice, surface.x[i], surface.y[j], 0.3, 0.5));
      }
    }
  }
}

TEST(IndependentSizeSurface, ThinsLongRanges) {
  const Choice z{0, 0, 0};
  const SurfaceRecord everyFifth(SizeSurface(z, 2, 302, 2, 2));
  ASSERT_EQ(everyFifth.xCount, 61);
  EXPECT_EQ(everyFifth.x[1], 7);
  EXPECT_EQ(everyFifth.x[60], 302);
  const SurfaceRecord everyTenth(SizeSurface(z, 2, 1004, 2, 252));
  ASSERT_EQ(everyTenth.xCount, 102);
  EXPECT_EQ(everyTenth.x[100], 1002);
  EXPECT_EQ(everyTenth.x[101], 1004);
  EXPECT_EQ(everyTenth.yCount, 51);
  const SurfaceRecord whole(SizeSurface(z, 2, 251, 2, 2));
  EXPECT_EQ(whole.xCount, 250);
}

TEST(IndependentSizeSurface, HasAutomaticRangesForTheArcsineTestOnly) {
  const SurfaceRecord z(SizeSurface({0, 0, 0}, 0, 0, 0, 0));
  ASSERT_EQ(z.xCount, 1);
  ASSERT_EQ(z.yCount, 1);
  EXPECT_EQ(z.At(0, 0), -1);

  const SurfaceRecord arcsine(SizeSurface({0, 3, 0}, 0, 0, 2, 2500));
  ASSERT_EQ(arcsine.xCount, 21);
  EXPECT_EQ(arcsine.x[0], 1);  // half a failure of 0.7
  ASSERT_EQ(arcsine.yCount, 31);
  EXPECT_EQ(arcsine.y[0], 1);
}

TEST(IndependentSizeSurface, RejectsRangesThatStartAtOneOrDescend) {
  EXPECT_TRUE(IsEmpty(SurfaceRecord(SizeSurface({0, 0, 0}, 1, 5, 2, 5))));
  EXPECT_TRUE(IsEmpty(SurfaceRecord(SizeSurface({0, 0, 0}, 2, 5, 1, 5))));
  EXPECT_TRUE(IsEmpty(SurfaceRecord(SizeSurface({0, 0, 0}, -1, 5, 2, 5))));
  EXPECT_TRUE(IsEmpty(SurfaceRecord(SizeSurface({0, 0, 0}, 6, 5, 2, 5))));
  EXPECT_FALSE(IsEmpty(SurfaceRecord(SizeSurface({0, 3, 0}, 1, 5, -3, 5))));
}

TEST(IndependentProportionSurface, HoldsTheScalarPowers) {
  for (const Choice& choice : choices) {
    const SurfaceRecord surface(
        PlotPropIndSampBinom(15, 22.5, 0.3, 0.5, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, 0.1));
    ASSERT_EQ(surface.xCount, 9);
    ASSERT_EQ(surface.yCount, 9);
    for (int i = 0; i < 9; ++i) {
      EXPECT_EQ(surface.x[i], (i + 1) * 0.1);
      for (int j = 0; j < 9; ++j) {
        EXPECT_EQ(surface.At(i, j), PowerOf(choice, 15, 22.5, surface.x[i], surface.y[j]));
      }
    }
  }
}

TEST(IndependentProportionSurface, CountsWholeStepsBelowOne) {
  const auto count = [](double step) {
    return SurfaceRecord(PlotPropIndSampBinom(15, 22, 0.3, 0.5, 0, 0, 0, 0.05, 0, 1, step)).xCount;
  };
  EXPECT_EQ(count(0.5), 1);
  EXPECT_EQ(count(0.3), 2);
  EXPECT_EQ(count(0.6), 0);
  EXPECT_EQ(count(0), 0);
  EXPECT_EQ(count(-0.1), 0);
}

TEST(IndependentRatioCurve, SplitsTheTotal) {
  for (const Choice& choice : choices) {
    const CurveRecord given(
        PlotNRatioIndSampBinom(41, 0.3, 0.5, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, 0.5, 2, 0.3));
    ASSERT_EQ(given.count, 5);
    EXPECT_EQ(given.x[0], 0.5);
    EXPECT_EQ(given.x[4], 2);
    for (int i = 0; i < given.count; ++i) {
      EXPECT_EQ(given.y[i], PowerOf(choice, 41 / (given.x[i] + 1), given.x[i] * 41 / (given.x[i] + 1), 0.3, 0.5));
    }
  }
  const CurveRecord automatic(PlotNRatioIndSampBinom(41, 0.3, 0.5, 0, 0, 0, 0.05, 0, 1, 0, 2, 0.25));
  ASSERT_EQ(automatic.count, 3);
  EXPECT_EQ(automatic.x[0], 1 / 40.0 + 0.25 * (40 - 1 / 40.0));
}

TEST(IndependentRatioCurve, OfTwoSubjectsHasOneRatio) {
  const CurveRecord curve(PlotNRatioIndSampBinom(2, 0.3, 0.5, 0, 0, 0, 0.05, 0, 1, 0, 0, 0.25));
  ASSERT_EQ(curve.count, 3);
  for (int i = 0; i < curve.count; ++i) EXPECT_EQ(curve.x[i], 1);
  EXPECT_TRUE(IsEmpty(CurveRecord(PlotNRatioIndSampBinom(1.9, 0.3, 0.5, 0, 0, 0, 0.05, 0, 1, 0, 0, 0.25))));
}

TEST(IndependentEffectCurves, HoldTheScalarPowers) {
  for (const Choice& choice : choices) {
    const CurveRecord difference(
        PlotRiskDiffIndSampBinom(18, 25, 0.4, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, 0.1));
    ASSERT_EQ(difference.count, 9);
    for (int i = 0; i < difference.count; ++i) {
      EXPECT_EQ(difference.x[i], (i + 1) * 0.1 + (0.4 - 1));
      EXPECT_EQ(difference.y[i], PowerOf(choice, 18, 25, 0.4, 0.4 - difference.x[i]));
    }
    const CurveRecord risk(
        PlotRiskRatioIndSampBinom(18, 25, 0.4, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, 0.5, 3, 0.25));
    ASSERT_EQ(risk.count, 5);
    for (int i = 0; i < risk.count; ++i) EXPECT_EQ(risk.y[i], PowerOf(choice, 18, 25, 0.4, 0.4 / risk.x[i]));
    const CurveRecord odds(
        PlotOddsRatioIndSampBinom(18, 25, 0.4, choice.exact, choice.method, choice.oneSided, 0.05, 0, 1, 0, 3, 0.25));
    ASSERT_EQ(odds.count, 5);
    EXPECT_EQ(odds.x[0], 0.3333333333333333);
    for (int i = 0; i < odds.count; ++i) {
      EXPECT_EQ(odds.y[i], PowerOf(choice, 18, 25, 0.4, 0.4 / ((1 - 0.4) * odds.x[i] + 0.4)));
    }
  }
}

TEST(IndependentEffectCurves, RejectRangesOutsideTheirLimits) {
  const auto risk = [](double from, double to) {
    return IsEmpty(CurveRecord(PlotRiskRatioIndSampBinom(18, 25, 0.4, 0, 0, 0, 0.05, 0, 1, from, to, 0.1)));
  };
  EXPECT_TRUE(risk(0.4, 3));
  EXPECT_FALSE(risk(0.41, 3));
  EXPECT_TRUE(risk(0.5, 10.5));
  EXPECT_TRUE(risk(3, 2));
  const auto odds = [](double from, double to) {
    return IsEmpty(CurveRecord(PlotOddsRatioIndSampBinom(18, 25, 0.4, 0, 0, 0, 0.05, 0, 1, from, to, 0.1)));
  };
  EXPECT_TRUE(odds(0.05, 3));
  EXPECT_FALSE(odds(0.1, 3));
  EXPECT_TRUE(odds(0.5, 10.5));
}

// With a lower end of 0 the step of the risk ratio comes from the range as given, that of the odds ratio from the range
// as used.
TEST(IndependentEffectCurves, TakeTheirStepsFromDifferentRanges) {
  const CurveRecord risk(PlotRiskRatioIndSampBinom(18, 25, 0.4, 0, 0, 0, 0.05, 0, 1, 0, 3, 0.1));
  EXPECT_EQ(risk.x[0], 0.4 + 0.1 * 3);
  EXPECT_EQ(risk.x[1], 0.4 + 0.1 * 3 + 0.1 * 3);
  const CurveRecord odds(PlotOddsRatioIndSampBinom(18, 25, 0.4, 0, 0, 0, 0.05, 0, 1, 0, 3, 0.1));
  EXPECT_EQ(odds.x[1], 0.1 * (3 - 0.3333333333333333) + 0.3333333333333333);
}

}  // namespace
}  // namespace kelpower
