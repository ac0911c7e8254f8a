#ifndef KELPOWER_PLANNER_CATALOGUE_TUKEY_H
#define KELPOWER_PLANNER_CATALOGUE_TUKEY_H

#include <vector>

#include "model/inputs.h"
#include "model/test.h"

// What the parts of the description of Tukey's test share.
namespace planner {

/// Which two groups a question is about, counted from 0, and their sizes.
struct AskedPair {
  std::size_t first;
  std::size_t second;
};
AskedPair PairOf(const Inputs& in);

/// Whether the power is that for one pair. Two groups are one.
bool IsAboutOnePair(const Inputs& in);

/// The means in standard deviations.
Numbers MeansOfTukey(const Inputs& in);

/// The difference of the means of the pair in standard deviations.
double EffectOfTukeyPair(const Inputs& in);

/// Whether a list is absent or has one number for all groups.
bool AreEqual(const Inputs& in, Name list);

std::vector<Route> RoutesOfTukey();
std::vector<Condition> ConditionsOfTukey();
std::vector<Condition> SizeExistsForTukey();
void AddWordsOfTukey(Test& test);
Details DetailsOfTukey(Question question, const Inputs& in);

}  // namespace planner

#endif
