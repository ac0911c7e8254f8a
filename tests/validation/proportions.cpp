#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "support/observed_margins.h"
#include "validation/counts.h"

namespace kelpower::validation {
namespace {

using KelMath::KelDistFun;

/// P(X <= x) of a binomial count.
double AtMost(double x, double n, double p) {
  long error = 0;
  return x < 0 ? 0 : KelDistFun::CdfBin(x, n, p, error);
}

double AtLeast(double x, double n, double p) { return AtMost(n - x, n, 1 - p); }

/// Which tails of a statistic count.
struct Tails {
  bool below;
  bool above;
  double level;  // of each
};

Tails TailsOf(Inputs& inputs, double direction) {
  if (!inputs.Flag("one-sided")) return {true, true, inputs.Alpha() / 2};
  return {direction <= 0, direction > 0, inputs.Alpha()};
}

MarginScale ScaleOf(Inputs& inputs) {
  const std::string scale = inputs.Choice("margin-scale", "difference");
  if (scale == "ratio") return MarginScale::Ratio;
  return scale == "odds-ratio" ? MarginScale::OddsRatio : MarginScale::Difference;
}

Limits LimitsOf(Inputs& inputs, MarginScale scale) {
  return LimitsOf(inputs, scale == MarginScale::Difference ? 0 : 1);
}

CountedGroup Successes(double n, double proportion) { return {static_cast<long>(n), {proportion, 1 - proportion}}; }

Study OfOneProportionAgainstMargins(Inputs& inputs, double n, double expected, double reference) {
  const MarginScale scale = ScaleOf(inputs);
  const Limits limits = LimitsOf(inputs, scale);
  const double alpha = inputs.Alpha();
  const double lower = limits.hasLower ? AtLimit(scale, limits.lower, reference) : -1;
  const double upper = limits.hasUpper ? AtLimit(scale, limits.upper, reference) : 2;
  if (inputs.Flag("exact")) {
    return OfCounts(true, {Successes(n, expected)}, [=](const Numbers& counts) {
      const bool isAbove = !limits.hasLower || AtLeast(counts[0], n, lower) <= alpha;
      const bool isBelow = !limits.hasUpper || AtMost(counts[0], n, upper) <= alpha;
      return isAbove && isBelow;
    });
  }
  const bool isAtObserved = inputs.Choice("standard-error", "limit") == "observed";
  const double correction = inputs.Flag("correction") ? 1 / (2 * n) : 0;
  const double critical = UpperNormal(alpha);
  return OfCounts(false, {Successes(n, expected)}, [=](const Numbers& counts) {
    const double p = counts[0] / n;
    const auto exceeds = [&](double distance, double limit) {
      const double at = isAtObserved ? p : limit;
      return distance - correction > critical * std::sqrt(at * (1 - at) / n);
    };
    return (!limits.hasLower || exceeds(p - lower, lower)) && (!limits.hasUpper || exceeds(upper - p, upper));
  });
}

MarginVariance VarianceOf(const std::string& method) {
  if (method == "wald") return MarginVariance::Observed;
  return method == "miettinen-nurminen" ? MarginVariance::RestrictedUnbiased : MarginVariance::Restricted;
}

std::vector<CountedGroup> TwoGroups(const Numbers& n, const Numbers& p) {
  return {Successes(n[0], p[0]), Successes(n[1], p[1])};
}

/// Tables, of which a test shows each limit that there is.
using TableTest = std::function<bool(double x1, double x2)>;

Study Showing(bool isExact, const Numbers& n, const Numbers& p, const TableTest& isAbove, const TableTest& isBelow) {
  return OfCounts(isExact, TwoGroups(n, p), [=](const Numbers& counts) {
    return (!isAbove || isAbove(counts[0], counts[2])) && (!isBelow || isBelow(counts[0], counts[2]));
  });
}

/// The exact unconditional test. That of an upper limit is that of a lower one with successes and failures exchanged.
Study OfTablesByExactMargins(Inputs& inputs, const Limits& limits, const Numbers& n, const Numbers& p) {
  const auto n1 = static_cast<int>(n[0]);
  const auto n2 = static_cast<int>(n[1]);
  const auto columns = static_cast<std::size_t>(n2) + 1;
  const auto cell = [columns](double x1, double x2) {
    return static_cast<std::size_t>(x1) * columns + static_cast<std::size_t>(x2);
  };
  TableTest isAbove;
  TableTest isBelow;
  if (limits.hasLower) {
    const auto rejected = RejectedByExactTest(n1, n2, limits.lower, inputs.Alpha());
    isAbove = [=](double x1, double x2) { return rejected[cell(x1, x2)]; };
  }
  if (limits.hasUpper) {
    const auto rejected = RejectedByExactTest(n1, n2, -limits.upper, inputs.Alpha());
    isBelow = [=](double x1, double x2) { return rejected[cell(n1 - x1, n2 - x2)]; };
  }
  return Showing(true, n, p, isAbove, isBelow);
}

Study OfTwoProportionsAgainstMargins(Inputs& inputs, const Numbers& n, const Numbers& p) {
  const MarginScale scale = ScaleOf(inputs);
  const Limits limits = LimitsOf(inputs, scale);
  if (inputs.Flag("exact")) return OfTablesByExactMargins(inputs, limits, n, p);
  const MarginVariance variance = VarianceOf(inputs.Choice("margin-method", "farrington-manning"));
  const double critical = UpperNormal(inputs.Alpha());
  TableTest isAbove;
  TableTest isBelow;
  if (limits.hasLower) {
    const ObservedTest test{variance, scale, limits.lower};
    isAbove = [=](double x1, double x2) { return test.Statistic(n[0], n[1], x1, x2) > critical; };
  }
  if (limits.hasUpper) {
    const ObservedTest test{variance, scale, limits.upper};
    isBelow = [=](double x1, double x2) { return test.Statistic(n[0], n[1], x1, x2) < -critical; };
  }
  return Showing(false, n, p, isAbove, isBelow);
}

/// Two observed groups and their statistics, first minus second.
struct Observed {
  double n1, n2, p1, p2;

