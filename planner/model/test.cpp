#include "model/test.h"

#include <algorithm>

namespace planner {
namespace {

/// Beyond one half an exact test rejects ever more counts but the most extreme, so that its power may fall.
Piece UsefulLevels(const Inputs&) { return {0, 0.5}; }

void AddUnknownLevels(Test& test) {
  if (Answers(test, Question::Power)) {
    const Unknown level = {.input = "alpha",
                           .target = Question::Power,
                           .trend = Trend::Rises,
                           .reason = "what a level rejects, each higher level rejects too",
                           .piece = test.unevenness ? UsefulLevels : nullptr};
    test.unknowns.push_back(level);
  }
  if (Answers(test, Question::HalfWidth)) {
    const Unknown level = {.input = "alpha",
                           .target = Question::HalfWidth,
                           .trend = Trend::Falls,
                           .reason = "an interval of less confidence lies within one of more"};
    test.unknowns.push_back(level);
  }
}

/// The unknowns by their inputs, each once.
std::vector<Choice> ChoicesOfUnknowns(const Test& test) {
  std::vector<Choice> choices;
  for (const Unknown& unknown : test.unknowns) {
    const std::string word(unknown.input.Text());
    const bool isKnown =
        std::any_of(choices.begin(), choices.end(), [&](const Choice& choice) { return choice.word == word; });
    if (!isKnown) choices.push_back({word, static_cast<int>(unknown.input.Index()), word});
  }
  if (test.offers.assurance) choices.push_back({"assurance", static_cast<int>(Name("assurance").Index()), "assurance"});
  return choices;
}

void AddParametersOfUnknowns(Test& test) {
  test.parameters.push_back(OneOf("solve", "unknown",
                                  "the number to solve for, where the sizes and the power or half-width are given",
                                  ChoicesOfUnknowns(test)));
  const bool anyBelow = std::any_of(test.unknowns.begin(), test.unknowns.end(),
                                    [](const Unknown& unknown) { return unknown.pieceBelow != nullptr; });
  if (anyBelow) {
    test.parameters.push_back(
        Flag("below", "effect below",
             "solve for an effect smaller than none, such as a negative difference or a ratio below 1"));
  }
}

/// Where the power jumps, the question for a size has two answers.
void AddStableSizes(Test& test) {
  test.parameters.push_back(Flag(
      "stable", "stable size", "of an exact test: the size from which on all reach the power, in place of the first"));
  const bool isOfferedForWidths = test.offers.lastingAssuredSizes != nullptr;
  for (Route& route : test.routes) {
    const bool isOfWidth = isOfferedForWidths && route.question == Question::SampleSizeForHalfWidth;
    if (route.question == Question::SampleSize || isOfWidth) route.accepts.push_back("stable");
  }
  test.conditions.push_back({.code = "stable-of-even",
                             .about = {"stable"},
                             .holds =
                                 [unevenness = test.unevenness](const Inputs& in) {
                                   return !in.Flag("stable") || in.Has("assurance") ||
                                          unevenness(in) != Unevenness::Even;
                                 },
                             .sentence = "{stable} goes with exact tests only: the power of others never falls with a "
                                         "further observation."});
}

}  // namespace

Test WithCommonParameters(Test test) {
  if (Answers(test, Question::SampleSize)) {
    test.parameters.push_back(Number("power", "target power", "power to reach; asks for the sample size")
                                  .Alias("target-power")
                                  .Above(0)
                                  .Below(1));
  }
  if (Answers(test, Question::HalfWidth)) {
    test.parameters.push_back(
        Flag("interval", "interval", "ask for the half-width of the confidence interval at the sizes given"));
  }
  if (Answers(test, Question::SampleSizeForHalfWidth)) {
    test.parameters.push_back(
        Number("half-width", "target half-width", "half-width of the interval to reach; asks for the sample size")
            .Alias("target-half-width")
            .Above(0));
  }
  test.parameters.push_back(
      Number("alpha", "significance level", "significance level; intervals have confidence 1 - alpha")
          .Above(0)
          .Below(1)
          .Default(0.05));
  AddOffers(test);
  AddUnknownLevels(test);
  AddParametersOfUnknowns(test);
  if (test.unevenness) AddStableSizes(test);
  return test;
}

const Parameter* FindParameter(const Test& test, Name name) {
  for (const Parameter& parameter : test.parameters) {
    if (parameter.name == name) return &parameter;
  }
  return nullptr;
}

const Parameter* FindParameter(const Test& test, std::string_view name) {
  for (const Parameter& parameter : test.parameters) {
    if (parameter.name.Text() == name) return &parameter;
    const auto& aliases = parameter.aliases;
    if (std::find(aliases.begin(), aliases.end(), name) != aliases.end()) return &parameter;
  }
  return nullptr;
}

bool Answers(const Test& test, Question question) {
  return std::any_of(test.routes.begin(), test.routes.end(),
                     [&](const Route& route) { return route.question == question; });
}

}  // namespace planner
