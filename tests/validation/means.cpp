#include <cmath>
#include <memory>
#include <vector>

#include "support/drawn_means.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

/// The critical values of t at any degrees of freedom between two, from a table: each study of Welch's test needs another.
class CriticalT {
public:
  CriticalT(double probability, double least, double most) : least_(least), step_((most - least) / kSteps) {
    for (int i = 0; i <= kSteps; ++i) table_.push_back(UpperT(probability, least + i * step_));
  }

  double At(double df) const {
    const double position = std::fmax(0, (df - least_) / step_);
    const auto below = static_cast<std::size_t>(std::fmin(position, kSteps - 1));
    const double part = position - static_cast<double>(below);
    return table_[below] * (1 - part) + table_[below + 1] * part;
  }

private:
  static constexpr int kSteps = 10000;
  double least_;
  double step_;
  std::vector<double> table_;
};

/// A difference of means that a study estimates, and the critical value that belongs to it.
struct DrawnDifference {
  Estimate estimate;
  double critical;
};

struct DifferenceDesign {
  std::function<DrawnDifference(Engine&, double difference)> draw;
  double difference;
  /// Margins and limits on the scale of the data, which is the logarithmic one where ratios are told.
  bool isRatio = false;
  bool isExact = true;
};

/// How much of the level each critical value has.
double LevelOfTail(Inputs& inputs) {
  const bool isOneSided = inputs.Flag("one-sided") || HasLimits(inputs);
  return isOneSided ? inputs.Alpha() : inputs.Alpha() / 2;
}

Study AgainstLimits(Inputs& inputs, const DifferenceDesign& design) {
  Limits limits = LimitsOf(inputs, design.isRatio ? 1 : 0);
  if (design.isRatio) {
    limits.lower = std::log(limits.lower);
    limits.upper = std::log(limits.upper);
  }
  return {design.isExact, [=](Engine& engine) {
            const DrawnDifference found = design.draw(engine, design.difference);
            return (!limits.hasLower || ShowsAbove(found.estimate, limits.lower, found.critical)) &&
                   (!limits.hasUpper || ShowsBelow(found.estimate, limits.upper, found.critical));
          }};
}

/// An uncertain effect is drawn with each study, and only its expected direction counts.
Study OfDifference(Inputs& inputs, const DifferenceDesign& design) {
  if (HasLimits(inputs)) return AgainstLimits(inputs, design);
  const double effectSd = inputs.Number("effect-sd", 0);
  const bool countsBelow = design.difference < 0;
  const bool countsBoth = !inputs.Flag("one-sided") && effectSd == 0;
  return {design.isExact, [=](Engine& engine) {
            double difference = design.difference;
            if (effectSd > 0) difference += effectSd * std::normal_distribution<double>()(engine);
            const DrawnDifference found = design.draw(engine, difference);
            const double t = found.estimate.difference / found.estimate.standardError;
            return countsBoth ? std::fabs(t) > found.critical : (countsBelow ? -t : t) > found.critical;
          }};
}

/// A design whose critical value is the same in all studies.
template <typename Draw>
DifferenceDesign WithFixedDf(double critical, double difference, Draw draw) {
  return {[=](Engine& engine, double d) { return DrawnDifference{draw(engine, d), critical}; }, difference};
}

/// The standard deviation of the logarithms of lognormal data.
double SdOfLogs(double cv) { return std::sqrt(std::log1p(cv * cv)); }

DifferenceDesign Pooled(Inputs& inputs, const Numbers& n, double difference, double sd) {
  const double critical = UpperT(LevelOfTail(inputs), n[0] + n[1] - 2);
  return WithFixedDf(critical, difference, [=](Engine& engine, double d) {
    return DrawGroups(engine, static_cast<int>(n[0]), static_cast<int>(n[1]), d, sd);
  });
}

DifferenceDesign Welch(Inputs& inputs, const Numbers& n, double difference, const Numbers& sds) {
  const auto critical = std::make_shared<CriticalT>(LevelOfTail(inputs), std::fmin(n[0], n[1]) - 1, n[0] + n[1] - 2);
  DifferenceDesign design{[=](Engine& engine, double d) {
                            const WelchEstimate found =
                                DrawWelch(engine, static_cast<int>(n[0]), static_cast<int>(n[1]), d, sds[0], sds[1]);
                            return DrawnDifference{found.estimate, critical->At(found.df)};
                          },
                          difference};
  design.isExact = false;
  return design;
}

double DifferenceOf(Inputs& inputs) {
  if (inputs.Has("effect-d")) return inputs.Number("effect-d");
  if (inputs.Has("mean-difference")) return inputs.Number("mean-difference");
  const Numbers means = inputs.List("means");
  return means[0] - means[1];
}

struct Spread {
  double sd1;
  double sd2;
  double correlation;
};

}  // namespace

Study OfMean(Inputs& inputs) {
  const int n = inputs.Whole("n");
  const bool isStandardized = inputs.Has("effect-d");
  const double difference =
      isStandardized ? inputs.Number("effect-d") : inputs.Number("mean") - inputs.Number("test-value", 0);
  const double sd = isStandardized ? 1 : inputs.Number("sd");
  const auto draw = [=](Engine& engine, double d) { return DrawMean(engine, n, d, sd); };
  return OfDifference(inputs, WithFixedDf(UpperT(LevelOfTail(inputs), n - 1), difference, draw));
}

Study OfPairedMeans(Inputs& inputs) {
  const int n = inputs.Whole("n");
  const double critical = UpperT(LevelOfTail(inputs), n - 1);
  const double difference = DifferenceOf(inputs);
  if (inputs.Has("sds")) {
    const Numbers sds = inputs.List("sds");
    const Spread spread{sds[0], sds[1], inputs.Number("correlation")};
    const auto draw = [=](Engine& engine, double d) { return DrawPairs(engine, n, d, spread); };
    return OfDifference(inputs, WithFixedDf(critical, difference, draw));
  }
  // Of the differences alone, as of pairs whose second values are all 0.
  const Spread spread{inputs.Number("sd-difference", 1), 0, 0.5};
  const auto draw = [=](Engine& engine, double d) { return DrawPairs(engine, n, d, spread); };
  return OfDifference(inputs, WithFixedDf(critical, difference, draw));
}

Study OfTwoMeans(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  if (inputs.Has("mean-ratio")) {
    DifferenceDesign design = Pooled(inputs, n, std::log(inputs.Number("mean-ratio")), SdOfLogs(inputs.Number("cv")));
    design.isRatio = true;
    return OfDifference(inputs, design);
  }
  const double difference = DifferenceOf(inputs);
  const Numbers sds = inputs.Has("sd") ? inputs.PerGroup("sd", 2) : Numbers(2, 1);
  return OfDifference(inputs,
                      sds[0] == sds[1] ? Pooled(inputs, n, difference, sds[0]) : Welch(inputs, n, difference, sds));
}

Study OfCrossover(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  const double critical = UpperT(LevelOfTail(inputs), n[0] + n[1] - 2);
  const bool isRatio = inputs.Has("mean-ratio");
  const double effect = isRatio ? std::log(inputs.Number("mean-ratio")) : inputs.Number("mean-difference");
  const double sd = isRatio ? SdOfLogs(inputs.Number("cv")) : inputs.Number("sd");
  DifferenceDesign design = WithFixedDf(critical, effect, [=](Engine& engine, double d) {
    return DrawCrossover(engine, static_cast<int>(n[0]), static_cast<int>(n[1]), d, sd);
  });
  design.isRatio = isRatio;
  return OfDifference(inputs, design);
}

}  // namespace kelpower::validation
