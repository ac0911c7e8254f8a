#include "frame/root_finders.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "kelcommon/kel_mv.h"
#include "support/answers.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;
using keltest::CountingStop;
using keltest::OrMissing;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

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

// The searches, with the missing value where nothing is found.

double FindContinuous(double lower, double upper, double tolerance, RootObjective objective, Stop stop = {}) {
  return OrMissing(SolveContinuous(lower, upper, tolerance, objective, stop));
}

double FindInteger(double lower, double upper, RootObjective objective, Stop stop = {}) {
  return OrMissing(SolveInteger(lower, upper, objective, stop));
}

double FindIntegerSmallest(double upper, RootObjective objective, Stop stop = {}) {
  const Answer start = KelMV::IsMissing(upper) ? Answer(NoValue::NotReached) : upper;
  return OrMissing(SolveIntegerSmallest(start, objective, stop));
}

TEST(SolveContinuous, ReturnsTheLowerEndOfTheLastBracketNeverAboveTheRoot) {
  const double root = FindContinuous(2, 402, 1e-9, [](double x) { return x - 10.5; });
  EXPECT_LE(root, 10.5);
  EXPECT_GT(root, 10.5 - 1e-9);
}

TEST(SolveContinuous, EvaluatesTheUpperEndFirstAndReturnsItWhenItIsARoot) {
  Trace trace;
  EXPECT_EQ(FindContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 8; })), 8);
  EXPECT_EQ(trace.points, std::vector<double>{8});
}

TEST(SolveContinuous, ReturnsTheLowerEndAtOnceWhereTheTargetIsReachedThere) {
  Trace trace;
  EXPECT_EQ(FindContinuous(2, 8, 1e-9, trace.Of([](double) { return 1.0; })), 2);
  EXPECT_EQ(trace.points, (std::vector<double>{8, 2}));
  EXPECT_EQ(FindContinuous(2, 8, 1e-9, [](double x) { return 2 - x; }),
            2);  // exactly zero at the lower end
}

TEST(SolveContinuous, WidensByDoublingFromTheLastUpperEnd) {
  Trace trace;
  const double root = FindContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 20; }));
  EXPECT_NEAR(root, 20, 1e-9);
  EXPECT_LE(root, 20);
  ASSERT_GE(trace.points.size(), 5U);
  EXPECT_EQ((std::vector<double>{trace.points.begin(), trace.points.begin() + 5}),
            (std::vector<double>{8, 2, 16, 32, 24}));  // the bracket is then [16, 32]
}

TEST(SolveContinuous, ReturnsAnUpperEndThatWideningHits) {
  EXPECT_EQ(FindContinuous(2, 8, 1e-9, [](double x) { return x - 32; }), 32);
}

TEST(SolveContinuous, ReturnsTheLowerEndWhenTheMidpointIsARootAboveZero) {
  Trace trace;
  const double root = FindContinuous(0, 4, 1e-9, trace.Of([](double x) { return x < 2 ? -1 : x == 2 ? 5e-15 : 1; }));
  EXPECT_EQ(root, 0);
  EXPECT_EQ(trace.points, (std::vector<double>{4, 0, 2}));
}

TEST(SolveContinuous, IsMissingWhenTheObjectiveStaysNegative) {
  int evaluations = 0;
  const double root = FindContinuous(2, 400, 1e-9, [&](double) {
    ++evaluations;
    return -1.0;
  });
  EXPECT_TRUE(KelMV::IsMissing(root));
  EXPECT_GT(evaluations, 1000);
  EXPECT_LT(evaluations, 1030);
}

TEST(SolveContinuous, TakesAMissingObjectiveForANegativeOne) {
  EXPECT_TRUE(KelMV::IsMissing(FindContinuous(2, 400, 1e-9, [](double) { return KelMV::Missing(); })));
}

TEST(SolveContinuous, ANaNObjectiveCountsAsABracketAndKeepsTheLowerEnd) {
  EXPECT_EQ(FindContinuous(2, 400, 1e-9, [](double) { return quietNaN; }), 2);
}

TEST(SolveContinuous, AsksBeforeEachWideningAndEachBisectionStep) {
  CountingStop never;
  Trace trace;
  FindContinuous(2, 8, 1e-9, trace.Of([](double x) { return x - 20.1; }), never);
  EXPECT_EQ(static_cast<std::size_t>(never.asked), trace.points.size() - 2);

  CountingStop atOnce(1);
  Trace stopped;
  EXPECT_TRUE(KelMV::IsMissing(FindContinuous(2, 402, 1e-9, stopped.Of([](double x) { return x - 10.5; }), atOnce)));
  EXPECT_EQ(stopped.points.size(), 2U);
}

