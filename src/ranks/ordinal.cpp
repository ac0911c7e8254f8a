#include "ranks/ordinal.h"

#include <cmath>

#include "frame/checks.h"

namespace kelpower::ranks {

namespace {

double Square(double x) { return x * x; }

/// The sum of the entries; nothing where one is below 0 or all are 0.
std::optional<double> SumOf(const double* entries, std::size_t count) {
  double sum = 0;
  for (std::size_t i = 0; i < count; ++i) {
    if (entries[i] < 0) return std::nullopt;
    sum += entries[i];
  }
  if (sum <= 0) return std::nullopt;
  return sum;
}

/// A category with the probabilities of both groups, and what lies below its middle.
struct Category {
  double first;
  double second;
  double belowFirst;
  double belowSecond;
};

/// Goes over the categories in their order.
class Walk {
public:
  Walk(const OrderedGroups& groups, double firstSum, double secondSum)
      : groups_(groups), firstSum_(firstSum), secondSum_(secondSum) {}

  template <typename Visit>
  void Over(Visit visit) const {
    double entries = 0;
    double belowFirst = 0;
    double belowSecond = 0;
    for (std::size_t i = 0; i < groups_.categories; ++i) {
      entries += groups_.first[i];
      const double first = groups_.first[i] / firstSum_;
      const double second = groups_.second ? groups_.second[i] / secondSum_ : Moved(entries) - belowSecond;
      visit(Category{first, second, belowFirst + first / 2, belowSecond + second / 2});
      belowFirst += first;
      belowSecond = groups_.second ? belowSecond + second : Moved(entries);
    }
  }

private:
  /// The probability of the second group up to a cut: the odds of what lies above are those of the first group times the
  /// odds ratio.
  double Moved(double entries) const { return entries / (entries + (firstSum_ - entries) * groups_.oddsRatio); }

  OrderedGroups groups_;
  double firstSum_;
  double secondSum_;
};

/// Of the groups without their order.
double NullVarianceOf(const OrdinalMoments& moments, double n1, double n2) {
  return moments.mixtureVariance * (1 / n1 + 1 / n2);
}

double VarianceOf(const OrdinalMoments& moments, double n1, double n2) {
  return moments.firstVariance / n1 + moments.secondVariance / n2;
}

std::optional<NearlyNormal> Made(double critical, double effect, double nullSd, double sd) {
  return NearlyNormal{std::fabs(effect), nullSd, critical * nullSd, sd};
}

}  // namespace

// The variance of the ranks of a mixture with probabilities m is (1 - sum of m^3) / 12, here without its cancellation.
std::optional<OrdinalMoments> MomentsOf(const OrderedGroups& groups, double firstShare) {
  const auto firstSum = SumOf(groups.first, groups.categories);
  const auto secondSum = groups.second ? SumOf(groups.second, groups.categories) : std::optional<double>(1);
  if (!firstSum || !secondSum) return std::nullopt;
  if (!groups.second && groups.oddsRatio <= 0) return std::nullopt;
  const Walk walk(groups, *firstSum, *secondSum);
  OrdinalMoments moments{};
  walk.Over([&](const Category& at) {
    const double mixed = firstShare * at.first + (1 - firstShare) * at.second;
    moments.excess += at.first * (at.belowSecond - 0.5);
    moments.mixtureVariance += mixed * (1 - mixed) * (1 + mixed) / 12;
  });
  if (moments.mixtureVariance <= 0) return std::nullopt;
  walk.Over([&](const Category& at) {
    moments.firstVariance += at.first * Square(at.belowSecond - (0.5 + moments.excess));
    moments.secondVariance += at.second * Square(at.belowFirst - (0.5 - moments.excess));
  });
  return moments;
}

std::optional<NearlyNormal> StatisticOf(const OrdinalTest& test, const OrderedGroups& groups, double n1, double n2) {
  if (RejectsAlpha(test.alpha)) return std::nullopt;
  if (n1 <= 0) return std::nullopt;
  if (n2 <= 0) return std::nullopt;
  if (!CanRejectTwoGroups(test.sides, test.alpha, n1, n2)) return std::nullopt;
  const auto moments = MomentsOf(groups, n1 / (n1 + n2));
  if (!moments) return std::nullopt;
  const double critical = NormalTest(test.sides, test.alpha).Critical();
  const double nullSd = std::sqrt(NullVarianceOf(*moments, n1, n2));
  const double sd = std::sqrt(VarianceOf(*moments, n1, n2));
  const double excess = moments->excess;
  if (test.method == OrdinalMethod::Probability) return Made(critical, excess, nullSd, sd);
  if (test.method == OrdinalMethod::ProportionalOdds) {
    // 1 / (information) = 3 (n1 + n2) / (n1 n2 (1 - sum of m^3)).
    const double ofLogOdds = std::sqrt((1 / n1 + 1 / n2) / (4 * moments->mixtureVariance));
    if (groups.oddsRatio <= 0) return std::nullopt;
    return Made(critical, std::log(groups.oddsRatio), ofLogOdds, ofLogOdds);
  }
  const double slope = 0.25 - Square(excess);  // p (1 - p)
  if (slope <= 0) return std::nullopt;
  return Made(critical, 2 * std::atanh(2 * excess), 4 * nullSd, sd / slope);
}

Answer Power(const OrdinalTest& test, const OrderedGroups& groups, double n1, double n2) {
  const auto statistic = StatisticOf(test, groups, n1, n2);
  if (!statistic) return NoValue::Refused;
  return NormalTest(test.sides, test.alpha).Power(*statistic);
}

}  // namespace kelpower::ranks
