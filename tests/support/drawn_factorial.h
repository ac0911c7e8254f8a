#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_FACTORIAL_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_FACTORIAL_H

#include <random>
#include <utility>
#include <vector>

#include "support/linear_model.h"

namespace kelpower {

/// Crossed factors, and the effect that is tested.
struct FactorialStudy {
  std::vector<int> levels;    // of each factor
  std::vector<int> term;      // the factors of the effect, counted from 0
  std::vector<double> means;  // of each cell, with the last factor fastest
  std::vector<double> sizes;
  double sd;
};

/// The analysis of drawn studies with all effects and interactions, coded as deviations: the effects are those of
/// unweighted means, also where the sizes differ ("type III").
class FactorialAnalysis {
public:
  explicit FactorialAnalysis(FactorialStudy study) : study_(std::move(study)), cellOf_(GroupOfEach(study_.sizes)) {
    y_.resize(cellOf_.size());
    unsigned tested = 0;
    for (int factor : study_.term) tested |= 1U << factor;
    const unsigned effects = 1U << study_.levels.size();
    for (unsigned effect = 0; effect < effects; ++effect) {
      if (effect != tested) AddEffect(effect, false);
    }
    AddEffect(tested, true);
  }

  const LinearModel& Model() const { return model_; }

  template <typename Engine>
  double F(Engine& engine) {
    std::normal_distribution<double> normal(0, study_.sd);
    for (std::size_t i = 0; i < y_.size(); ++i) {
      y_[i] = study_.means[static_cast<std::size_t>(cellOf_[i])] + normal(engine);
    }
    return model_.F(y_);
  }

private:
  /// The columns of an effect, whose factors are the bits set: one for each choice of deviations of its factors.
  void AddEffect(unsigned effect, bool isTested) {
    int columns = 1;
    for (std::size_t f = 0; f < study_.levels.size(); ++f) columns *= Has(effect, f) ? study_.levels[f] - 1 : 1;
    for (int which = 0; which < columns; ++which) {
      Column coded;
      for (int cell : cellOf_) coded.push_back(Coded(effect, which, cell));
      model_.Add(coded, isTested);
    }
  }

  double Coded(unsigned effect, int which, int cell) const {
    double product = 1;
    for (std::size_t f = study_.levels.size(); f-- > 0;) {
      const int levels = study_.levels[f];
      if (Has(effect, f)) {
        product *= Deviation(cell % levels, which % (levels - 1), levels);
        which /= levels - 1;
      }
      cell /= levels;
    }
    return product;
  }

  static bool Has(unsigned effect, std::size_t factor) { return (effect >> factor & 1U) != 0; }

  FactorialStudy study_;
  std::vector<int> cellOf_;
  Column y_;
  LinearModel model_;
};

}  // namespace kelpower

#endif
