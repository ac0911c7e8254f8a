#ifndef KELPOWER_PROPORTIONS_CONSTRAINED_PROPORTIONS_H
#define KELPOWER_PROPORTIONS_CONSTRAINED_PROPORTIONS_H

namespace kelpower::proportions {

/// How two proportions are compared: p2 - p1, p2 / p1, or the odds of p2 over those of p1.
enum class Contrast { Difference, RiskRatio, OddsRatio };

struct TwoProportions {
  double p1;
  double p2;
};

/// The proportions that make the expected or observed ones most likely among those whose contrast is `limit`. `ratio` is
/// the size of group 2 over that of group 1.
TwoProportions ConstrainedProportions(Contrast contrast, double limit, const TwoProportions& proportions, double ratio);

}  // namespace kelpower::proportions

#endif
