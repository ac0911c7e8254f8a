#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "solve/find_unknown.h"
#include "solve/prepared_question.h"
#include "support.h"

namespace planner {
namespace {

double NumberOf(const Answer& answer, const Parameter& parameter) {
  return parameter.IsList() ? answer.inputs.List(parameter.name).front() : answer.inputs.Number(parameter.name);
}

bool AllEqual(const Answer& answer, const Parameter& parameter) {
  if (!parameter.IsList()) return true;
  const Numbers& list = answer.inputs.List(parameter.name);
  return std::all_of(list.begin(), list.end(), [&](double entry) { return entry == list.front(); });
}

bool IsBelow(const Unknown& unknown, const Answer& design, double number) {
  if (!unknown.pieceBelow) return false;
  const Piece piece = unknown.pieceBelow(design.inputs);
  return number > std::min(piece.low, piece.high) && number < std::max(piece.low, piece.high);
}

/// Takes the unknown out of an answered design and solves for it: it is found again, or of a power that jumps a number
/// with the same power.
void CheckRoundTrip(const Test& test, const Unknown& unknown, const InputValues& values, const Answer& design) {
  const Parameter& parameter = *FindParameter(test, unknown.input);
  if (unknown.set || !design.inputs.Has(unknown.input) || !AllEqual(design, parameter)) return;
  if (!design.route->Takes(unknown.input) && unknown.input != Name("alpha")) return;
  const double number = NumberOf(design, parameter);
  // The whole piece reaches what its lower end has.
  if (unknown.trend == Trend::Rises && number == parameter.limits.low) return;
  InputValues asked = values;
  const std::string name(unknown.input.Text());
  asked.erase(name);
  asked.erase("interval");
  asked["solve"] = name;
  const bool isPower = unknown.target == Question::Power;
  asked[isPower ? "power" : "half-width"] = design.value;
  if (IsBelow(unknown, design, number)) asked["below"] = true;

  const Answer found = Solve(test, asked);
  SCOPED_TRACE(name);
  const double at = NumberOf(found, parameter);
  if (isPower) {
    EXPECT_GE(found.value, design.value);
  } else {
    EXPECT_LE(found.value, design.value);
  }
  const bool isUneven = test.unevenness && test.unevenness(design.inputs) != Unevenness::Even;
  const bool isExact = design.inputs.Has("exact") && design.inputs.Flag("exact");
  if (isUneven || isExact) {
    EXPECT_NEAR(found.value, design.value, 1e-9);
  } else {
    // An effect size of either direction is found as a positive one.
    EXPECT_NEAR(at, unknown.input == Name("effect-d") ? std::fabs(number) : number,
                1e-9 * std::max(std::fabs(number), 1e-3));
  }
}

TEST(Unknown, IsFoundAgainInEveryExample) {
  int count = 0;
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      SCOPED_TRACE(example.arguments);
      const InputValues values = ValuesTyped(test, example.arguments);
      const Answer design = Solve(test, values);
      if (design.SizesFound() || design.unknown) continue;
      for (const Unknown& unknown : test.unknowns) {
        if (unknown.target != design.Asked()) continue;
        try {
          CheckRoundTrip(test, unknown, values, design);
        } catch (const Failure& failure) {
          ADD_FAILURE() << unknown.input.Text() << ": " << Said(failure);
        }
        ++count;
      }
    }
  }
  EXPECT_GT(count, 100);
}

TEST(Unknown, IsTheFirstThatTheDesignLacks) {
  const auto unknownOf = [](const char* test, const InputValues& values) {
    return std::string(Solve(*FindTest(test), values).unknown->input.Text());
  };
  EXPECT_EQ(unknownOf("two-means", {{"n", Numbers{40}}, {"power", 0.8}}), "effect-d");
  EXPECT_EQ(unknownOf("two-means", {{"n", Numbers{40}}, {"sd", Numbers{10}}, {"power", 0.8}}), "mean-difference");
  EXPECT_EQ(unknownOf("two-means", {{"n", Numbers{40}}, {"means", Numbers{9, 5}}, {"power", 0.8}}), "sd");
  EXPECT_EQ(unknownOf("two-means", {{"n", Numbers{40}}, {"half-width", 3.0}}), "sd");
  EXPECT_EQ(unknownOf("proportion", {{"n", 60.0}, {"null", 0.5}, {"power", 0.8}}), "proportion");
  EXPECT_EQ(unknownOf("regression", {{"n", 60.0}, {"predictors", 5.0}, {"power", 0.8}}), "r-squared");
}

