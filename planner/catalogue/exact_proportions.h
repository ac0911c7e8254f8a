#ifndef PLANNER_EXACT_PROPORTIONS_H
#define PLANNER_EXACT_PROPORTIONS_H

// What a plan with an exact test of proportions reports besides its power.

namespace planner {

/// A count rejects at `lower` and below or at `upper` and above. A tail without such a count has `lower` -1, or `upper`
/// one above the number of trials.
struct CriticalRegion {
  double lower;
  double upper;
};

/// The hypotheses of the exact test of one proportion.
struct OneProportion {
  double alternative;
  double null;
  bool isOneSided;
  double alpha;
};

/// The hypotheses of the exact test of two related proportions.
struct DiscordantProportions {
  double p12;
  double p21;
  bool isOneSided;
  double alpha;
};

/// The numbers of successes among n that reject.
CriticalRegion CriticalCounts(const OneProportion& test, double n);

/// The numbers of pairs of the second kind among m discordant ones that reject.
CriticalRegion CriticalCounts(const DiscordantProportions& test, double m);

/// The significance level that is attained with n subjects: the probability of the critical region under the null
/// hypothesis, at most alpha.
double AttainedLevel(const OneProportion& test, double n);

/// The same with n pairs, of which the discordant proportion is the same under the null hypothesis.
double AttainedLevel(const DiscordantProportions& test, double n);

/// The smallest size from which on every size reaches the power. The power of an exact test is a sawtooth in its size,
/// so this is often a few more than the smallest size that reaches it. The missing value when there is none up to the
/// largest size considered.
double LastingSize(const OneProportion& test, double power);
double LastingSize(const DiscordantProportions& test, double power);

}  // namespace planner

#endif
