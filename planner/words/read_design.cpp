#include "words/read_design.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>

#include "words/file_of_designs.h"
#include "words/numbers.h"
#include "words/parse.h"

namespace planner {
namespace {

using Json = nlohmann::ordered_json;

constexpr int deepest = 8;

Problem NotAllowed(const Parameter& parameter, Value value) {
  return {.code = Code::NotAllowed,
          .inputs = {std::string(parameter.name.Text())},
          .values = {std::move(value)},
          .allowed = parameter};
}

/// Numbers separated by spaces, or by single commas.
bool ReadNumbers(std::string_view text, Numbers& numbers) {
  numbers.clear();
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(" ,"), text.size());
    double number = 0;
    if (!ParseNumber(text.substr(0, end), number)) return false;
    numbers.push_back(number);
    text.remove_prefix(end);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (!text.starts_with(',')) continue;
    text.remove_prefix(1);
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return false;
  }
  return !numbers.empty();
}

/// Whether all brackets close again and are nested no deeper than any design needs.
bool IsShallow(std::string_view text) {
  int depth = 0;
  bool isString = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char letter = text[i];
    if (letter == '"') isString = !isString;
    if (isString) {
      if (letter == '\\') ++i;
      continue;
    }
    if (letter == '[' || letter == '{') ++depth;
    if (letter == ']' || letter == '}') --depth;
    if (depth > deepest) return false;
  }
  return true;
}

std::optional<Numbers> NumbersOf(const Json& array) {
  Numbers numbers;
  for (const Json& entry : array) {
    if (!entry.is_number()) return std::nullopt;
    numbers.push_back(entry.get<double>());
  }
  return numbers;
}

/// The value as the parameter takes it, as far as it can be one.
Value ValueOf(const Parameter& parameter, const Json& json) {
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_number() && parameter.IsList()) return Numbers{json.get<double>()};
  if (json.is_number()) return json.get<double>();
  if (json.is_string()) return json.get<std::string>();
  const std::optional<Numbers> numbers = json.is_array() ? NumbersOf(json) : std::nullopt;
  if (numbers) return *numbers;
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool IsOfKind(const Parameter& parameter, const Value& value) {
  if (parameter.kind == Kind::Flag) return std::holds_alternative<bool>(value);
  if (parameter.kind == Kind::Number) return std::holds_alternative<double>(value);
  if (parameter.kind == Kind::Choice) return std::holds_alternative<std::string>(value);
  return std::holds_alternative<Numbers>(value) && !std::get<Numbers>(value).empty();
}

}  // namespace

std::optional<Problem> AddField(DesignRow& row, const Parameter& parameter, std::string_view text, Numbers& scratch) {
  if (parameter.kind == Kind::Number) {
    double number = 0;
    if (!ParseNumber(text, number)) return NotAllowed(parameter, std::string(text));
    row.AddNumber(parameter, number);
  } else if (parameter.kind == Kind::Flag) {
    const std::optional<bool> flag = ParseFlag(text);
    if (!flag) return NotAllowed(parameter, std::string(text));
    row.AddFlag(parameter, *flag);
  } else if (parameter.kind == Kind::Choice) {
    row.AddWord(parameter, text);
  } else {
    if (!ReadNumbers(text, scratch)) return NotAllowed(parameter, std::string(text));
    row.AddNumbers(parameter, scratch);
  }
  return std::nullopt;
}

std::optional<Problem> AddField(DesignRow& row, const Parameter& parameter, const Json& json) {
  Value value = ValueOf(parameter, json);
  if (!IsOfKind(parameter, value)) return NotAllowed(parameter, std::move(value));
  row.Add(parameter, value);
  return std::nullopt;
}

std::optional<Problem> ReadObject(std::string_view line, Json& object) {
  if (!IsShallow(line)) return Problem{.code = Code::NotAnObject};
  object = Json::parse(line, nullptr, false);
  if (object.is_object()) return std::nullopt;
  return Problem{.code = Code::NotAnObject};
}

std::string TestOfLine(std::string_view line) {
  Json object;
  if (ReadObject(line, object)) return "";
  const auto test = object.find("test");
  return test != object.end() && test->is_string() ? test->get<std::string>() : "";
}

std::string LinesOfJson(std::string_view document) {
  const Json json = IsShallow(document) ? Json::parse(document, nullptr, false) : Json(Json::value_t::discarded);
  std::string lines;
  const auto add = [&](const Json& row) { lines += row.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n'; };
  if (json.is_object()) {
    add(json);
  } else if (json.is_array()) {
    for (const Json& row : json) add(row);
  } else {
    throw InputError({.code = Code::NotDesigns});
  }
  return lines;
}

std::vector<std::string> FieldsOfLines(std::string_view lines) {
  std::vector<std::string> fields;
  while (!lines.empty()) {
    const std::size_t end = std::min(lines.find('\n'), lines.size());
    Json object;
    if (!ReadObject(lines.substr(0, end), object)) {
      for (const auto& [name, value] : object.items()) {
        if (std::find(fields.begin(), fields.end(), name) == fields.end()) fields.push_back(name);
      }
    }
    lines.remove_prefix(std::min(end + 1, lines.size()));
  }
  return fields;
}

}  // namespace planner
