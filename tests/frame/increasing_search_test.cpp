#include "frame/increasing_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <utility>

#include "frame/rejection.h"
#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "support/answers.h"
#include "support/stop_requests.h"

namespace kelpower {
namespace {

using KelCommon::KelMV;
using keltest::CountingStop;
using keltest::OrMissing;

constexpr double quietNaN = std::numeric_limits<double>::quiet_NaN();

/// What a search finds, and how much work it was.
struct Search {
  double size;
  int evaluations;
  std::int64_t questions;
};

/// A search as `solve` does it with a counted power and a stop request.
template <typename Solve>
Search Counted(FunctionView<double(double)> powerAt, std::int64_t stopsAt, Solve solve) {
  int evaluations = 0;
  CountingStop stop(stopsAt);
  const auto counted = [&](double x) {
    ++evaluations;
    return powerAt(x);
  };
  const Answer size = solve(counted, stop);
  return {OrMissing(size), evaluations, stop.asked};
}

Search Fast(FunctionView<double(double)> powerAt, double target, std::int64_t stopsAt = CountingStop::never) {
  return Counted(powerAt, stopsAt,
                 [=](auto counted, Stop stop) { return SolveIncreasingPower(2, 400, 1e-9, counted, target, stop); });
}

Search Plain(FunctionView<double(double)> powerAt, double target, std::int64_t stopsAt = CountingStop::never) {
  return Counted(powerAt, stopsAt,
                 [=](auto counted, Stop stop) { return SolvePower(2, 400, 1e-9, counted, target, stop); });
}

auto TwoSidedTest(double effectSize, double alpha) {
  return [=](double n) { return TTest::TwoSided(alpha, n - 1).PowerBothTails(effectSize * std::sqrt(n)); };
}

TEST(SolveIncreasingPower, IsThePlainSearchInAtMostTwelveEvaluations) {
  for (const double effectSize : {0.15, 0.2, 0.35, 0.5, 0.8, 1.2}) {
    for (const double alpha : {0.01, 0.05, 0.1}) {
      for (const double target : {0.5, 0.8, 0.9, 0.95}) {
        const auto powerAt = TwoSidedTest(effectSize, alpha);
        const Search fast = Fast(powerAt, target);
        const Search plain = Plain(powerAt, target);
        SCOPED_TRACE(testing::Message() << effectSize << ", " << alpha << ", " << target);
        EXPECT_EQ(fast.size, plain.size);
        EXPECT_EQ(fast.questions, plain.questions);
        EXPECT_LE(fast.evaluations, 12);
        EXPECT_GE(plain.evaluations, 38);
      }
    }
  }
}

TEST(SolveIncreasingPower, DecidesAtOnceThatNoSizeReachesTheTarget) {
  const auto level = [](double) { return 0.05; };
  const Search fast = Fast(level, 0.8);
  const Search plain = Plain(level, 0.8);
  EXPECT_TRUE(KelMV::IsMissing(fast.size));
  EXPECT_EQ(fast.questions, plain.questions);
  EXPECT_LE(fast.evaluations, 14);
  EXPECT_GE(plain.evaluations, 1000);
}

TEST(SolveIncreasingPower, FindsSizesThatNoStudyHas) {
  for (const double effectSize : {1e-3, 1e-6, 1e-9, 1e-30, 1e-100}) {
    const auto powerAt = [=](double n) { return KelMath::KelDistFun::CdfStdNorm(effectSize * std::sqrt(n) - 1.96); };
    const Search fast = Fast(powerAt, 0.8);
    const Search plain = Plain(powerAt, 0.8);
    EXPECT_EQ(fast.size, plain.size);
    EXPECT_EQ(fast.questions, plain.questions);
    EXPECT_LE(3 * fast.evaluations, plain.evaluations) << effectSize;
  }
}

TEST(SolveIncreasingPower, ReturnsTheEndsThatThePlainSearchReturns) {
  const auto powerAt = TwoSidedTest(0.5, 0.05);
  EXPECT_EQ(Fast(powerAt, powerAt(2)).size, 2);
  EXPECT_EQ(Fast(powerAt, 0.01).size, 2);
  EXPECT_EQ(Fast(TwoSidedTest(0.1, 0.05), TwoSidedTest(0.1, 0.05)(400)).size, 400);
  EXPECT_EQ(Fast(TwoSidedTest(0.1, 0.05), TwoSidedTest(0.1, 0.05)(800)).size, 800);
}

TEST(SolveIncreasingPower, StopsAtEachQuestionAsThePlainSearchDoes) {
  const auto powerAt = TwoSidedTest(0.05, 0.05);  // widens four times
  const std::int64_t questions = Plain(powerAt, 0.8).questions;
  ASSERT_GT(questions, 40);
  for (std::int64_t stopsAt = 1; stopsAt <= questions; ++stopsAt) {
    const Search fast = Fast(powerAt, 0.8, stopsAt);
    EXPECT_TRUE(KelMV::IsMissing(fast.size));
    EXPECT_EQ(fast.questions, stopsAt);
  }
  EXPECT_EQ(Fast(powerAt, 0.8, 1).evaluations, 2);
}

TEST(SolveIncreasingPower, TakesStepsMissingAndInvalidPowersAsThePlainSearchDoes) {
  const auto step = [](double n) { return n < 20.25 ? 0.3 : 0.9; };
  const auto none = [](double n) { return n < 20.25 ? KelMV::Missing() : TwoSidedTest(0.5, 0.05)(n); };
  const auto invalid = [](double n) { return n < 420.25 ? -1.0 : 0.9; };
  constexpr int mostEvaluationsInVain = 34;  // 16 steps up, 16 towards a root, and one on either side of it
  const auto notANumber = [](double) { return quietNaN; };
  for (const FunctionView<double(double)> powerAt :
       {FunctionView<double(double)>(step), FunctionView<double(double)>(none), FunctionView<double(double)>(invalid),
        FunctionView<double(double)>(notANumber)}) {
    for (const double target : {0.1, 0.3, 0.5, 0.9, 1.0, 2.0, quietNaN}) {
      const Search fast = Fast(powerAt, target);
      const Search plain = Plain(powerAt, target);
      EXPECT_EQ(fast.size, plain.size);
      EXPECT_EQ(fast.questions, plain.questions);
      EXPECT_LE(fast.evaluations, plain.evaluations + mostEvaluationsInVain);
    }
  }
}

double PlainHalfWidth(const HalfWidthEquation& equation) {
  return OrMissing(SolveContinuous(2, 400, 1e-9, [&](double n) { return equation.Excess(n); }, {}));
}

double FastHalfWidth(const HalfWidthEquation& equation) { return OrMissing(SolveHalfWidth(2, 400, 1e-9, equation)); }

TEST(SolveHalfWidth, IsThePlainSearchInAThirdOfTheEvaluations) {
  for (const double halfWidth : {0.03, 0.1, 0.25, 0.5, 1.0}) {
    for (const double alpha : {0.001, 0.05, 0.1}) {
      int evaluations = 0;
      const auto dfAt = [&](double n) {
        ++evaluations;
        return n - 1;
      };
      const HalfWidthEquation equation{halfWidth * halfWidth, 1, alpha, dfAt};
      const double fast = FastHalfWidth(equation);
      const int fastEvaluations = std::exchange(evaluations, 0);
      EXPECT_EQ(fast, PlainHalfWidth(equation));
      EXPECT_LE(3 * fastEvaluations, evaluations) << halfWidth << ", " << alpha;
    }
  }
}

TEST(SolveHalfWidth, IsThePlainSearchWhereTheEquationMakesNoSense) {
  const auto dfAt = [](double n) { return n - 1; };
  for (const double slope : {-1.0, 0.0, 0.01, std::numeric_limits<double>::infinity(), quietNaN}) {
    for (const double weight : {-1.0, 0.0, 1.0, quietNaN}) {
      const HalfWidthEquation equation{slope, weight, 0.05, dfAt};
      EXPECT_EQ(FastHalfWidth(equation), PlainHalfWidth(equation)) << slope << ", " << weight;
    }
  }
}

}  // namespace
}  // namespace kelpower
