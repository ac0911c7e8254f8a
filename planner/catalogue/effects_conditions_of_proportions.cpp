#include <cmath>

#include "catalogue/effects_inputs.h"
#include "catalogue/effects_parts.h"

namespace planner {
namespace {

bool IsWithin0And1(double proportion) { return proportion >= 0 && proportion <= 1; }

}  // namespace

void AddConditionsOfProportions(std::vector<Condition>& conditions) {
  conditions.push_back({.code = "events-of-sizes",
                        .about = {"events", "n"},
                        .holds =
                            [](const Inputs& in) {
                              const auto [first, second] = *EventCountsOf(in);
                              return first.events <= first.size && second.events <= second.size;
                            },
                        .sentence = "{events} must be at most {n} in each group."});
  conditions.push_back({.code = "counts-of-groups",
                        .about = {"counts"},
                        .holds =
                            [](const Inputs& in) {
                              const auto [first, second] = *EventCountsOf(in);
                              return first.size > 0 && second.size > 0;
                            },
                        .sentence = "{counts} leaves a group empty: its first two counts are those of the first group, "
                                    "the others of the second."});
  const auto isProportion = [](const Inputs& in) { return IsWithin0And1(ProportionsOf(in).second); };
  conditions.push_back({.code = "second-proportion",
                        .about = {"proportion1", "risk-difference"},
                        .holds = isProportion,
                        .sentence = "{risk-difference} puts the second proportion outside 0 to 1."});
  conditions.push_back({.code = "second-proportion",
                        .about = {"proportion1", "risk-ratio"},
                        .holds = isProportion,
                        .sentence = "{risk-ratio} puts the second proportion outside 0 to 1."});
  conditions.push_back({.code = "second-proportion",
                        .about = {"proportion1", "effect-h"},
                        .holds =
                            [](const Inputs& in) {
                              constexpr double halfPi = 1.5707963267948966;
                              const double first = std::asin(std::sqrt(in.Number("proportion1")));
                              const double angle = first + in.Number("effect-h") / 2;
                              return angle >= 0 && angle <= halfPi;
                            },
                        .sentence = "{effect-h} puts the second proportion outside 0 to 1."});
}

}  // namespace planner
