#include "model/offers.h"

#include <utility>

#include "model/test.h"

namespace planner {
namespace {

/// Adds an input, to the routes of these questions that the test has.
void Add(Test& test, Parameter parameter, const std::vector<Question>& questions) {
  bool isTaken = false;
  for (Route& route : test.routes) {
    if (std::find(questions.begin(), questions.end(), route.question) == questions.end()) continue;
    route.accepts.push_back(parameter.name);
    isTaken = true;
  }
  if (isTaken) test.parameters.push_back(std::move(parameter));
}

/// A condition on inputs that the sentence names.
void Refuse(Test& test, std::string code, Names about, std::function<bool(const Inputs&)> holds, std::string sentence) {
  test.conditions.push_back({std::move(code), std::move(about), std::move(holds), std::move(sentence)});
}

/// Neither as a target nor as what is solved for.
void RefuseAssuranceWith(Test& test, Name other, const std::string& sentence) {
  const std::string code = "assurance-with-" + std::string(other.Text());
  const auto never = [](const Inputs&) { return false; };
  const auto solvesForAnother = [](const Inputs& in) { return !SolvesForAssurance(in); };
  Refuse(test, code, {"assurance", other}, never, sentence);
  Refuse(test, code, {"solve", other}, solvesForAnother, sentence);
}

void AddClusters(Test& test, const std::vector<Question>& all) {
  Add(test,
      Number("cluster-size", "cluster size", "members of a cluster, on average, where whole clusters are assigned")
          .AtLeast(1)
          .AtMost(1e6),
      all);
  Add(test,
      Number("icc", "intracluster correlation", "correlation between the members of a cluster").AtLeast(0).AtMost(1),
      all);
  Add(test,
      Number("cluster-cv", "variation of cluster sizes", "standard deviation of the cluster sizes over their mean")
          .AtLeast(0)
          .AtMost(100),
      all);
  Refuse(
      test, "cluster-alone", {"cluster-size"}, [](const Inputs& in) { return in.Has("icc"); },
      "{cluster-size} and {icc} go together: also give {icc}.");
  Refuse(
      test, "icc-alone", {"icc"}, [](const Inputs& in) { return in.Has("cluster-size"); },
      "{cluster-size} and {icc} go together: also give {cluster-size}.");
  Refuse(
      test, "cv-alone", {"cluster-cv"}, [](const Inputs& in) { return in.Has("cluster-size"); },
      "{cluster-cv} has a use only together with {cluster-size} and {icc}.");
}

void AddPopulation(Test& test) {
  Add(test,
      Number("population", "population size", "size of the population that the sample is drawn from")
          .Whole()
          .AtLeast(2)
          .AtMost(1e15),
      {Question::HalfWidth, Question::SampleSizeForHalfWidth});
  Refuse(
      test, "sample-of-population", {"n", "population"},
      [](const Inputs& in) { return in.Number("n") <= in.Number("population"); }, "{n} must not exceed {population}.");
}

void AddAssurance(Test& test) {
  Add(test,
      Number("assurance", "target assurance",
             "probability that the interval of the data is as narrow as {half-width} says")
          .AtLeast(0.001)
          .AtMost(0.999999),
      {Question::SampleSizeForHalfWidth});
  if (test.offers.population != FinitePopulation::None) {
    RefuseAssuranceWith(test, "population",
                        "An assurance and {population} do not go together: it is that of a sample from a large "
                        "population.");
  }
  if (test.offers.clusters) {
    RefuseAssuranceWith(test, "cluster-size",
                        "An assurance and {cluster-size} do not go together: it is that of independent observations.");
  }
}

}  // namespace

void AddOffers(Test& test) {
  const std::vector<Question> all{Question::Power, Question::SampleSize, Question::HalfWidth,
                                  Question::SampleSizeForHalfWidth};
  const Offers& offers = test.offers;
  if (offers.comparisons) {
    Add(test,
        Number("comparisons", "number of comparisons", "comparisons or endpoints that share {alpha} (Bonferroni)")
            .Whole()
            .AtLeast(1)
            .AtMost(1e6),
        all);
  }
  Add(test,
      Number("dropout", "dropout", "share of those enrolled who are lost, of sizes that are found").AtLeast(0).Below(1),
      {Question::SampleSize, Question::SampleSizeForHalfWidth});
  if (offers.clusters) AddClusters(test, all);
  if (offers.population != FinitePopulation::None) AddPopulation(test);
  if (offers.assurance) AddAssurance(test);
  if (offers.expectedPower) {
    Add(test,
        Number("effect-sd", "standard deviation of the effect",
               "standard deviation of a normal uncertainty about the effect, " + offers.unitOfEffect)
            .Above(0),
        {Question::Power, Question::SampleSize});
  }
}

bool SolvesForAssurance(const Inputs& inputs) {
  return inputs.Has("solve") && inputs.Choice("solve") == static_cast<int>(Name("assurance").Index());
}

const Names& OfferedInputs() {
  static const Names names{"comparisons", "dropout",    "cluster-size", "icc",
                           "cluster-cv",  "population", "assurance",    "effect-sd"};
  return names;
}

}  // namespace planner
