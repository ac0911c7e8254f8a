#include "words/render.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support.h"

namespace planner {
namespace {

Report Example() { return Solved(*FindTest("anova"), {{"means", Numbers{10, 12, 15}}, {"sd", 6.0}, {"power", 0.9}}); }

const Value& ResultOf(const Report& report, const std::string& name) {
  for (const Entry& entry : report.results) {
    if (entry.name == name) return entry.value;
  }
  throw std::out_of_range(name);
}

TEST(Render, JsonKeepsEveryDigit) {
  const Report report = Example();
  const auto json = nlohmann::json::parse(RenderJson(report));
  EXPECT_EQ(json["results"]["power"].get<double>(), std::get<double>(ResultOf(report, "power")));
  EXPECT_EQ(json["results"]["n"].get<Numbers>(), std::get<Numbers>(ResultOf(report, "n")));
  EXPECT_EQ(json["inputs"]["target-power"], 0.9);
  EXPECT_EQ(json["question"], "sample-size");
  EXPECT_EQ(json["sentence"], report.sentence);
}

TEST(Render, CsvHasAsManyValuesAsNamesAndTellsTheTargetApart) {
  const std::string csv = RenderCsv(Example());
  const std::size_t end = csv.find('\n');
  EXPECT_EQ(csv.substr(0, end), "test,means,sd,target-power,alpha,effect-f,eta-squared,n,total,power");
  EXPECT_EQ(std::count(csv.begin(), csv.begin() + static_cast<std::ptrdiff_t>(end), ','), 9);
  EXPECT_EQ(csv.compare(end + 1, 26, "anova,10 12 15,6,0.9,0.05,"), 0);
}

TEST(Render, CsvQuotesWhatWouldBreakALine) {
  Report report = Example();
  report.inputs = {{"a,b", "", std::string("say \"x\""), ""}, {"plain", "", std::string("y"), ""}};
  report.results.clear();
  EXPECT_EQ(RenderCsv(report), "test,\"a,b\",plain\nanova,\"say \"\"x\"\"\",y\n");
}

TEST(Render, TextIsPlainUnlessPainted) {
  EXPECT_EQ(RenderText(Example()).find('\033'), std::string::npos);
  EXPECT_EQ(RenderText(Example(), {"<", "[", ">"}).front(), '<');
}

TEST(Render, MarkdownIsATable) {
  EXPECT_NE(RenderMarkdown(Example()).find("| standard deviation | 6 |"), std::string::npos);
}

TEST(Render, ListsTheDescriptionsForOtherFrontEnds) {
  const auto json = nlohmann::json::parse(RenderListJson());
  ASSERT_EQ(json.size(), Tests().size());
  for (std::size_t i = 0; i < Tests().size(); ++i) {
    EXPECT_EQ(json[i]["name"], Tests()[i].name);
    EXPECT_EQ(json[i]["parameters"].size(), Tests()[i].parameters.size());
    EXPECT_EQ(json[i]["routes"].size(), Tests()[i].routes.size());
  }
}

}  // namespace
}  // namespace planner
