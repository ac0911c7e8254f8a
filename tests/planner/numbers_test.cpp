#include "words/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace planner {
namespace {

TEST(ParseNumber, TakesDecimalNumbers) {
  const std::pair<const char*, double> cases[] = {
      {"3", 3},      {"+3", 3},
      {"-3", -3},    {".5", 0.5},
      {"5.", 5},     {"1e-3", 0.001},
      {"1E3", 1000}, {"-0.25", -0.25},
      {"0e-999", 0}, {"5e-324", std::numeric_limits<double>::denorm_min()},
      {"0.1", 0.1},  {"1.7976931348623157e308", std::numeric_limits<double>::max()}};
  for (const auto& [text, expected] : cases) {
    double number = 0;
    EXPECT_TRUE(ParseNumber(text, number)) << text;
    EXPECT_EQ(number, expected) << text;
  }
}

TEST(ParseNumber, RefusesEverythingElse) {
  for (const char* text :
       {"",     " ",        "+",     "-",    "+-3", "++3",   "3x",    "3 ",  " 3", "nan",    "inf",
        "-inf", "infinity", "1e999", "0x10", "1,5", "1'000", "three", "--n", "1e", "1e-400", "\xff"}) {
    double number = 7;
    EXPECT_FALSE(ParseNumber(text, number)) << text;
    EXPECT_EQ(number, 7) << text;
  }
}

TEST(Shortest, ReadsBackTheSame) {
  for (double number : {0.0, 0.1, 1.0 / 3, 1e-300, 1e300, 123456789.0, -2.5, 1e15, 9007199254740993.0}) {
    double back = 0;
    ASSERT_TRUE(ParseNumber(Shortest(number), back));
    EXPECT_EQ(back, number);
  }
}

TEST(Shortest, WritesWholeNumbersPlainly) {
  EXPECT_EQ(Shortest(60), "60");
  EXPECT_EQ(Shortest(1000000), "1000000");
  EXPECT_EQ(Shortest(0.05), "0.05");
}

TEST(Listed, JoinsForTablesAndSentences) {
  EXPECT_EQ(Listed({10, 12, 15}), "10, 12, 15");
  EXPECT_EQ(ListedInSentence({10, 12, 15}), "10, 12 and 15");
  EXPECT_EQ(ListedInSentence({1, 3}), "1 and 3");
  EXPECT_EQ(ListedInSentence({7}), "7");
  EXPECT_EQ(Listed({}), "");
}

TEST(Shown, SaysEveryKind) {
  EXPECT_EQ(Shown(true), "yes");
  EXPECT_EQ(Shown(false), "no");
  EXPECT_EQ(Shown(0.5), "0.5");
  EXPECT_EQ(Shown(Numbers{1, 2}), "1, 2");
  EXPECT_EQ(Shown(std::string("sidak")), "sidak");
}

}  // namespace
}  // namespace planner
