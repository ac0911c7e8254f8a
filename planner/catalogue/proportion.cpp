#include <algorithm>
#include <cmath>
#include <utility>

#include "catalogue/axes.h"
#include "catalogue/core.h"
#include "catalogue/offers.h"
#include "catalogue/tests.h"
#include "catalogue/words.h"
#include "frame/counts.h"
#include "proportions/lasting_size.h"
#include "proportions/one_sample_interval.h"
#include "proportions/one_sample_tests.h"

namespace planner {
namespace {

namespace proportions = kelpower::proportions;
using proportions::OneSampleMethod;

using kelpower::largestCount;

proportions::OneSampleDesign DesignOf(const Inputs& in) {
  return {in.Flag("exact"), in.Flag("one-sided"), in.Alpha(), in.Flag("correction")};
}

proportions::OneSampleProportions ProportionsOf(const Inputs& in) {
  return {in.Number("proportion"), in.Number("null")};
}

/// The power; designs at one level share the test, which keeps the critical values of a size.
///
/// The exact test is handed no stop request. It would ask it once for each count below the size, which takes up to some
/// thousand times as long as the power, and a search ends by itself in well under a second.
class PowerOfProportion {
public:
  double operator()(const Inputs& in) {
    const proportions::OneSampleDesign design = DesignOf(in);
    const auto& [isExact, isOneSided, alpha, isCorrected] = design;
    proportions::OneSampleTest& test =
        kept_.For({double(isExact), double(isOneSided), alpha, double(isCorrected)}, design);
    return OrNaN(test.Power(in.Number("n"), ProportionsOf(in)));
  }

private:
  Kept<proportions::OneSampleTest, 4> kept_;
};

Numbers Size(const Inputs& in) {
  return RoundedUp(proportions::SizeForPower(DesignOf(in), ProportionsOf(in), in.Number("power")));
}

proportions::OneSampleInterval IntervalOf(const Inputs& in) {
  return proportions::OneSampleInterval(
      {OneSampleMethod(in.Choice("interval-method")), in.Number("proportion"), in.Alpha(), in.Flag("correction")});
}

double HalfWidth(const Inputs& in) { return IntervalOf(in).HalfWidth(in.Number("n")); }

Numbers SizeForHalfWidth(const Inputs& in) {
  return RoundedUp(IntervalOf(in).SizeFor(in.Number("half-width"), StopOf(in)));
}

proportions::CriticalRegion RegionOf(const Inputs& in) {
  return proportions::OneSampleTest(DesignOf(in)).Region(in.Number("n"), ProportionsOf(in));
}

// No number, and so not reported, where no count in that tail rejects.
double LargestLowRejection(const Inputs& in) {
  const double count = RegionOf(in).lower;
  return count < 0 ? OrNaN(kelpower::NoValue::NotReached) : count;
}

double SmallestHighRejection(const Inputs& in) {
  const double count = RegionOf(in).upper;
  return count > in.Number("n") ? OrNaN(kelpower::NoValue::NotReached) : count;
}

double AttainedLevel(const Inputs& in) {
  return proportions::OneSampleTest(DesignOf(in)).AttainedLevel(in.Number("n"), ProportionsOf(in));
}

double LastingSize(const Inputs& in) {
  return OrNaN(proportions::LastingSize(DesignOf(in), ProportionsOf(in), in.Number("power")));
}

bool CorrectsWhatCanBe(const Inputs& in) {
  const auto method = OneSampleMethod(in.Choice("interval-method"));
  return !in.Flag("correction") || method == OneSampleMethod::Wald || method == OneSampleMethod::Wilson;
}

std::vector<Parameter> Parameters() {
  return {
      Number("proportion", "proportion", "proportion expected").AtLeast(0).AtMost(1),
      Number("null", "null proportion", "proportion under the null hypothesis").Above(0).Below(1),
      Number("n", "sample size", "number of observations").Whole().AtLeast(1).AtMost(1e9),
      Flag("exact", "exact test", "exact binomial test in place of the normal approximation"),
      Flag("one-sided", "one-sided test", "test in the direction of the proportion expected only"),
      Flag("correction", "continuity correction", "correct the normal approximation for continuity")
          .Alias("continuity-correction"),
      OneOf("interval-method", "interval", "confidence interval of the proportion",
            {{"wald", CodeOf(OneSampleMethod::Wald), "Wald"},
             {"adjusted-logit", CodeOf(OneSampleMethod::LogitAdjusted), "adjusted logit"},
             {"logit", CodeOf(OneSampleMethod::Logit), "logit"},
             {"clopper-pearson", CodeOf(OneSampleMethod::ClopperPearson), "Clopper-Pearson"},
             {"jeffreys", CodeOf(OneSampleMethod::Jeffreys), "Jeffreys"},
             {"wilson", CodeOf(OneSampleMethod::Wilson), "Wilson"},
             {"agresti-coull", CodeOf(OneSampleMethod::AgrestiCoull), "Agresti-Coull"}})
          .Default("wilson"),
  };
}

std::vector<Route> Routes() {
  return {
      {.question = Question::Power,
       .needs = {"proportion", "null", "n"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerOneSampBinom",
       .value = PowerOfProportion()},
      {.question = Question::Power,
       .needs = {"proportion", "null", "n", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerOneSampBinom",
       .value = PowerOfProportion()},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null"},
       .accepts = {"one-sided", "correction"},
       .exportName = "PowerReverseOneSampBinom",
       .sizes = Size},
      {.question = Question::SampleSize,
       .needs = {"proportion", "null", "exact"},
       .accepts = {"one-sided"},
       .exportName = "PowerReverseOneSampBinom",
       .lastingSize = LastingSize,
       .sizes = Size},
      {.question = Question::HalfWidth,
       .needs = {"proportion", "n"},
       .accepts = {"interval-method", "correction"},
       .exportName = "HalfCIOneSampBinom",
       .value = HalfWidth},
      {.question = Question::SampleSizeForHalfWidth,
       .needs = {"proportion"},
       .accepts = {"interval-method", "correction"},
       .exportName = "PowerReversebyHalfCIOneSampBinom",
       .sizes = SizeForHalfWidth},
  };
}

Unevenness UnevennessOf(const Inputs& in) { return in.Flag("exact") ? Unevenness::Uneven : Unevenness::Even; }

std::vector<Unknown> Unknowns() {
  constexpr const char* reason = "the more the proportions differ, the more of the outcomes are in the critical region";
  return {
      {.input = "proportion",
       .target = Question::Power,
       .trend = Trend::Rises,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {in.Number("null"), 1};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {0, in.Number("null")};
       }},
      {.input = "null",
       .target = Question::Power,
       .trend = Trend::Falls,
       .reason = reason,
       .piece = [](const Inputs& in) -> Piece {
         return {0, in.Number("proportion")};
       },
       .pieceBelow = [](const Inputs& in) -> Piece {
         return {in.Number("proportion"), 1};
       }},
  };
}

std::vector<Condition> Conditions() {
  return {
      {.code = "corrected-interval",
       .about = {"interval-method", "correction"},
       .holds = CorrectsWhatCanBe,
       .sentence = "{correction} goes with the intervals wald and wilson only."},
      {.code = "exact-correction",
       .about = {"exact", "correction"},
       .holds = [](const Inputs& in) { return !in.Flag("exact") || !in.Flag("correction"); },
       .sentence = "{exact} and {correction} exclude each other."},
  };
}

/// The differences that the null proportion leaves.
Range AllDifferences(const Inputs& in) { return {-in.Number("null"), 1 - in.Number("null")}; }

double Difference(const Inputs& in) { return in.Number("proportion") - in.Number("null"); }

Axis DifferenceAxis() {
  return {.name = "difference",
          .title = "difference of the proportions (expected minus null)",
          .symbol = "difference",
          .needs = {"proportion", "null"},
          .limits = {-1, 1, true, true, false},
          .design = Difference,
          .vary = [](Inputs& in, const Inputs& design, double at) { in.Set("proportion", at + design.Number("null")); },
          .scale = AllDifferences};
}

std::vector<Derived> DerivedFigures() {
  return {
      {.name = "rejects-to",
       .label = "rejects up to this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = LargestLowRejection},
      {.name = "rejects-from",
       .label = "rejects from this count",
       .needs = {"proportion", "null", "n", "exact"},
       .call = SmallestHighRejection},
      {.name = "attained-level",
       .label = "significance level attained",
       .needs = {"proportion", "null", "n", "exact"},
       .call = AttainedLevel},
  };
}

}  // namespace

Test ProportionTest() {
  Test test{.name = "proportion",
            .title = "Test of one proportion",
            .about = "Tests whether a proportion differs from a given value."};
  test.parameters = Parameters();
  test.routes = Routes();
  test.unknowns = Unknowns();
  test.unevenness = UnevennessOf;
  test.conditions = Conditions();
  test.sizeExists = {
      {.code = "no-effect",
       .about = {"proportion", "null"},
       .holds = [](const Inputs& in) { return in.Number("proportion") != in.Number("null"); },
       .sentence =
           "The proportion expected is the null proportion: without an effect, no sample size reaches the power."},
  };
  test.derived = DerivedFigures();
  test.effect = Difference;
  test.axes = {DifferenceAxis()};
  test.assumptions = {{.name = "tails",
                       .label = "tails of the test",
                       .needs = {"exact", "one-sided"},
                       .call = [](const Inputs& in) -> std::string {
                         if (!in.Flag("exact") || in.Flag("one-sided")) return "";
                         return "at most half of the level in each tail";
                       },
                       .wording = ", with <0>,"}};
  test.largestExactSearch = largestCount;
  test.offers = OffersOfProportion();
  AddWordsOfProportion(test);
  return WithCommonParameters(std::move(test));
}

}  // namespace planner
