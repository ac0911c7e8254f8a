#include "t_expansion.h"

#include <cmath>
#include <limits>

#include "normal.h"

// Wallace (1959), Bounds on normal approximations to Student's and the chi-square distributions, Annals of Mathematical
// Statistics 30, has sqrt(df log(1 + t^2 / df)) for a nearly normal deviate of t. With N = df - 1/2 and
//   t = sqrt(df (exp(v^2 / N) - 1))
// the density of v is, exactly,
//   A exp(-v^2 / 2) h(v^2 / N),  h(s) = sqrt((s / 2) / sinh(s / 2)) = 1 - s^2 / 48 + ...
// The series of h has even powers only, so v differs from the normal quantile z of the same tail by a power series in
// 1 / N^2 whose coefficients are odd polynomials in z: v = z - (z^3 + 3 z) / (48 N^2) + ...

namespace KelMath {

namespace {

constexpr int orders = 8;

// The polynomials divided by z, in falling powers of z^2; tools/references/t_expansion.py derives them.
constexpr double coefficients[orders][2 * orders] = {
    {-0.020833333333333332, -0.0625},
    {0.00017361111111111112, 0.002734375, 0.015625, 0.041015625},
    {-2.7557319223985893e-06, -7.00989307760141e-05, -0.0008560422867063492, -0.0062744140625, -0.0299072265625,
     -0.0819091796875},
    {5.166997354497355e-08, 1.8622719631834216e-06, 3.4189375620039684e-05, 0.00041762861625227346,
     0.0037490118117559524, 0.025217437744140626, 0.12068684895833333, 0.34393882751464844},
    {-1.043837849393405e-09, -4.937570493849429e-08, -1.2192420238436226e-06, -2.0865961828859235e-05,
     -0.0002767898716451802, -0.002974230524093386, -0.025887378056844077, -0.17562317848205566, -0.8554970026016235,
     -2.4912861585617065},
    {2.201745891119789e-11, 1.3002266046345128e-09, 4.0596982730496576e-08, 8.967792135267881e-07,
     1.5777460540447976e-05, 0.00023339629769526191, 0.0029511156507614086, 0.03158487136322985, 0.2778064973297573,
     1.9084892816841603, 9.39584568142891, 27.665356937795877},
    {-4.779477332387385e-13, -3.402689143326544e-11, -1.2904008165629388e-09, -3.503134025173227e-08,
     -7.694140362650363e-07, -1.4512863152788828e-05, -0.00024086383297094421, -0.0035227653141145445,
     -0.04481964681124177, -0.48456075920812075, -4.300965012044513, -29.761499296640977, -147.33878513914533,
     -436.4199626853224},
    {1.0592750926008071e-14, 8.861009384508041e-13, 3.9669557393505146e-11, 1.2806005324943193e-09,
     3.377474714324168e-08, 7.751823765080636e-07, 1.5936144193955138e-05, 0.0002956367298448705, 0.00492259285330887,
     0.0726202046606831, 0.9317134635245228, 10.140640200714298, 90.46311896634066, 628.399251464878,
     3120.4512152593816, 9275.143324930168}};

// The last order is never negligible for a smaller N, nor for a larger z^2 / N.
constexpr double leastN = 20;
constexpr double mostSquare = 1.3;

}  // namespace

double QuantileOfManyDegrees(double tail, double df) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  const double n = df - 0.5;
  if (n < leastN) return none;
  const double z = NormalUpperQuantile(tail);
  const double square = z * z;
  if (square > mostSquare * n) return none;
  double power = 1;
  double sum = 0;
  for (int order = 1; order <= orders; ++order) {
    power /= n * n;
    double polynomial = 0;
    for (int i = 0; i < 2 * order; ++i) polynomial = polynomial * square + coefficients[order - 1][i];
    const double term = polynomial * power;
    sum += term;
    if (std::fabs(term) < 1e-17) {
      const double v = z + z * sum;
      return std::sqrt(df * std::expm1(v * v / n));
    }
  }
  return none;
}

}  // namespace KelMath
