#include "proportions/independent_conditional.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/binomial_product.h"

namespace kelpower::proportions {

namespace {

constexpr double largestCoefficientTotal = 1020;  // C(1020, k) and all products of two that make it up are finite
constexpr std::int64_t keptTotals = 8192;
constexpr std::int64_t unknown = -2;

/// C(n, 0), C(n, 1), ..., C(n, n).
std::vector<double> Coefficients(std::int64_t n) {
  std::vector<double> coefficients(static_cast<std::size_t>(n) + 1);
  BinomialProduct coefficient(1);
  for (std::int64_t k = 0; 2 * k <= n; ++k) {
    const double rounded = coefficient.Value();
    coefficients[static_cast<std::size_t>(k)] = rounded;
    coefficients[static_cast<std::size_t>(n - k)] = rounded;
    coefficient.Multiply(static_cast<double>(n - k), static_cast<double>(k + 1));
  }
  return coefficients;
}

double Sum(const double* from, const double* to) {
  double sum = 0;
  for (; from != to; ++from) sum += *from;
  return sum;
}

/// The sum from `from` up to `to` of terms divided by `scale` one by one.
double SumOfQuotients(const double* from, const double* to, double scale) {
  double sum = 0;
  for (; from != to; ++from) sum += *from / scale;
  return sum;
}

/// P(X1 + X2 = total and from <= X1 <= to).
double JointProbability(const BinomialMasses& masses1, const BinomialMasses& masses2, std::int64_t total,
                        std::int64_t from, std::int64_t to) {
  from = std::max({from, masses1.first, total - masses2.Last()});
  to = std::min({to, masses1.Last(), total - masses2.first});
  double sum = 0;
  for (std::int64_t x = from; x <= to; ++x) sum += masses1.At(x) * masses2.At(total - x);
  return sum;
}

}  // namespace

ConditionalTest::ConditionalTest(const IndependentDesign& design, double sampleSize1, double sampleSize2)
    : design_(design),
      group1_(GroupSize::Of(sampleSize1)),
      group2_(GroupSize::Of(sampleSize2)),
      hasCoefficients_(sampleSize1 + sampleSize2 <= largestCoefficientTotal) {
  if (group1_.whole < 0 || group2_.whole < 0) return;
  totals_ = static_cast<std::int64_t>(std::floor(sampleSize1 + sampleSize2)) + 1;
  if (!hasCoefficients_) return;
  coefficients1_ = Coefficients(group1_.whole);
  coefficients2_ = Coefficients(group2_.whole);
}

ConditionalTest::Support ConditionalTest::SupportOf(std::int64_t total) const {
  return {std::max<std::int64_t>(total - group2_.whole, 0), std::min(total, group1_.whole)};
}

ConditionalTest::Support ConditionalTest::WeighByCoefficients(std::int64_t total) {
  const Support support = SupportOf(total);
  weights_.clear();
  for (std::int64_t x = support.first; x <= support.last; ++x) {
    weights_.push_back(coefficients2_[static_cast<std::size_t>(total - x)] *
                       coefficients1_[static_cast<std::size_t>(x)]);
  }
  return support;
}

// From the mode, with weight 1, outwards by the ratio of neighbours; what is left out is below the smallest double.
ConditionalTest::Support ConditionalTest::WeighByRecurrence(std::int64_t total) {
  constexpr double smallest = std::numeric_limits<double>::min();
  const Support support = SupportOf(total);
  const double n1 = static_cast<double>(group1_.whole);
  const double s = static_cast<double>(total);
  const double others = static_cast<double>(group2_.whole) - s;  // failures of group 2 when x = 0
  const double peak = std::floor((s + 1) * ((n1 + 1) / (static_cast<double>(group2_.whole) + n1 + 2)));
  const std::int64_t mode = std::clamp(static_cast<std::int64_t>(peak), support.first, support.last);

  weights_.clear();
  double weight = 1;
  for (std::int64_t i = mode; i > support.first; --i) {
    const double x = static_cast<double>(i);
    weight *= x * (others + x) / ((n1 - x + 1) * (s - x + 1));
    if (!(weight >= smallest)) break;
    weights_.push_back(weight);
  }
  const std::int64_t first = mode - static_cast<std::int64_t>(weights_.size());
  std::reverse(weights_.begin(), weights_.end());
  weights_.push_back(1);
  weight = 1;
  for (std::int64_t i = mode; i < support.last; ++i) {
    const double x = static_cast<double>(i);
    weight *= (n1 - x) * (s - x) / ((x + 1) * (others + x + 1));
    if (!(weight >= smallest)) break;
    weights_.push_back(weight);
  }
  return {first, first + static_cast<std::int64_t>(weights_.size()) - 1};
}

// Each tail takes counts from its end as long as their probability does not exceed the level. The sums are formed from
// the smallest count upwards; the upper tail is sought downwards first and then held to that sum, which decides ties.
ConditionalTest::CriticalCounts ConditionalTest::CriticalOf(std::int64_t total, Alternative alternative) {
  const Support support = SupportOf(total);
  CriticalCounts critical{support.first - 1, support.last + 1};
  if (support.first > support.last) return critical;

  const Support weighed = hasCoefficients_ ? WeighByCoefficients(total) : WeighByRecurrence(total);
  const double* const begin = weights_.data();
  const double* const end = begin + weights_.size();
  const double scale = Sum(begin, end);
  const double level = design_.TailLevel();

  if (alternative != Alternative::FirstGreater) {
    double tail = 0;
    const double* term = begin;
    while (term != end && tail + *term / scale <= level) tail += *term++ / scale;
    critical.lower = weighed.first + (term - begin) - 1;
  }
  if (alternative != Alternative::SecondGreater) {
    double tail = 0;
    const double* term = end;
    while (term != begin && tail + term[-1] / scale <= level) tail += *--term / scale;
    while (term != end && SumOfQuotients(term, end, scale) > level) ++term;
    while (term != begin && SumOfQuotients(term - 1, end, scale) <= level) --term;
    critical.upper = weighed.first + (term - begin);
  }
  return critical;
}

ConditionalTest::CriticalCounts ConditionalTest::KeptCriticalOf(std::int64_t total, Alternative alternative) {
  if (totals_ > keptTotals) return CriticalOf(total, alternative);
  std::vector<CriticalCounts>& kept = kept_[alternative];
  kept.resize(static_cast<std::size_t>(totals_), {unknown, unknown});
  CriticalCounts& critical = kept[static_cast<std::size_t>(total)];
  if (critical.lower == unknown) critical = CriticalOf(total, alternative);
  return critical;
}

// The probability of a tail is that of the total times that of the tail given the total under the odds ratio of the
// proportions. The terms of the latter are the joint masses of the counts at whole sizes; at whole sizes the total's
// probability cancels. Fractional sizes have the probability of the total at the sizes as they are, and the conditional
// distribution of their whole parts.
Answer ConditionalTest::PowerAgainst(Alternative alternative, double p1, double p2, Stop stop) {
  if (IsUncountable(group1_.size) || IsUncountable(group2_.size)) return NoValue::Uncountable;
  if (totals_ == 0) return 0;
  if (std::isnan(p1) || std::isnan(p2)) return p1 + p2;

  const bool isWhole =
      group1_.size == static_cast<double>(group1_.whole) && group2_.size == static_cast<double>(group2_.whole);
  const BinomialMasses masses1 = BinomialMasses::Of(group1_, p1);
  const BinomialMasses masses2 = BinomialMasses::Of(group2_, p2);
  const GroupSize whole1 = GroupSize::Of(static_cast<double>(group1_.whole));
  const GroupSize whole2 = GroupSize::Of(static_cast<double>(group2_.whole));
  const BinomialMasses wholeMasses1 = isWhole ? masses1 : BinomialMasses::Of(whole1, p1);
  const BinomialMasses wholeMasses2 = isWhole ? masses2 : BinomialMasses::Of(whole2, p2);

  const std::int64_t firstLikely = masses1.first + masses2.first;
  const std::int64_t lastLikely = masses1.Last() + masses2.Last();
  const std::int64_t begin = stop ? 0 : firstLikely;
  const std::int64_t end = stop ? totals_ : lastLikely + 1;
  double power = 0;
  for (std::int64_t total = begin; total < end; ++total) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    if (total < firstLikely || total > lastLikely) continue;

    const CriticalCounts critical = KeptCriticalOf(total, alternative);
    const double tails = JointProbability(wholeMasses1, wholeMasses2, total, 0, critical.lower) +
                         JointProbability(wholeMasses1, wholeMasses2, total, critical.upper, group1_.whole);
    if (isWhole) {
      power += tails;
    } else if (tails > 0) {
      power += JointProbability(masses1, masses2, total, 0, group1_.whole) * tails /
               JointProbability(wholeMasses1, wholeMasses2, total, 0, group1_.whole);
    }
  }
  return std::min(power, 1.0);  // the sum may round to more
}

}  // namespace kelpower::proportions
