#include "anova/covariance.h"

#include <algorithm>
#include <cmath>

#include "frame/integral.h"

namespace kelpower::anova {

namespace {

constexpr double rightAngle = 1.5707963267948966;

/// The density of theta, where B = cos(theta)^2, relative to its largest: cos(theta)^c sin(theta)^s. It has no singular
/// ends, as that of B has.
class AngleDensity {
public:
  AngleDensity(double c, double s) : c_(c), s_(s), top_(std::atan2(std::sqrt(s), std::sqrt(c))) {
    const double sine = std::sin(top_);
    topSquare_ = sine * sine;
  }

  double Top() const { return top_; }

  /// The second derivative of the logarithm is nowhere above -(c + s), so that beyond nine of these standard deviations
  /// there is less than 1e-17.
  double Reach() const { return 9 / std::sqrt(c_ + s_); }

  double operator()(double theta) const {
    const double sine = std::sin(theta);
    double logarithm = 0;
    if (c_ > 0) logarithm += c_ / 2 * (std::log1p(-sine * sine) - std::log1p(-topSquare_));
    if (s_ > 0) logarithm += s_ / 2 * (2 * std::log(sine) - std::log(topSquare_));
    return std::exp(logarithm);
  }

private:
  double c_;
  double s_;
  double top_;
  double topSquare_;
};

bool IsDesign(double numGroups, double covariates) {
  if (!(numGroups >= 2)) return false;
  return covariates == 0 || (covariates >= 1 && covariates <= CovarianceTest::mostCovariates);
}

}  // namespace

CovarianceTest::CovarianceTest(double numGroups, double totalSize, double covariates, double alpha)
    : totalSize_(totalSize),
      covariates_(covariates),
      test_(IsDesign(numGroups, covariates) ? numGroups - 1 : 0, totalSize - numGroups - covariates, alpha) {}

double CovarianceTest::MeanShare() const { return 1 - covariates_ / (totalSize_ - 1); }

Answer CovarianceTest::Power(double noncentrality) const {
  const Answer balanced = test_.Power(noncentrality);
  if (!balanced || covariates_ == 0) return balanced;
  if (!std::isfinite(noncentrality)) return balanced;

  const AngleDensity density(totalSize_ - covariates_ - 2, covariates_ - 1);
  const double from = std::max(0.0, density.Top() - density.Reach());
  const double to = std::min(rightAngle, density.Top() + density.Reach());
  const FTest& test = *test_.AtCriticalValue();
  // Of so many observations that the angles around the top are no longer told apart.
  if (!(to > from)) return test.Power(noncentrality * std::cos(density.Top()) * std::cos(density.Top()));
  const auto weighted = [&](double theta) {
    const double cosine = std::cos(theta);
    return density(theta) * test.Power(noncentrality * cosine * cosine);
  };
  const double tolerance = 1e-12 * (to - from);  // of the rule of Gauss; that of Kronrod errs far less
  const double middle = from + (to - from) / 2;
  const auto over = [&](FunctionView<double(double)> f) {
    return Integrate(f, from, middle, tolerance).value + Integrate(f, middle, to, tolerance).value;
  };
  return std::clamp(over(weighted) / over(density), 0.0, 1.0);
}

}  // namespace kelpower::anova
