#ifndef KELPOWER_PLANNER_CATALOGUE_MEAN_MARGINS_H
#define KELPOWER_PLANNER_CATALOGUE_MEAN_MARGINS_H

#include <string>
#include <vector>

#include "catalogue/margins.h"
#include "means/equivalence.h"
#include "means/independent.h"
#include "model/test.h"

// What the tests of means against margins share. A ratio of means is tested on the log scale.
namespace planner {

/// A test of means at a design.
struct MeanQuestion {
  double effect;  ///< a difference, or a ratio
  bool isRatio;
  kelpower::means::DifferenceDistribution estimate;  ///< of the difference, or of the logarithm of the ratio

  double NoEffect() const { return isRatio ? noRatio : noDifference; }
  /// How far the effect is above another one, on the scale of the test.
  double Above(double other) const;
};

/// How far the effect lies beyond the margin, on the side that is to be shown, and inside the limits of equivalence.
double DistanceFromMargin(const Inputs& in, const MeanQuestion& question);
kelpower::means::Insides DistancesFromLimits(const Inputs& in, const MeanQuestion& question);

/// The power against the margins of the inputs, or against no effect.
double PowerOfMeans(const Inputs& in, const MeanQuestion& question);

/// What is behind that power. `source` is that of the estimate.
Details DetailsOfMeanMargins(const Inputs& in, const MeanQuestion& question, const std::string& source);

/// Adds how the R package PowerTOST is asked the same, with `sd` in braces and its word for the design.
void AddPowerTost(Details& details, const Inputs& in, const std::string& sd, const std::string& design);

/// The inputs of a ratio.
Parameter MeanRatio();
Parameter CoefficientOfVariation(std::string meaning);

/// The effect as an unknown, of a difference or of a ratio as the number of no effect tells. The power rises from
/// the margin on, or from the upper limit to the middle of the limits.
Unknown UnknownMeanDifferenceWithMargins();
Unknown UnknownMeanRatio();
Piece PieceOfEffect(const Inputs& in, double noEffect);
/// On the other side of the middle, or of no effect; the trend there is the other one.
Piece PieceOfEffectBelow(const Inputs& in, double noEffect);

/// The spread as an unknown: its power falls as it grows, unless the effect lies on the wrong side of its margin.
Unknown UnknownSpread(Name input, Piece (*piece)(const Inputs&));
Piece PieceOfSpread(bool isWithinMargins);

/// The margin as an unknown: its power rises as it moves away from the effect.
Unknown UnknownMargin(Piece (*piece)(const Inputs&));
Piece PieceOfMargin(const Inputs& in, double effect, double noEffect);

}  // namespace planner

#endif
