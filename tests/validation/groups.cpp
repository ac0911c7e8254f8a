#include <cmath>
#include <memory>
#include <stdexcept>

#include "comparisons/dunnett.h"
#include "kelcommon/distributions.h"
#include "support/drawn_covariates.h"
#include "support/drawn_factorial.h"
#include "support/drawn_groups.h"
#include "support/drawn_measurements.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

double Sum(const Numbers& values) {
  double sum = 0;
  for (double value : values) sum += value;
  return sum;
}

/// Means at equal steps whose spread, weighted by the sizes, is `f`.
Numbers MeansOfSpread(double f, const Numbers& sizes) {
  double mean = 0;
  double squares = 0;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const auto step = static_cast<double>(i);
    mean += sizes[i] * step;
    squares += sizes[i] * step * step;
  }
  mean /= Sum(sizes);
  const double spread = std::sqrt(squares / Sum(sizes) - mean * mean);
  Numbers means;
  for (std::size_t i = 0; i < sizes.size(); ++i) means.push_back(f * (static_cast<double>(i) - mean) / spread);
  return means;
}

std::size_t CountGroups(Inputs& inputs) {
  for (const char* list : {"means", "n", "coefficients"}) {
    if (inputs.Has(list) && inputs.PerGroup(list, 0).size() > 1) return inputs.List(list).size();
  }
  return static_cast<std::size_t>(inputs.Whole("groups"));
}

/// The means in standard deviations, which all tests of groups take, or an effect size f.
GroupStudy OfGroups(Inputs& inputs) {
  const std::size_t groups = CountGroups(inputs);
  if (inputs.Has("groups")) inputs.Whole("groups");
  GroupStudy study{{}, inputs.PerGroup("n", groups)};
  if (inputs.Has("means")) {
    study.means = inputs.List("means");
    const double sd = inputs.Number("sd");
    for (double& mean : study.means) mean /= sd;
  } else if (inputs.Has("eta-squared")) {
    const double explained = inputs.Number("eta-squared");
    study.means = MeansOfSpread(std::sqrt(explained / (1 - explained)), study.sizes);
  } else if (inputs.Has("effect-f")) {
    study.means = MeansOfSpread(inputs.Number("effect-f"), study.sizes);
  } else {
    study.means = Numbers(groups, 0);
  }
  return study;
}

double ErrorDf(const GroupStudy& study) { return study.Total() - static_cast<double>(study.sizes.size()); }

struct Pair {
  std::size_t first;
  std::size_t second;
};

Pair PairOf(Inputs& inputs) {
  const Numbers pair = inputs.List("pair");
  return {static_cast<std::size_t>(pair[0]) - 1, static_cast<std::size_t>(pair[1]) - 1};
}

Study ExceedsT(const GroupStudy& study, Pair pair, double critical) {
  return {true,
          [=](Engine& engine) { return std::fabs(DrawnGroups(study, engine).T(pair.first, pair.second)) > critical; }};
}

double LevelOfPairs(Inputs& inputs, double groups) {
  const std::string adjust = inputs.Choice("adjust", "bonferroni");
  const double pairs = groups * (groups - 1) / 2;
  if (adjust == "none") return inputs.Alpha();
  return adjust == "sidak" ? 1 - std::pow(1 - inputs.Alpha(), 1 / pairs) : inputs.Alpha() / pairs;
}

/// An analysis of drawn studies that gives F.
template <typename Analysis>
Study ExceedsF(Analysis analysis, double critical, bool isExact = true) {
  const auto shared = std::make_shared<Analysis>(std::move(analysis));
  return {isExact, [=](Engine& engine) { return shared->F(engine) > critical; }};
}

}  // namespace

Study OfAnova(Inputs& inputs) {
  const GroupStudy study = OfGroups(inputs);
  const double critical = UpperF(inputs.Alpha(), static_cast<double>(study.sizes.size()) - 1, ErrorDf(study));
  return {true, [=](Engine& engine) { return DrawnGroups(study, engine).F() > critical; }};
}

Study OfContrast(Inputs& inputs) {
  GroupStudy study = OfGroups(inputs);
  const Numbers coefficients = inputs.List("coefficients");
  if (inputs.Has("effect-d")) {
    double squares = 0;
    for (double c : coefficients) squares += c * c;
    for (std::size_t i = 0; i < coefficients.size(); ++i) {
      study.means[i] = inputs.Number("effect-d") * coefficients[i] / squares;
    }
  }
  double contrast = 0;
  for (std::size_t i = 0; i < coefficients.size(); ++i) contrast += coefficients[i] * study.means[i];
  const double df = ErrorDf(study);
  const Rejection rejects = SymmetricRejection(inputs.Alpha(), inputs.Flag("one-sided"), contrast,
                                               [df](double tail) { return UpperT(tail, df); });
  return {true, [=](Engine& engine) { return rejects(DrawnGroups(study, engine).T(coefficients)); }};
}

Study OfPairwise(Inputs& inputs) {
  GroupStudy study = OfGroups(inputs);
  const Pair pair = PairOf(inputs);
  if (inputs.Has("effect-d")) study.means[pair.first] = inputs.Number("effect-d");
  const double level = LevelOfPairs(inputs, static_cast<double>(study.sizes.size()));
  return ExceedsT(study, pair, UpperT(level / 2, ErrorDf(study)));
}

