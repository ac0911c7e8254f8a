#include <limits>

#include "catalogue/axes.h"
#include "catalogue/paired_proportions.h"

namespace planner {
namespace {

double P12(const Inputs& in) { return in.Number("p12"); }
double P21(const Inputs& in) { return in.Number("p21"); }

double Odds(double proportion) { return proportion / (1 - proportion); }

/// Up to half of the pairs p12 leaves p21 room to vary; beyond it is p12 that varies.
bool VariesP21(const Inputs& in) { return P12(in) <= 0.5; }

Axis DifferenceAxis() {
  return {.name = "difference",
          .title = "difference p12 - p21",
          .symbol = "difference",
          .needs = {"p12", "p21"},
          .limits = {-1, 1, true, true, false},
          .design = [](const Inputs& in) { return P12(in) - P21(in); },
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("p21", P12(design) - at); },
          .scale = [](const Inputs& in) -> Range {
            return {2 * P12(in) - 1, P12(in)};
          }};
}

constexpr double largestRatio = 1000;

Axis RatioAxis() {
  return {.name = "ratio",
          .title = "ratio p12 / p21",
          .symbol = "ratio",
          .needs = {"p12", "p21"},
          .limits = {0, largestRatio, false, true, false},
          .design = [](const Inputs& in) { return P12(in) / P21(in); },
          .vary =
              [](Inputs& in, const Inputs& design, double at) {
                if (VariesP21(design)) {
                  in.Set("p21", P12(design) / at);
                } else {
                  in.Set("p12", at * P21(design));
                }
              },
          .scale = [](const Inputs& in) -> Range {
            if (VariesP21(in)) return {Odds(P12(in)), std::numeric_limits<double>::infinity()};
            return {0, 1 / Odds(P21(in))};
          }};
}

Axis OddsRatioAxis() {
  return {.name = "odds-ratio",
          .title = "odds ratio of p12 to p21",
          .symbol = "odds ratio",
          .needs = {"p12", "p21"},
          .limits = {0, largestRatio, false, true, false},
          .design = [](const Inputs& in) { return Odds(P12(in)) / Odds(P21(in)); },
          .vary =
              [](Inputs& in, const Inputs& design, double at) {
                const double p12 = P12(design);
                in.Set("p21", p12 / ((1 - p12) * at + p12));
              },
          .scale = [](const Inputs& in) -> Range {
            return {Odds(P12(in)) * Odds(P12(in)), std::numeric_limits<double>::infinity()};
          }};
}

}  // namespace

std::vector<Axis> AxesOfPairedProportions() { return {DifferenceAxis(), RatioAxis(), OddsRatioAxis()}; }

}  // namespace planner
