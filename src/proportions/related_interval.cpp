#include "proportions/related_interval.h"

#include <cmath>

#include "frame/root_finders.h"
#include "kelcommon/kel_dist_fun.h"
#include "proportions/wald.h"

namespace kelpower::proportions {

using KelMath::KelDistFun;

namespace {

constexpr double pairedWaldCorrection = 1;  // over the size

}  // namespace

RelatedInterval::RelatedInterval(const Design& design)
    : method_(design.method),
      isCorrected_(design.isCorrected),
      discordant_(design.pairs.p12 + design.pairs.p21),
      difference_(design.pairs.p12 - design.pairs.p21),
      z_(KelDistFun::IdfStdNorm(1 - design.alpha / 2)) {}

double RelatedInterval::HalfWidth(double size) const {
  switch (method_) {
    case RelatedMethod::AgrestiMin: return AdjustedHalfWidth(size, 1);
    case RelatedMethod::BonettPrice: return AdjustedHalfWidth(size, 2);
    case RelatedMethod::Wald: break;
  }
  const double halfWidth = z_ * std::sqrt(Variance() / size);
  return isCorrected_ ? halfWidth + pairedWaldCorrection / size : halfWidth;
}

double RelatedInterval::AdjustedHalfWidth(double size, double addedPairs) const {
  const double centre = difference_ * (size / (size + 2));
  const double spread = (discordant_ * size + addedPairs) / (size + 2);
  return z_ * std::sqrt((spread - centre * centre) / (size + 2));
}

// The corrected size is that of |z|.
Answer RelatedInterval::SizeFor(double halfWidth, Stop stop) const {
  if (method_ == RelatedMethod::Wald) {
    return isCorrected_ ? CorrectedWaldSize(halfWidth, Variance(), std::fabs(z_), pairedWaldCorrection)
                        : WaldSize(halfWidth, Variance(), z_);
  }
  return PairsForHalfWidth([this](double size) { return HalfWidth(size); }, halfWidth, stop);
}

Answer PairsForHalfWidth(FunctionView<double(double)> halfWidthAt, double halfWidth, Stop stop) {
  const auto excess = [&](double size) { return halfWidth - halfWidthAt(size); };
  return SolveContinuous(1, 400, 1e-9, excess, stop);
}

}  // namespace kelpower::proportions
