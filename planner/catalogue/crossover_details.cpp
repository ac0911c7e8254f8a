#include "catalogue/crossover.h"
#include "catalogue/details.h"
#include "means/crossover.h"

namespace planner {
namespace {

namespace means = kelpower::means;

constexpr const char* source = "Jones and Kenward (2014), Design and Analysis of Cross-Over Trials, 3rd ed., chapter 2";

Details OfHalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  const means::DifferenceDistribution difference = means::CrossoverDifference(n[0], n[1], in.Number("sd"));
  Details details;
  details.Add("standard-error", "standard error of the difference", difference.standardError);
  AddIntervalT(details, in.Alpha(), difference.df);
  details.value = means::CrossoverHalfWidth(n[0], n[1], in.Number("sd"), in.Alpha());
  details.formula = "half-width = t x standard error = {quantile-t} x {standard-error}";
  details.source = source;
  details.equivalents = {{.program = "R", .call = "qt(1 - {alpha} / 2, {df}) * {standard-error}"}};
  return details;
}

}  // namespace

Details DetailsOfCrossover(Question question, const Inputs& in) {
  if (!IsAboutPower(question)) return OfHalfWidth(in);
  Details details = DetailsOfMeanMargins(in, QuestionOfCrossover(in), source);
  details.formula = "standard error = " + std::string(in.Has("cv") ? "{sd-of-logs}" : "{sd}") +
                    " sqrt((1 / {n1} + 1 / {n2}) / 2) = {standard-error}; " + details.formula;
  AddPowerTost(details, in, "{sd}", "2x2");
  return details;
}

}  // namespace planner
