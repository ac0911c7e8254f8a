#ifndef KELCOMMON_SRC_RATIONAL_H
#define KELCOMMON_SRC_RATIONAL_H

namespace KelMath {

/// A quotient of two polynomials, lowest power first. tools/references/rational_fits.py finds and checks the
/// coefficients.
struct Rational {
  double At(double x) const { return Polynomial(numerator, x) / Polynomial(denominator, x); }

  double numerator[7];
  double denominator[7];

private:
  // By pairs (Estrin), which a processor evaluates side by side.
  static double Polynomial(const double (&c)[7], double x) {
    const double x2 = x * x;
    const double low = (c[0] + c[1] * x) + (c[2] + c[3] * x) * x2;
    const double high = (c[4] + c[5] * x) + c[6] * x2;
    return low + high * (x2 * x2);
  }
};

}  // namespace KelMath

#endif
