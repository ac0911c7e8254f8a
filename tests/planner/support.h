#ifndef KELPOWER_TESTS_PLANNER_SUPPORT_H
#define KELPOWER_TESTS_PLANNER_SUPPORT_H

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>

#include "catalogue/catalogue.h"
#include "model/problem.h"
#include "solve/chart.h"
#include "solve/solve.h"
#include "support/counting_stop.h"
#include "words/parse.h"
#include "words/problem.h"
#include "words/report.h"

// What the tests of the planner share.
namespace planner {

using CountingStop = keltest::CountingStopOf<StopRequest>;

/// The worded answer.
inline Report Solved(const Test& test, const InputValues& values, StopRequest* stop = nullptr) {
  return MakeReport(Solve(test, values, stop));
}

/// The sentence of a failure, with inputs named as options.
inline std::string Said(const Failure& failure) {
  return Sentence(failure.problem, [](std::string_view name) { return "--" + std::string(name); });
}

/// The values that the arguments of an example give, after the name of its test.
inline InputValues ValuesTyped(const Test& test, const std::string& arguments) {
  InputValues values;
  std::istringstream words(arguments);
  std::string word;
  words >> word;
  while (words >> word) {
    const Parameter* parameter = FindParameter(test, std::string_view(word).substr(2));
    EXPECT_TRUE(parameter) << word;
    std::string text = "yes";
    if (parameter->kind != Kind::Flag) words >> text;
    values[std::string(parameter->name.Text())] = Parse(*parameter, text);
  }
  return values;
}

}  // namespace planner

#endif
