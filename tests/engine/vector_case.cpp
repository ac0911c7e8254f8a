#include "vector_case.h"

#include <fstream>
#include <limits>
#include <stdexcept>

namespace keltest {

using nlohmann::json;

double ToDouble(const json& value) {
  if (value.is_number()) return value.get<double>();
  if (value == "nan") return std::numeric_limits<double>::quiet_NaN();
  if (value == "inf") return std::numeric_limits<double>::infinity();
  if (value == "-inf") return -std::numeric_limits<double>::infinity();
  throw std::runtime_error("not a number: " + value.dump());
}

std::vector<double> ToArray(const json& value) {
  if (!value.is_array()) throw std::runtime_error("not an array: " + value.dump());
  std::vector<double> numbers;
  numbers.reserve(value.size());
  for (const json& item : value) numbers.push_back(ToDouble(item));
  return numbers;
}

VectorCase ParseCase(const std::string& text, std::size_t line) {
  const json object = json::parse(text);
  VectorCase result;
  result.line = line;
  result.function = object.at("fn");
  result.kind = object.at("kind");
  result.arguments = object.at("args");
  result.result = object.at("ret");
  if (object.contains("asked")) result.asked = object["asked"].get<std::int64_t>();
  if (object.contains("margin")) result.margin = ToDouble(object["margin"]);
  if (object.contains("out"))
    for (const auto& [position, content] : object["out"].items()) result.outputs[std::stoul(position)] = content;
  return result;
}

std::vector<VectorCase> ReadCases(const std::string& path) {
  std::ifstream file(path);
  std::vector<VectorCase> cases;
  std::size_t line = 0;
  for (std::string text; std::getline(file, text);) {
    ++line;
    try {
      cases.push_back(ParseCase(text, line));
    } catch (const std::exception& e) {
      throw std::runtime_error(path + ":" + std::to_string(line) + ": " + e.what());
    }
  }
  if (cases.empty()) throw std::runtime_error(path + ": no cases");
  return cases;
}

void Supersede(const std::string& path, const std::string& family, std::vector<VectorCase>& cases) {
  std::ifstream file(path);
  for (const json& entry : json::parse(file)) {
    if (entry.at("family") != family) continue;
    if (entry.at("reason").get<std::string>().empty()) throw std::runtime_error(path + ": no reason");
    bool isFound = false;
    for (VectorCase& vectorCase : cases) {
      if (vectorCase.function != entry.at("fn") || vectorCase.arguments != entry.at("args")) continue;
      isFound = true;
      vectorCase.result = entry.at("ret");
      vectorCase.outputs.clear();
      for (const auto& [position, content] : entry.at("out").items())
        vectorCase.outputs[std::stoul(position)] = content;
    }
    if (!isFound) throw std::runtime_error(path + ": no such case: " + entry.dump());
  }
}

namespace {

std::int32_t ToInt(const json& value, std::int64_t min, std::int64_t max) {
  const auto number = value.get<std::int64_t>();
  if (!value.is_number_integer() || number < min || number > max)
    throw std::runtime_error("not an integer of its type: " + value.dump());
  return static_cast<std::int32_t>(number);
}

Argument MakeArgument(const json& value, char type) {
  Argument argument;
  switch (type) {
    case 'd': argument.number = ToDouble(value); break;
    case 'i': argument.integer = ToInt(value, INT32_MIN, INT32_MAX); break;
    case 'b': argument.integer = ToInt(value, 0, UINT8_MAX); break;
    case 'v': argument.array = ToArray(value); break;
    case 'p':
    case 'P':
      argument.isNull = value.is_null();
      if (!argument.isNull) argument.array = ToArray(value);
      break;
    case 's':
      argument.isNull = value.is_null();
      if (!argument.isNull) argument.stopRequest.stopsAt = value.get<std::int64_t>();
      break;
    case 'n':
      if (!value.is_null()) throw std::runtime_error("an unused pointer is null");
      break;
    default: throw std::runtime_error(std::string("cases cannot hold arguments of the type ") + type);
  }
  return argument;
}

}  // namespace

std::vector<Argument> MakeArguments(const VectorCase& vectorCase, const std::string& types) {
  if (vectorCase.arguments.size() != types.size())
    throw std::runtime_error("the case has " + std::to_string(vectorCase.arguments.size()) +
                             " arguments, the function " + std::to_string(types.size()));
  std::vector<Argument> arguments;
  for (std::size_t i = 0; i < types.size(); ++i) arguments.push_back(MakeArgument(vectorCase.arguments[i], types[i]));
  return arguments;
}

std::string Describe(const VectorCase& vectorCase) {
  std::string text = vectorCase.arguments.dump();
  return vectorCase.function + "(" + text.substr(1, text.size() - 2) + ")";
}

}  // namespace keltest
