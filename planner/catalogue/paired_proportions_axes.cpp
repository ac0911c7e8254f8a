#include <algorithm>
#include <cmath>

#include "catalogue/paired_proportions.h"

namespace planner {
namespace {

constexpr double usualSpan = 3;  // of ratios

double P12(const Inputs& in) { return in.Number("p12"); }
double P21(const Inputs& in) { return in.Number("p21"); }

double Odds(double proportion) { return proportion / (1 - proportion); }

/// Up to p12 = 0.5 the ratio varies p21, above it p12.
bool VariesP21(const Inputs& in) { return P12(in) <= 0.5; }

/// The differences at which p12 leaves p21 between 0 and the rest.
Range AllDifferences(const Inputs& in) { return {2 * P12(in) - 1, P12(in)}; }

/// Ratios at which p12 and p21 sum to at most 1.
Range UsualRatios(const Inputs& in, double) {
  if (VariesP21(in)) return {Odds(P12(in)), usualSpan};
  return {1 / usualSpan, (1 - P21(in)) / P21(in)};
}

/// From where p12 and p21 sum to 1.
Range UsualOddsRatios(const Inputs& in, double) {
  const double lowest = Odds(P12(in)) * Odds(P12(in));
  return {lowest, lowest + usualSpan};
}

Range AllCorrelations(const Inputs&) { return {-1, 1}; }

/// The correlation at which the rarer success never comes without the other.
double LargestCorrelation(const Inputs& in) {
  const double odds1 = Odds(in.Number("proportion1"));
  const double odds2 = Odds(in.Number("proportion2"));
  return std::sqrt(std::min(odds1, odds2) / std::max(odds1, odds2));
}

}  // namespace

Axis DifferenceAxisOfPairedProportions() {
  return {.title = "difference p12 - p21",
          .symbol = "difference",
          .limits = {-1, 1, true, true, false},
          .design = [](const Inputs& in) { return P12(in) - P21(in); },
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("p21", P12(design) - at); },
          .usual = [](const Inputs&, double) -> Range {
            return {-1, 1};
          },
          .scale = AllDifferences,
          .scaleEnds = ScaleEnds::None,
          .stepIsOfScale = true};
}

Axis RatioAxisOfPairedProportions() {
  return {.title = "ratio p12 / p21",
          .symbol = "ratio",
          .limits = {0.1, 10, true, true, false},
          .design = [](const Inputs& in) { return P12(in) / P21(in); },
          .vary =
              [](Inputs& in, const Inputs& design, double at) {
                if (VariesP21(design)) {
                  in.Set("p21", P12(design) / at);
                } else {
                  in.Set("p12", at * P21(design));
                }
              },
          .usual = UsualRatios};
}

Axis OddsRatioAxisOfPairedProportions() {
  return {.title = "odds ratio of p12 to p21",
          .symbol = "odds ratio",
          .limits = {0, 1e6, false, true, false},
          .design = [](const Inputs& in) { return Odds(P12(in)) / Odds(P21(in)); },
          .vary =
              [](Inputs& in, const Inputs& design, double at) {
                const double p12 = P12(design);
                in.Set("p21", p12 / ((1 - p12) * at + p12));
              },
          .usual = UsualOddsRatios};
}

Axis CorrelationAxisOfPairedProportions() {
  return {.title = "correlation of the two outcomes",
          .symbol = "correlation",
          .limits = {-1, 1, true, true, false},
          .input = Name("correlation"),
          .usual = [](const Inputs& in, double) -> Range {
            return {-1, LargestCorrelation(in)};
          },
          .scale = AllCorrelations,
          .stepIsOfScale = true};
}

}  // namespace planner
