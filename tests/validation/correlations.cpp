#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

#include "kelcommon/distributions.h"
#include "support/drawn_correlation.h"
#include "support/drawn_variables.h"
#include "support/linear_model.h"
#include "validation/study.h"

namespace kelpower::validation {
namespace {

Rejection OfZ(Inputs& inputs, double direction) {
  return SymmetricRejection(inputs.Alpha(), inputs.Flag("one-sided"), direction, UpperNormal);
}

Study OfPearsonExactly(Inputs& inputs, int n, double r, double null) {
  const auto lower = [=](double tail) { return kelcommon::IdfCorrelation(tail, n, null); };
  const auto upper = [=](double tail) { return kelcommon::IdfCorrelation(1 - tail, n, null); };
  const double alpha = inputs.Alpha();
  Rejection rejects{lower(alpha / 2), upper(alpha / 2)};
  if (inputs.Flag("one-sided")) rejects = r < null ? Rejection{lower(alpha), 2} : Rejection{-2, upper(alpha)};
  return {true, [=](Engine& engine) { return rejects(DrawCorrelation(engine, n, r)); }};
}

/// The ranks of values without ties, 0 for the smallest.
void Rank(const std::vector<double>& values, std::vector<std::size_t>& order, std::vector<double>& ranks) {
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [&values](std::size_t a, std::size_t b) { return values[a] < values[b]; });
  for (std::size_t i = 0; i < order.size(); ++i) ranks[order[i]] = static_cast<double>(i);
}

/// Draws the rank correlation of bivariate normal samples.
class RankCorrelation {
public:
  RankCorrelation(std::size_t n, double rho) : rho_(rho), x_(n), y_(n), ranksX_(n), ranksY_(n), order_(n) {}

  double Draw(Engine& engine) {
    std::normal_distribution<double> normal;
    const double rest = std::sqrt(1 - rho_ * rho_);
    for (std::size_t i = 0; i < x_.size(); ++i) {
      x_[i] = normal(engine);
      y_[i] = rho_ * x_[i] + rest * normal(engine);
    }
    Rank(x_, order_, ranksX_);
    Rank(y_, order_, ranksY_);
    double squares = 0;
    for (std::size_t i = 0; i < x_.size(); ++i) squares += std::pow(ranksX_[i] - ranksY_[i], 2);
    const auto n = static_cast<double>(x_.size());
    return 1 - 6 * squares / (n * (n * n - 1));
  }

private:
  double rho_;
  std::vector<double> x_;
  std::vector<double> y_;
  std::vector<double> ranksX_;
  std::vector<double> ranksY_;
  std::vector<std::size_t> order_;
};

/// The standard error of Fisher's z of a rank correlation r.
double RankError(const std::string& variance, double r, double n) {
  if (variance == "fieller") return std::sqrt(1.06 / (n - 3));
  if (variance == "caruso-cliff") return std::sqrt(std::fabs(std::atanh(r)) / (6 * n + 4 * std::sqrt(n)) + 1 / (n - 2));
  return std::sqrt((1 + r * r / 2) / (n - 3));
}

/// Draws the correlation of two variables from which others are partialled out, on all of which both depend.
class PartialCorrelation {
public:
  PartialCorrelation(std::size_t n, int others, double rho) : others_(others), rho_(rho), x_(n), y_(n), other_(n) {}

  double Draw(Engine& engine) {
    std::normal_distribution<double> normal;
    const double rest = std::sqrt(1 - rho_ * rho_);
    for (std::size_t i = 0; i < x_.size(); ++i) {
      x_[i] = normal(engine);
      y_[i] = rho_ * x_[i] + rest * normal(engine);
    }
    LinearModel model;
    model.Add(Column(x_.size(), 1), false);
    for (int other = 0; other < others_; ++other) {
      for (double& value : other_) value = normal(engine);
      for (std::size_t i = 0; i < x_.size(); ++i) {
        x_[i] += 0.8 * other_[i];
        y_[i] -= 0.6 * other_[i];
      }
      model.Add(other_, false);
    }
    return model.CorrelationOfRests(x_, y_);
  }

private:
  int others_;
  double rho_;
  Column x_;
  Column y_;
  Column other_;
};

struct CorrelationMatrix {
  double r12, r34, r13, r14, r23, r24;
};

/// The correlation of Fisher's z of two correlations in one sample (Steiger 1980, equations 2 and 3).
double CorrelationOfZ(const CorrelationMatrix& c, bool isInCommon) {
  const double second = isInCommon ? c.r13 : c.r34;
  const double left = (1 - c.r12 * c.r12) * (1 - second * second);
  if (isInCommon) {
    const double both = 1 - c.r12 * c.r12 - c.r13 * c.r13;
    return (c.r23 * both - c.r12 * c.r13 * (both - c.r23 * c.r23) / 2) / left;
  }
  return ((c.r13 - c.r12 * c.r23) * (c.r24 - c.r23 * c.r34) + (c.r14 - c.r13 * c.r34) * (c.r23 - c.r12 * c.r13) +
          (c.r13 - c.r14 * c.r34) * (c.r24 - c.r12 * c.r14) + (c.r14 - c.r12 * c.r24) * (c.r23 - c.r24 * c.r34)) /
         2 / left;
}

/// Sets both correlations that are compared to what the null hypothesis says of them.
CorrelationMatrix UnderNull(CorrelationMatrix c, bool isInCommon, const std::string& null) {
  double& second = isInCommon ? c.r13 : c.r34;
  if (null == "first") second = c.r12;
  if (null == "average") c.r12 = second = (c.r12 + second) / 2;
  return c;
}

}  // namespace

