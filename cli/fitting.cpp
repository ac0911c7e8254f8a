#include "fitting.h"

#include <algorithm>

using namespace planner;

namespace {

bool IsTarget(Name name) { return name == Name("power") || name == Name("half-width"); }

/// Whether something is left to be solved for along the route.
bool LeavesUnknown(const Test& test, const Route& route, const Names& inputs) {
  const bool isNamed = Contains(inputs, "solve");
  return std::any_of(test.unknowns.begin(), test.unknowns.end(), [&](const Unknown& unknown) {
    const bool isMeant = isNamed || (!unknown.set && unknown.input != Name("alpha"));
    const bool isOfRoute = unknown.set || unknown.input == Name("alpha") || route.Takes(unknown.input);
    return isMeant && isOfRoute && unknown.target == route.question && !Contains(inputs, unknown.input);
  });
}

/// Whether a question about a design may have the target `name` besides.
bool TakesTarget(const Test& test, const Route& route, Name name, const Names& inputs) {
  if (AskedBy(route.question) == name) return true;
  const bool isOfRoute =
      name == Name("power") ? route.question == Question::Power : route.question == Question::HalfWidth;
  return isOfRoute && LeavesUnknown(test, route, inputs);
}

bool Takes(const Test& test, const Route& route, Name name, const Names& inputs) {
  if (route.question == Question::EffectSizes) return name == Name("confidence") || route.Takes(name);
  if (IsTarget(name)) return TakesTarget(test, route, name, inputs);
  if (name == Name("interval")) return route.question == Question::HalfWidth && !Contains(inputs, "half-width");
  if (name == Name("solve") || name == Name("below")) {
    return !AsksForSizes(route.question) && LeavesUnknown(test, route, inputs);
  }
  return name == Name("alpha") || name == Name("confidence") || route.Takes(name);
}

}  // namespace

bool GoTogether(const Test& test, const Names& inputs) {
  return std::any_of(test.routes.begin(), test.routes.end(), [&](const Route& route) {
    return std::all_of(inputs.begin(), inputs.end(), [&](Name name) { return Takes(test, route, name, inputs); });
  });
}
