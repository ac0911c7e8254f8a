#pragma once

#include <map>
#include <string>

#include "planner/value.h"

class StopRequest;

namespace planner {

struct Test;

/// Values by parameter name, as the user gave them.
using Given = std::map<std::string, Value>;

/// The checked inputs of one question, with defaults filled in and single numbers spread over the groups. The members
/// are written for the calls in descriptions: a list is a pointer to as many numbers as it has entries.
class Inputs {
public:
  Inputs(const Test& test, const Given& given, StopRequest* stop);

  bool Has(const std::string& name) const;
  const Value& At(const std::string& name) const;
  /// Replaces or adds a value, such as the sizes found for the question about their power.
  void Set(const std::string& name, Value value);
  void Erase(const std::string& name);

  double Number(const std::string& name) const;
  bool Flag(const std::string& name) const;
  /// The library's code of the chosen word.
  int Choice(const std::string& name) const;
  const Numbers& List(const std::string& name) const;

  double Alpha() const { return Number("alpha"); }
  int Groups() const { return groups_; }
  /// Shares of the groups in the total: the sizes where they are given, else the ratios, else all equal.
  Numbers Weights() const;
  StopRequest* Stop() const { return stop_; }

private:
  const Test& test_;
  Given values_;
  int groups_;
  StopRequest* stop_;
};

}  // namespace planner
