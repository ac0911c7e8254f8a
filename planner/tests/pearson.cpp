#include "catalogue.h"
#include "correlation.h"
#include "correlation_parameters.h"

namespace planner {
namespace {

constexpr double smallestSize = 4;

const CorrelationCalls calls = {
    [](const Inputs& in) {
      return PowerbyOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                   in.Flag("adjust-bias"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyOneSampPearson(in.Number("power"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                          in.Flag("adjust-bias"), in.Alpha(), in.Stop());
    },
    [](const Inputs& in) {
      return HalfCIOneSampPearson(in.Number("n"), in.Number("r"), in.Flag("adjust-bias"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyHalfCIOneSampPearson(in.Number("half-width"), in.Number("r"), in.Flag("adjust-bias"),
                                                in.Alpha(), in.Stop());
    },
    [](const Inputs& in, const Range& sizes) {
      return PlotNOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                 in.Flag("adjust-bias"), in.Alpha(), sizes.First(), sizes.Last());
    },
    [](const Inputs& in, double step) {
      return PlotNullOneSampPearson(in.Number("n"), in.Number("r"), in.Flag("one-sided"), in.Flag("adjust-bias"),
                                    in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotAlterOneSampPearson(in.Number("n"), in.Number("null"), in.Flag("one-sided"), in.Flag("adjust-bias"),
                                     in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotRiskDiffOneSampPearson(in.Number("n"), in.Number("null"), in.Flag("one-sided"), in.Flag("adjust-bias"),
                                        in.Alpha(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNRiskDiffOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                         in.Flag("adjust-bias"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNNullOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                     in.Flag("adjust-bias"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNAlterOneSampPearson(in.Number("n"), in.Number("r"), in.Number("null"), in.Flag("one-sided"),
                                      in.Flag("adjust-bias"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, double step) {
      return PlotNullAlterOneSampPearson(in.Number("n"), in.Flag("one-sided"), in.Flag("adjust-bias"), in.Alpha(),
                                         step);
    },
};

Test Describe() {
  CorrelationKind kind;
  kind.name = "pearson";
  kind.wording = "Pearson";
  kind.exports = "Pearson";
  kind.definition = "two variables";
  kind.method = "Fisher's z{adjust-bias?, corrected for bias,}";
  kind.accepts = {"adjust-bias"};
  kind.calls = calls;

  Test test = CorrelationTest(kind);
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(smallestSize),
      TowardsCorrelation(),
      Flag("adjust-bias", "bias adjustment", "correct Fisher's z for its bias in small samples"),
  };
  test.examples = {
      {"pearson --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Pearson correlation of 0 by Fisher's z at a significance level of 0.05 "
       "has a power of 0.7955 to detect a correlation of 0.3."},
      {"pearson --r 0.5 --null 0.2 --n 84 --one-sided --adjust-bias",
       "With 84 cases, the one-sided test of a Pearson correlation of 0.2 by Fisher's z, corrected for bias, at a "
       "significance level of 0.05 has a power of 0.9322 to detect a correlation of 0.5."},
      {"pearson --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Pearson correlation of 0 by "
       "Fisher's z at a significance level of 0.05 needs 113 cases; its power is then 0.9008."},
      {"pearson --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Pearson correlation of 0.3 by Fisher's z has a half-width of "
       "0.1959."},
      {"pearson --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Pearson correlation of 0.7 by Fisher's z with a half-width of at most 0.05, "
       "the study needs 404 cases; the half-width is then 0.04999."},
  };
  return test;
}

}  // namespace

Test PearsonTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
