#include "model/test.h"

#include <algorithm>

namespace planner {

Test WithCommonParameters(Test test) {
  if (Answers(test, Question::SampleSize)) {
    test.parameters.push_back(
        Number("power", "target power", "power to reach; asks for the sample size").Above(0).Below(1));
  }
  if (Answers(test, Question::HalfWidth)) {
    test.parameters.push_back(
        Flag("interval", "interval", "ask for the half-width of the confidence interval at the sizes given"));
  }
  if (Answers(test, Question::SampleSizeForHalfWidth)) {
    test.parameters.push_back(
        Number("half-width", "target half-width", "half-width of the interval to reach; asks for the sample size")
            .Above(0));
  }
  test.parameters.push_back(
      Number("alpha", "significance level", "significance level; intervals have confidence 1 - alpha")
          .Above(0)
          .Below(1)
          .Default(0.05));
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
