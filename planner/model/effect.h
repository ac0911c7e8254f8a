#ifndef KELPOWER_PLANNER_MODEL_EFFECT_H
#define KELPOWER_PLANNER_MODEL_EFFECT_H

#include <optional>
#include <string>
#include <vector>

#include "model/inputs.h"
#include "model/test.h"

namespace planner {

/// The limits of a confidence interval.
struct ConfidenceLimits {
  double lower;
  double upper;
};

/// An effect size, with its confidence interval where the inputs tell how large the study is.
struct EffectValue {
  double value;
  std::optional<ConfidenceLimits> limits = {};
};

/// An effect size that conversions lead to.
struct EffectSize {
  std::string name;          // in answers for programs: "d"
  std::string label;         // in tables
  std::string wording = {};  // in sentences, where it is not the label
};

/// How an effect size follows from another.
enum class Course {
  Rises,        // with it
  OfMagnitude,  // rises with its magnitude, whatever its sign
};

/// One way to compute an effect size: from the inputs, or from another effect size and its limits.
struct EffectFormula {
  std::string effect;
  std::string from = {};  // the effect size that it starts from; empty: the inputs
  Names needs = {};       // inputs that it reads
  std::optional<EffectValue> (*compute)(const Inputs&) = nullptr;  // from the inputs
  double (*map)(double from, const Inputs&) = nullptr;             // from the other effect size; NaN: there is none
  Course course = Course::Rises;
  std::string formula;
  std::string source;
  std::string note = {};  // what it corrects, approximates or takes for granted
};

/// An input of a test that takes effect sizes; several are the entries of a list.
struct EffectUse {
  std::string test;
  Name input;
  std::vector<std::string> effects;
};

/// What can be converted: the inputs of a route, and the effect sizes they give, in the order of tables. One follows
/// from those before it.
struct EffectConversion {
  std::string title;  // in help: "Means and standard deviations of two groups"
  Names needs;
  Names accepts;
  std::string given;  // what the sentence starts from, with inputs in braces
  std::string tells;  // the effect size that the sentence tells
  std::vector<std::string> gives;
  std::vector<EffectUse> uses = {};
  std::string tellsWithoutInterval = {};  // another one where the first has no interval, since it was given itself
};

/// All conversions. `inputs` has their parameters, conditions and examples, and a route for each, in the same order.
struct Effects {
  Test inputs;
  std::vector<EffectSize> sizes = {};
  std::vector<EffectFormula> formulas = {};  // of several for an effect size the first that can be used is
  std::vector<EffectConversion> conversions = {};
};

/// An effect size as it was computed.
struct EffectResult {
  const EffectSize* size;
  const EffectFormula* formula;
  EffectValue value;
};

/// The effect sizes that follow from inputs, as data; words/effect_report.h words them.
struct EffectAnswer {
  const Effects* effects;
  const EffectConversion* conversion;
  Inputs inputs;
  std::vector<EffectResult> results;
};

}  // namespace planner

#endif
