#include "help.h"

#include <gtest/gtest.h>

#include "catalogue/catalogue.h"

namespace {

TEST(Help, NamesEveryOptionAndShowsTheExamples) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string help = HelpOf(test);
    for (const planner::Parameter& parameter : test.parameters) {
      EXPECT_NE(help.find("  " + OptionOf(parameter.name.Text())), std::string::npos) << parameter.name.Text();
    }
    for (const auto& example : test.examples) EXPECT_NE(help.find(example.arguments), std::string::npos);
    EXPECT_EQ(help.find('{'), std::string::npos) << "inputs are named as options: " << help;
  }
}

TEST(Help, ShowsEveryChartOnce) {
  for (const planner::Test& test : planner::Tests()) {
    const std::string help = HelpOf(test);
    for (const planner::Chart& chart : test.charts) {
      EXPECT_NE(help.find("--chart " + chart.name + "  power over"), std::string::npos) << chart.name;
      EXPECT_EQ(help.find(chart.example + '\n') == std::string::npos, chart.isAnotherWay) << chart.example;
    }
  }
}

}  // namespace
