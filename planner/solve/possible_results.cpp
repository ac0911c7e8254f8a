#include "solve/possible_results.h"

#include <algorithm>
#include <iterator>

namespace planner {
namespace {

/// The circumstances that an answer of the route may tell of.
Names PossibleOffers(const Test& test, const Route& route) {
  Names offers;
  std::copy_if(OfferedInputs().begin(), OfferedInputs().end(), std::back_inserter(offers),
               [&](Name name) { return route.Takes(name); });
  // The assurance of sizes that are given is found with the route of their half-width.
  if (test.offers.assurance && route.question == Question::HalfWidth) offers.push_back("assurance");
  return offers;
}

bool Has(const std::vector<ResultColumn>& columns, const ResultColumn& other) {
  return std::any_of(columns.begin(), columns.end(), [&](const auto& column) { return column.name == other.name; });
}

}  // namespace

std::vector<PossibleResult> PossibleResults(const Test& test, const Route& route) {
  const Names offers = PossibleOffers(test, route);
  const bool isAssured = Contains(offers, "assurance") && AsksForSizes(route.question);
  const bool mayBeUneven = test.unevenness || (isAssured && test.offers.lastingAssuredSizes);
  const std::vector<ResultColumn> plain = ResultColumns(test, route, nullptr, {}, false);
  const std::vector<ResultColumn> all = ResultColumns(test, route, nullptr, offers, mayBeUneven);
  std::vector<PossibleResult> results;
  for (const ResultColumn& column : all) {
    results.push_back({column, !Has(plain, column) || column.derived});
  }
  // An expected power stands in the place of the power.
  if (!Has(all, plain.back())) results.push_back({plain.back(), true});
  return results;
}

}  // namespace planner
