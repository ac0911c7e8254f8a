#include "words/result_places.h"

#include <algorithm>

namespace planner {

const std::vector<std::size_t>& ResultPlaces::In(const DesignAnswer& answer) {
  if (answer.shape == shape_) return places_;
  shape_ = answer.shape;
  const std::vector<ResultColumn>& columns = *answer.columns;
  places_.clear();
  for (const std::string& result : results_) {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const ResultColumn& column) { return column.name == result; });
    places_.push_back(static_cast<std::size_t>(found - columns.begin()));
  }
  left_.clear();
  for (const ResultColumn& column : columns) {
    if (std::count(results_.begin(), results_.end(), column.name) == 0) left_.push_back(column.name);
  }
  return places_;
}

}  // namespace planner
