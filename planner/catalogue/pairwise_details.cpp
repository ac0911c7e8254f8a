#include <algorithm>

#include "catalogue/contrast_details.h"
#include "catalogue/details.h"

namespace planner {

namespace anova = kelpower::anova;

Details DetailsOfPairwise(Question question, const Inputs& in) {
  const auto [first, second] = std::minmax(in.List("pair")[0], in.List("pair")[1]);
  const Numbers contrast = anova::PairContrast(in.Groups(), static_cast<int>(first), static_cast<int>(second));
  double effect = in.Has("effect-d") ? in.Number("effect-d") : 0;
  if (in.Has("means")) effect = anova::ContrastValue(contrast, in.List("means")) / in.Number("sd");
  const double level = anova::AdjustedAlpha(anova::Adjustment(in.Choice("adjust")), in.Groups(), in.Alpha());
  return DetailsOf({contrast, effect, false, level}, question, in);
}

}  // namespace planner
