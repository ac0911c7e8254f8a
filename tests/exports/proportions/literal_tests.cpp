#include "literal_tests.h"

#include <cmath>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace literal {

namespace {

bool AnswersStop(StopRequest* cancel) { return cancel != nullptr && cancel->ShouldStop(); }

}  // namespace

double OneSamplePower(double sampleSize, double altProportion, double nullProportion, int oneSided, double alpha,
                      StopRequest* cancel) {
  const double n = std::trunc(sampleSize);
  long errorA = 0;
  long errorB = 0;
  bool isStopped = false;

  const auto lowerCritical = [&](double t) {
    double k = -1;
    do {
      if (AnswersStop(cancel)) {
        isStopped = true;
        return k;
      }
      const double a = KelDistFun::CdfBin(k, sampleSize, nullProportion, errorA);
      const double b = KelDistFun::CdfBin(k + 1, sampleSize, nullProportion, errorB);
      if (errorA == 0 && errorB == 0 && a <= t && t < b) return k;
      k += 1;
    } while (sampleSize > k);
    return k;
  };
  const auto upperCritical = [&](double t) {
    double k = n + 1;
    do {
      if (AnswersStop(cancel)) {
        isStopped = true;
        return k;
      }
      const double a = KelDistFun::CdfBin(k, sampleSize, nullProportion, errorA);
      const double b = KelDistFun::CdfBin(k - 1, sampleSize, nullProportion, errorB);
      if (errorA == 0 && errorB == 0 && a >= 1 - t && 1 - t > b) return k;
      k -= 1;
    } while (k > 0);
    return k;
  };

  long error1 = 0;
  long error2 = 0;
  if (oneSided == 0) {
    const double lower = lowerCritical(alpha / 2);
    if (isStopped) return KelMV::Missing();
    const double upper = upperCritical(alpha / 2);
    if (isStopped) return KelMV::Missing();
    const double u = KelDistFun::CdfBin(upper, sampleSize, altProportion, error1);
    const double l = KelDistFun::CdfBin(lower, sampleSize, altProportion, error2);
    return error1 == 0 && error2 == 0 ? 1 - u + l : -2;
  }
  if (altProportion > nullProportion) {
    const double upper = upperCritical(alpha);
    if (isStopped) return KelMV::Missing();
    const double u = KelDistFun::CdfBin(upper, sampleSize, altProportion, error1);
    return error1 == 0 ? 1 - u : -2;
  }
  const double lower = lowerCritical(alpha);
  if (isStopped) return KelMV::Missing();
  const double l = KelDistFun::CdfBin(lower, sampleSize, altProportion, error1);
  return error1 == 0 ? l : -2;
}

double PairedPower(double sampleSize, double discordant12, double discordant21, int oneSided, double alpha,
                   StopRequest* cancel) {
  const double discordant = discordant12 + discordant21;
  const double second = discordant21 / discordant;
  const bool usesUpper = oneSided == 0 || discordant21 > discordant12;
  const bool usesLower = oneSided == 0 || !usesUpper;
  const double a = oneSided == 0 ? alpha / 2 : alpha;
  long error = 0;
  double power = 0;
  for (double m = 1; m <= sampleSize; ++m) {
    if (AnswersStop(cancel)) return KelMV::Missing();
    const double w = KelDistFun::PdfBin(m, sampleSize, discordant, error);
    if (error != 0) return -2;

    double lower = 0;
    bool isSkipped = false;
    if (usesLower) {
      lower = std::trunc(KelDistFun::IdfBin(a, m, 0.5, error) + 0.5);
      if (error != 0) return -2;
      if (KelDistFun::CdfBin(lower, m, 0.5, error) > a) isSkipped = true;
      if (a >= KelDistFun::CdfBin(lower + 1, m, 0.5, error)) isSkipped = true;
    }
    double upper = 0;
    if (usesUpper) {
      upper = std::trunc(KelDistFun::IdfBin(1 - a, m, 0.5, error) + 0.5);
      if (error != 0) return -2;
      if (1 - a > KelDistFun::CdfBin(upper + 1, m, 0.5, error)) isSkipped = true;
      if (KelDistFun::CdfBin(upper, m, 0.5, error) > 1 - a) isSkipped = true;
    }
    if (isSkipped) continue;

    if (usesLower) {
      power += w * KelDistFun::CdfBin(lower, m, second, error);
      if (error != 0) return -2;
    }
    if (usesUpper) {
      power += w * (1 - KelDistFun::CdfBin(upper + 1, m, second, error));
      if (error != 0) return -2;
    }
  }
  return power;
}

}  // namespace literal
