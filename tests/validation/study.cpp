#include "validation/study.h"

#include <limits>
#include <map>
#include <stdexcept>

#include "kelcommon/kel_dist_fun.h"

namespace kelpower::validation {

using KelMath::KelDistFun;

double UpperNormal(double probability) { return -KelDistFun::IdfStdNorm(probability); }

double UpperT(double probability, double df) { return -KelDistFun::IdfT(probability, df, 0, 0); }

double UpperF(double probability, double df1, double df2) { return 1 / KelDistFun::IdfF(probability, df2, df1); }

Rejection SymmetricRejection(double alpha, bool isOneSided, double direction,
                             const std::function<double(double)>& upper) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  if (!isOneSided) {
    const double critical = upper(alpha / 2);
    return {-critical, critical};
  }
  const double critical = upper(alpha);
  return direction < 0 ? Rejection{-critical, infinity} : Rejection{-infinity, critical};
}

bool HasLimits(const Inputs& inputs) { return inputs.Has("margin") || inputs.Has("equivalence"); }

Limits LimitsOf(Inputs& inputs, double noEffect) {
  if (inputs.Has("equivalence")) {
    const Numbers both = inputs.List("equivalence");
    return {true, true, both[0], both[1]};
  }
  const double margin = inputs.Number("margin");
  const bool isSuperiority = inputs.Flag("superiority");
  if (isSuperiority == inputs.Flag("non-inferiority")) throw std::invalid_argument("what is the margin of?");
  const bool isUpper = isSuperiority ? margin < noEffect : margin > noEffect;
  return {!isUpper, isUpper, margin, margin};
}

Study MakeStudy(const std::string& test, Inputs& inputs) {
  static const std::map<std::string, Study (*)(Inputs&)> makers = {
      {"mean", OfMean},
      {"paired-means", OfPairedMeans},
      {"two-means", OfTwoMeans},
      {"crossover", OfCrossover},
      {"anova", OfAnova},
      {"contrast", OfContrast},
      {"pairwise", OfPairwise},
      {"tukey", OfTukey},
      {"dunnett", OfDunnett},
      {"factorial", OfFactorial},
      {"ancova", OfAncova},
      {"repeated-measures", OfRepeatedMeasures},
      {"variance", OfVariance},
      {"two-variances", OfTwoVariances},
      {"proportion", OfProportion},
      {"two-proportions", OfTwoProportions},
      {"paired-proportions", OfPairedProportions},
      {"goodness-of-fit", OfGoodnessOfFit},
      {"contingency", OfContingency},
      {"mann-whitney", OfMannWhitney},
      {"signed-rank", OfSignedRank},
      {"ordinal", OfOrdinal},
      {"pearson", OfPearson},
      {"spearman", OfSpearman},
      {"partial", OfPartial},
      {"two-correlations", OfTwoCorrelations},
      {"dependent-correlations", OfDependentCorrelations},
      {"regression", OfRegression},
  };
  return makers.at(test)(inputs);
}

}  // namespace kelpower::validation