Study OfTukey(Inputs& inputs) {
  GroupStudy study = OfGroups(inputs);
  const auto groups = static_cast<double>(study.sizes.size());
  const double critical = kelcommon::IsfStudentizedRange(inputs.Alpha(), groups, ErrorDf(study)) / std::sqrt(2.0);
  if (inputs.Has("pair")) {
    const Pair pair = PairOf(inputs);
    if (inputs.Has("effect-d")) study.means[pair.first] = inputs.Number("effect-d");
    return ExceedsT(study, pair, critical);
  }
  if (inputs.Has("effect-d")) {
    study.means.front() = -inputs.Number("effect-d") / 2;
    study.means.back() = inputs.Number("effect-d") / 2;
  }
  return {true, [=](Engine& engine) {
            const DrawnGroups sample(study, engine);
            for (std::size_t i = 0; i < sample.Groups(); ++i) {
              for (std::size_t j = 0; j < i; ++j) {
                if (std::fabs(sample.T(i, j)) > critical) return true;
              }
            }
            return false;
          }};
}

Study OfDunnett(Inputs& inputs) {
  GroupStudy study = OfGroups(inputs);
  if (inputs.Has("effect-d")) {
    for (std::size_t i = 1; i < study.means.size(); ++i) study.means[i] = inputs.Number("effect-d");
  }
  const bool isOneSided = inputs.Flag("one-sided");
  const bool wantsAll = inputs.Flag("all-comparisons");
  const std::size_t one = inputs.Has("group") ? static_cast<std::size_t>(inputs.Whole("group")) - 1 : 0;
  // The critical value is the library's own. Designs without an effect show that it keeps the level.
  const double critical = comparisons::DunnettTest(study.sizes, isOneSided, inputs.Alpha()).Critical();
  return {true, [=](Engine& engine) {
            const DrawnGroups sample(study, engine);
            const auto isSignificant = [&](std::size_t i) {
              const double t = sample.T(i, 0);
              return (isOneSided ? t : std::fabs(t)) > critical;
            };
            if (one > 0) return isSignificant(one);
            for (std::size_t i = 1; i < sample.Groups(); ++i) {
              if (isSignificant(i) != wantsAll) return !wantsAll;
            }
            return wantsAll;
          }};
}

Study OfFactorial(Inputs& inputs) {
  FactorialStudy study{};
  int cells = 1;
  for (double levels : inputs.List("levels")) {
    study.levels.push_back(static_cast<int>(levels));
    cells *= study.levels.back();
  }
  for (double factor : inputs.List("term")) study.term.push_back(static_cast<int>(factor) - 1);
  study.means = inputs.List("means");
  study.sizes = inputs.PerGroup("n", static_cast<std::size_t>(cells));
  study.sd = inputs.Number("sd");
  double df = 1;
  for (int factor : study.term) df *= study.levels[static_cast<std::size_t>(factor)] - 1;
  return ExceedsF(FactorialAnalysis(study), UpperF(inputs.Alpha(), df, Sum(study.sizes) - cells));
}

Study OfAncova(Inputs& inputs) {
  const GroupStudy groups = OfGroups(inputs);
  const int covariates = inputs.Has("covariates") ? inputs.Whole("covariates") : 1;
  const double explained = inputs.Number("r-squared", 0);
  const double slope = std::sqrt(explained / covariates);
  const CovarianceAnalysis analysis({groups.means, groups.sizes, covariates, slope, std::sqrt(1 - explained)});
  const double df1 = static_cast<double>(groups.means.size()) - 1;
  return ExceedsF(analysis, UpperF(inputs.Alpha(), df1, ErrorDf(groups) - covariates), !inputs.Flag("approximate"));
}

/// With correlations that are not equal the test is the corrected one, with the epsilon of the population.
Study OfRepeatedMeasures(Inputs& inputs) {
  const std::string effect = inputs.Choice("effect", "");
  MeasuredStudy study{};
  study.effect = MeasuredEffect::Interaction;
  if (effect == "between") study.effect = MeasuredEffect::Between;
  if (effect == "within") study.effect = MeasuredEffect::Within;
  study.measurements = inputs.Whole("measurements");
  const int groups = inputs.Has("groups") ? inputs.Whole("groups") : 1;
  study.correlation = inputs.Number("correlation");
  study.means = inputs.List("means");
  study.sizes = inputs.PerGroup("n", static_cast<std::size_t>(groups));
  study.sd = inputs.Number("sd");
  if (inputs.Has("coefficients")) study.coefficients = inputs.List("coefficients");
  const double epsilon = inputs.Number("epsilon", 1);
  if (epsilon < 1 && study.measurements != 3) throw std::invalid_argument("epsilon is that of three measurements");
  study.inequality = std::sqrt(1 / epsilon - 1);
  const bool isBetween = study.effect == MeasuredEffect::Between;
  const double times = isBetween ? 1 : study.measurements - 1;
  double df1 = study.effect == MeasuredEffect::Within ? times : (groups - 1) * times;
  if (!study.coefficients.empty()) df1 = 1;
  const double df2 = (Sum(study.sizes) - groups) * times;
  return ExceedsF(MeasuredAnalysis(study), UpperF(inputs.Alpha(), df1 * epsilon, df2 * epsilon), epsilon == 1);
}

}  // namespace kelpower::validation
