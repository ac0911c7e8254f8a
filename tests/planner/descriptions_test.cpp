#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "choose_route.h"
#include "planner/catalogue.h"
#include "planner/test.h"
#include "sentence.h"

// What every description must keep to, whichever test it describes.
namespace planner {

/// How the test framework shows a description.
void PrintTo(const Test& test, std::ostream* stream) { *stream << test.name; }

namespace {

class Descriptions : public testing::TestWithParam<Test> {};

std::string NameOf(const testing::TestParamInfo<Test>& description) {
  std::string name = description.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(, Descriptions, testing::ValuesIn(Tests()), NameOf);

std::set<std::string> Exports() {
  std::ifstream file(KELPOWER_EXPORTS);
  std::set<std::string> names;
  for (std::string line; std::getline(file, line);) names.insert(line);
  return names;
}

bool IsLowercaseWord(const std::string& text) {
  return !text.empty() && text.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos &&
         text.front() != '-';
}

TEST_P(Descriptions, HaveNameTitleAndPurpose) {
  EXPECT_TRUE(IsLowercaseWord(GetParam().name));
  EXPECT_FALSE(GetParam().title.empty());
  EXPECT_EQ(GetParam().about.back(), '.');
  EXPECT_EQ(FindTest(GetParam().name)->title, GetParam().title) << "another test has the same name";
}

TEST_P(Descriptions, NameEveryParameterOnce) {
  std::set<std::string> names{"format", "help", "chart", "from", "to", "step", "output"};
  for (const Parameter& parameter : GetParam().parameters) {
    EXPECT_TRUE(IsLowercaseWord(parameter.name)) << parameter.name;
    EXPECT_TRUE(names.insert(parameter.name).second) << parameter.name;
    for (const std::string& alias : parameter.aliases) EXPECT_TRUE(names.insert(alias).second) << alias;
    EXPECT_FALSE(parameter.label.empty()) << parameter.name;
    EXPECT_FALSE(parameter.meaning.empty()) << parameter.name;
  }
}

TEST_P(Descriptions, HaveDefaultsThatAreAllowed) {
  for (const Parameter& parameter : GetParam().parameters) {
    if (!parameter.fallback) continue;
    EXPECT_NO_THROW(Check(parameter, *parameter.fallback)) << parameter.name;
  }
}

TEST_P(Descriptions, HaveRoutesOverKnownParametersAndExports) {
  const std::set<std::string> exports = Exports();
  for (const Route& route : GetParam().routes) {
    for (const std::string& name : route.needs) EXPECT_TRUE(FindParameter(GetParam(), name)) << name;
    for (const std::string& name : route.accepts) EXPECT_TRUE(FindParameter(GetParam(), name)) << name;
    EXPECT_EQ(exports.count(route.exportName), 1u) << route.exportName;
    EXPECT_TRUE(route.call);
  }
}

TEST_P(Descriptions, UseEveryParameter) {
  for (const Parameter& parameter : GetParam().parameters) {
    const bool asks = parameter.name == "power" || parameter.name == "half-width" || parameter.name == "interval";
    if (asks || parameter.name == "alpha") continue;
    const auto& routes = GetParam().routes;
    EXPECT_TRUE(std::any_of(routes.begin(), routes.end(), [&](const Route& route) {
      return Takes(route, parameter.name);
    })) << parameter.name;
  }
}

TEST_P(Descriptions, CanCheckTheSizesTheyFind) {
  EXPECT_TRUE(Answers(GetParam(), Question::Power));
  if (Answers(GetParam(), Question::SampleSizeForHalfWidth)) {
    EXPECT_TRUE(Answers(GetParam(), Question::HalfWidth));
  }
}

TEST_P(Descriptions, AskConditionsOfKnownParameters) {
  for (const auto* conditions : {&GetParam().conditions, &GetParam().solvable}) {
    for (const Condition& condition : *conditions) {
      for (const std::string& name : condition.about) EXPECT_TRUE(FindParameter(GetParam(), name)) << name;
      EXPECT_EQ(condition.sentence.back(), '.');
    }
  }
}

TEST_P(Descriptions, HaveASentenceForEveryQuestionTheyAnswer) {
  for (const Route& route : GetParam().routes) {
    const auto& sentences = GetParam().sentences;
    EXPECT_EQ(std::count_if(sentences.begin(), sentences.end(),
                            [&](const Sentence& sentence) { return sentence.question == route.question; }),
              1)
        << Wording(route.question);
  }
}

TEST_P(Descriptions, FillTheirSentencesWithKnownNames) {
  std::set<std::string> known{
      "sizes", "total", "groups", "power", "half-width", "target-power", "target-half-width", "confidence"};
  for (const Parameter& parameter : GetParam().parameters) known.insert(parameter.name);
  for (const Phrase& phrase : GetParam().phrases) known.insert(phrase.name);
  const auto expect = [&](const std::string& name) {
    EXPECT_EQ(known.count(name), 1u) << name;
    return std::string();
  };
  const auto expectFlag = [&](const std::string& name) {
    const Parameter* parameter = FindParameter(GetParam(), name);
    EXPECT_TRUE(parameter && parameter->kind == Kind::Flag) << name;
    return false;
  };
  for (const Sentence& sentence : GetParam().sentences) Expand(sentence.text, expect, expectFlag);
  for (const Phrase& phrase : GetParam().phrases) {
    for (const auto& [parameter, wording] : phrase.wordings) {
      EXPECT_TRUE(FindParameter(GetParam(), parameter)) << parameter;
      Expand(wording, expect, expectFlag);
    }
  }
}

TEST_P(Descriptions, HaveAnExampleOfEveryQuestion) {
  for (const Route& route : GetParam().routes) {
    const std::string asker = AskedBy(route.question);
    const auto asks = [&](const Example& example) {
      return asker.empty() || example.arguments.find(" --" + asker) != std::string::npos;
    };
    EXPECT_TRUE(std::any_of(GetParam().examples.begin(), GetParam().examples.end(), asks)) << Wording(route.question);
  }
}

}  // namespace
}  // namespace planner
