#ifndef KELPOWER_PLANNER_MODEL_OFFERS_H
#define KELPOWER_PLANNER_MODEL_OFFERS_H

#include <functional>
#include <string>

#include "model/inputs.h"
#include "model/route.h"

namespace planner {

struct Test;

/// What a sample without replacement from a population of known size does to an interval.
enum class FinitePopulation {
  None,             // not offered
  NarrowsInterval,  // its width is multiplied by sqrt((N - n) / (N - 1))
  EnlargesSample,   // it is as wide as that of the larger size n (N - 1) / (N - n) of an infinite population
};

/// What a test offers of the circumstances of a study, around the question itself: several comparisons, loss of
/// subjects, clusters, a finite population, an assured width, an uncertain effect. Loss is offered with every size found.
struct Offers {
  bool comparisons = true;  // the level is divided by their number
  bool clusters = false;
  FinitePopulation population = FinitePopulation::None;

  /// The probability that the interval of the data is at most as wide as `half-width` says, at sizes.
  Evaluation assurance = {};
  /// The first sizes that have an assurance, and those from which on all have it, where it is a sawtooth.
  std::function<Numbers(const Inputs&)> assuredSizes = {};
  std::function<Numbers(const Inputs&)> lastingAssuredSizes = {};

  /// The power averaged over a normal uncertainty `effect-sd` about the effect, counting the rejections in its
  /// direction, and what it does not pass however large the study is.
  Evaluation expectedPower = {};
  double (*expectedPowerLimit)(const Inputs&) = nullptr;
  std::string unitOfEffect = {};
};

/// Adds the parameters of what the test offers, to the routes of the questions that they go with, and the conditions.
void AddOffers(Test& test);

/// Whether the assurance of sizes that are given is asked for.
bool SolvesForAssurance(const Inputs& inputs);

/// The inputs of offers.
const Names& OfferedInputs();

}  // namespace planner

#endif
