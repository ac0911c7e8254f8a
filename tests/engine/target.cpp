#include "target.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace keltest {
namespace {

using nlohmann::json;

const std::string vectorFolder = KELPOWER_VECTORS;

bool Contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

std::vector<Target> MakeTargets() {
  std::ifstream file(vectorFolder + "/signatures.json");
  const json signatures = json::parse(file);
  std::vector<Target> targets;
  for (const Function& function : Exports()) {
    if (Contains(function.name, "FreeMem")) continue;
    Target& target = targets.emplace_back(Target{&function, {}});
    for (const auto& argument : signatures.at(function.name)[1]) target.names.push_back(argument[0]);
  }
  return targets;
}

std::vector<VectorCase> ReadAllCases() {
  std::vector<VectorCase> all;
  for (const auto& entry : std::filesystem::directory_iterator(vectorFolder)) {
    const auto& path = entry.path();
    if (path.extension() != ".jsonl") continue;
    for (VectorCase& vectorCase : ReadCases(path.string())) all.push_back(std::move(vectorCase));
  }
  return all;
}

}  // namespace

bool Target::Has(const std::string& name) const { return std::find(names.begin(), names.end(), name) != names.end(); }

std::int32_t Target::Integer(const Arguments& arguments, const std::string& name) const {
  const auto position = std::find(names.begin(), names.end(), name) - names.begin();
  return arguments.at(static_cast<std::size_t>(position)).integer;
}

const std::vector<Target>& Targets() {
  static const std::vector<Target> targets = MakeTargets();
  return targets;
}

const std::vector<VectorCase>& AllCases() {
  static const std::vector<VectorCase> cases = ReadAllCases();
  return cases;
}

std::vector<Arguments> TypicalCalls(const Target& target) {
  std::vector<Arguments> calls;
  const auto add = [&](bool onlyTypical, bool onlyExact) {
    for (const VectorCase& vectorCase : AllCases()) {
      if (vectorCase.function != target.function->name) continue;
      if (onlyTypical && vectorCase.kind != "typical") continue;
      const Arguments arguments = MakeArguments(vectorCase, target.function->arguments);
      if (onlyExact && !EnumeratesSamples(target, arguments)) continue;
      calls.push_back(arguments);
      return;
    }
  };
  add(true, false);
  add(true, true);
  if (calls.empty()) add(false, false);
  return calls;
}

bool EnumeratesSamples(const Target& target, const Arguments& arguments) {
  if (target.Has("exact")) return target.Integer(arguments, "exact") != 0;
  return Contains(target.function->name, "OneSampBi") && target.Has("method") &&
         target.Integer(arguments, "method") != 0;
}

bool IsSearch(const Target& target) { return Contains(target.function->name, "Reverse"); }

bool IsSizeAxisEnd(const std::string& name) {
  return name == "from" || name == "to" || Contains(name, "sampleSizeFrom") || Contains(name, "sampleSizeTo") ||
         Contains(name, "minSampleSize") || Contains(name, "maxSampleSize");
}

bool IsSampleSize(const std::string& name) { return Contains(name, "Size") || Contains(name, "Count"); }

std::string Describe(const Target& target, const Arguments& arguments) {
  std::ostringstream text;
  text.precision(17);
  text << target.function->name << "(";
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const char type = target.function->arguments[i];
    text << (i == 0 ? "" : ", ") << target.names[i] << " ";
    if (type == 'd') text << arguments[i].number;
    if (type == 'i' || type == 'b') text << arguments[i].integer;
    if (type == 's') text << (arguments[i].isNull ? 0 : arguments[i].stopRequest.stopsAt);
    for (const double value : arguments[i].array) text << value << " ";
  }
  return text.str() + ")";
}

}  // namespace keltest
