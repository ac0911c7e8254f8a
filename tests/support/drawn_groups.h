#ifndef KELPOWER_TESTS_SUPPORT_DRAWN_GROUPS_H
#define KELPOWER_TESTS_SUPPORT_DRAWN_GROUPS_H

#include <cmath>
#include <vector>

#include "support/share_of_studies.h"

namespace kelpower {

/// Groups of normal data with one standard deviation of 1.
struct GroupStudy {
  std::vector<double> means;  // in standard deviations
  std::vector<double> sizes;

  double Total() const {
    double total = 0;
    for (double size : sizes) total += size;
    return total;
  }
};

/// The means of a sample of each group, with the pooled variance of all.
class DrawnGroups {
public:
  template <typename Engine>
  DrawnGroups(const GroupStudy& study, Engine& engine) : study_(study) {
    double squares = 0;
    for (std::size_t i = 0; i < study.sizes.size(); ++i) {
      const Moments moments = DrawNormal(engine, static_cast<int>(study.sizes[i]), study.means[i], 1);
      means_.push_back(moments.mean);
      squares += study.sizes[i] > 1 ? moments.variance * (study.sizes[i] - 1) : 0;
    }
    variance_ = squares / (study.Total() - static_cast<double>(means_.size()));
  }

  /// The t statistic of two groups.
  double T(std::size_t i, std::size_t j) const {
    return (means_[i] - means_[j]) / std::sqrt(variance_ * (1 / study_.sizes[i] + 1 / study_.sizes[j]));
  }

  /// The t statistic of a contrast.
  double T(const std::vector<double>& coefficients) const {
    double contrast = 0;
    double squares = 0;
    for (std::size_t i = 0; i < means_.size(); ++i) {
      contrast += coefficients[i] * means_[i];
      squares += coefficients[i] * coefficients[i] / study_.sizes[i];
    }
    return contrast / std::sqrt(variance_ * squares);
  }

  /// The F statistic of all groups.
  double F() const {
    double mean = 0;
    for (std::size_t i = 0; i < means_.size(); ++i) mean += study_.sizes[i] * means_[i];
    mean /= study_.Total();
    double between = 0;
    for (std::size_t i = 0; i < means_.size(); ++i) {
      between += study_.sizes[i] * (means_[i] - mean) * (means_[i] - mean);
    }
    return between / (static_cast<double>(means_.size()) - 1) / variance_;
  }

  std::size_t Groups() const { return means_.size(); }

private:
  const GroupStudy& study_;
  std::vector<double> means_;
  double variance_;
};

}  // namespace kelpower

#endif
