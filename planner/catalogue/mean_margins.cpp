#include "catalogue/mean_margins.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/mean_parameters.h"
#include "means/margins.h"

namespace planner {

namespace means = kelpower::means;

double MeanQuestion::Above(double other) const { return isRatio ? means::LogDistance(effect, other) : effect - other; }

double DistanceFromMargin(const Inputs& in, const MeanQuestion& question) {
  const double above = question.Above(in.Number("margin"));
  return IsAboveMargin(in, question.NoEffect()) ? above : -above;
}

means::Insides DistancesFromLimits(const Inputs& in, const MeanQuestion& question) {
  const Numbers& limits = in.List("equivalence");
  return {question.Above(limits[0]), -question.Above(limits[1])};
}

double PowerOfMeans(const Inputs& in, const MeanQuestion& question) {
  const means::DifferenceDistribution& estimate = question.estimate;
  if (IsEquivalence(in)) {
    return OrNaN(means::PowerBetweenLimits(DistancesFromLimits(in, question), in.Alpha(), estimate));
  }
  if (HasMargins(in)) {
    return OrNaN(means::PowerBeyondMargin(DistanceFromMargin(in, question), in.Alpha(), estimate));
  }
  if (!(estimate.df > 0)) return OrNaN(kelpower::NoValue::Refused);
  return means::TTestOfAMean(SidesOf(in), in.Alpha(), estimate.df, estimate.standardError)
      .Power(question.Above(question.NoEffect()));
}

Parameter MeanRatio() {
  return Number("mean-ratio", "ratio of the means",
                "first mean over the second, of lognormal data, which are tested on the log scale")
      .Alias("gmr")
      .Above(0);
}

Parameter CoefficientOfVariation(std::string meaning) {
  return Number("cv", "coefficient of variation", std::move(meaning)).Above(0).AtMost(1e6);
}

}  // namespace planner
