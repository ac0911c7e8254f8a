#ifndef KELPOWER_PLANNER_SOLVE_DESIGN_ROW_H
#define KELPOWER_PLANNER_SOLVE_DESIGN_ROW_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/test.h"

namespace planner {

/// A design among many: a test and the values given for its inputs, without a map to look them up in. To be filled anew
/// for each design, which then takes no memory. Values are not checked here but where the design is answered.
class DesignRow {
public:
  void Start(const Test& test);

  void Add(const Parameter& parameter, const Value& value);
  void AddNumber(const Parameter& parameter, double number) { AddNumbers(parameter, {&number, 1}); }
  void AddNumbers(const Parameter& parameter, std::span<const double> numbers);
  void AddFlag(const Parameter& parameter, bool isSet);
  void AddWord(const Parameter& parameter, std::string_view word);

  const Test& AskedTest() const { return *test_; }
  InputValues Values() const;

  /// What designs share that the same prepared question answers: the inputs given, how many numbers each has, flags,
  /// words and the number of groups.
  const std::string& Shape() const { return shape_; }

  /// The numbers of all inputs, in the order given.
  const Numbers& AllNumbers() const { return numbers_; }

  /// Some of these numbers, and the input that they belong to.
  struct Given {
    const Parameter* parameter;
    std::size_t first;
    std::size_t count;
  };
  const std::vector<Given>& NumbersGiven() const { return given_; }

private:
  struct Word {
    const Parameter* parameter;
    bool isSet;  // of a flag
    std::string word;
  };

  void AddToShape(const Parameter& parameter, std::string_view value);

  const Test* test_ = nullptr;
  std::string shape_;
  Numbers numbers_;
  std::vector<Given> given_;
  std::vector<Word> words_;  // as many as any design had
  std::size_t wordCount_ = 0;
};

}  // namespace planner

#endif
