#include "catalogue.h"
#include "correlation.h"
#include "correlation_parameters.h"

namespace planner {
namespace {

constexpr int carusoCliff = 2;

// The other variances divide by the size less 3.
double SmallestSize(const Inputs& in) { return in.Choice("variance") == carusoCliff ? 3 : 4; }

const CorrelationCalls calls = {
    [](const Inputs& in) {
      return PowerbyOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                    in.Flag("one-sided"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyOneSampSpearman(in.Number("power"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                           in.Flag("one-sided"), in.Alpha());
    },
    [](const Inputs& in) {
      return HalfCIOneSampSpearman(in.Number("n"), in.Number("r"), in.Choice("variance"), in.Alpha());
    },
    [](const Inputs& in) {
      return PowerReversebyHalfCIOneSampSpearman(in.Number("half-width"), in.Number("r"), in.Choice("variance"),
                                                 in.Alpha(), in.Stop());
    },
    [](const Inputs& in, const Range& sizes) {
      return PlotNOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                  in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last());
    },
    [](const Inputs& in, double step) {
      return PlotNullOneSampSpearman(in.Number("n"), in.Number("r"), in.Choice("variance"), in.Flag("one-sided"),
                                     in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotAlterOneSampSpearman(in.Number("n"), in.Number("null"), in.Choice("variance"), in.Flag("one-sided"),
                                      in.Alpha(), step);
    },
    [](const Inputs& in, double step) {
      return PlotRiskDiffOneSampSpearman(in.Number("n"), in.Number("null"), in.Choice("variance"), in.Flag("one-sided"),
                                         in.Alpha(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNRiskDiffOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                          in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNNullOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                      in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, const Range& sizes, double step) {
      return PlotNAlterOneSampSpearman(in.Number("n"), in.Number("r"), in.Number("null"), in.Choice("variance"),
                                       in.Flag("one-sided"), in.Alpha(), sizes.First(), sizes.Last(), step);
    },
    [](const Inputs& in, double step) {
      return PlotNullAlterOneSampSpearman(in.Number("n"), in.Choice("variance"), in.Flag("one-sided"), in.Alpha(),
                                          step);
    },
};

Test Describe() {
  CorrelationKind kind;
  kind.name = "spearman";
  kind.wording = "Spearman";
  kind.exports = "Spearman";
  kind.definition = "two variables";
  kind.method = "Fisher's z with the variance of {variance}";
  kind.accepts = {"variance"};
  kind.calls = calls;

  Test test = CorrelationTest(kind);
  test.parameters = {
      Correlation("correlation expected"),
      NullCorrelation(),
      CaseCount(3),
      TowardsCorrelation(),
      OneOf("variance", "variance of z", "approximation of the variance of Fisher's z of a rank correlation",
            {{"bonett-wright", 0, "Bonett and Wright"},
             {"fieller", 1, "Fieller, Hartley and Pearson"},
             {"caruso-cliff", carusoCliff, "Caruso and Cliff"}})
          .Default(std::string("bonett-wright")),
  };
  test.conditions = {
      {{"n", "variance"},
       [](const Inputs& in) { return in.Number("n") >= SmallestSize(in); },
       "--n is 3, but must be at least 4 unless --variance is caruso-cliff."},
  };
  test.examples = {
      {"spearman --r 0.3 --n 84",
       "With 84 cases, the two-sided test of a Spearman correlation of 0 by Fisher's z with the variance of Bonett and "
       "Wright at a significance level of 0.05 has a power of 0.7779 to detect a correlation of 0.3."},
      {"spearman --r 0.5 --null 0.2 --n 84 --one-sided --variance fieller",
       "With 84 cases, the one-sided test of a Spearman correlation of 0.2 by Fisher's z with the variance of Fieller, "
       "Hartley and Pearson at a significance level of 0.05 has a power of 0.9169 to detect a correlation of 0.5."},
      {"spearman --r 0.3 --power 0.9",
       "To detect a correlation of 0.3 with a power of 0.9, the two-sided test of a Spearman correlation of 0 by "
       "Fisher's z with the variance of Bonett and Wright at a significance level of 0.05 needs 118 cases; its power "
       "is then 0.9010."},
      {"spearman --r 0.3 --n 84 --interval",
       "With 84 cases, the 95% confidence interval of a Spearman correlation of 0.3 by Fisher's z with the variance of "
       "Bonett and Wright has a half-width of 0.2002."},
      {"spearman --r 0.7 --half-width 0.05",
       "For a 95% confidence interval of a Spearman correlation of 0.7 by Fisher's z with the variance of Bonett and "
       "Wright with a half-width of at most 0.05, the study needs 503 cases; the half-width is then 0.04995."},
  };
  return test;
}

}  // namespace

Test SpearmanTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
