#ifndef KELPOWER_TESTS_REGRESSION_STATED_SERIES_H
#define KELPOWER_TESTS_REGRESSION_STATED_SERIES_H

#include <algorithm>
#include <cmath>
#include <vector>

#include "frame/rejection.h"
#include "kelcommon/kel_dist_fun.h"

namespace kelpower {

/// The distribution function of the squared multiple correlation by its series in logarithms, term by term as it is
/// usually printed. It takes K^2 logarithms and loses digits as the sample grows: the yardstick, not the method.
inline double CdfByStatedSeries(const FTest& test, double rhoSquared) {
  using KelMath::KelDistFun;
  const double a = test.df1 / 2;
  const double e = test.df2 / 2;
  const double h = (test.df1 + test.df2) / 2;
  const double c = test.critical / (test.df2 / test.df1 + test.critical);
  const auto lgam = [](double x) { return KelDistFun::orvadnlgam(x); };
  const auto logBeta = [&](double x, double y) { return lgam(x) + lgam(y) - lgam(x + y); };

  const double first = logBeta(a, e) + std::log(KelDistFun::CdfBeta(c, a, e));
  double largest = first;
  std::vector<double> terms;
  for (int k = 1;; ++k) {
    double risingH = 0;
    double risingA = 0;
    for (int i = 0; i < k; ++i) {
      risingH += std::log(h + i);
      risingA += std::log(a + i);
    }
    terms.push_back(logBeta(a + k, e) + std::log(KelDistFun::CdfBeta(c, a + k, e)) + k * std::log(rhoSquared) +
                    2 * risingH - risingA - lgam(k + 1));
    long error;
    const double weight = std::log(KelDistFun::PdfNegBin(k, h, 1 - rhoSquared, error));
    if (weight < -708.3964 && k > (h - 1) * rhoSquared / (1 - rhoSquared)) break;
    largest = std::max(largest, terms.back());
  }
  const double scale = 709 * std::trunc(largest / 709);
  double sum = std::exp(first - scale);
  for (const double term : terms) sum += std::exp(term - scale);
  return std::exp(std::log(sum) + lgam(a + e) - lgam(e) - lgam(a) + h * std::log(1 - rhoSquared) + scale);
}

}  // namespace kelpower

#endif
