#include <utility>

#include "catalogue/margins.h"

namespace planner {
namespace {

bool Never(const Inputs&) { return false; }

}  // namespace

Condition LimitsInOrder() {
  return {.code = "limits-in-order",
          .about = {"equivalence"},
          .holds = [](const Inputs& in) { return in.List("equivalence")[0] < in.List("equivalence")[1]; },
          .sentence = "{equivalence} must give the lower limit before the upper one."};
}

std::vector<Condition> RatioMarginsAboveZero(Name ratio) {
  return {
      {.code = "margin-of-a-ratio",
       .about = {ratio, "margin"},
       .holds = [](const Inputs& in) { return in.Number("margin") > 0; },
       .sentence = "{margin} of a ratio must be above 0: no effect is a ratio of 1."},
      {.code = "limits-of-a-ratio",
       .about = {ratio, "equivalence"},
       .holds = [](const Inputs& in) { return in.List("equivalence")[0] > 0; },
       .sentence = "{equivalence} of a ratio must be above 0: no effect is a ratio of 1."},
  };
}

std::vector<Condition> CertainEffect(const Names& others) {
  std::vector<Condition> conditions;
  for (Name other : others) {
    const std::string name(other.Text());
    conditions.push_back({.code = "uncertain-effect-with-" + name,
                          .about = {"effect-sd", other},
                          .holds = Never,
                          .sentence = "{effect-sd} and {" + name +
                                      "} do not go together: the expected power is that of "
                                      "a difference from the null hypothesis of no effect."});
  }
  return conditions;
}

std::vector<Condition> WithinMargins(Name about, const std::string& effect,
                                     std::function<bool(const Inputs&)> isWithin) {
  return {
      {.code = "not-beyond-margin",
       .about = {about, "margin"},
       .holds = isWithin,
       .sentence = "The " + effect +
                   " expected does not lie beyond {margin} on the side that is to be shown: no sample "
                   "size reaches the power."},
      {.code = "not-between-limits",
       .about = {about, "equivalence"},
       .holds = std::move(isWithin),
       .sentence = "The " + effect +
                   " expected does not lie between the limits of {equivalence}: no sample size reaches "
                   "the power."},
  };
}

}  // namespace planner
