#ifndef KELPOWER_DESIGN_EFFECT_DESIGN_EFFECT_H
#define KELPOWER_DESIGN_EFFECT_DESIGN_EFFECT_H

#include "frame/answer.h"

// What changes a size, or a level, that was planned for one comparison of independent observations without loss.

namespace kelpower::design_effect {

/// Clusters, such as schools, whose members are alike.
struct Clusters {
  double meanSize;                ///< members of a cluster, on average, at least 1
  double coefficientOfVariation;  ///< standard deviation of the sizes over their mean, 0 for equal sizes
  double correlation;             ///< between members of a cluster (ICC), 0 to 1
};

/// What the size of a design of independent observations is multiplied by, 1 + ((1 + CV^2) m - 1) ICC (Eldridge, Ashby
/// and Kerry 2006, "Sample size for cluster randomized trials", International Journal of Epidemiology 35, 1292-1300).
/// Refused outside the stated ranges.
Answer DesignEffect(const Clusters& clusters);

/// The smallest whole number of people to enrol so that `size` are left when the share `dropout` is lost,
/// ceil(size / (1 - dropout)). A quotient that is a whole number but for rounding errors is that number: 100 and 0.2
/// give 125. Refused for a size that is not above 0 and a dropout outside [0, 1).
Answer NumberToEnrol(double size, double dropout);

/// The size, unrounded, that is as precise in a sample without replacement from `population` people as `size` is in one
/// from very many, n / (1 + (n - 1) / N) (Cochran 1977, "Sampling Techniques", 3rd ed., section 4.4). Refused for a
/// size or a population below 1. An infinite population leaves the size.
Answer SizeInPopulation(double size, double population);

/// How the level of several comparisons is divided among them.
enum class Division {
  Bonferroni,  ///< alpha / K
  Sidak        ///< 1 - (1 - alpha)^(1 / K), exact for independent ones (Sidak 1967, JASA 62, 626-633)
};

/// The level of each of K comparisons that together have the level `alpha`. Refused for a level outside (0, 1) and
/// fewer comparisons than one.
Answer LevelOfEach(Division division, double alpha, double comparisons);

}  // namespace kelpower::design_effect

#endif
