#include "request.h"

#include <algorithm>
#include <utility>

#include "catalogue/catalogue.h"
#include "model/problem.h"
#include "values.h"

namespace kelplan {
namespace {

using Kind = JsonTree::Kind;

[[noreturn]] void Reject(std::string_view member, const JsonTree& value, const char* allowed) {
  throw BadRequest("wrong-type",
                   "\"" + std::string(member) + "\" is " + ShortText(value) + ", but must be " + allowed + ".");
}

}  // namespace

planner::NameStyle NamesOf(const JsonTree& tree) {
  if (!tree.Is(Kind::Object)) throw BadRequest("not-an-object", "The request is JSON, but not an object.");
  const JsonTree* names = tree.Find("names");
  if (!names) return planner::NameStyle::Dashes;
  if (names->Is(Kind::Text) && names->text == "dash") return planner::NameStyle::Dashes;
  if (names->Is(Kind::Text) && names->text == "underscore") return planner::NameStyle::Underscores;
  Reject("names", *names, "\"dash\" or \"underscore\"");
}

Request::Request(const JsonTree& tree, const std::vector<std::string_view>& members) : tree_(tree) {
  CheckMembers(members);
  FindTest();
  ReadInputs();
}

Request::Request(const JsonTree& tree, const planner::Test& test, const std::vector<std::string_view>& members)
    : tree_(tree), test_(&test) {
  CheckMembers(members);
  ReadInputs();
}

void Request::CheckMembers(const std::vector<std::string_view>& members) const {
  for (const std::string& key : tree_.keys) {
    if (key == "inputs" || key == "names" || (key == "test" && !test_)) continue;
    if (std::find(members.begin(), members.end(), key) != members.end()) continue;
    throw BadRequest("unknown-member", "\"" + key + "\" is no member of this request.");
  }
}

void Request::FindTest() {
  const JsonTree* name = tree_.Find("test");
  if (!name) throw BadRequest("test-missing", "The request has no \"test\".");
  if (!name->Is(Kind::Text)) Reject("test", *name, "the name of a test");
  test_ = planner::FindTest(name->text);
  if (!test_) throw BadRequest("test-unknown", ShortText(*name) + " is not a test.");
}

/// Names are understood with dashes and with underscores.
const planner::Parameter& Request::ParameterOf(const std::string& name) const {
  std::string dashed = name;
  std::replace(dashed.begin(), dashed.end(), '_', '-');
  const planner::Parameter* parameter = planner::FindParameter(*test_, std::string_view(dashed));
  if (parameter) return *parameter;
  throw planner::InputError({.code = planner::Code::NotAnInput, .inputs = {name}, .words = {test_->name}});
}

void Request::ReadInputs() {
  const JsonTree* inputs = tree_.Find("inputs");
  if (!inputs || inputs->Is(Kind::Null)) return;
  if (!inputs->Is(Kind::Object)) Reject("inputs", *inputs, "an object of inputs");
  for (std::size_t i = 0; i < inputs->items.size(); ++i) {
    const planner::Parameter& parameter = ParameterOf(inputs->keys[i]);
    for (const planner::Alternatives& other : inputs_) {
      if (other.parameter != &parameter) continue;
      throw BadRequest("key-repeated", "\"" + inputs->keys[i] + "\" is given under two of its names.");
    }
    if (inputs->items[i].Is(Kind::Null)) continue;
    inputs_.push_back({&parameter, ValuesOf(parameter, inputs->items[i])});
  }
}

bool Request::HasAlternatives() const {
  return std::any_of(inputs_.begin(), inputs_.end(), [](const auto& input) { return input.values.size() > 1; });
}

planner::InputValues Request::ValuesBesides(const std::optional<planner::Alternatives>& others) const {
  planner::InputValues values;
  for (const auto& [parameter, alternatives] : inputs_) {
    if (others && others->parameter == parameter) continue;
    const std::string name(parameter->name.Text());
    if (alternatives.size() > 1) {
      throw BadRequest("several-values", "\"" + name + "\" has several values, but here a design has one.");
    }
    values[name] = alternatives.front();
  }
  return values;
}

bool Request::IsSet(std::string_view member) const {
  const JsonTree* flag = tree_.Find(member);
  if (!flag) return false;
  if (!flag->Is(Kind::Flag)) Reject(member, *flag, "true or false");
  return flag->flag;
}

planner::Numbers Request::EndsOf(std::string_view member) const {
  const JsonTree* ends = tree_.Find(member);
  if (!ends) return {};
  const std::optional<planner::Numbers> numbers = NumbersOf(*ends);
  if (!numbers || numbers->empty()) Reject(member, *ends, "a number, or one for each axis");
  return *numbers;
}

bool Request::ShowsSizes() const {
  const JsonTree* y = tree_.Find("y");
  if (!y) return false;
  if (!y->Is(Kind::Text) || y->text != "n") Reject("y", *y, "\"n\"");
  return true;
}

planner::ChartRequest Request::Chart() const {
  const JsonTree* name = tree_.Find("chart");
  if (!name) throw BadRequest("chart-missing", "The request has no \"chart\".");
  if (!name->Is(Kind::Text)) Reject("chart", *name, "the name of a chart");
  planner::ChartRequest chart{.name = name->text, .from = EndsOf("from"), .to = EndsOf("to")};
  if (const JsonTree* step = tree_.Find("step")) {
    if (!step->Is(Kind::Number)) Reject("step", *step, "a number");
    chart.step = step->number;
  }
  chart.showsSizes = ShowsSizes();
  for (const planner::Alternatives& input : inputs_) {
    if (input.values.size() > 1 && !chart.alternatives) chart.alternatives = input;
  }
  return chart;
}

ColumnRequest Request::ColumnOf(const JsonTree& column) const {
  if (column.Is(Kind::Text)) return {&ParameterOf(column.text), std::nullopt};
  const JsonTree* name = column.Is(Kind::Object) ? column.Find("name") : nullptr;
  if (!name || !name->Is(Kind::Text)) Reject("columns", column, "names, or objects with \"name\" and \"entry\"");
  const JsonTree* entry = column.Find("entry");
  if (!entry) return {&ParameterOf(name->text), std::nullopt};
  constexpr double mostEntries = 10000;
  const bool isIndex = entry->Is(Kind::Number) && entry->number >= 0 && entry->number < mostEntries &&
                       entry->number == static_cast<double>(static_cast<std::size_t>(entry->number));
  if (!isIndex) Reject("entry", *entry, "a whole number from 0 on");
  return {&ParameterOf(name->text), static_cast<std::size_t>(entry->number)};
}

std::vector<ColumnRequest> Request::Columns() const {
  const JsonTree* list = tree_.Find("columns");
  if (!list) return {};
  if (!list->Is(Kind::Array)) Reject("columns", *list, "an array");
  std::vector<ColumnRequest> columns;
  for (const JsonTree& column : list->items) columns.push_back(ColumnOf(column));
  return columns;
}

}  // namespace kelplan