  double Mean() const { return (n1 * p1 + n2 * p2) / (n1 + n2); }

  /// The z statistic; the correction brings the difference nearer to 0.
  double Z(bool isPooled, bool isCorrected) const {
    const double reciprocals = 1 / n1 + 1 / n2;
    const double squared = isPooled ? Mean() * (1 - Mean()) * reciprocals : p1 * (1 - p1) / n1 + p2 * (1 - p2) / n2;
    const double left = std::fabs(p1 - p2) - (isCorrected ? reciprocals / 2 : 0);
    return left <= 0 ? 0 : std::copysign(left / std::sqrt(squared), p1 - p2);
  }

  /// Student's t of values 0 and 1 with variances over the sizes, as the textbooks on proportions have it.
  double T(bool isPooled) const {
    const double v1 = p1 * (1 - p1);
    const double v2 = p2 * (1 - p2);
    const double total = n1 + n2;
    const double variance = isPooled ? (n1 * v1 + n2 * v2) * (1 / n1 + 1 / n2) / total : v1 / n1 + v2 / n2;
    return (p1 - p2) / std::sqrt(variance * total / (total - 2));
  }

  double RootOfLikelihoodRatio() const {
    const auto part = [](double n, double observed, double expected) {
      return observed > 0 ? n * observed * std::log(observed / expected) : 0;
    };
    const double g =
        part(n1, p1, Mean()) + part(n1, 1 - p1, 1 - Mean()) + part(n2, p2, Mean()) + part(n2, 1 - p2, 1 - Mean());
    return std::sqrt(std::fmax(0, 2 * g));
  }

