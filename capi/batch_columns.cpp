#include "batch_columns.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace kelplan {
namespace {

using planner::Parameter;

std::string NameOf(const Parameter& parameter) { return std::string(parameter.name.Text()); }

[[noreturn]] void Reject(const Parameter& parameter, const char* why) {
  throw BadRequest("no-column", "\"" + NameOf(parameter) + "\" cannot be a column: " + why + ".");
}

/// A number that the parameter allows.
double AllowedNumber(const Parameter& parameter) {
  const planner::Limits& limits = parameter.limits;
  const double candidates[] = {
      0.5, 2, limits.low + 1, limits.high - 1, limits.low, limits.high, limits.low + (limits.high - limits.low) / 2};
  for (double candidate : candidates) {
    if (std::isfinite(candidate) && limits.Allow(candidate)) return candidate;
  }
  return 1;
}

/// The list with the entry that a column sets. Entries that nothing gives are set by other columns, or too many.
void SetEntry(planner::Numbers& list, std::size_t entry, double number) {
  if (list.size() <= entry) list.resize(entry + 1, number);
}

void AddColumn(planner::InputValues& values, const ColumnRequest& column) {
  const std::string name = NameOf(*column.parameter);
  const double number = AllowedNumber(*column.parameter);
  if (!column.parameter->IsList()) {
    values[name] = number;
    return;
  }
  planner::Value& value = values[name];
  if (!std::holds_alternative<planner::Numbers>(value)) value = planner::Numbers{};
  SetEntry(std::get<planner::Numbers>(value), column.entry.value_or(0), number);
}

bool IsSame(const ColumnRequest& a, const ColumnRequest& b) {
  if (a.parameter != b.parameter) return false;
  return !a.entry || !b.entry || *a.entry == *b.entry;
}

/// Whether a column, or else the request, gives the entry.
bool IsGiven(const ColumnRequest& column, std::size_t entry, const Request& request,
             const std::vector<ColumnRequest>& columns) {
  for (const planner::Alternatives& input : request.Inputs()) {
    if (input.parameter != column.parameter) continue;
    const auto* fixed = std::get_if<planner::Numbers>(&input.values.front());
    if (fixed && entry < fixed->size()) return true;
  }
  return std::any_of(columns.begin(), columns.end(), [&](const ColumnRequest& other) {
    return other.parameter == column.parameter && other.entry == entry;
  });
}

}  // namespace

void CheckColumns(const std::vector<ColumnRequest>& columns) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const Parameter& parameter = *columns[i].parameter;
    if (parameter.role == planner::Role::Shape) Reject(parameter, "it decides how long lists are");
    if (parameter.IsList()) {
      if (!columns[i].entry && !parameter.spreads) Reject(parameter, "it is a list, so name an entry");
    } else if (parameter.kind != planner::Kind::Number || columns[i].entry) {
      Reject(parameter, columns[i].entry ? "it has no entries" : "it is no number");
    }
    for (std::size_t j = 0; j < i; ++j) {
      if (IsSame(columns[i], columns[j])) Reject(parameter, "it is one already");
    }
  }
}

planner::InputValues ValuesWithColumns(const Request& request, const std::vector<ColumnRequest>& columns) {
  planner::InputValues values = request.Values();
  for (const ColumnRequest& column : columns) {
    if (!column.parameter->IsList() || !column.entry) {
      if (values.contains(NameOf(*column.parameter))) Reject(*column.parameter, "the inputs give it");
    }
  }
  for (const ColumnRequest& column : columns) AddColumn(values, column);
  for (const ColumnRequest& column : columns) {
    for (std::size_t entry = 0; column.entry && entry < *column.entry; ++entry) {
      if (!IsGiven(column, entry, request, columns)) Reject(*column.parameter, "nothing gives an entry before it");
    }
  }
  return values;
}

std::vector<planner::Column> BoundColumns(const planner::PreparedQuestion& question, const planner::InputValues& values,
                                          const std::vector<ColumnRequest>& columns,
                                          std::vector<std::size_t>& sources) {
  std::vector<planner::Column> bound;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const Parameter& parameter = *columns[i].parameter;
    const std::size_t entries = parameter.IsList() ? question.Design().List(parameter.name).size() : 1;
    const std::size_t first = columns[i].entry.value_or(0);
    const std::size_t last = columns[i].entry ? first : entries - 1;
    if (last >= entries) Reject(parameter, "it has no such entry");
    if (columns[i].entry && std::get<planner::Numbers>(values.at(NameOf(parameter))).size() < entries) {
      Reject(parameter, "nothing gives its other entries");
    }
    for (std::size_t entry = first; entry <= last; ++entry) {
      bound.push_back({parameter.name, entry});
      sources.push_back(i);
    }
  }
  return bound;
}

}  // namespace kelplan
