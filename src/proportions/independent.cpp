#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "frame/increasing_search.h"
#include "frame/root_finders.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "proportions/independent_power.h"

using namespace kelpower;
using KelCommon::KelMV;

namespace {

constexpr double kTolerance = 1e-9;

bool AnswersStop(StopRequest* stop) { return stop != nullptr && stop->ShouldStop(); }

/// What the search for group sizes is given.
struct SizeSearch {
  double power;
  double p1;
  double p2;
  double sizeRatio;
  int exact;
  int method;
  int oneSided;
  double alpha;
  int continuityCorrection;
  int pooledVariance;
  StopRequest* stop;

  double SecondSize(double n1) const { return std::max(1.0, sizeRatio * n1); }
  double WholeSecondSize(double n1) const { return std::max(1.0, std::floor(sizeRatio * n1 + 0.5)); }

  double PowerAt(double n1, double n2, int usedMethod) const {
    const auto test = IndependentTest::Of(exact, usedMethod, oneSided, alpha, continuityCorrection, pooledVariance);
    return IndependentPower(test, n1, n2).At(p1, p2, stop);
  }

  /// The power at a real size. In an exact search it is, for method 4, that of the z test, deliberately.
  double PowerAt(double n1) const { return PowerAt(n1, SecondSize(n1), exact == 1 && method == 4 ? 0 : method); }

  /// Whether the power is known never to fall as the groups grow from two subjects in group 1 on: exact powers jump,
  /// and the arcsine test's correction can turn the sign of its effect.
  bool IsIncreasing() const {
    if (exact != 0) return false;
    switch (method) {
      // The critical difference is a multiple of the standard error, while both sizes grow; the correction falls
      // faster.
      case 0: return 2 * sizeRatio >= 1;
      // The squared noncentrality is 1 / (v / n1 + w / n2), and the degrees of freedom grow. That of the likelihood
      // ratio is the least of the sums n1 KL(p1, m) + n2 KL(p2, m).
      case 1:
      case 2: return true;
      default: return false;
    }
  }

  double SolveFirstSize(double lower, double upper) const {
    const auto powerAt = [&](double n1) { return PowerAt(n1); };
    if (IsIncreasing()) return SolveIncreasingPower(lower, upper, kTolerance, powerAt, power, stop);
    return SolveContinuous(
        lower, upper, kTolerance, [&](double n1) { return powerAt(n1) - power; }, stop);
  }
};

/// Where the arcsine test becomes valid, or 2.
double LowerStart(const SizeSearch& search) {
  if (search.method != 3) return 2;
  if (search.p1 > search.p2) return std::max(0.5 / ((1 - search.p2) * search.sizeRatio), 0.5 / search.p1);
  return std::max(1 / (2 * search.sizeRatio * search.p2), 0.5 / (1 - search.p1));
}

double UpperStart(const SizeSearch& search, double lower) { return search.method == 3 ? lower + 400 : 400; }

/// Repeats the search below the size last found while that gives new sizes, because the exact power is not monotone.
/// No value when the stop request answers true.
std::optional<double> SmallestFirstSize(const SizeSearch& search, double n1) {
  std::vector<double> found{n1};
  while (true) {
    if (AnswersStop(search.stop)) return std::nullopt;
    const double next = std::ceil(search.SolveFirstSize(1, found.back()));
    if (KelMV::IsMissing(next)) break;
    if (std::find(found.begin(), found.end(), next) != found.end()) break;
    found.push_back(next);
  }
  return *std::min_element(found.begin(), found.end());
}

struct GroupSizes {
  double n1;
  double n2;
};

GroupSizes MissingSizes() { return {KelMV::Missing(), KelMV::Missing()}; }

/// Brings the sizes of an exact test to whole numbers that reach the wanted power. They stay as they are when the stop
/// request answers true, and become missing when the tables can no longer be counted.
GroupSizes Refined(SizeSearch search, const GroupSizes& found) {
  if (search.method == 3) search.method = 0;  // deliberately: the refinement of the conditional test goes by the z test
  const std::optional<double> smallest = SmallestFirstSize(search, found.n1);
  if (!smallest) return found;

  double n1 = *smallest;
  while (search.PowerAt(n1, search.WholeSecondSize(n1), search.method) < search.power) {
    if (AnswersStop(search.stop)) return found;
    if (IsUncountable(n1) || IsUncountable(search.WholeSecondSize(n1))) return MissingSizes();
    n1 += 1;
  }
  return {n1, search.WholeSecondSize(n1)};
}

GroupSizes FindSizes(const SizeSearch& search) {
  if (AnswersStop(search.stop)) return MissingSizes();
  const double lower = LowerStart(search);
  const double n1 = search.SolveFirstSize(lower, UpperStart(search, lower));
  if (KelMV::IsMissing(n1)) return MissingSizes();

  // The square in this one combination of flags is intended.
  const bool isSquared =
      search.method == 0 && search.oneSided != 0 && search.continuityCorrection != 0 && search.pooledVariance != 0;
  const double second = isSquared ? search.sizeRatio * (n1 * n1) : search.sizeRatio * n1;
  const GroupSizes found{std::ceil(n1), std::max(1.0, std::ceil(second))};
  return search.exact == 1 ? Refined(search, found) : found;
}

}  // namespace

extern "C" double PowerIndSampBinom(double sampleSize1, double sampleSize2, double proportion1, double proportion2,
                                    int exact, int method, int oneSided, double alpha,
                                    std::uint8_t continuityCorrection, std::uint8_t pooledVariance,
                                    StopRequest* cancel) {
  const auto test = IndependentTest::Of(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  return IndependentPower(test, sampleSize1, sampleSize2).At(proportion1, proportion2, cancel);
}

extern "C" void PowerReverseIndSampBinom(double power, double proportion1, double proportion2,
                                         DoubleVector& sampleSizes, double sizeRatio, int exact, int method,
                                         int oneSided, double alpha, std::uint8_t continuityCorrection,
                                         std::uint8_t pooledVariance, StopRequest* cancel) {
  if (!sampleSizes.empty()) return;

  const SizeSearch search{power,    proportion1, proportion2,          sizeRatio,      exact, method,
                          oneSided, alpha,       continuityCorrection, pooledVariance, cancel};
  const GroupSizes sizes = FindSizes(search);
  sampleSizes = {sizes.n1, sizes.n2};
}
