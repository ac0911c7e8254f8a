#include "two_proportions.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "catalogue.h"
#include "group_parameters.h"
#include "kelpower.h"
#include "planner/error.h"

namespace planner {
namespace {

using Names = std::vector<std::string>;

constexpr int z = 0;
constexpr int t = 1;

constexpr int wald = 0;
constexpr int newcombe = 5;

// A search takes some hundred powers, and the work of the conditional test grows with the square of the size.
constexpr double largestExactSearch = 5000;

// Rounding in the sum over the tables must not keep a search from its target.
constexpr double largestExactPower = 0.9999;

/// The stop request of the conditional test. The other exact tests ask it once a table, which takes up to some hundred
/// times as long as their power; they end in a tenth of a second without it.
StopRequest* StopOfTables(const Inputs& in) { return IsConditional(in) ? in.Stop() : nullptr; }

bool HasSecond(const Inputs& in) { return SecondProportion(in) > 0 && SecondProportion(in) < 1; }

Numbers Power(const Inputs& in) {
  const Numbers& n = in.List("n");
  return {PowerIndSampBinom(n[0], n[1], FirstProportion(in), SecondProportion(in), IsExact(in), in.Choice("test"),
                            in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"), in.Flag("pooled"),
                            StopOfTables(in))};
}

Numbers FoundSizes(const Inputs& in, bool exact, int method) {
  Numbers sizes;
  PowerReverseIndSampBinom(in.Number("power"), FirstProportion(in), SecondProportion(in), sizes, in.Number("ratio"),
                           exact, method, in.Flag("one-sided"), in.Alpha(), in.Flag("continuity-correction"),
                           in.Flag("pooled"), exact ? StopOfTables(in) : nullptr);
  return sizes;
}

/// The library squares the first size in the second one where all of these flags are set, so it is made here instead.
Numbers LargeSampleSizes(const Inputs& in, int method) {
  Numbers sizes = FoundSizes(in, false, method);
  if (method == z && in.Flag("one-sided") && in.Flag("continuity-correction") && in.Flag("pooled")) {
    sizes[1] = std::ceil(in.Number("ratio") * sizes[0]);
  }
  return sizes;
}

/// The large-sample sizes tell whether an exact search is short enough to start.
void RefuseLongSearch(const Inputs& in) {
  const Numbers sizes = LargeSampleSizes(in, IsConditional(in) ? z : in.Choice("test"));
  const bool isShort =
      std::all_of(sizes.begin(), sizes.end(), [](double size) { return size > 0 && size <= largestExactSearch; });
  if (isShort) return;
  throw NoSolution(
      "Exact tests are searched up to about 5000 observations in a group: use a large-sample test for more.");
}

Numbers Sizes(const Inputs& in) {
  if (!IsExact(in)) return LargeSampleSizes(in, in.Choice("test"));
  RefuseLongSearch(in);
  return FoundSizes(in, true, in.Choice("test"));
}

Numbers HalfWidth(const Inputs& in) {
  const Numbers& n = in.List("n");
  return {HalfCIIndSampBinom(n[0], n[1], FirstProportion(in), SecondProportion(in), in.Choice("interval-method"),
                             in.Alpha(), in.Flag("continuity-correction"))};
}

Numbers SizesForHalfWidth(const Inputs& in) {
  Numbers sizes;
  PowerReversebyHalfCIIndSampBinom(in.Number("half-width"), FirstProportion(in), SecondProportion(in), sizes,
                                   in.Number("ratio"), in.Choice("interval-method"), in.Alpha(),
                                   in.Flag("continuity-correction"), in.Stop());
  return sizes;
}

bool ExactWhereItCanBe(const Inputs& in) { return !in.Flag("exact") || in.Choice("test") != arcsineTest; }

bool PooledWhereItCanBe(const Inputs& in) {
  if (!in.Flag("pooled") || in.Choice("test") == t) return true;
  return in.Choice("test") == z && !IsExact(in);
}

bool AsksForInterval(const Inputs& in) { return in.Has("half-width") || (in.Has("interval") && in.Flag("interval")); }

bool CorrectsATestThatCanBe(const Inputs& in) {
  return AsksForInterval(in) || !in.Flag("continuity-correction") || in.Choice("test") == z;
}

bool CorrectsAnIntervalThatCanBe(const Inputs& in) {
  if (!AsksForInterval(in) || !in.Flag("continuity-correction")) return true;
  return in.Choice("interval-method") == wald || in.Choice("interval-method") == newcombe;
}

bool CanCountTables(const Inputs& in) {
  const Numbers& n = in.List("n");
  return !IsExact(in) || std::max(n[0], n[1]) <= largestExactGroup;
}

bool ExactCanReach(const Inputs& in) {
  const double power = in.Number("power");
  return !IsExact(in) || (power >= in.Alpha() && power <= largestExactPower);
}

/// Half an observation is moved between the outcomes of each group.
bool LeavesArcsineItsCorrection(const Inputs& in) { return in.Choice("test") != arcsineTest || Power(in)[0] != -1; }

std::vector<Route> Routes() {
  const Names testing = OptionsOfTwoProportions();
  const Names interval = {"interval-method", "continuity-correction"};
  std::vector<Route> routes;
  for (const Names& effect : EffectsOfTwoProportions()) {
    routes.push_back({Question::Power, With(effect, "n"), testing, "PowerIndSampBinom", Power});
    routes.push_back({Question::SampleSize, effect, With(testing, "ratio"), "PowerReverseIndSampBinom", Sizes});
    routes.push_back({Question::HalfWidth, With(effect, "n"), interval, "HalfCIIndSampBinom", HalfWidth});
    routes.push_back({Question::SampleSizeForHalfWidth, effect, With(interval, "ratio"),
                      "PowerReversebyHalfCIIndSampBinom", SizesForHalfWidth});
  }
  return routes;
}

std::vector<Parameter> Parameters() {
  return {
      PerGroup("proportions", "proportions", "proportion expected in each group").Above(0).Below(1),
      Number("proportion1", "first proportion", "proportion expected in the first group").Above(0).Below(1),
      Number("risk-difference", "risk difference", "first proportion minus the second").Above(-1).Below(1),
      Number("risk-ratio", "risk ratio", "first proportion over the second").Above(0),
      Number("odds-ratio", "odds ratio", "odds in the first group over those in the second").Above(0),
      GroupSizes().AtLeast(2),
      Number("ratio", "ratio of the sizes", "size of the second group over that of the first, in the sizes to find")
          .AtLeast(0.001)
          .AtMost(1000)
          .Default(1.0),
      OneOf("test", "test", "test of the difference; conditional is always exact",
            {{"z", z, "z test"},
             {"t", t, "t test"},
             {"likelihood-ratio", 2, "likelihood-ratio test"},
             {"arcsine", arcsineTest, "arcsine test"},
             {"conditional", conditionalTest, "conditional (Fisher) test"}})
          .Default(std::string("z")),
      Flag("exact", "exact power", "sum over all tables in place of the large-sample formula"),
      Flag("pooled", "pooled variance", "standard error under equal proportions (z), pooled variance (t)"),
      Flag("continuity-correction", "continuity correction", "correct the z test or the interval for continuity"),
      Flag("one-sided", "one-sided test", "test in the direction of the difference only"),
      OneOf("interval-method", "interval", "confidence interval of the difference",
            {{"wald", wald, "Wald"},
             {"agresti-caffo", 1, "Agresti-Caffo"},
             {"uniform-prior", 2, "uniform-prior"},
             {"brown-li-jeffreys", 3, "Brown-Li-Jeffreys"},
             {"hauck-anderson", 4, "Hauck-Anderson"},
             {"newcombe", newcombe, "Newcombe"}})
          .Default(std::string("newcombe")),
  };
}

std::vector<Condition> Conditions() {
  return {
      {{"proportion1", "risk-difference"}, HasSecond, "--risk-difference puts the second proportion outside 0 to 1."},
      {{"proportion1", "risk-ratio"}, HasSecond, "--risk-ratio puts the second proportion outside 0 to 1."},
      {{"proportion1", "odds-ratio"}, HasSecond, "--odds-ratio puts the second proportion at 0 or 1."},
      {{"exact"}, ExactWhereItCanBe, "--exact does not go with --test arcsine: its exact form is --test conditional."},
      {{"pooled"},
       PooledWhereItCanBe,
       "--pooled goes with the t test and the large-sample z test only; the exact z test is always pooled."},
      {{"continuity-correction"}, CorrectsATestThatCanBe, "--continuity-correction goes with the z test only."},
      {{"continuity-correction"},
       CorrectsAnIntervalThatCanBe,
       "--continuity-correction goes with the intervals wald and newcombe only."},
      {{"n"}, CanCountTables, "--n of an exact test must be at most 10000."},
      {{"power"}, ExactCanReach, "--power of an exact test must be from --alpha to 0.9999."},
      {{"n"},
       LeavesArcsineItsCorrection,
       "--n is too small for the arcsine test: each group must expect at least half an observation of the outcome that "
       "is more frequent in it than in the other."},
  };
}

Test Describe() {
  Test test;
  test.name = "two-proportions";
  test.title = "Test of two independent proportions";
  test.about = "Tests whether two independent groups have the same proportion.";
  test.groups = 2;
  test.parameters = Parameters();
  test.routes = Routes();
  test.conditions = Conditions();

  constexpr const char* noEffect =
      "The two proportions are equal: without a difference, no sample size reaches the power.";
  test.solvable = {
      {{"power"}, [](const Inputs& in) { return FirstProportion(in) != SecondProportion(in); }, noEffect},
  };

  test.derived = {
      {"proportion2", "second proportion", {"proportion1"}, SecondProportion},
      {"risk-difference", "risk difference", {"proportions"}, RiskDifference},
      {"risk-ratio", "risk ratio", {"proportions"}, RiskRatio},
      {"odds-ratio", "odds ratio", {"proportions"}, OddsRatio},
  };

  test.phrases = {
      {"effect",
       {{"proportions", "proportions of {proportions}"},
        {"risk-difference", "a risk difference of {risk-difference} from a first proportion of {proportion1}"},
        {"risk-ratio", "a risk ratio of {risk-ratio} at a first proportion of {proportion1}"},
        {"odds-ratio", "an odds ratio of {odds-ratio} at a first proportion of {proportion1}"}}},
  };
  test.sentences = {
      {Question::Power,
       "With {sizes}, the {one-sided?one-sided:two-sided} {exact?exact :}{pooled?pooled :}{test} of two independent "
       "proportions{continuity-correction? with continuity correction:} at a significance level of {alpha} has a power "
       "of {power} to detect {effect}."},
      {Question::SampleSize,
       "To detect {effect} with a power of {target-power}, the {one-sided?one-sided:two-sided} {exact?exact "
       ":}{pooled?pooled :}{test} of two independent proportions{continuity-correction? with continuity correction:} "
       "at a significance level of {alpha} needs {sizes}; its power is then {power}."},
      {Question::HalfWidth,
       "With {sizes} and {effect}, the {confidence} {interval-method} confidence interval of the difference of "
       "proportions has a half-width of {half-width}."},
      {Question::SampleSizeForHalfWidth,
       "For a {confidence} {interval-method} confidence interval of the difference of proportions with a half-width of "
       "at most {target-half-width}, at {effect}, the study needs {sizes}; the half-width is then {half-width}."},
  };

  test.examples = {
      {"two-proportions --proportions 0.5,0.75 --n 50 --pooled",
       "With 50 observations in each of 2 groups (100 in total), the two-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.7402 to detect proportions of 0.5 and 0.75."},
      {"two-proportions --proportions 0.8,0.6 --n 40,60 --test likelihood-ratio --exact",
       "With 40 and 60 observations in 2 groups (100 in total), the two-sided exact likelihood-ratio test of two "
       "independent proportions at a significance level of 0.05 has a power of 0.5828 to detect proportions of 0.8 "
       "and 0.6."},
      {"two-proportions --proportions 0.022,0.001 --power 0.8 --pooled --one-sided",
       "To detect proportions of 0.022 and 0.001 with a power of 0.8, the one-sided pooled z test of two independent "
       "proportions at a significance level of 0.05 needs 318 observations in each of 2 groups (636 in total); its "
       "power is then 0.8003."},
      {"two-proportions --proportions 0.5,0.75 --power 0.8 --test conditional",
       "To detect proportions of 0.5 and 0.75 with a power of 0.8, the two-sided conditional (Fisher) test of two "
       "independent proportions at a significance level of 0.05 needs 64 observations in each of 2 groups (128 in "
       "total); its power is then 0.8017."},
      {"two-proportions --proportion1 0.3 --risk-ratio 1.5 --power 0.9 --ratio 2 --test arcsine",
       "To detect a risk ratio of 1.5 at a first proportion of 0.3 with a power of 0.9, the two-sided arcsine test "
       "of two independent proportions at a significance level of 0.05 needs 308 and 615 observations in 2 groups "
       "(923 in total); its power is then 0.9003."},
      {"two-proportions --proportion1 0.5 --odds-ratio 0.5 --power 0.8 --continuity-correction",
       "To detect an odds ratio of 0.5 at a first proportion of 0.5 with a power of 0.8, the two-sided z test of two "
       "independent proportions with continuity correction at a significance level of 0.05 needs 146 observations in "
       "each of 2 groups (292 in total); its power is then 0.8024."},
      {"two-proportions --proportion1 0.5 --risk-difference -0.25 --n 50,100 --test t --pooled",
       "With 50 and 100 observations in 2 groups (150 in total), the two-sided pooled t test of two independent "
       "proportions at a significance level of 0.05 has a power of 0.8813 to detect a risk difference of -0.25 from "
       "a first proportion of 0.5."},
      {"two-proportions --proportions 0.8,0.6 --n 70,80 --interval",
       "With 70 and 80 observations in 2 groups (150 in total) and proportions of 0.8 and 0.6, the 95% Newcombe "
       "confidence interval of the difference of proportions has a half-width of 0.1407."},
      {"two-proportions --proportions 0.8,0.6 --half-width 0.1 --interval-method wald",
       "For a 95% Wald confidence interval of the difference of proportions with a half-width of at most 0.1, at "
       "proportions of 0.8 and 0.6, the study needs 154 observations in each of 2 groups (308 in total); the half-"
       "width is then 0.09989."},
  };
  test.charts = ChartsOfTwoProportions();
  return test;
}

}  // namespace

bool IsConditional(const Inputs& in) { return in.Choice("test") == conditionalTest; }

bool IsExact(const Inputs& in) { return in.Flag("exact") || IsConditional(in); }

double FirstProportion(const Inputs& in) {
  return in.Has("proportions") ? in.List("proportions")[0] : in.Number("proportion1");
}

double SecondProportion(const Inputs& in) {
  if (in.Has("proportions")) return in.List("proportions")[1];
  const double first = FirstProportion(in);
  if (in.Has("risk-difference")) return first - in.Number("risk-difference");
  if (in.Has("risk-ratio")) return first / in.Number("risk-ratio");
  return first / (first + in.Number("odds-ratio") * (1 - first));
}

double RiskDifference(const Inputs& in) { return FirstProportion(in) - SecondProportion(in); }

double RiskRatio(const Inputs& in) { return FirstProportion(in) / SecondProportion(in); }

double OddsRatio(const Inputs& in) {
  const double first = FirstProportion(in);
  const double second = SecondProportion(in);
  return first / (1 - first) / (second / (1 - second));
}

std::vector<Names> EffectsOfTwoProportions() {
  return {{"proportions"},
          {"proportion1", "risk-difference"},
          {"proportion1", "risk-ratio"},
          {"proportion1", "odds-ratio"}};
}

Names OptionsOfTwoProportions() { return {"test", "exact", "pooled", "continuity-correction", "one-sided"}; }

Names With(Names names, const char* name) {
  names.emplace_back(name);
  return names;
}

Test TwoProportionsTest() { return WithCommonParameters(Describe()); }

}  // namespace planner
