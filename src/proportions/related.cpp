#include "frame/checks.h"
#include "frame/increasing_search.h"
#include "kelpower.h"
#include "proportions/exact_search.h"
#include "proportions/related_test.h"

using namespace kelpower;

extern "C" double PowerbyPRelSampBionm(double sampleSize, double discordant12, double discordant21, int oneSided,
                                       int exact, double alpha, StopRequest* cancel) {
  return RelatedTest(oneSided, exact, alpha).Power(sampleSize, {discordant12, discordant21}, cancel);
}

extern "C" double PowerbyCRelSampBionm(double sampleSize, double discordantCount12, double discordantCount21,
                                       int oneSided, int exact, double alpha) {
  if (discordantCount12 + discordantCount21 > sampleSize) return -1;
  return RelatedTest(oneSided, exact, alpha)
      .Power(sampleSize, {discordantCount12 / sampleSize, discordantCount21 / sampleSize});
}

extern "C" double PowerbyMargPRelSampBionm(double sampleSize, double marginal1, double marginal2, double correlation,
                                           int oneSided, int exact, double alpha) {
  if (RejectsAlpha(alpha)) return -1;
  return RelatedTest(oneSided, exact, alpha).PowerOfMarginals(sampleSize, marginal1, marginal2, correlation);
}

extern "C" double PowerbyMargCRelSampBionm(double sampleSize, double marginalCount1, double marginalCount2,
                                           double correlation, int oneSided, int exact, double alpha) {
  if (RejectsAlpha(alpha)) return -1;
  return RelatedTest(oneSided, exact, alpha)
      .PowerOfMarginals(sampleSize, marginalCount1 / sampleSize, marginalCount2 / sampleSize, correlation);
}

// Nothing is checked: sizes below 2 and invalid designs have the power -1, which the search takes as it stands.
extern "C" double PowerReversebyPRelSampBionm(double power, double discordant12, double discordant21, int oneSided,
                                              int exact, double alpha, StopRequest* cancel) {
  RelatedTest test(oneSided, exact, alpha);
  const auto powerAt = [&](double size, StopRequest* stop) {
    return test.Power(size, {discordant12, discordant21}, stop);
  };
  if (exact != 0) return SolveExactSize(power, powerAt, cancel);
  // The tail on the side of the difference grows with sqrt(N), and the other one, further out, loses less.
  return SolveIncreasingPower(
      1, 400, 1e-9, [&](double size) { return powerAt(size, nullptr); }, power, nullptr);
}

extern "C" double PowerReversebyMargPRelSampBionm(double power, double marginal1, double marginal2, double correlation,
                                                  int oneSided, int exact, double alpha, StopRequest* cancel) {
  if (RejectsMarginals(marginal1, marginal2)) return -1;
  if (RejectsCorrelation(correlation)) return -1;
  if (RejectsAlpha(alpha)) return -1;
  const DiscordantPairs pairs = DiscordantPairs::FromMarginals(marginal1, marginal2, correlation);
  return PowerReversebyPRelSampBionm(power, pairs.p12, pairs.p21, oneSided, exact, alpha, cancel);
}
