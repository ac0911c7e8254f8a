#include "catalogue/effects_parts.h"

namespace planner {

std::vector<Example> ExamplesOfEffects() {
  return {
      {"effect --means 52,47 --sd 10,12 --n 20,25",
       "From means of 52 and 47 with standard deviations of 10 and 12 in groups of 20 and 25, Cohen's d is 0.448 "
       "(95% confidence interval -0.15 to 1.041)."},
      {"effect --t 2.3 --n 20,20",
       "From a t of 2.3 in groups of 20 and 20, Cohen's d is 0.7273 (95% confidence interval 0.08199 to 1.364)."},
      {"effect --effect-d 0.5", "From a Cohen's d of 0.5, the probability of superiority is 0.6382."},
      {"effect --t 2.3 --n 20 --one-sample",
       "From a t of one sample or of pairs of 2.3 in a sample of 20, Cohen's dz is 0.5143 (95% confidence interval "
       "0.04098 to 0.9758)."},
      {"effect --f-statistic 4.2 --df 2,57",
       "From an F of 4.2 on 2 and 57 degrees of freedom, Cohen's f is 0.3839 (95% confidence interval 0.0477 to "
       "0.6177)."},
      {"effect --r-squared 0.3 --predictors 3 --n 50",
       "From an R squared of 0.3 with 3 predictors in a sample of 50, f squared is 0.4286 (95% confidence interval "
       "0.07228 to 0.8186)."},
      {"effect --r 0.3 --n 50 --confidence 0.9",
       "From a correlation of 0.3 in a sample of 50, the correlation is 0.3 (90% confidence interval 0.06948 to "
       "0.5001)."},
      {"effect --correlations 0.5,0.3 --n 60,80",
       "From correlations of 0.5 and 0.3 in groups of 60 and 80, Cohen's q is 0.2398 (95% confidence interval "
       "-0.1027 to 0.5823)."},
      {"effect --counts 10,90,5,95",
       "From counts of 10, 90, 5 and 95, the odds ratio of the second group over the first is 0.4737 (95% "
       "confidence interval 0.1559 to 1.44)."},
      {"effect --odds-ratio 2 --proportion1 0.3",
       "From an odds ratio of 2 and a first proportion of 0.3, the second proportion is 0.4615."},
  };
}

}  // namespace planner