/// An uncertain effect is drawn with each study, and only its expected direction counts.
Study OfPearson(Inputs& inputs) {
  const int n = inputs.Whole("n");
  const double r = inputs.Number("r");
  const double null = inputs.Number("null", 0);
  if (inputs.Flag("exact")) return OfPearsonExactly(inputs, n, r, null);
  const double effectSd = inputs.Number("effect-sd", 0);
  Rejection rejects = OfZ(inputs, r - null);
  if (effectSd > 0) (r < null ? rejects.upper : rejects.lower) = r < null ? 1e9 : -1e9;
  // The bias of z is subtracted as it is under the null hypothesis.
  const double centre = std::atanh(null) + (inputs.Flag("adjust-bias") ? null / (2 * (n - 1)) : 0);
  const double error = 1 / std::sqrt(n - 3.0);
  return {false, [=](Engine& engine) {
            double rho = r;
            if (effectSd > 0) {
              rho = std::tanh(std::atanh(r) + effectSd * std::normal_distribution<double>()(engine));
            }
            return rejects((std::atanh(DrawCorrelation(engine, n, rho)) - centre) / error);
          }};
}

/// Of normal variables with a rank correlation of r Pearson's is 2 sin(pi r / 6).
Study OfSpearman(Inputs& inputs) {
  const double n = inputs.Number("n");
  const double r = inputs.Number("r");
  const double null = inputs.Number("null", 0);
  const Rejection rejects = OfZ(inputs, r - null);
  const std::string variance = inputs.Choice("variance", "bonett-wright");
  const double pi = std::acos(-1.0);
  const auto drawn = std::make_shared<RankCorrelation>(static_cast<std::size_t>(n), 2 * std::sin(pi * r / 6));
  return {false, [=](Engine& engine) {
            const double found = drawn->Draw(engine);
            return rejects((std::atanh(found) - std::atanh(null)) / RankError(variance, found, n));
          }};
}

Study OfPartial(Inputs& inputs) {
  const double n = inputs.Number("n");
  const int others = inputs.Whole("partialled-out");
  const double r = inputs.Number("r");
  const double null = inputs.Number("null", 0);
  const Rejection rejects = OfZ(inputs, r - null);
  const double centre = std::atanh(null) + null / (2 * (n - 1 - others));
  const double error = 1 / std::sqrt(n - 3 - others);
  const auto drawn = std::make_shared<PartialCorrelation>(static_cast<std::size_t>(n), others, r);
  return {false, [=](Engine& engine) { return rejects((std::atanh(drawn->Draw(engine)) - centre) / error); }};
}

Study OfTwoCorrelations(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  const Numbers r =
      inputs.Has("effect-q") ? Numbers{std::tanh(inputs.Number("effect-q")), 0} : inputs.List("correlations");
  const Rejection rejects = OfZ(inputs, r[0] - r[1]);
  const double error = std::sqrt(1 / (n[0] - 3) + 1 / (n[1] - 3));
  return {false, [=](Engine& engine) {
            const double first = DrawCorrelation(engine, static_cast<int>(n[0]), r[0]);
            const double second = DrawCorrelation(engine, static_cast<int>(n[1]), r[1]);
            return rejects((std::atanh(first) - std::atanh(second)) / error);
          }};
}

Study OfDependentCorrelations(Inputs& inputs) {
  const int n = inputs.Whole("n");
  const bool isInCommon = !inputs.Has("r34");
  CorrelationMatrix c{inputs.Number("r12"), 0, inputs.Number("r13"), 0, inputs.Number("r23"), 0};
  if (!isInCommon) {
    c.r34 = inputs.Number("r34");
    c.r14 = inputs.Number("r14");
    c.r24 = inputs.Number("r24");
  }
  const std::string null = inputs.Choice("null-correlations", "first");
  const Rejection rejects = OfZ(inputs, c.r12 - (isInCommon ? c.r13 : c.r34));
  const Variables variables(c);
  return {false, [=](Engine& engine) {
            const auto found = variables.Draw<CorrelationMatrix>(engine, n);
            const double difference = std::atanh(found.r12) - std::atanh(isInCommon ? found.r13 : found.r34);
            const double correlation = CorrelationOfZ(UnderNull(found, isInCommon, null), isInCommon);
            return rejects(difference / std::sqrt((2 - 2 * correlation) / (n - 3)));
          }};
}

}  // namespace kelpower::validation
