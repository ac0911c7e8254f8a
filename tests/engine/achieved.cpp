#include "achieved.h"

#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace keltest {
namespace {

constexpr std::array<const char*, metricCount> metricNames = {"value", "grid", "floatUlps"};

// A difference may be this much above the stored one: mathematical functions of the platform vary in the last digit.
constexpr double growthFactor = 1.5;
constexpr double growthOffset = 1e-16;

}  // namespace

Achieved Measured(const std::map<std::string, Summary>& summaries) {
  Achieved achieved;
  for (const auto& [name, summary] : summaries)
    for (std::size_t m = 0; m < metricCount; ++m) achieved[name][m] = summary.findings.worst[m].difference;
  return achieved;
}

Achieved ReadAchieved(const std::string& path) {
  std::ifstream file(path);
  if (!file) return {};
  const auto stored = nlohmann::json::parse(file);
  Achieved achieved;
  for (const auto& [name, differences] : stored.items())
    for (std::size_t m = 0; m < metricCount; ++m) achieved[name][m] = differences.at(metricNames[m]).get<double>();
  return achieved;
}

void WriteAchieved(const std::string& path, const Achieved& achieved) {
  std::string text = "{";
  for (const auto& [name, differences] : achieved) {
    text += (text == "{" ? "\n\"" : ",\n\"") + name + "\": {";
    for (std::size_t m = 0; m < metricCount; ++m) {
      char entry[64];
      std::snprintf(entry, sizeof entry, "%s\"%s\": %.3g", m == 0 ? "" : ", ", metricNames[m], differences[m]);
      text += entry;
    }
    text += "}";
  }
  std::ofstream file(path, std::ios::binary);
  file << text << "\n}\n";
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

std::vector<std::string> Growth(const Achieved& stored, const Achieved& measured) {
  std::vector<std::string> growth;
  for (const auto& [name, differences] : measured) {
    const auto entry = stored.find(name);
    if (entry == stored.end()) {
      growth.push_back(name + ": no achieved difference is stored");
      continue;
    }
    for (std::size_t m = 0; m < metricCount; ++m) {
      if (differences[m] <= entry->second[m] * growthFactor + growthOffset) continue;
      char text[128];
      std::snprintf(text, sizeof text, ": %s difference %.3g, stored %.3g", metricNames[m], differences[m],
                    entry->second[m]);
      growth.push_back(name + text);
    }
  }
  return growth;
}

}  // namespace keltest
