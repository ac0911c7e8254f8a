#include <algorithm>

#include "catalogue/core.h"
#include "catalogue/ordinal.h"
#include "catalogue/ranks.h"

namespace planner {

namespace ranks = kelpower::ranks;

ranks::OrdinalTest OrdinalTestOf(const Inputs& in) {
  return {ranks::OrdinalMethod(in.Choice("method")), RankSidesOf(in), in.Alpha()};
}

ranks::OrderedGroups OrderedGroupsOf(const Inputs& in) {
  const Numbers& first = in.List("probabilities1");
  if (!in.Has("probabilities2")) return {first.data(), nullptr, in.Number("odds-ratio"), first.size()};
  const Numbers& second = in.List("probabilities2");
  return {first.data(), second.data(), 0, std::min(first.size(), second.size())};
}

namespace {

double Power(const Inputs& in) {
  return OrNaN(ranks::Power(OrdinalTestOf(in), OrderedGroupsOf(in), in.List("n")[0], in.List("n")[1]));
}

}  // namespace

std::vector<Route> RoutesOfOrdinal() {
  std::vector<Route> routes;
  for (Name second : {Name("probabilities2"), Name("odds-ratio")}) {
    routes.push_back({.question = Question::Power,
                      .needs = {"probabilities1", second, "n"},
                      .accepts = {"method", "one-sided"},
                      .value = Power});
    routes.push_back({.question = Question::SampleSize,
                      .needs = {"probabilities1", second},
                      .accepts = {"method", "ratio", "one-sided"}});
  }
  return routes;
}

}  // namespace planner
