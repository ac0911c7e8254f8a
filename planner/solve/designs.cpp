#include "solve/designs.h"

#include <utility>

#include "model/problem.h"

namespace planner {

Designs::Designs(const Test& test, std::vector<Alternatives> alternatives)
    : test_(test), alternatives_(std::move(alternatives)), periods_(alternatives_.size()) {
  for (std::size_t i = alternatives_.size(); i-- > 0;) {
    periods_[i] = count_;
    count_ *= alternatives_[i].values.size();
    if (count_ > most) {
      throw InputError({.code = Code::TooManyDesigns, .values = {static_cast<double>(most)}});
    }
  }
}

const Value& Designs::ValueOf(std::size_t input, std::size_t design) const {
  const std::vector<Value>& values = alternatives_[input].values;
  return values[design / periods_[input] % values.size()];
}

void Designs::Fill(std::size_t design, DesignRow& row) const {
  row.Start(test_);
  for (std::size_t i = 0; i < alternatives_.size(); ++i) row.Add(*alternatives_[i].parameter, ValueOf(i, design));
}

}  // namespace planner
