#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

constexpr int carusoCliff = 2;

// The other variances divide by the size less 3.
double SmallestSize(const Inputs& in) { return in.Choice("variance") == carusoCliff ? 3 : 4; }

double Power(const Inputs& in) {
  return PowerbyOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                in.Flag("one-sided"), in.Alpha());
}

double Size(const Inputs& in) {
  return PowerReversebyOneSampSpearman(in.Number("power"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                       in.Flag("one-sided"), in.Alpha());
}

double HalfWidth(const Inputs& in) {
  return HalfCIOneSampSpearman(in.Number("n"), in.Number("r"), in.Choice("variance"), in.Alpha());
}

double SizeForHalfWidth(const Inputs& in) {
  return PowerReversebyHalfCIOneSampSpearman(in.Number("half-width"), in.Number("r"), in.Choice("variance"), in.Alpha(),
                                             in.Stop());
}

Parameter Variance() {
  return OneOf("variance", "variance of z", "approximation of the variance of Fisher's z of a rank correlation",
               {{"bonett-wright", 0, "Bonett and Wright"},
                {"fieller", 1, "Fieller, Hartley and Pearson"},
                {"caruso-cliff", carusoCliff, "Caruso and Cliff"}})
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
                               .power = Power,
                               .size = Size,
                               .halfWidth = HalfWidth,
                               .sizeForHalfWidth = SizeForHalfWidth});
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
