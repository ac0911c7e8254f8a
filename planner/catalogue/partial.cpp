#include <algorithm>
#include <utility>

#include "catalogue/core.h"
#include "catalogue/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "correlation/pearson.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

constexpr double mostPartialledOut = 1e5;

double PartialledOut(const Inputs& in) { return in.Number("partialled-out"); }

double SmallestSize(const Inputs& in) { return PartialledOut(in) + 4; }

/// The test of a partial correlation corrects the bias, and its interval does not.
correlation::PearsonTest TestOf(const Inputs& in) {
  return {{in.Alpha(), in.Flag("one-sided")}, PartialledOut(in), true};
}

correlation::PearsonInterval IntervalOf(const Inputs& in) {
  return {correlation::Confidence(in.Alpha()), in.Number("r"), PartialledOut(in), false};
}

double Power(const Inputs& in) { return OrNaN(correlation::Power(TestOf(in), in.Number("n"), HypothesesOf(in))); }

Numbers Size(const Inputs& in) {
  return RoundedUp(correlation::SizeForPower(TestOf(in), HypothesesOf(in), in.Number("power"), StopOf(in)));
}

double HalfWidth(const Inputs& in) { return correlation::HalfWidth(IntervalOf(in), in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(correlation::SizeForHalfWidth(IntervalOf(in), in.Number("half-width"), StopOf(in)));
}

std::optional<Problem> RefuseDrawnSizes(const Inputs& in, const Range& sizes) {
  constexpr double sizesBeyondPartialledOut = 5000;
  return RefuseSizes(sizes, {SmallestSize(in), PartialledOut(in) + sizesBeyondPartialledOut});
}

// The chart has a point for each case; beyond this there would be more than it can show.
constexpr double largestPartialledOutSize = 1e6;

std::optional<Problem> RefuseManyCases(const Inputs& in, const Range&) {
  if (in.Number("n") <= largestPartialledOutSize) return std::nullopt;
  return Problem{.code = Code::ChartRangeRefused,
                 .inputs = {"chart", "n"},
                 .sentence = "{chart} partialled-out has a point for each case: {n} must be at most 1000000."};
}

Chart OverVariablesPartialledOut() {
  Axis axis{.title = "variables partialled out",
            .symbol = "k",
            .limits = {0, mostPartialledOut, true, true, true},
            .input = Name("partialled-out"),
            .usual = [](const Inputs& in, double) -> Range {
              return {0, std::max(in.Number("n") - 5, 1.0)};
            },
            .refuse = RefuseManyCases};
  return {.name = "partialled-out",
          .axes = {std::move(axis)},
          .needs = {"r", "partialled-out", "n"},
          .accepts = {"null", "one-sided"},
          .example = "partial --r 0.3 --partialled-out 3 --n 84 --chart partialled-out --from 0 --to 60"};
}

}  // namespace

Test PartialTest() {
  Test test = CorrelationTest({.name = "partial",
                               .wording = "partial",
                               .exports = "Partial",
                               .definition = "two variables, given others,",
                               .given = " given {partialled-out} variables",
                               .exampleArguments = " --partialled-out 3",
                               .needs = {"partialled-out"},
                               .mostPartialledOut = mostPartialledOut,
                               .power = Power,
                               .size = Size,
                               .halfWidth = HalfWidth,
                               .sizeForHalfWidth = SizeForHalfWidth,
                               .refuseSizes = RefuseDrawnSizes});
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      Number("partialled-out", "variables partialled out", "number of variables partialled out")
          .Whole()
          .AtLeast(0)
          .AtMost(mostPartialledOut),
      CaseCount(4),
      TowardsCorrelation(),
  };
  test.conditions = {
      {.code = "error-degrees",
       .about = {"n", "partialled-out"},
       .holds = [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       .sentence = "{n} must exceed the number of variables partialled out by at least 4."},
  };
  test.charts.push_back(OverVariablesPartialledOut());
  test.offers = OffersOfPartial();
  AddWordsOfPartial(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
