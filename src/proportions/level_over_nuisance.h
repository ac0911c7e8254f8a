#ifndef KELPOWER_PROPORTIONS_LEVEL_OVER_NUISANCE_H
#define KELPOWER_PROPORTIONS_LEVEL_OVER_NUISANCE_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "proportions/table_region.h"

namespace kelpower::proportions {

/// The probabilities of regions of tables over all pairs of proportions that have a difference.
///
/// They are looked at on a grid first, whose steps are a third of the standard error of a proportion, on the scale of the
/// arcsine, where that is the same everywhere. A probability is a mean over binomial counts, so it does not change
/// faster. What the points of the grid have in common for all regions is kept.
class LevelOverNuisance {
public:
  LevelOverNuisance(const GroupSizes& sizes, double difference);

  /// The largest probability.
  double Largest(const TableRegion& region) const;

  /// Whether it is above `level`.
  bool Exceeds(const TableRegion& region, double level) const;

private:
  /// Binomial masses of group 2, those that are not negligible, and the distribution function of group 1.
  struct Point {
    std::size_t first2 = 0;
    std::vector<double> masses2;
    std::vector<double> below1;  ///< P(X1 < x) of x = 0, 1, ...
  };

  Point PointAt(double angle) const;
  std::vector<double> OnGrid(const TableRegion& region) const;
  double LargestBeside(const TableRegion& region, std::size_t peak) const;

  GroupSizes sizes_;
  double lowest_;  ///< of the proportion of group 1
  double width_;
  double difference_;
  double step_;
  std::vector<Point> grid_;
};

}  // namespace kelpower::proportions

#endif
