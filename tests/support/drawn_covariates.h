#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_COVARIATES_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_COVARIATES_H

#include <random>
#include <utility>
#include <vector>

#include "support/linear_model.h"

namespace kelpower {

/// Groups with covariates, on each of which the outcome depends with the same slope.
struct CovariateStudy {
  std::vector<double> means;
  std::vector<double> sizes;
  int covariates;
  double slope;
  double residualSd;
};

/// The analysis of covariance of drawn studies, each of which has covariates of its own.
class CovarianceAnalysis {
public:
  explicit CovarianceAnalysis(CovariateStudy study)
      : study_(std::move(study)),
        groupOf_(GroupOfEach(study_.sizes)),
        indicators_(Indicators(groupOf_, static_cast<int>(study_.means.size()))),
        y_(groupOf_.size()),
        covariate_(groupOf_.size()) {}

  template <typename Engine>
  double F(Engine& engine) {
    std::normal_distribution<double> normal(0, 1);
    for (std::size_t i = 0; i < y_.size(); ++i) {
      y_[i] = study_.means[static_cast<std::size_t>(groupOf_[i])] + study_.residualSd * normal(engine);
    }
    LinearModel model;
    model.Add(Column(y_.size(), 1), false);
    for (int c = 0; c < study_.covariates; ++c) {
      for (std::size_t i = 0; i < y_.size(); ++i) covariate_[i] = normal(engine);
      for (std::size_t i = 0; i < y_.size(); ++i) y_[i] += study_.slope * covariate_[i];
      model.Add(covariate_, false);
    }
    for (const Column& indicator : indicators_) model.Add(indicator, true);
    return model.F(y_);
  }

private:
  CovariateStudy study_;
  std::vector<int> groupOf_;
  std::vector<Column> indicators_;
  Column y_;
  Column covariate_;
};

}  // namespace kelpower

#endif
