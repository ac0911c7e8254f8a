#ifndef KELPOWER_PLANNER_CATALOGUE_MARGINS_H
#define KELPOWER_PLANNER_CATALOGUE_MARGINS_H

#include <string>
#include <vector>

#include "model/test.h"

// What tests against margins share: non-inferiority, superiority by a margin, and equivalence. An effect is compared with
// numbers other than that of no effect, which is 0 for a difference and 1 for a ratio.
//
// A margin on one side of no effect tells the direction. One of non-inferiority lies on the bad side: one below no effect
// means that larger values are better. One of superiority lies on the good side: one above no effect means that larger
// values are better.
namespace planner {

/// The number of no effect.
constexpr double noDifference = 0;
constexpr double noRatio = 1;

/// The inputs. `effect` names what is compared: "difference of the means".
Parameter Margin(const std::string& effect);
Parameter NonInferiority();
Parameter SuperiorityByMargin();
Parameter EquivalenceLimits(const std::string& effect);

/// All of them, as a test lists them.
std::vector<Parameter> MarginParameters(const std::string& effect);

/// Whether margins are what the effect is compared with.
inline bool HasMargins(const Inputs& in) { return in.Has("margin") || in.Has("equivalence"); }
inline bool IsEquivalence(const Inputs& in) { return in.Has("equivalence"); }

/// Whether the test shows that the effect is above its margin, rather than below.
bool IsAboveMargin(const Inputs& in, double noEffect);

/// Whether the effect lies where the test is to show it.
bool IsWithinMargins(const Inputs& in, double effect, double noEffect);

/// The three sets of inputs that name what is to be shown. Each joins the needs of a route.
const std::vector<Names>& WaysToNameMargins();

/// The routes of a test against margins: each of `routes` with each of those ways.
std::vector<Route> WithMargins(const std::vector<Route>& routes);

/// The lower limit of equivalence is below the upper one.
Condition LimitsInOrder();

/// Of the ratio that `ratio` gives, the margin and the limits are above 0.
std::vector<Condition> RatioMarginsAboveZero(Name ratio);

/// What a test against margins does not take: an uncertain effect, together with each of `others`.
std::vector<Condition> CertainEffect(const Names& others);

/// The conditions for a size that the effect expected, which `effect` names in a sentence and `about` gives, lies within
/// the margins.
std::vector<Condition> WithinMargins(Name about, const std::string& effect,
                                     std::function<bool(const Inputs&)> isWithin);

/// The alternative hypothesis in words, with inputs in braces: "the difference of the means is above {margin}". Nothing
/// without margins.
std::string HypothesisOfMargins(const Inputs& in, const std::string& effect, double noEffect);

/// The assumption that tells it, which sentences name as {hypothesis}.
Assumption HypothesisAssumption(std::string (*call)(const Inputs&));

/// Adds phrases of sentences, where `plain` names the test ("independent-samples t test") and `two` two of them:
/// {procedure} is the test with its kind, {aim} what it is to show given {effect}, and {comma} ends an aim that has commas.
void AddPhrasesOfMargins(Test& test, const std::string& plain, const std::string& two);

}  // namespace planner

#endif
