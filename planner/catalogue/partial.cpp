#include <algorithm>
#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_calls.h"
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

}  // namespace

Test PartialTest() {
  Test test = CorrelationTest({.name = "partial",
                               .wording = "partial",
                               .exports = "Partial",
                               .definition = "two variables, given others,",
                               .given = " given {partialled-out} variables",
                               .needs = {"partialled-out"},
                               .calls = CallsWith<TestOf, IntervalOf>()});
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
  test.offers = OffersOfPartial();
  AddWordsOfPartial(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