TEST(Unknown, RatioGivesWholeSizes) {
  const InputValues design{{"effect-d", 0.5}, {"n", Numbers{40}}};
  InputValues asked = design;
  asked["power"] = 0.8;
  asked["solve"] = std::string("ratio");
  const Answer answer = Solve(*FindTest("two-means"), asked);
  EXPECT_EQ(answer.sizes, (Numbers{40, 154}));
  EXPECT_GE(answer.value, 0.8);
  InputValues smaller = design;
  smaller["n"] = Numbers{40, 153};
  EXPECT_LT(Solve(*FindTest("two-means"), smaller).value, 0.8);
}

// 31 / 30 times 30 is a little more than 31 in doubles.
TEST(Unknown, RatioGivesWholeSizesWhereTheQuotientIsRounded) {
  const InputValues design{{"effect-d", 1.0}, {"n", Numbers{30, 31}}};
  InputValues asked{{"effect-d", 1.0}, {"n", Numbers{30}}, {"solve", std::string("ratio")}};
  asked["power"] = Solve(*FindTest("two-means"), design).value;
  EXPECT_EQ(Solve(*FindTest("two-means"), asked).sizes, (Numbers{30, 31}));
}

// With 5 observations an exact test at the level 0.05 rejects for no count, so that no effect is detected; the power at
// one level can be reached, and fallen short of again, between two proportions.
TEST(Unknown, OfAnExactTestReachesThePowerForGood) {
  const planner::Test& test = *FindTest("proportion");
  for (double n : {8.0, 13.0, 29.0, 60.0}) {
    const Answer answer = Solve(test, {{"null", 0.4}, {"n", n}, {"power", 0.7}, {"exact", true}});
    const double from = answer.inputs.Number("proportion");
    for (int i = 0; i <= 500; ++i) {
      const double proportion = from + (1 - from) * i / 500;
      const Answer at = Solve(test, {{"proportion", proportion}, {"null", 0.4}, {"n", n}, {"exact", true}});
      EXPECT_GE(at.value, 0.7) << n << ' ' << proportion;
    }
  }
  EXPECT_THROW(Solve(test, {{"null", 0.5}, {"n", 3.0}, {"power", 0.7}, {"exact", true}}), NoSolution);
}

TEST(Unknown, VariesInAPreparedQuestion) {
  const planner::Test& test = *FindTest("two-means");
  PreparedQuestion question(test, {{"n", Numbers{40, 40}}, {"power", 0.8}});
  question.SetColumns({{"n", 0}, {"power"}});
  for (const auto& [n, power] : {std::pair(20.0, 0.9), std::pair(64.0, 0.8), std::pair(500.0, 0.5)}) {
    const double row[] = {n, power};
    EXPECT_EQ(question.Evaluate(row).status, RowStatus::Answered);
    const Answer answer = Solve(test, {{"n", Numbers{n, 40}}, {"power", power}});
    EXPECT_EQ(question.FoundUnknown(), answer.inputs.Number("effect-d"));
  }
}

/// A value that is refused in part of the piece, and missing in another.
TEST(Unknown, IsFoundBesideGaps) {
  const Unknown unknown{.input = "effect-d", .target = Question::Power, .trend = Trend::Rises, .reason = ""};
  const Parameter parameter = Number("effect-d", "", "").Above(0).Below(1);
  const double none = std::numeric_limits<double>::quiet_NaN();
  const auto value = [&](double at) { return at < 0.3 ? at : none; };
  const UnknownSearch found = FindUnknown(unknown, parameter, Inputs(), 0.299, false, value);
  ASSERT_TRUE(found.reached);
  EXPECT_NEAR(found.reached->at, 0.299, 1e-12);
  const UnknownSearch missed = FindUnknown(unknown, parameter, Inputs(), 0.31, false, value);
  EXPECT_FALSE(missed.reached);
  EXPECT_NEAR(missed.nearest->value, 0.3, 1e-9);
}

}  // namespace
}  // namespace planner
