#include "solve/chart_design.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "solve/checks.h"
#include "solve/choose_route.h"

namespace planner {
namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

Quantity QuantityOf(const ChartRequest& request, Question asked) {
  if (request.showsSizes) return Quantity::Size;
  return IsAboutPower(asked) ? Quantity::Power : Quantity::HalfWidth;
}

/// The question about the value at the sizes found, from the same inputs.
InputValues AtSizes(const Test& test, Question question, const InputValues& values, const Numbers& sizes) {
  InputValues atSizes;
  for (const auto& [name, value] : values) {
    const Name input = FindParameter(test, name)->name;
    const auto takes = [&](const Route& route) { return route.question == question && route.Takes(input); };
    if (input == Name("alpha") || std::any_of(test.routes.begin(), test.routes.end(), takes)) atSizes[name] = value;
  }
  atSizes["n"] = test.groups == 1 ? Value(sizes.front()) : Value(sizes);
  if (question == Question::HalfWidth) atSizes["interval"] = true;
  return atSizes;
}

/// The figure over which a one-sided test has two sides.
double Side(const Test& test, const Inputs& inputs) {
  const bool isOneSided = inputs.Has("one-sided") && inputs.Flag("one-sided");
  return isOneSided && test.effect ? test.effect(inputs) : 0;
}

/// The question about the value with the number found, from the same inputs.
InputValues WithFound(const PreparedQuestion& asked, InputValues values) {
  const Question question = asked.ChosenRoute().question;
  for (const char* name : {"power", "half-width", "solve", "below"}) values.erase(name);
  values[std::string(asked.SolvedFor()->input.Text())] = asked.FoundUnknown();
  if (question == Question::HalfWidth) values["interval"] = true;
  return values;
}

PreparedQuestion QuestionOf(const Test& test, const ChartRequest& request, const InputValues& values,
                            StopRequest* stop) {
  PreparedQuestion asked(test, values, stop);
  if (asked.SolvedFor() && !request.showsSizes) {
    asked.Solve();
    return {test, WithFound(asked, values), stop};
  }
  const Question question = asked.ChosenRoute().question;
  if (request.showsSizes && !AsksForSizes(question)) {
    throw InputError({.code = Code::ChartSizesNeedTarget, .inputs = {"y", "power"}});
  }
  if (request.showsSizes || !AsksForSizes(question)) {
    CheckConditions(test, asked.Design());
    return asked;
  }
  asked.Solve();
  return {test, AtSizes(test, ValueQuestion(question), values, asked.Sizes()), stop};
}

ChartDesign DesignOf(const Test& test, const ChartRequest& request, const InputValues& values, StopRequest* stop) {
  PreparedQuestion question = QuestionOf(test, request, values, stop);
  const Quantity quantity = QuantityOf(request, question.ChosenRoute().question);
  ChartDesign design{std::nullopt, std::move(question), quantity, notANumber};
  design.value = design.ValueOf(Inputs(design.Design()));
  return design;
}

}  // namespace

double ChartDesign::ValueOf(const Inputs& inputs) {
  const Test& test = question.AskedTest();
  if (Side(test, inputs) * Side(test, question.Design()) < 0) return notANumber;
  const Row row = question.Evaluate(inputs);
  if (row.status == RowStatus::Stopped) throw Stopped();
  if (row.status != RowStatus::Answered) return notANumber;
  return quantity == Quantity::Size ? question.Sizes().front() : row.value;
}

std::vector<ChartDesign> DesignsOf(const Test& test, const ChartRequest& request, const InputValues& values,
                                   StopRequest* stop) {
  std::vector<ChartDesign> designs;
  if (!request.alternatives) {
    CheckValues(test, values);
    designs.push_back(DesignOf(test, request, values, stop));
    return designs;
  }
  for (const Value& value : request.alternatives->values) {
    InputValues alternative = values;
    alternative[std::string(request.alternatives->parameter->name.Text())] = value;
    designs.push_back(DesignOf(test, request, alternative, stop));
    designs.back().alternative = value;
  }
  return designs;
}

}  // namespace planner
