#ifndef KELPOWER_FRAME_BINOMIAL_PRODUCT_H
#define KELPOWER_FRAME_BINOMIAL_PRODUCT_H

namespace kelpower {

/// A product of quotients j / i whose partial products are whole numbers, as those of a binomial coefficient are. It is
/// exact while it is below 2^53, and then the sum of two doubles, about 100 bits: a thousand factors leave the double
/// nearest to the product, up to a product in some 2^40 that lies as near to the next one.
class BinomialProduct {
public:
  explicit BinomialProduct(double start) : high_(start * scale) {}

  /// Multiplies by j / i. Of the partial product and j, neither need be small: only the result may overflow.
  void Multiply(double j, double i) {
    const double whole = high_ * j;
    if (low_ == 0 && whole <= largestExact) {
      high_ = whole / i;
      return;
    }
    const Sum product = Product(high_, j * scale);
    const double large = product.high / scale;
    const double small = (product.low + low_ * (j * scale)) / scale;
    const double quotient = large / i;
    if (!(quotient < overflow)) {
      high_ = quotient;
      return;
    }
    const Sum back = Product(quotient, i);
    const double rest = ((large - back.high) - back.low + small) / i;
    high_ = quotient + rest;
    low_ = rest - (high_ - quotient);
  }

  double Value() const { return high_ / scale; }

private:
  static constexpr double scale = 0x1p-64;  // the factors of a product are kept this much smaller, against overflow
  static constexpr double largestExact = 0x1p53 * scale;
  static constexpr double overflow = 0x1p960;  // infinite without the scale, and too large for the halves below

  struct Sum {
    double high;
    double low;
  };

  // The product of two doubles without an error: Dekker (1971), A floating-point technique for extending the available
  // precision, Numerische Mathematik 18. A fused multiply-add is slow where the processor has none.
  static Sum Product(double a, double b) {
    const Sum left = Halves(a);
    const Sum right = Halves(b);
    const double product = a * b;
    return {product, left.low * right.low -
                         (((product - left.high * right.high) - left.low * right.high) - left.high * right.low)};
  }

  static Sum Halves(double a) {
    constexpr double splitter = 0x1p27 + 1;
    const double moved = splitter * a;
    const double high = moved - (moved - a);
    return {high, a - high};
  }

  double high_;
  double low_ = 0;
};

}  // namespace kelpower

#endif
