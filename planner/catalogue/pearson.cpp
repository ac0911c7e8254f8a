#include <utility>

#include "catalogue/correlation.h"
#include "catalogue/correlation_parameters.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "kelpower.h"

namespace planner {
namespace {

double Power(const Inputs& in) {
  return PowerbyOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                               in.Flag("adjust-bias"), in.Alpha());
}

double Size(const Inputs& in) {
  return PowerReversebyOneSampPearson(in.Number("power"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                      in.Flag("adjust-bias"), in.Alpha(), in.Stop());
}

double HalfWidth(const Inputs& in) {
  return HalfCIOneSampPearson(in.Number("n"), in.Number("r"), in.Flag("adjust-bias"), in.Alpha());
}

double SizeForHalfWidth(const Inputs& in) {
  return PowerReversebyHalfCIOneSampPearson(in.Number("half-width"), in.Number("r"), in.Flag("adjust-bias"), in.Alpha(),
                                            in.Stop());
}

}  // namespace

Test PearsonTest() {
  Test test = CorrelationTest({.name = "pearson",
                               .wording = "Pearson",
                               .exports = "Pearson",
                               .definition = "two variables",
                               .method = "Fisher's z{adjust-bias?, corrected for bias,}",
                               .accepts = {"adjust-bias"},
                               .power = Power,
                               .size = Size,
                               .halfWidth = HalfWidth,
                               .sizeForHalfWidth = SizeForHalfWidth});
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(4),
      TowardsCorrelation(),
      Flag("adjust-bias", "bias adjustment", "correct Fisher's z for its bias in small samples"),
  };
  AddWordsOfPearson(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
