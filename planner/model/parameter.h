#ifndef KELPOWER_PLANNER_MODEL_PARAMETER_H
#define KELPOWER_PLANNER_MODEL_PARAMETER_H

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "model/name.h"
#include "model/value.h"

namespace planner {

enum class Kind {
  Number,
  Flag,
  Choice,
  List,      // numbers of a length of their own
  PerGroup,  // one number for each group
};

/// The numbers that a parameter allows.
struct Limits {
  double low = -std::numeric_limits<double>::infinity();
  double high = std::numeric_limits<double>::infinity();
  bool lowAllowed = false;
  bool highAllowed = false;
  bool whole = false;

  bool Allow(double number) const;
};

/// What the numbers of an input are in a design.
enum class Role {
  Figure,  // they may vary, from row to row and along a chart
  Layout,  // they say what is tested: weights, places, shares
  Shape,   // they decide besides how long lists are: numbers of groups, of levels, of measurements
};

/// One word of a choice: what the user types, the code the library knows it by, and how a sentence says it.
struct Choice {
  std::string word;
  int code;
  std::string wording;
};

/// One input of a test. Descriptions make it with the functions below and narrow it with the members, which chain:
/// `Number("sd", "standard deviation", "standard deviation within the groups").Above(0)`.
struct Parameter {
  Name name;
  Kind kind;
  std::string label;    // in tables
  std::string meaning;  // in help
  std::string unit;     // empty where it is that of the user's data
  Limits limits;
  std::size_t length = 0;  // of a List; 0 for any
  Role role = Role::Figure;
  std::optional<Name> rows;     // of a List that is a table, row by row: the input that counts its rows
  std::optional<Name> columns;  // the same of its columns
  bool spreads = false;         // PerGroup: a single number stands for every group; List: it may be a single number
  std::vector<Choice> choices;
  std::vector<std::string> aliases;
  std::optional<Value> fallback;

  Parameter Above(double low) const;
  Parameter AtLeast(double low) const;
  Parameter Below(double high) const;
  Parameter AtMost(double high) const;
  Parameter Whole() const;
  Parameter Length(std::size_t entries) const;
  Parameter Spreads() const;
  Parameter As(Role of) const;
  Parameter Rows(Name count) const;
  Parameter Columns(Name count) const;
  Parameter Alias(std::string other) const;
  Parameter Default(Value value) const;
  Parameter Unit(std::string text) const;

  bool IsList() const { return kind == Kind::List || kind == Kind::PerGroup; }
  /// Whether the value is of the parameter's kind and within its limits.
  bool Allows(const Value& value) const;
};

Parameter Number(Name name, std::string label, std::string meaning);
Parameter Flag(Name name, std::string label, std::string meaning);
Parameter OneOf(Name name, std::string label, std::string meaning, std::vector<Choice> choices);
Parameter List(Name name, std::string label, std::string meaning);
Parameter PerGroup(Name name, std::string label, std::string meaning);

}  // namespace planner

#endif
