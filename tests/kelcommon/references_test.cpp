#include <gtest/gtest.h>

#include <cstdio>

#include "promise.h"
#include "reference_table.h"
#include "support/platform.h"

// The domain of planning is held to what is promised, and every region to what has been achieved.
namespace {

// Another mathematics library may round differently: two units in the last place of 1, and a tenth.
constexpr double allowedGrowth = 1.1;
constexpr double allowedIncrease = 4.5e-16;

const std::string folder = KELCOMMON_REFERENCES;

void ExpectPromise(const Promise& promise, const Error& largest) {
  EXPECT_LE(largest.absolute, promise.absolute);
  EXPECT_LE(largest.relative, promise.relative);
}

void ExpectNoGrowth(const Function& function, const Error& largest, const Error& achieved) {
  // The absolute error of a quantile has no scale of its own: it is measured and shown, and bounded by the relative
  // one.
  if (function.kind == Kind::probability) {
    EXPECT_LE(largest.absolute, achieved.absolute * allowedGrowth + allowedIncrease);
    EXPECT_LE(largest.relativeOfSmall, achieved.relativeOfSmall * allowedGrowth + allowedIncrease);
  }
  EXPECT_LE(largest.relative, achieved.relative * allowedGrowth + allowedIncrease);
}

std::string DescribeResult(const ReferenceRow& row) {
  const Outcome outcome = FindFunction(row.function).call(row.arguments);
  return row.function + "(" + Describe(row) + ") = " + Shortest(outcome.value) + ", reference " + Shortest(row.value) +
         ", " + row.place;
}

class References : public testing::TestWithParam<std::string> {};

TEST_P(References, ErrorsStayWithinBoundsAndDoNotGrow) {
  const Function& function = FindFunction(GetParam());
  const std::vector<ReferenceRow> rows = ReadReferences(folder);
  const auto achieved = ReadAchieved(FileToCompareWith(folder + "/achieved.csv"));
  int cases = 0;
  for (const auto& [key, worst] : MeasureErrors(rows)) {
    if (key.first != function.name) continue;
    cases += worst.cases;
    const std::string text = key.second + ": " + std::to_string(worst.cases) + " cases, absolute " +
                             Shortest(worst.largest.absolute) + ", relative " + Shortest(worst.largest.relative) +
                             ", of values up to 1e-12 " + Shortest(worst.largest.relativeOfSmall) +
                             "\n  worst absolute " + DescribeResult(*worst.byAbsolute) + "\n  worst relative " +
                             DescribeResult(*worst.byRelative);
    std::printf("%s\n", text.c_str());
    SCOPED_TRACE(text);
    if (IsPlanned(key.second)) ExpectPromise(PromiseOf(function), worst.largest);
    const auto stored = achieved.find(key);
    if (stored == achieved.end())
      ADD_FAILURE() << "no achieved error is stored; measure it with kelpower_accuracy --achieved";
    else
      ExpectNoGrowth(function, worst.largest, stored->second);
  }
  EXPECT_GE(cases, 100) << "too few references of " << function.name;
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const Function& function : Functions()) names.push_back(function.name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Kelcommon, References, testing::ValuesIn(Names()),
                         [](const auto& test) { return test.param; });

TEST(Achieved, StoresOnlyWhatIsMeasured) {
  const std::vector<ReferenceRow> rows = ReadReferences(folder);
  const auto measured = MeasureErrors(rows);
  for (const auto& [key, error] : ReadAchieved(FileToCompareWith(folder + "/achieved.csv")))
    EXPECT_EQ(measured.count(key), 1u) << key.first << ", " << key.second;
}

}  // namespace
