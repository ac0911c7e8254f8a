#ifndef KELPOWER_TESTS_VALIDATION_INPUTS_H
#define KELPOWER_TESTS_VALIDATION_INPUTS_H

#include <cstddef>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <utility>

#include "support/drawn_counts.h"

namespace kelpower::validation {

/// The inputs of a request. Every one must be read by the study that is made of them: an option that the study did not
/// follow would be validated for nothing.
class Inputs {
public:
  explicit Inputs(nlohmann::json inputs) : inputs_(std::move(inputs)) {}

  bool Has(const std::string& name) const { return inputs_.contains(name); }

  double Number(const std::string& name) { return Read(name).get<double>(); }
  double Number(const std::string& name, double fallback) { return Has(name) ? Number(name) : fallback; }
  int Whole(const std::string& name) { return static_cast<int>(Number(name)); }
  bool Flag(const std::string& name) { return Has(name) && Read(name).get<bool>(); }
  Numbers List(const std::string& name) { return Read(name).get<Numbers>(); }

  std::string Choice(const std::string& name, const std::string& fallback) {
    return Has(name) ? Read(name).get<std::string>() : fallback;
  }

  /// A number for each group, or one for all.
  Numbers PerGroup(const std::string& name, std::size_t groups) {
    return Read(name).is_array() ? List(name) : Numbers(groups, Number(name));
  }

  /// The level of one comparison.
  double Alpha() { return Number("alpha", 0.05) / Number("comparisons", 1); }

  /// An input that was not read; empty where all were.
  std::string Unread() const {
    for (const auto& [name, value] : inputs_.items()) {
      if (read_.count(name) == 0) return name;
    }
    return {};
  }

private:
  const nlohmann::json& Read(const std::string& name) {
    read_.insert(name);
    return inputs_.at(name);
  }

  nlohmann::json inputs_;
  std::set<std::string> read_;
};

}  // namespace kelpower::validation

#endif
