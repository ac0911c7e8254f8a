#include "frame/root_finders.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Keeps the points at which an objective was evaluated.
struct Trace {
  std::vector<double> points;
  template <typename F>
  auto Of(F f) {
    return [this, f](double x) {
      points.push_back(x);
      return f(x);
    };
  }
};

TEST(SolveContinuous, ReturnsTheLowerEndOfTheLastBracketNeverAboveTheRoot) {
  const double root = SolveContinuous(
      2, 402, 1e-9, [](double x) { return x - 10.5; }, nullptr);
  EXPECT_LE(root, 10.5);
  EXPECT_GT(root, 10.5 - 1e-9);
}

TEST(SolveContinuous, EvaluatesTheUpperEndFirstAndReturnsItWhenItIsARoot) {
  Trace trace;
  EXPECT_EQ(SolveContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 8; }), nullptr), 8);
  EXPECT_EQ(trace.points, std::vector<double>{8});
}

TEST(SolveContinuous, ReturnsTheLowerEndAtOnceWhereTheTargetIsReachedThere) {
  Trace trace;
  EXPECT_EQ(SolveContinuous(2, 8, 1e-9, trace.Of([](double) { return 1.0; }), nullptr), 2);
  EXPECT_EQ(trace.points, (std::vector<double>{8, 2}));
  EXPECT_EQ(SolveContinuous(
                2, 8, 1e-9, [](double x) { return 2 - x; }, nullptr),
            2);  // exactly zero at the lower end
}

TEST(SolveContinuous, WidensByDoublingFromTheLastUpperEnd) {
  Trace trace;
  const double root = SolveContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 20; }), nullptr);
  EXPECT_NEAR(root, 20, 1e-9);
  EXPECT_LE(root, 20);
  ASSERT_GE(trace.points.size(), 5U);
  EXPECT_EQ((std::vector<double>{trace.points.begin(), trace.points.begin() + 5}),
            (std::vector<double>{8, 2, 16, 32, 24}));  // the bracket is then [16, 32]
}

TEST(SolveContinuous, ReturnsAnUpperEndThatWideningHits) {
  EXPECT_EQ(SolveContinuous(
                2, 8, 1e-9, [](double x) { return x - 32; }, nullptr),
            32);
}

TEST(SolveContinuous, ReturnsTheLowerEndWhenTheMidpointIsARootAboveZero) {
  Trace trace;
  const double root =
      SolveContinuous(0, 4, 1e-9, trace.Of([](double x) { return x < 2    ? -1
                                                                 : x == 2 ? 5e-15
                                                                          : 1; }), nullptr);
  EXPECT_EQ(root, 0);
  EXPECT_EQ(trace.points, (std::vector<double>{4, 0, 2}));
}

TEST(SolveContinuous, IsMissingWhenTheObjectiveStaysNegative) {
  int evaluations = 0;
  const double root = SolveContinuous(
      2, 400, 1e-9,
      [&](double) {
        ++evaluations;
        return -1.0;
      },
      nullptr);
  EXPECT_TRUE(KelMV::IsMissing(root));
  EXPECT_GT(evaluations, 1000);
  EXPECT_LT(evaluations, 1030);
}

TEST(SolveContinuous, TakesAMissingObjectiveForANegativeOne) {
  EXPECT_TRUE(KelMV::IsMissing(SolveContinuous(
      2, 400, 1e-9, [](double) { return KelMV::Missing(); }, nullptr)));
}

TEST(SolveContinuous, ANaNObjectiveCountsAsABracketAndKeepsTheLowerEnd) {
  EXPECT_EQ(SolveContinuous(
                2, 400, 1e-9, [](double) { return kNaN; }, nullptr),
            2);
}

TEST(SolveContinuous, AsksBeforeEachWideningAndEachBisectionStep) {
  CountingStop never(0);
  Trace trace;
  SolveContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 20.1; }), &never);
  EXPECT_EQ(static_cast<std::size_t>(never.Asked()), trace.points.size() - 2);

  CountingStop atOnce(1);
  Trace stopped;
  EXPECT_TRUE(KelMV::IsMissing(SolveContinuous(2, 402, 1e-9, stopped.Of([](double x) { return x - 10.5; }), &atOnce)));
  EXPECT_EQ(stopped.points.size(), 2U);
}

