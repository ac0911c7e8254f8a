#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "exports/proportions/designs.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "proportions/independent_power.h"

using namespace kelpower;
using namespace kelpower::proportions;
using namespace kelpower::exports;
using KelCommon::KelMV;

namespace {

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
  Stop stop;

  double SecondSize(double n1) const { return std::max(1.0, sizeRatio * n1); }
  double WholeSecondSize(double n1) const { return std::max(1.0, std::floor(sizeRatio * n1 + 0.5)); }

  IndependentDesign DesignOf(int usedMethod) const {
    return IndependentDesignOf(exact, usedMethod, oneSided, alpha, continuityCorrection, pooledVariance);
  }

  double PowerAt(double n1, double n2, int usedMethod) const {
    return OrSentinel(IndependentPower(DesignOf(usedMethod), n1, n2).At(p1, p2, stop));
  }

  /// The power at a real size. In an exact search it is, for method 4, that of the z test, deliberately.
  double PowerAt(double n1) const { return PowerAt(n1, SecondSize(n1), exact == 1 && method == 4 ? 0 : method); }

  Answer SolveFirstSize(double lower, double upper) const {
    const bool neverFalls = exact == 0 && NeverFalls(DesignOf(method), sizeRatio);
    return FirstSizeForPower(
        lower, upper, [&](double n1) { return PowerAt(n1); }, neverFalls, power, stop);
  }
};

/// Where the arcsine test becomes valid, or 2. Other numbers than 3 that select this test start at 2; that is intended.
double LowerStart(const SizeSearch& search) {
  return search.method == 3 ? FirstArcsineSize({search.p1, search.p2, search.sizeRatio}) : 2;
}

double UpperStart(const SizeSearch& search, double lower) { return search.method == 3 ? lower + 400 : 400; }

/// Repeats the search below the size last found while that gives new sizes, because the exact power is not monotone.
/// No value when the stop request answers true.
std::optional<double> SmallestFirstSize(const SizeSearch& search, double n1) {
  std::vector<double> found{n1};
  while (true) {
    if (AnswersStop(search.stop)) return std::nullopt;
    const Answer unrounded = search.SolveFirstSize(1, found.back());
    if (!unrounded) break;
    const double next = std::ceil(*unrounded);
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
  const Answer first = search.SolveFirstSize(lower, UpperStart(search, lower));
  if (!first) return MissingSizes();
  const double n1 = *first;

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
  const CallerStop stop(cancel);
  const auto design = IndependentDesignOf(exact, method, oneSided, alpha, continuityCorrection, pooledVariance);
  return OrSentinel(IndependentPower(design, sampleSize1, sampleSize2).At(proportion1, proportion2, stop.View()));
}

extern "C" void PowerReverseIndSampBinom(double power, double proportion1, double proportion2,
                                         DoubleVector& sampleSizes, double sizeRatio, int exact, int method,
                                         int oneSided, double alpha, std::uint8_t continuityCorrection,
                                         std::uint8_t pooledVariance, StopRequest* cancel) {
  if (!sampleSizes.empty()) return;

  const CallerStop stop(cancel);
  const SizeSearch search{power,    proportion1, proportion2,          sizeRatio,      exact,      method,
                          oneSided, alpha,       continuityCorrection, pooledVariance, stop.View()};
  const GroupSizes sizes = FindSizes(search);
  sampleSizes = {sizes.n1, sizes.n2};
}
