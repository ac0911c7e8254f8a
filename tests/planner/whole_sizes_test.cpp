#include "solve/whole_sizes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "catalogue/catalogue.h"
#include "solve/solve.h"
#include "support.h"

namespace planner {
namespace {

Answer Asked(const std::string& arguments) {
  const planner::Test& test = *FindTest(arguments.substr(0, arguments.find(' ')));
  return Solve(test, ValuesTyped(test, arguments));
}

// Sizes that the searches of the exports do not find, or pass.
TEST(WholeSizes, AreTheFirstThatReachTheTarget) {
  const auto sizes = [](const std::string& arguments) { return Asked(arguments).sizes; };
  EXPECT_EQ(sizes("two-proportions --proportions 0.35,0.41 --power 0.8 --method arcsine"), (Numbers{1059, 1059}));
  EXPECT_EQ(sizes("proportion --proportion 0.02 --half-width 0.01 --alpha 0.1 --correction"), Numbers{650});
  EXPECT_EQ(sizes("proportion --proportion 0.02 --half-width 0.01 --alpha 0.2 --correction"), Numbers{429});
  EXPECT_EQ(sizes("two-means --sd 2.564,1.0535 --half-width 5.04 --ratio 0.3333333333333333"), (Numbers{4, 2}));
  EXPECT_EQ(sizes("proportion --proportion 0.75 --null 0.8 --power 0.8 --exact"), Numbers{540});
  EXPECT_EQ(sizes("two-proportions --proportions 0.12,0.97 --power 0.95 --alpha 0.1 --method conditional --one-sided"),
            (Numbers{6, 6}));
}

/// The value that a design of these sizes has.
double ValueAt(const Answer& answer, const InputValues& asked, const Numbers& sizes) {
  const bool isPower = IsAboutPower(answer.Asked());
  InputValues at = asked;
  for (const char* name : {"power", "half-width", "ratio", "stable", "dropout"}) at.erase(name);
  if (sizes.size() > 1) at.erase("ratios");
  if (!isPower) at["interval"] = true;
  const bool isNumber = FindParameter(*answer.test, Name("n"))->kind == Kind::Number;
  at["n"] = isNumber ? Value(sizes.front()) : Value(sizes);
  return Solve(*answer.test, at).value;
}

bool Reaches(const Answer& answer, const InputValues& asked, const Numbers& sizes) {
  const bool isPower = IsAboutPower(answer.Asked());
  const double value = ValueAt(answer, asked, sizes);
  return isPower ? value >= std::get<double>(asked.at("power")) : value <= std::get<double>(asked.at("half-width"));
}

/// Whether a test can be made with one observation less in each group.
bool CanBeSmaller(const Answer& answer) { return *std::min_element(answer.sizes.begin(), answer.sizes.end()) > 4; }

TEST(WholeSizes, OfEveryExampleAreReachedAndNotBefore) {
  int count = 0;
  for (const planner::Test& test : Tests()) {
    for (const Example& example : test.examples) {
      SCOPED_TRACE(example.arguments);
      const InputValues asked = ValuesTyped(test, example.arguments);
      const Answer answer = Solve(test, asked);
      if (!answer.SizesFound() || !CanBeSmaller(answer)) continue;
      Numbers smaller = answer.sizes;
      for (double& size : smaller) --size;
      try {
        EXPECT_TRUE(Reaches(answer, asked, answer.sizes));
        EXPECT_FALSE(Reaches(answer, asked, smaller));
      } catch (const Failure& failure) {
        ADD_FAILURE() << Said(failure);
      }
      ++count;
    }
  }
  EXPECT_GT(count, 20);
}

/// Every size from the smallest to beyond the lasting one, one by one.
void CheckEverySize(const std::string& arguments, const InputValues& asked) {
  SCOPED_TRACE(arguments);
  const Answer answer = Asked(arguments);
  ASSERT_EQ(answer.lastingSizes.size(), answer.sizes.size());
  const double first = answer.sizes.front();
  const double lasting = answer.lastingSizes.front();
  ASSERT_LE(first, lasting);
  const auto reaches = [&](double size) { return Reaches(answer, asked, Numbers(answer.sizes.size(), size)); };
  for (double size = 5; size < first; ++size) EXPECT_FALSE(reaches(size)) << size;
  EXPECT_TRUE(reaches(first));
  if (lasting > first) {
    EXPECT_FALSE(reaches(lasting - 1));
  }
  for (double size = lasting; size < lasting + 100; ++size) EXPECT_TRUE(reaches(size)) << size;
}

TEST(WholeSizes, OfUnevenPowersAreTheFirstAndThoseThatLast) {
  for (const std::string arguments :
       {"proportion --proportion 0.75 --null 0.8 --power 0.8 --exact",
        "proportion --proportion 0.15 --null 0.1 --power 0.8 --exact",
        "proportion --proportion 0.6 --null 0.3 --power 0.9 --exact --one-sided",
        "two-proportions --proportions 0.12,0.97 --power 0.95 --alpha 0.1 --method conditional",
        "two-proportions --proportions 0.3,0.6 --power 0.8 --method conditional",
        "two-proportions --proportions 0.3,0.7 --power 0.8 --exact",
        "paired-proportions --p12 0.1 --p21 0.4 --power 0.8 --exact"}) {
    CheckEverySize(arguments, ValuesTyped(*FindTest(arguments.substr(0, arguments.find(' '))), arguments));
  }
}

TEST(WholeSizes, ThatAreStableAreThoseThatLast) {
  const std::string arguments = "proportion --proportion 0.15 --null 0.1 --power 0.8 --exact";
  const Answer first = Asked(arguments);
  const Answer stable = Asked(arguments + " --stable");
  EXPECT_EQ(stable.sizes, first.lastingSizes);
  EXPECT_EQ(stable.lastingSizes, first.lastingSizes);
  EXPECT_GE(stable.value, 0.8);
}

// Welch's power may fall short where the unrounded size is rounded up in one group alone.
TEST(WholeSizes, OfWelchReachTheTarget) {
  for (const char* ratio : {"0.3", "0.5", "0.75", "1.3", "2.6"}) {
    const std::string arguments = "two-means --means 5,3.5 --sd 1,3.1 --power 0.8 --ratio " + std::string(ratio);
    const Answer answer = Asked(arguments);
    EXPECT_GE(answer.value, 0.8) << ratio;
    EXPECT_EQ(answer.sizes[1], std::ceil(answer.sizes[0] * std::stod(ratio))) << ratio;
  }
}

}  // namespace
}  // namespace planner
