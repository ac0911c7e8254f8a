#include "words/plan_notes.h"

#include <cmath>

#include "format/format.h"
#include "solve/plan.h"
#include "words/numbers.h"

namespace planner {
namespace {

PlanNote NoteOnComparisons(const Inputs& in) {
  return {.figures = {{"level", "level of each comparison", in.Alpha()}},
          .formula = Formatted("level = {} / {} = {:.6g}", Shortest(in.Number("alpha")),
                               Shortest(in.Number("comparisons")), in.Alpha()),
          .source = "Bonferroni's inequality",
          .isKnownElsewhere = true};
}

PlanNote NoteOnClusters(const Answer& answer) {
  const Inputs& in = answer.inputs;
  const std::string m = Shortest(in.Number("cluster-size"));
  const std::string icc = Shortest(in.Number("icc"));
  const double variation = in.Has("cluster-cv") ? in.Number("cluster-cv") : 0;
  const double effect = DesignEffect(in);
  PlanNote note{
      .figures = {{"design-effect", "design effect", effect}},
      .formula = Formatted("design effect = 1 + ((1 + {}^2) {} - 1) {} = {:.6g}", Shortest(variation), m, icc, effect),
      .source = "Eldridge, Ashby and Kerry 2006, International Journal of Epidemiology 35, 1292-1300"};
  for (std::size_t i = 0; i < answer.sizes.size(); ++i) {
    const std::string group = std::to_string(i + 1);
    note.figures.push_back({"effective-n" + group, "effective size of group " + group, answer.sizes[i] / effect});
  }
  return note;
}

PlanNote NoteOnDropout(const Answer& answer) {
  return {.figures = {},
          .formula = Formatted("to enrol = size / (1 - {})", Shortest(answer.inputs.Number("dropout"))),
          .source = "the number expected to be left",
          .isKnownElsewhere = true};
}

PlanNote NoteOnPopulation(const Answer& answer) {
  const std::string population = Shortest(answer.inputs.Number("population"));
  const std::string size = Shortest(answer.sizes.front());
  const bool narrows = answer.test->offers.population == FinitePopulation::NarrowsInterval;
  return {.figures = {},
          .formula = narrows ? Formatted("half-width in the population = half-width sqrt(({0} - {1}) / ({0} - 1))",
                                         population, size)
                             : Formatted("of the size n = {1} ({0} - 1) / ({0} - {1})", population, size),
          .source = "Cochran 1977, Sampling Techniques, sections 2.6 and 4.4"};
}

PlanNote NoteOnAssurance(const Answer& answer) {
  return {
      .figures = {{"assurance", "assurance", answer.assurance}},
      .formula = Formatted("assurance = P(half-width of the data <= {})", Shortest(answer.inputs.Number("half-width"))),
      .source = "Kupper and Hafner 1989, The American Statistician 43, 101-105"};
}

PlanNote NoteOnUncertainty(const Answer& answer) {
  return {.figures = {{"expected-power", "expected power", answer.value}},
          .formula = Formatted(
              "expected power = integral of the power in the direction of the effect over a normal effect with a "
              "standard deviation of {}",
              Shortest(answer.inputs.Number("effect-sd"))),
          .source = "O'Hagan, Stevens and Campbell 2005, Pharmaceutical Statistics 4, 187-201"};
}

}  // namespace

std::vector<PlanNote> NotesOnPlan(const Answer& answer) {
  const Inputs& in = answer.inputs;
  std::vector<PlanNote> notes;
  if (in.Has("comparisons")) notes.push_back(NoteOnComparisons(in));
  if (in.Has("cluster-size")) notes.push_back(NoteOnClusters(answer));
  if (in.Has("population")) notes.push_back(NoteOnPopulation(answer));
  if (!std::isnan(answer.assurance)) notes.push_back(NoteOnAssurance(answer));
  if (in.Has("effect-sd")) notes.push_back(NoteOnUncertainty(answer));
  if (in.Has("dropout")) notes.push_back(NoteOnDropout(answer));
  return notes;
}

}  // namespace planner
