#include "catalogue/partial.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "correlation/pearson.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;

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
                               .refuseSizes = RefusePartialSizes});
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
       .holds = [](const Inputs& in) { return in.Number("n") >= SmallestPartialSize(in); },
       .sentence = "{n} must exceed the number of variables partialled out by at least 4."},
  };
  test.charts.push_back(PowerOverVariablesPartialledOut());
  AddWordsOfPartial(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