TEST(SolveContinuous, NoArgumentsMakeItEndless) {
  const auto line = [](double x) { return x - 10.5; };
  for (const double tolerance : {0.0, -1.0, kNaN, 1e-300}) {
    const double root = SolveContinuous(2, 402, tolerance, line, nullptr);
    EXPECT_NEAR(root, 10.5, 1e-14);
    EXPECT_LE(root, 10.5);
  }
  for (const double end : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_TRUE(KelMV::IsMissing(SolveContinuous(end, 402, 1e-9, line, nullptr)));
    EXPECT_TRUE(KelMV::IsMissing(SolveContinuous(2, end, 1e-9, line, nullptr)));
    EXPECT_TRUE(KelMV::IsMissing(SolveInteger(end, 402, line, nullptr)));
    EXPECT_TRUE(KelMV::IsMissing(SolveInteger(2, end, line, nullptr)));
  }
  for (const double upper : {0.0, -5.0}) {
    EXPECT_TRUE(KelMV::IsMissing(SolveContinuous(
        -10, upper, 1e-9, [](double) { return -1.0; }, nullptr)));
  }
  // Around 1e300 neighbouring doubles lie far more than the tolerance apart.
  const double far = SolveContinuous(
      2, 400, 1e-9, [](double x) { return x - 1e300; }, nullptr);
  EXPECT_LE(far, 1e300);
  EXPECT_GE(far, std::nextafter(1e300, 0));
}

TEST(SolveInteger, WalksUpInOnesToTheFirstPointThatIsNotNegative) {
  Trace trace;
  EXPECT_EQ(SolveInteger(1, 100, trace.Of([](double x) { return x - 10.5; }), nullptr), 11);
  for (const double x : trace.points) EXPECT_EQ(x, std::floor(x));
}

TEST(SolveInteger, ReturnsAnExactRootOfTheBisection) {
  EXPECT_EQ(SolveInteger(
                1, 101, [](double x) { return x - 51; }, nullptr),
            51);
}

TEST(SolveInteger, EndsTheWalkAtAnExactRoot) {
  Trace trace;
  const auto root = [](double x) { return x < 12 ? -1.0 : x > 12 ? 1.0 : 0.0; };
  EXPECT_EQ(SolveInteger(1, 100, trace.Of(root), nullptr), 12);
  EXPECT_EQ(trace.points.back(), 12);  // the bisection ends at 11
}

TEST(SolveInteger, DoesNotWalkFromANaN) {
  EXPECT_EQ(SolveInteger(
                1, 100, [](double) { return kNaN; }, nullptr),
            1);
}

TEST(SolveInteger, AsksBeforeEachStepOfTheWalkToo) {
  CountingStop never(0);
  Trace trace;
  SolveInteger(1, 100, trace.Of([](double x) { return x - 10.5; }), &never);
  EXPECT_EQ(static_cast<std::size_t>(never.Asked()), trace.points.size() - 2);

  CountingStop last(never.Asked());
  EXPECT_TRUE(KelMV::IsMissing(SolveInteger(
      1, 100, [](double x) { return x - 10.5; }, &last)));
}

TEST(SolveInteger, EndsWhereOneMoreIsTheSameDouble) {
  const double root = SolveInteger(
      1, 400, [](double x) { return x - 1e18; }, nullptr);
  EXPECT_NEAR(root, 1e18, 256);
}

TEST(SolveIntegerSmallest, FindsTheFirstOfSeveralCrossings) {
  // Reaches zero at 20, 21, falls back, and stays above from 50 on.
  const auto sawtooth = [](double x) { return x >= 50 || x == 20 || x == 21 ? 1.0 : -1.0; };
  const double first = SolveInteger(1, 64, sawtooth, nullptr);
  const double smallest = SolveIntegerSmallest(first, sawtooth, nullptr);
  EXPECT_LE(smallest, first);
  EXPECT_GT(sawtooth(smallest), 0);
}

TEST(SolveIntegerSmallest, LeavesItsStartingValueWhereItCannotSearch) {
  const auto line = [](double x) { return x - 10.5; };
  for (const double start : {KelMV::Missing(), kInfinity}) {
    CountingStop never(0);
    EXPECT_EQ(SolveIntegerSmallest(start, line, &never), start);
    EXPECT_EQ(never.Asked(), 1);
  }
  EXPECT_TRUE(std::isnan(SolveIntegerSmallest(kNaN, line, nullptr)));
  CountingStop atOnce(1);
  EXPECT_EQ(SolveIntegerSmallest(30, line, &atOnce), 30);
  CountingStop second(2);  // the stop ends the first pass, whose missing result ends the search
  EXPECT_EQ(SolveIntegerSmallest(30, line, &second), 30);
}

}  // namespace
}  // namespace kelpower
