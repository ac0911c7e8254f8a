#include "catalogue/partial.h"

#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_calls.h"
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
                               .calls = CallsWith<TestOf, IntervalOf>(),
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
