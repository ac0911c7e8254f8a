#include <algorithm>
#include <string>

#include "catalogue/axes.h"
#include "catalogue/charts.h"
#include "catalogue/paired_proportions.h"

namespace planner {
namespace {

constexpr double mostCharted = 2500;  // pairs

}  // namespace

std::vector<Chart> ChartsOfPairedProportions() {
  const Axis size = SizeAxis("number of pairs", 2, mostCharted, [](const Inputs& in, double) -> Range {
    return {2, std::min(2 * in.Number("n"), mostCharted)};
  });
  const Names ofPairs{"p12", "p21", "n"};
  const Names ofMarginals{"proportion1", "proportion2", "correlation", "n"};
  const Names options{"one-sided", "exact"};
  const std::string pairs = "paired-proportions --p12 0.32 --p21 0.08 --n 50 --chart ";
  const std::string marginals =
      "paired-proportions --proportion1 0.6 --proportion2 0.4 --correlation 0.3 --n 60 --chart ";
  return {
      {.name = "n", .axes = {size}, .needs = ofPairs, .accepts = options, .example = pairs + "n"},
      {.name = "difference",
       .axes = {DifferenceAxisOfPairedProportions()},
       .needs = ofPairs,
       .accepts = options,
       .example = pairs + "difference"},
      {.name = "ratio",
       .axes = {RatioAxisOfPairedProportions()},
       .needs = ofPairs,
       .accepts = options,
       .example = pairs + "ratio --from 0.5 --to 5 --exact"},
      {.name = "odds-ratio",
       .axes = {OddsRatioAxisOfPairedProportions()},
       .needs = ofPairs,
       .accepts = options,
       .example = pairs + "odds-ratio --from 0.5 --to 8"},
      {.name = "correlation",
       .axes = {CorrelationAxisOfPairedProportions()},
       .needs = ofMarginals,
       .accepts = options,
       .example = marginals + "correlation --exact"},
      {.name = "discordant",
       .axes = {ProportionAxis("p12 (success first; failure second)", "p12", "p12"),
                ProportionAxis("p21 (failure first; success second)", "p21", "p21")},
       .needs = ofPairs,
       .accepts = options,
       .example = pairs + "discordant --step 0.05"},
      {.name = "marginal",
       .axes = {ProportionAxis("first proportion", "p1", "proportion1"),
                ProportionAxis("second proportion", "p2", "proportion2")},
       .needs = ofMarginals,
       .accepts = options,
       .example = marginals + "marginal --one-sided"},
  };
}

}  // namespace planner
