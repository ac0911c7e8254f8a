#include "catalogue/core.h"
#include "catalogue/crossover.h"
#include "means/crossover.h"
#include "means/margins.h"

namespace planner {
namespace {

namespace means = kelpower::means;

double Power(const Inputs& in) { return PowerOfMeans(in, QuestionOfCrossover(in)); }

double HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  return means::CrossoverHalfWidth(n[0], n[1], in.Number("sd"), in.Alpha());
}

Numbers SizesForHalfWidth(const Inputs& in) {
  const kelpower::Answer size = means::CrossoverSizeForHalfWidth(in.Number("half-width"), in.Number("sd"), in.Alpha());
  return size ? Numbers(2, RoundedUp(size).front()) : Numbers{};
}

}  // namespace

MeanQuestion QuestionOfCrossover(const Inputs& in) {
  const Numbers& n = in.List("n");
  const bool isRatio = in.Has("mean-ratio");
  const double sd = isRatio ? means::SdOfLogarithms(in.Number("cv")) : in.Number("sd");
  return {in.Number(isRatio ? Name("mean-ratio") : Name("mean-difference")), isRatio,
          means::CrossoverDifference(n[0], n[1], sd)};
}

std::vector<Route> RoutesOfCrossover() {
  std::vector<Route> plain = {
      {.question = Question::Power, .needs = {"mean-difference", "sd", "n"}, .value = Power},
      {.question = Question::Power, .needs = {"mean-ratio", "cv", "n"}, .value = Power},
      {.question = Question::SampleSize, .needs = {"mean-difference", "sd"}},
      {.question = Question::SampleSize, .needs = {"mean-ratio", "cv"}},
  };
  const std::vector<Route> withMargins = WithMargins(plain);
  std::vector<Route> routes = plain;
  for (Route& route : routes) route.accepts = {"one-sided"};
  routes.insert(routes.end(), withMargins.begin(), withMargins.end());
  routes.push_back({.question = Question::HalfWidth, .needs = {"sd", "n"}, .value = HalfWidth});
  routes.push_back({.question = Question::SampleSizeForHalfWidth, .needs = {"sd"}, .sizes = SizesForHalfWidth});
  return routes;
}

}  // namespace planner
