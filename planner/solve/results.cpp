#include "solve/results.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

namespace planner {

namespace {

bool Finds(const Route& route, Name name) { return name == Name("n") && AsksForSizes(route.question); }

void AddFigure(std::vector<ResultColumn>& columns, std::string name, std::string label, Planned planned,
               Reading reading = Reading::Figure) {
  columns.push_back({.name = std::move(name), .label = std::move(label), .reading = reading, .planned = planned});
}

void AddDerived(std::vector<ResultColumn>& columns, const Test& test, const Route& route, bool atSizesFound) {
  for (const Derived& figure : test.derived) {
    const bool isAtSizesFound = AsksForSizes(route.question) && IsOfSizes(figure);
    if (!MayTell(route, figure) || isAtSizesFound != atSizesFound) continue;
    columns.push_back({figure.name, figure.label, Reading::Figure, &figure});
  }
}

/// What the circumstances of the study change besides the sizes.
void AddPlannedFigures(std::vector<ResultColumn>& columns, const Names& offers) {
  if (Contains(offers, "comparisons")) {
    AddFigure(columns, "level", "level of each comparison", Planned::Level);
  }
  if (Contains(offers, "cluster-size")) AddFigure(columns, "design-effect", "design effect", Planned::Effect);
}

void AddPlannedSizes(std::vector<ResultColumn>& columns, const Names& offers, bool isGrouped) {
  const Reading sizes = isGrouped ? Reading::Sizes : Reading::Size;
  const bool isEnrolled = Contains(offers, "dropout");
  if (isEnrolled) AddFigure(columns, "enrol", isGrouped ? "to enrol in each group" : "to enrol", Planned::Enrol, sizes);
  if (isEnrolled && isGrouped) {
    AddFigure(columns, "enrol-total", "to enrol in total", Planned::EnrolTotal, Reading::Size);
  }
  if (Contains(offers, "cluster-size")) {
    AddFigure(columns, "clusters", isGrouped ? "clusters in each group" : "clusters", Planned::Clusters, sizes);
  }
}

}  // namespace

Names OffersOf(const Inputs& design) {
  Names given;
  std::copy_if(OfferedInputs().begin(), OfferedInputs().end(), std::back_inserter(given),
               [&](Name name) { return design.Has(name); });
  if (SolvesForAssurance(design)) given.push_back("assurance");
  return given;
}

std::vector<ResultColumn> ResultColumns(const Test& test, const Route& route, const Unknown* unknown,
                                        const Names& offers, bool isUneven) {
  std::vector<ResultColumn> columns;
  if (unknown) {
    const Parameter& parameter = *FindParameter(test, unknown->input);
    columns.push_back({std::string(parameter.name.Text()), parameter.label, Reading::Figure});
  }
  AddDerived(columns, test, route, false);
  AddPlannedFigures(columns, offers);
  const bool findsSizes = AsksForSizes(route.question);
  const bool isGrouped = test.groups != 1;
  const Reading sizes = isGrouped ? Reading::Sizes : Reading::Size;
  if (findsSizes) columns.push_back({"n", isGrouped ? "group sizes" : "sample size", sizes});
  if (isGrouped) columns.push_back({"total", "total sample size", Reading::Size});
  if (findsSizes && isUneven) {
    columns.push_back({"lasting-n", "all larger sizes reach it from", sizes, nullptr, true});
  }
  AddPlannedSizes(columns, offers, isGrouped);
  AddDerived(columns, test, route, true);
  const std::string suffix = findsSizes ? " at these sizes" : "";
  if (Contains(offers, "effect-sd")) {
    columns.push_back({"expected-power", "expected power" + suffix, Reading::Power});
    AddFigure(columns, "expected-power-limit", "limit of the expected power", Planned::PowerLimit, Reading::Power);
  } else if (IsAboutPower(route.question)) {
    columns.push_back({"power", "power" + suffix, Reading::Power});
  } else {
    columns.push_back({"half-width", "half-width" + suffix, Reading::HalfWidth});
  }
  if (Contains(offers, "assurance")) {
    AddFigure(columns, "assurance", "assurance" + suffix, Planned::Assurance, Reading::Power);
  }
  return columns;
}

bool MayTell(const Route& route, const Derived& figure) {
  return std::all_of(figure.needs.begin(), figure.needs.end(),
                     [&](Name need) { return Finds(route, need) || route.Takes(need); });
}

bool IsTold(const Route& route, const Derived& figure, const Inputs& design) {
  const auto isGiven = [&](Name need) { return Finds(route, need) || design.Has(need); };
  if (!MayTell(route, figure) || !std::all_of(figure.needs.begin(), figure.needs.end(), isGiven)) return false;
  return !figure.isTold || figure.isTold(design);
}

bool IsOfSizes(const Derived& figure) { return Contains(figure.needs, "n"); }

double TotalOf(const Numbers& sizes) { return std::accumulate(sizes.begin(), sizes.end(), 0.0); }

}  // namespace planner
