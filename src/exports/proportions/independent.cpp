#include <algorithm>
#include <cmath>

#include "exports/proportions/designs.h"
#include "exports/sentinels.h"
#include "exports/stop.h"
#include "kelcommon/kel_mv.h"
#include "kelpower.h"
#include "proportions/independent_power.h"
#include "proportions/independent_sizes.h"

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

  IndependentDesign DesignOf(int usedMethod) const {
    return IndependentDesignOf(exact, usedMethod, oneSided, alpha, continuityCorrection, pooledVariance);
  }

  double PowerAt(double n1, double n2, int usedMethod) const {
    return OrSentinel(IndependentPower(DesignOf(usedMethod), n1, n2).At(p1, p2, stop));
  }

  /// The method whose power real sizes are searched by. In an exact search it is, for method 4, the z test, deliberately.
  int SearchedMethod() const { return exact == 1 && method == 4 ? 0 : method; }

  double PowerAt(double n1) const { return PowerAt(n1, SecondSize(n1), SearchedMethod()); }

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

struct GroupSizes {
  double n1;
  double n2;
};

GroupSizes MissingSizes() { return {KelMV::Missing(), KelMV::Missing()}; }

/// Brings the sizes of an exact test to whole numbers that reach the wanted power. They stay as they are when the stop
/// request answers true, and become missing when the tables can no longer be counted.
GroupSizes Refined(SizeSearch search, const GroupSizes& found) {
  if (search.method == 3) search.method = 0;  // deliberately: the refinement of the conditional test goes by the z test
  const auto searched = [&](double n1, double n2) { return search.PowerAt(n1, n2, search.SearchedMethod()); };
  const auto reached = [&](double n1, double n2) { return search.PowerAt(n1, n2, search.method); };
  const Answer n1 =
      ExactSizeSearch{searched, reached, search.sizeRatio, search.power, search.stop}.WholeFirstSize(found.n1);
  if (n1) return {*n1, WholeSecondSize(search.sizeRatio, *n1)};
  return n1.Reason() == NoValue::Stopped ? found : MissingSizes();
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
