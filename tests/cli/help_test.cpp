#include "help.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "catalogue/catalogue.h"
#include "solve/axes.h"

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

TEST(Help, ShowsEveryAxisOfChartsOnce) {
  constexpr std::size_t widest = 110;
  for (const planner::Test& test : planner::Tests()) {
    std::istringstream help(HelpOf(test));
    std::set<std::string> shown;
    bool isInCharts = false;
    for (std::string line; std::getline(help, line);) {
      if (line == "Charts") isInCharts = true;
      if (!isInCharts || line.empty()) continue;
      if (line.rfind("Example", 0) == 0) break;
      EXPECT_LE(line.size(), widest) << line;
      std::istringstream words(line);
      std::string name;
      words >> name;
      for (const planner::Axis& axis : planner::AllAxes(test)) {
        if (axis.name == name && line.find(axis.title) != std::string::npos) {
          EXPECT_TRUE(shown.insert(name).second) << line;
        }
      }
    }
    EXPECT_EQ(shown.size(), planner::AllAxes(test).size()) << test.name;
  }
}

}  // namespace
