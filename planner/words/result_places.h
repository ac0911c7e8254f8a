#ifndef KELPOWER_PLANNER_WORDS_RESULT_PLACES_H
#define KELPOWER_PLANNER_WORDS_RESULT_PLACES_H

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "solve/design_solver.h"

namespace planner {

/// Where the results of a table stand among those of an answer. Answers to designs of one shape have them at the same
/// places, so they are looked for once.
class ResultPlaces {
public:
  explicit ResultPlaces(std::vector<std::string> results) : results_(std::move(results)) {}

  /// The place of each result among the columns of the answer; their number where the answer lacks it.
  const std::vector<std::size_t>& In(const DesignAnswer& answer);

  /// The results of that answer that the table lacks.
  const std::vector<std::string>& Left() const { return left_; }

private:
  std::vector<std::string> results_;
  std::size_t shape_ = 0;  // of the answer; 0 before the first
  std::vector<std::size_t> places_;
  std::vector<std::string> left_;
};

}  // namespace planner

#endif