TEST(SolveContinuous, NoArgumentsMakeItEndless) {
  const auto line = [](double x) { return x - 10.5; };
  for (const double tolerance : {0.0, -1.0, quietNaN, 1e-300}) {
    const double root = FindContinuous(2, 402, tolerance, line);
    EXPECT_NEAR(root, 10.5, 1e-14);
    EXPECT_LE(root, 10.5);
  }
  for (const double end : {quietNaN, infinite, -infinite}) {
    EXPECT_TRUE(KelMV::IsMissing(FindContinuous(end, 402, 1e-9, line)));
    EXPECT_TRUE(KelMV::IsMissing(FindContinuous(2, end, 1e-9, line)));
    EXPECT_TRUE(KelMV::IsMissing(FindInteger(end, 402, line)));
    EXPECT_TRUE(KelMV::IsMissing(FindInteger(2, end, line)));
  }
  for (const double upper : {0.0, -5.0}) {
    EXPECT_TRUE(KelMV::IsMissing(FindContinuous(-10, upper, 1e-9, [](double) { return -1.0; })));
  }
  // Around 1e300 neighbouring doubles lie far more than the tolerance apart.
  const double far = FindContinuous(2, 400, 1e-9, [](double x) { return x - 1e300; });
  EXPECT_LE(far, 1e300);
  EXPECT_GE(far, std::nextafter(1e300, 0));
}

TEST(SolveInteger, WalksUpInOnesToTheFirstPointThatIsNotNegative) {
  Trace trace;
  EXPECT_EQ(FindInteger(1, 100, trace.Of([](double x) { return x - 10.5; })), 11);
  for (const double x : trace.points) EXPECT_EQ(x, std::floor(x));
}

TEST(SolveInteger, ReturnsAnExactRootOfTheBisection) {
  EXPECT_EQ(FindInteger(1, 101, [](double x) { return x - 51; }), 51);
}

TEST(SolveInteger, EndsTheWalkAtAnExactRoot) {
  Trace trace;
  const auto root = [](double x) { return x < 12 ? -1.0 : x > 12 ? 1.0 : 0.0; };
  EXPECT_EQ(FindInteger(1, 100, trace.Of(root)), 12);
  EXPECT_EQ(trace.points.back(), 12);  // the bisection ends at 11
}

TEST(SolveInteger, DoesNotWalkFromANaN) {
  EXPECT_EQ(FindInteger(1, 100, [](double) { return quietNaN; }), 1);
}

TEST(SolveInteger, AsksBeforeEachStepOfTheWalkToo) {
  CountingStop never;
  Trace trace;
  FindInteger(1, 100, trace.Of([](double x) { return x - 10.5; }), never);
  EXPECT_EQ(static_cast<std::size_t>(never.asked), trace.points.size() - 2);

  CountingStop last(never.asked);
  EXPECT_TRUE(KelMV::IsMissing(FindInteger(
      1, 100, [](double x) { return x - 10.5; }, last)));
}

TEST(SolveInteger, EndsWhereOneMoreIsTheSameDouble) {
  const double root = FindInteger(1, 400, [](double x) { return x - 1e18; });
  EXPECT_NEAR(root, 1e18, 256);
}

TEST(SolveIntegerSmallest, FindsTheFirstOfSeveralCrossings) {
  // Reaches zero at 20, 21, falls back, and stays above from 50 on.
  const auto sawtooth = [](double x) { return x >= 50 || x == 20 || x == 21 ? 1.0 : -1.0; };
  const double first = FindInteger(1, 64, sawtooth);
  const double smallest = FindIntegerSmallest(first, sawtooth);
  EXPECT_LE(smallest, first);
  EXPECT_GT(sawtooth(smallest), 0);
}

TEST(SolveIntegerSmallest, LeavesItsStartingValueWhereItCannotSearch) {
  const auto line = [](double x) { return x - 10.5; };
  for (const double start : {KelMV::Missing(), infinite}) {
    CountingStop never;
    EXPECT_EQ(FindIntegerSmallest(start, line, never), start);
    EXPECT_EQ(never.asked, 1);
  }
  EXPECT_TRUE(std::isnan(FindIntegerSmallest(quietNaN, line)));
  CountingStop atOnce(1);
  EXPECT_EQ(FindIntegerSmallest(30, line, atOnce), 30);
  CountingStop second(2);  // the stop ends the first pass, whose missing result ends the search
  EXPECT_EQ(FindIntegerSmallest(30, line, second), 30);
}

}  // namespace
}  // namespace kelpower
