#include "correlation/spearman.h"

#include <utility>

#include "catalogue/core.h"
#include "catalogue/correlation.h"
#include "catalogue/correlation_calls.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"

namespace planner {
namespace {

namespace correlation = kelpower::correlation;
using correlation::RankVariance;

RankVariance VarianceOf(const Inputs& in) { return RankVariance(in.Choice("variance")); }

// The other variances divide by the size less 3.
double SmallestSize(const Inputs& in) { return VarianceOf(in) == RankVariance::CarusoCliff ? 3 : 4; }

correlation::SpearmanTest TestOf(const Inputs& in) { return {{in.Alpha(), in.Flag("one-sided")}, VarianceOf(in)}; }

correlation::SpearmanInterval IntervalOf(const Inputs& in) {
  return {correlation::Confidence(in.Alpha()), in.Number("r"), VarianceOf(in)};
}

Parameter Variance() {
  return OneOf("variance", "variance of z", "approximation of the variance of Fisher's z of a rank correlation",
               {{"bonett-wright", CodeOf(RankVariance::BonettWright), "Bonett and Wright"},
                {"fieller", CodeOf(RankVariance::FiellerHartleyPearson), "Fieller, Hartley and Pearson"},
                {"caruso-cliff", CodeOf(RankVariance::CarusoCliff), "Caruso and Cliff"}})
      .Default("bonett-wright");
}

}  // namespace

Test SpearmanTest() {
  Test test = CorrelationTest({.name = "spearman",
                               .wording = "Spearman",
                               .exports = "Spearman",
                               .definition = "two variables",
                               .method = "Fisher's z with the variance of {variance}",
                               .accepts = {"variance"},
                               .calls = CallsWith<TestOf, IntervalOf>()});
  test.parameters = {
      Correlation("correlation expected"), NullCorrelation(), CaseCount(3), TowardsCorrelation(), Variance(),
  };
  test.conditions = {
      {.code = "smallest-size",
       .about = {"n", "variance"},
       .holds = [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       .sentence = "{n} is 3, but must be at least 4 unless {variance} is caruso-cliff."},
  };
  AddWordsOfSpearman(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