  /// The arcsine statistic of proportions that are moved towards each other by half a subject.
  double Arcsine() const {
    const double direction = p1 > p2 ? 1 : -1;
    const double moved1 = p1 - direction / (2 * n1);
    const double moved2 = p2 + direction / (2 * n2);
    if ((moved1 - moved2) * direction <= 0) return 0;
    return 2 * (std::asin(std::sqrt(moved1)) - std::asin(std::sqrt(moved2))) / std::sqrt(1 / n1 + 1 / n2);
  }
};

/// Groups of successes alone, or of failures alone, are alike.
bool IsDegenerate(const Numbers& counts) { return counts[0] + counts[2] == 0 || counts[1] + counts[3] == 0; }

/// Fisher's exact test: each tail has at most its share of the level.
Decision ConditionalTest(const Numbers& n, const Tails& tails) {
  return [=](const Numbers& counts) {
    const double successes = counts[0] + counts[2];
    const auto logWays = [](double of, double chosen) {
      return std::lgamma(of + 1) - std::lgamma(chosen + 1) - std::lgamma(of - chosen + 1);
    };
    const double all = logWays(n[0] + n[1], successes);
    double below = 0;
    double above = 0;
    for (double x = std::fmax(0, successes - n[1]); x <= std::fmin(n[0], successes); ++x) {
      const double mass = std::exp(logWays(n[0], x) + logWays(n[1], successes - x) - all);
      if (x <= counts[0]) below += mass;
      if (x >= counts[0]) above += mass;
    }
    const double level = tails.level * (1 + 1e-12);
    return (tails.below && below <= level) || (tails.above && above <= level);
  };
}

}  // namespace

Study OfProportion(Inputs& inputs) {
  const double n = inputs.Number("n");
  const double expected = inputs.Number("proportion");
  const double null = inputs.Number("null");
  if (HasLimits(inputs)) return OfOneProportionAgainstMargins(inputs, n, expected, null);
  const Tails tails = TailsOf(inputs, expected - null);
  if (inputs.Flag("exact")) {
    return OfCounts(true, {Successes(n, expected)}, [=](const Numbers& counts) {
      return (tails.below && AtMost(counts[0], n, null) <= tails.level) ||
             (tails.above && AtLeast(counts[0], n, null) <= tails.level);
    });
  }
  const double correction = inputs.Flag("correction") ? 1 / (2 * n) : 0;
  const double least = UpperNormal(tails.level) * std::sqrt(null * (1 - null) / n) + correction;
  return OfCounts(false, {Successes(n, expected)}, [=](const Numbers& counts) {
    const double difference = counts[0] / n - null;
    return (tails.below && -difference > least) || (tails.above && difference > least);
  });
}

Study OfTwoProportions(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  const Numbers p = inputs.List("proportions");
  if (HasLimits(inputs)) return OfTwoProportionsAgainstMargins(inputs, n, p);
  const std::string method = inputs.Choice("method", "z");
  const bool isExact = inputs.Flag("exact");
  const bool isUnpooled = inputs.Flag("unpooled");
  const bool isCorrected = inputs.Flag("correction");
  const Tails tails = TailsOf(inputs, p[0] - p[1]);
  if (method == "conditional") return OfCounts(true, TwoGroups(n, p), ConditionalTest(n, tails));
  const double critical = method == "t" ? UpperT(tails.level, n[0] + n[1] - 2) : UpperNormal(tails.level);
  return OfCounts(isExact, TwoGroups(n, p), [=](const Numbers& counts) {
    if (IsDegenerate(counts)) return false;
    const Observed observed{n[0], n[1], counts[0] / n[0], counts[2] / n[1]};
    double statistic = 0;
    if (method == "z") statistic = observed.Z(!isUnpooled, isCorrected);
    if (method == "t") statistic = observed.T(!isUnpooled);
    if (method == "arcsine") statistic = observed.Arcsine();
    if (method == "likelihood-ratio") return observed.RootOfLikelihoodRatio() > critical;
    return (tails.below && statistic < -critical) || (tails.above && statistic > critical);
  });
}

Study OfPairedProportions(Inputs& inputs) {
  const double n = inputs.Number("n");
  double p12 = 0;
  double p21 = 0;
  if (inputs.Has("p12")) {
    p12 = inputs.Number("p12");
    p21 = inputs.Number("p21");
  } else {
    const double p1 = inputs.Number("proportion1");
    const double p2 = inputs.Number("proportion2");
    p21 = (1 - p1) * p2 - inputs.Number("correlation") * std::sqrt(p1 * (1 - p1) * p2 * (1 - p2));
    p12 = p21 + p1 - p2;
  }
  const Tails tails = TailsOf(inputs, p12 - p21);
  const std::vector<CountedGroup> pairs{{static_cast<long>(n), {p12, p21, 1 - p12 - p21}}};
  if (inputs.Flag("exact")) {
    return OfCounts(true, pairs, [=](const Numbers& counts) {
      const double discordant = counts[0] + counts[1];
      return (tails.below && AtMost(counts[0], discordant, 0.5) <= tails.level) ||
             (tails.above && AtMost(counts[1], discordant, 0.5) <= tails.level);
    });
  }
  const double critical = UpperNormal(tails.level);
  return OfCounts(false, pairs, [=](const Numbers& counts) {
    const double least = critical * std::sqrt(counts[0] + counts[1]);
    const double difference = counts[0] - counts[1];
    return (tails.below && -difference > least) || (tails.above && difference > least);
  });
}

}  // namespace kelpower::validation
