#include "planner/solve.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "checks.h"
#include "choose_route.h"
#include "kelpower.h"
#include "planner/error.h"
#include "report.h"

namespace planner {
namespace {

// The searches end within 1e-6 of the size that reaches the target exactly, so rounding up may miss it by a hair.
constexpr double targetSlack = 1e-6;

// Exact tests are not smooth in the size, so that rounding may miss the target by more; beyond this the search failed.
constexpr double largestMiss = 0.05;

// The library gives every group at least two, and just that when its search finds nothing.
constexpr double smallestGroup = 2;

bool AsksForSizes(Question question) {
  return question == Question::SampleSize || question == Question::SampleSizeForHalfWidth;
}

bool IsPower(double value) { return value >= 0 && value <= 1; }

bool IsHalfWidth(double value) { return value >= 0 && std::isfinite(value); }

bool AreSizes(const Numbers& sizes) {
  return std::all_of(sizes.begin(), sizes.end(), [](double size) { return size > 0 && std::isfinite(size); });
}

/// A power below alpha is reached without any effect; at alpha itself rounding would decide.
bool NeedsEffect(Question question, const Inputs& inputs) {
  return question == Question::SampleSize && inputs.Number("power") >= inputs.Alpha();
}

void ThrowIfStopped(const Inputs& inputs) {
  StopRequest* stop = inputs.Stop();
  if (stop && stop->ShouldStop()) throw Stopped("The computation was stopped; there is no answer.");
}

/// What the export answers. A stopped one gives missing values, or sizes that are not final.
Numbers Call(const Route& route, const Inputs& inputs) {
  Numbers answer = route.call(inputs);
  ThrowIfStopped(inputs);
  return answer;
}

double ValueOf(const Route& route, const Inputs& inputs) {
  const double value = Call(route, inputs).front();
  const bool good = route.question == Question::Power ? IsPower(value) : IsHalfWidth(value);
  if (!good) throw NoSolution("These inputs have no answer: " + Wording(route.question) + " cannot be computed.");
  return value;
}

/// The power or half-width at the sizes found, by the route that answers that question from the same inputs.
double ValueAtSizes(const Test& test, Question question, const Inputs& inputs, const Names& given,
                    const Numbers& sizes) {
  Inputs atSizes = inputs;
  atSizes.Erase("ratios");
  atSizes.Set("n", test.groups == 1 ? Value(sizes.front()) : Value(sizes));
  Names names{"n"};
  for (const std::string& name : given) {
    const auto takes = [&](const Route& route) { return route.question == question && Takes(route, name); };
    if (std::any_of(test.routes.begin(), test.routes.end(), takes)) names.push_back(name);
  }
  return ValueOf(ChooseRoute(test, question, names), atSizes);
}

/// How far the value stays behind the target, of a half-width relative to it; not positive when it is reached.
double Miss(Question question, double value, const Inputs& inputs) {
  if (question == Question::SampleSize) return inputs.Number("power") - value;
  return value / inputs.Number("half-width") - 1;
}

std::string Target(Question question, const Inputs& inputs) {
  const std::string name = AskedBy(question);
  return fmt::format("a {} of {}", name, Shown(inputs.At(name)));
}

Report SolveSizes(const Test& test, const Route& route, const Inputs& inputs, const Names& given) {
  const Numbers sizes = Call(route, inputs);
  const std::string unreachable =
      fmt::format("No sample size was found that reaches {}.", Target(route.question, inputs));
  if (!AreSizes(sizes)) throw NoSolution(unreachable);
  const Question valueQuestion = route.question == Question::SampleSize ? Question::Power : Question::HalfWidth;
  const double value = ValueAtSizes(test, valueQuestion, inputs, given, sizes);
  const double miss = Miss(route.question, value, inputs);
  const bool smallest = std::all_of(sizes.begin(), sizes.end(), [](double size) { return size <= smallestGroup; });
  if (miss > largestMiss || (miss > targetSlack && smallest)) throw NoSolution(unreachable);
  Report report = MakeReport(test, route, inputs, {sizes, true, value});
  if (miss > targetSlack) report.note = "At the sizes rounded to whole numbers the target is missed slightly.";
  return report;
}

Report SolveValue(const Test& test, const Route& route, const Inputs& inputs) {
  const Numbers sizes = test.groups == 1 ? Numbers{inputs.Number("n")} : inputs.List("n");
  const double value = ValueOf(route, inputs);
  return MakeReport(test, route, inputs, {sizes, false, value});
}

}  // namespace

Report Solve(const Test& test, const Given& given, StopRequest* stop) {
  CheckValues(test, given);
  const Names names = GivenNames(given);
  const Route& route = ChooseRoute(test, AskedQuestion(names), names);
  const Inputs inputs(test, given, stop);
  CheckConditions(test, inputs);
  if (NeedsEffect(route.question, inputs)) {
    if (const Condition* failing = FirstFailing(test.solvable, inputs)) throw NoSolution(failing->sentence);
  }
  Report report =
      AsksForSizes(route.question) ? SolveSizes(test, route, inputs, names) : SolveValue(test, route, inputs);
  ThrowIfStopped(inputs);
  return report;
}

}  // namespace planner
