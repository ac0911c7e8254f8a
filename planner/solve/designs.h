#ifndef KELPOWER_PLANNER_SOLVE_DESIGNS_H
#define KELPOWER_PLANNER_SOLVE_DESIGNS_H

#include <cstddef>
#include <vector>

#include "model/alternatives.h"
#include "model/test.h"
#include "solve/design_row.h"

namespace planner {

/// All combinations of alternatives, as designs of one test. The last input varies fastest.
class Designs {
public:
  static constexpr std::size_t most = 1'000'000;

  /// Throws an InputError when there are more than `most`.
  Designs(const Test& test, std::vector<Alternatives> alternatives);

  const Test& AskedTest() const { return test_; }
  const std::vector<Alternatives>& Inputs() const { return alternatives_; }
  std::size_t Count() const { return count_; }

  /// The value of an input in a design.
  const Value& ValueOf(std::size_t input, std::size_t design) const;

  void Fill(std::size_t design, DesignRow& row) const;

private:
  const Test& test_;
  std::vector<Alternatives> alternatives_;
  std::vector<std::size_t> periods_;  // designs until each input takes its next value
  std::size_t count_ = 1;
};

}  // namespace planner

#endif
