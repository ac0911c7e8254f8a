#include "proportions/independent_sizes.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "frame/increasing_search.h"
#include "frame/root_finders.h"
#include "proportions/independent_power.h"

namespace kelpower::proportions {

double FirstArcsineSize(const IndependentSizes& wanted) {
  const auto& [p1, p2, ratio] = wanted;
  if (p1 > p2) return std::max(0.5 / ((1 - p2) * ratio), 0.5 / p1);
  return std::max(1 / (2 * ratio * p2), 0.5 / (1 - p1));
}

bool NeverFalls(const IndependentDesign& design, double ratio) {
  switch (design.test) {
    // The critical difference is a multiple of the standard error, while both sizes grow; the correction falls faster.
    case TwoProportionTest::Z: return 2 * ratio >= 1;
    // The squared noncentrality is 1 / (v / n1 + w / n2), and the degrees of freedom grow. That of the likelihood ratio
    // is the least of the sums n1 KL(p1, m) + n2 KL(p2, m).
    case TwoProportionTest::T:
    case TwoProportionTest::LikelihoodRatio: return true;
    // The arcsine test's correction can turn the sign of its effect; the powers of exact tests jump.
    case TwoProportionTest::Arcsine:
    case TwoProportionTest::Conditional: break;
  }
  return false;
}

Answer FirstSizeForPower(double lower, double upper, FunctionView<double(double)> powerAt, bool neverFalls,
                         double power, Stop stop) {
  constexpr double tolerance = 1e-9;
  return neverFalls ? SolveIncreasingPower(lower, upper, tolerance, powerAt, power, stop)
                    : SolvePower(lower, upper, tolerance, powerAt, power, stop);
}

double WholeSecondSize(double ratio, double size1) { return std::max(1.0, std::floor(ratio * size1 + 0.5)); }

Answer ExactSizeSearch::FirstSize(double lower, double upper) const {
  const auto powerAt = [&](double size1) { return searched(size1, std::max(1.0, ratio * size1)); };
  return FirstSizeForPower(lower, upper, powerAt, /*neverFalls=*/false, power, stop);
}

/// Repeats the search below the size last found while that gives new sizes.
Answer ExactSizeSearch::SmallestFound(double size1) const {
  std::vector<double> found{size1};
  while (true) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    const Answer unrounded = FirstSize(1, found.back());
    if (!unrounded) break;
    const double next = std::ceil(*unrounded);
    if (std::find(found.begin(), found.end(), next) != found.end()) break;
    found.push_back(next);
  }
  return *std::min_element(found.begin(), found.end());
}

Answer ExactSizeSearch::WholeFirstSize(double earlier) const {
  const Answer smallest = SmallestFound(earlier);
  if (!smallest) return smallest;

  double size1 = *smallest;
  while (reached(size1, WholeSecondSize(ratio, size1)) < power) {
    if (AnswersStop(stop)) return NoValue::Stopped;
    if (IsUncountable(size1) || IsUncountable(WholeSecondSize(ratio, size1))) return NoValue::Uncountable;
    size1 += 1;
  }
  return size1;
}

namespace {

Answer FirstExactSize(const IndependentDesign& design, const IndependentSizes& wanted, double power, Stop stop) {
  IndependentDesign searchedDesign = design;
  if (design.test == TwoProportionTest::Conditional) searchedDesign.test = TwoProportionTest::Z;
  const auto powerOf = [&](const IndependentDesign& used, double size1, double size2) {
    return IndependentPower(used, size1, size2).At(wanted.p1, wanted.p2, stop).ValueOr(belowEveryPower);
  };
  const auto searched = [&](double size1, double size2) { return powerOf(searchedDesign, size1, size2); };
  const auto reached = [&](double size1, double size2) { return powerOf(design, size1, size2); };
  const ExactSizeSearch search{searched, reached, wanted.ratio, power, stop};
  const Answer first = search.FirstSize(2, 400);
  return first ? search.WholeFirstSize(std::ceil(*first)) : first;
}

}  // namespace

Answer FirstSizeForPower(const IndependentDesign& design, const IndependentSizes& wanted, double power, Stop stop) {
  if (design.isExact) return FirstExactSize(design, wanted, power, stop);
  const bool isArcsine = design.test == TwoProportionTest::Arcsine;
  const double lower = isArcsine ? FirstArcsineSize(wanted) : 2;
  const double upper = isArcsine ? lower + 400 : 400;
  const auto powerAt = [&](double size1) {
    IndependentPower test(design, size1, std::max(1.0, wanted.ratio * size1));
    return test.At(wanted.p1, wanted.p2).ValueOr(belowEveryPower);
  };
  return FirstSizeForPower(lower, upper, powerAt, NeverFalls(design, wanted.ratio), power, stop);
}

}  // namespace kelpower::proportions
