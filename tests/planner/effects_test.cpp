#include "catalogue/effects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "solve/convert_effect.h"
#include "support.h"
#include "words/effect_report.h"
#include "words/numbers.h"
#include "words/render.h"

// Effect sizes: the descriptions hold together, and the conversions give what is published.
namespace planner {
namespace {

const planner::Test& EffectInputs() { return EffectSizes().inputs; }

/// The effect sizes of inputs as they are typed, without the word "effect".
EffectAnswer Converted(const std::string& arguments) {
  return Convert(EffectSizes(), ValuesTyped(EffectInputs(), "effect " + arguments));
}

Report Reported(const std::string& arguments) {
  return ConvertEffect(ValuesTyped(EffectInputs(), "effect " + arguments));
}

EffectValue Of(const EffectAnswer& answer, const std::string& name) {
  for (const EffectResult& result : answer.results) {
    if (result.size->name == name) return result.value;
  }
  ADD_FAILURE() << "no " << name;
  return {0};
}

bool Gives(const EffectAnswer& answer, const std::string& name) {
  for (const EffectResult& result : answer.results) {
    if (result.size->name == name) return true;
  }
  return false;
}

double ValueOf(const std::string& arguments, const std::string& name) { return Of(Converted(arguments), name).value; }

void ExpectInterval(const std::string& arguments, const std::string& name, double lower, double upper,
                    double tolerance) {
  const EffectValue value = Of(Converted(arguments), name);
  ASSERT_TRUE(value.limits) << arguments << ' ' << name;
  EXPECT_NEAR(value.limits->lower, lower, tolerance) << arguments << ' ' << name;
  EXPECT_NEAR(value.limits->upper, upper, tolerance) << arguments << ' ' << name;
}

std::string Refusal(const std::string& arguments) {
  try {
    Converted(arguments);
  } catch (const Failure& failure) {
    return Said(failure);
  }
  ADD_FAILURE() << arguments << " is not refused";
  return "";
}

bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

/// Arguments that a conversion takes, with usual values.
std::string Typed(const Names& names) {
  static const std::map<std::string, std::string> usual = {{"means", "52,47"},     {"mean-difference", "5"},
                                                           {"sd", "10"},           {"sd-difference", "9"},
                                                           {"correlation", "0.4"}, {"mean", "52"},
                                                           {"test-value", "50"},   {"t", "2.3"},
                                                           {"f-statistic", "5"},   {"df", "38"},
                                                           {"effect-d", "0.5"},    {"hedges-g", "0.5"},
                                                           {"superiority", "0.6"}, {"effect-f", "0.25"},
                                                           {"effect-f2", "0.15"},  {"eta-squared", "0.06"},
                                                           {"r-squared", "0.3"},   {"predictors", "3"},
                                                           {"r", "0.3"},           {"correlations", "0.5,0.3"},
                                                           {"effect-q", "0.2"},    {"proportions", "0.3,0.5"},
                                                           {"events", "6,10"},     {"counts", "10,90,5,95"},
                                                           {"proportion1", "0.3"}, {"odds-ratio", "2"},
                                                           {"risk-ratio", "1.5"},  {"risk-difference", "0.1"},
                                                           {"effect-h", "0.2"},    {"n", "20"}};
  std::string text;
  for (Name name : names) {
    const std::string input(name.Text());
    text += " --" + input;
    const bool isOfF = input == "df" && !Contains(names, "t");
    if (name != Name("one-sample")) text += ' ' + (isOfF ? "2,57" : usual.at(input));
  }
  return text;
}

Names All(const EffectConversion& conversion) {
  Names names = conversion.needs;
  names.insert(names.end(), conversion.accepts.begin(), conversion.accepts.end());
  return names;
}

TEST(EffectDescriptions, NameEachEffectSizeOnceAndHowItIsComputed) {
  std::set<std::string> names;
  for (const EffectSize& size : EffectSizes().sizes) {
    EXPECT_TRUE(names.insert(size.name).second) << size.name;
    EXPECT_FALSE(size.label.empty()) << size.name;
  }
  std::set<std::string> computed;
  for (const EffectFormula& formula : EffectSizes().formulas) {
    EXPECT_EQ(names.count(formula.effect), 1u) << formula.effect;
    computed.insert(formula.effect);
    EXPECT_NE(formula.compute == nullptr, formula.map == nullptr) << formula.effect;
    EXPECT_EQ(formula.map == nullptr, formula.from.empty()) << formula.effect;
    EXPECT_TRUE(formula.from.empty() || names.count(formula.from) == 1) << formula.from;
    EXPECT_FALSE(formula.formula.empty()) << formula.effect;
    EXPECT_TRUE(Holds(formula.source, "(1") || Holds(formula.source, "(2")) << formula.effect;
    EXPECT_FALSE(formula.source.ends_with('.')) << formula.effect;
    EXPECT_TRUE(formula.note.empty() || formula.note.ends_with('.')) << formula.effect;
  }
  EXPECT_EQ(names, computed);
}

TEST(EffectDescriptions, HaveARouteForEachConversion) {
  const Effects& effects = EffectSizes();
  ASSERT_EQ(effects.inputs.routes.size(), effects.conversions.size());
  for (std::size_t i = 0; i < effects.conversions.size(); ++i) {
    EXPECT_EQ(effects.inputs.routes[i].needs, effects.conversions[i].needs);
    for (Name name : All(effects.conversions[i])) EXPECT_TRUE(FindParameter(effects.inputs, name)) << name.Text();
  }
}

TEST(EffectDescriptions, UseEveryParameterAndEveryEffectSize) {
  std::set<std::string> inputs{"confidence"};
  std::set<std::string> given;
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    for (Name name : All(conversion)) inputs.emplace(name.Text());
    given.insert(conversion.gives.begin(), conversion.gives.end());
    EXPECT_EQ(std::count(conversion.gives.begin(), conversion.gives.end(), conversion.tells), 1);
  }
  for (const Parameter& parameter : EffectInputs().parameters) {
    EXPECT_EQ(inputs.count(std::string(parameter.name.Text())), 1u) << parameter.name.Text();
  }
  for (const EffectSize& size : EffectSizes().sizes) EXPECT_EQ(given.count(size.name), 1u) << size.name;
}

TEST(EffectDescriptions, UseInputsThatTheTestsHave) {
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    for (const EffectUse& use : conversion.uses) {
      const planner::Test* test = FindTest(use.test);
      ASSERT_TRUE(test) << use.test;
      EXPECT_TRUE(FindParameter(*test, use.input)) << use.test << ' ' << use.input.Text();
    }
  }
}

TEST(EffectConversions, GiveAllTheySayOnceTheSizesAreKnown) {
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    const std::string arguments = Typed(All(conversion));
    const EffectAnswer answer = Converted(arguments);
    EXPECT_EQ(answer.conversion, &conversion) << arguments;
    const bool tellsSizes = answer.inputs.Has("n") || answer.inputs.Has("df") || answer.inputs.Has("counts");
    EXPECT_TRUE(!tellsSizes || answer.results.size() == conversion.gives.size()) << arguments;
    for (const EffectResult& result : answer.results) {
      const auto& [value, limits] = result.value;
      EXPECT_EQ(limits.has_value(), tellsSizes) << arguments << ' ' << result.size->name;
      if (!limits) continue;
      EXPECT_LT(limits->lower, limits->upper) << arguments << ' ' << result.size->name;
      // What is corrected for bias may be below the 0 at which its interval ends.
      const bool isCorrected = result.size->name == "omega-squared" || result.size->name == "adjusted-r-squared";
      EXPECT_LE(limits->lower, isCorrected ? std::max(value, 0.0) : value) << arguments << ' ' << result.size->name;
      EXPECT_GE(limits->upper, value) << arguments << ' ' << result.size->name;
    }
  }
}

TEST(EffectConversions, AreToldInASentenceWithoutBraces) {
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    for (const Names& names : {conversion.needs, All(conversion)}) {
      const Report report = Reported(Typed(names));
      EXPECT_EQ(report.sentence.rfind("From ", 0), 0u) << report.sentence;
      EXPECT_FALSE(Holds(report.sentence, "{")) << report.sentence;
      EXPECT_FALSE(Holds(report.sentence, "  ")) << report.sentence;
      EXPECT_FALSE(Holds(report.sentence, " ,")) << report.sentence;
    }
  }
}

// Each test that is told to take the effect does, and takes what the sentence of its own says.
TEST(EffectConversions, GiveArgumentsThatTheTestsTake) {
  int uses = 0;
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    for (const EffectUse& use : conversion.uses) {
      const EffectAnswer answer = Converted(Typed(conversion.needs));
      const planner::Test& test = *FindTest(use.test);
      Numbers numbers;
      for (const std::string& effect : use.effects) numbers.push_back(Of(answer, effect).value);
      const Parameter& parameter = *FindParameter(test, use.input);
      EXPECT_TRUE(parameter.Allows(parameter.IsList() ? Value(numbers) : Value(numbers.front()))) << use.test;
      ++uses;
    }
  }
  EXPECT_GE(uses, 20);
  const Report report = Reported("--means 52,47 --sd 10,12 --n 20,25");
  EXPECT_EQ(std::get<std::string>(report.results.back().value), "two-means --effect-d 0.448");
  EXPECT_EQ(std::get<std::string>(Reported("--r 0.99999").results.back().value), "pearson --r 0.99999");
}

// Borenstein et al. (2009), chapter 4: means 103 and 100, standard deviations 5.5 and 4.5, 50 in each group.
TEST(EffectConversions, OfMeansAreThoseOfBorenstein) {
  const std::string means = "--means 103,100 --sd 5.5,4.5 --n 50";
  EXPECT_NEAR(ValueOf(means, "d"), 0.5970, 5e-5);
  EXPECT_NEAR(ValueOf(means, "g"), 0.5924, 1e-4);
  EXPECT_NEAR(ValueOf("--mean-difference 3 --sd 5.5,4.5 --n 50", "d"), 0.5970, 5e-5);
  EXPECT_NEAR(ValueOf("--means 103,100 --sd 5.5,4.5", "d"), 0.5970, 5e-5);
}

// Chapter 5: 5 of 100 died under treatment, 10 of 100 without it.
TEST(EffectConversions, OfCountsAreThoseOfBorenstein) {
  for (const char* study : {"--counts 10,90,5,95", "--events 10,5 --n 100", "--proportions 0.10,0.05 --n 100,100"}) {
    EXPECT_NEAR(ValueOf(study, "risk-ratio"), 0.5, 1e-15) << study;
    EXPECT_NEAR(ValueOf(study, "odds-ratio"), 0.4737, 5e-5) << study;
    EXPECT_NEAR(ValueOf(study, "log-odds-ratio"), -0.7472, 5e-5) << study;
    EXPECT_NEAR(ValueOf(study, "risk-difference"), -0.05, 1e-15) << study;
    // The variance of the logarithm of the odds ratio is 0.3216.
    const double reach = 1.959964 * std::sqrt(1 / 5.0 + 1 / 95.0 + 1 / 10.0 + 1 / 90.0);
    ExpectInterval(study, "log-odds-ratio", -0.7472 - reach, -0.7472 + reach, 5e-5);
  }
}

// Chapters 6 and 7: r = 0.5 in 100 people; r = 0.5 is d = 1.1547; an odds ratio with the logarithm 0.9069 is d = 0.5.
TEST(EffectConversions, OfCorrelationsAndRatiosAreThoseOfBorenstein) {
  EXPECT_NEAR(ValueOf("--r 0.5", "fisher-z"), 0.5493, 5e-5);
  EXPECT_NEAR(ValueOf("--r 0.5", "d"), 1.1547, 5e-5);
  EXPECT_NEAR(ValueOf("--effect-d 1.1547", "r"), 0.5, 5e-6);
  ExpectInterval("--r 0.5 --n 100", "fisher-z", 0.5493 - 1.959964 / std::sqrt(97), 0.5493 + 1.959964 / std::sqrt(97),
                 5e-5);
  EXPECT_NEAR(ValueOf("--odds-ratio 2.4766", "approximate-d"), 0.5, 5e-5);
  EXPECT_NEAR(ValueOf("--effect-d 0.5", "approximate-odds-ratio"), std::exp(0.9069), 5e-4);
}

// Cohen (1988): tables 2.2.1 and 2.2.2 (U3 and r of d), section 8.2 (f and eta squared), 4.2 (q), 6.2 (h), 9.2 (f2).
TEST(EffectConversions, AreThoseOfCohen) {
  EXPECT_NEAR(ValueOf("--effect-d 0.2", "u3"), 0.579, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.5", "u3"), 0.691, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.8", "u3"), 0.788, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.5", "r"), 0.243, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.8", "r"), 0.371, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.8", "eta-squared"), 0.138, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-d 0.8", "f"), 0.4, 1e-15);
  EXPECT_NEAR(ValueOf("--effect-f 0.1", "eta-squared"), 0.0099, 5e-5);
  EXPECT_NEAR(ValueOf("--effect-f 0.25", "eta-squared"), 0.0588, 5e-5);
  EXPECT_NEAR(ValueOf("--effect-f 0.4", "eta-squared"), 0.1379, 5e-5);
  EXPECT_NEAR(ValueOf("--effect-f2 0.15", "r-squared"), 0.13, 5e-4);
  EXPECT_NEAR(ValueOf("--effect-f2 0.35", "r-squared"), 0.26, 1e-3);
  EXPECT_NEAR(ValueOf("--correlations 0.5,0.3", "q"), 0.549 - 0.310, 1e-3);
  EXPECT_NEAR(ValueOf("--proportions 0.5,0.7", "h"), 1.982 - 1.571, 1e-3);
}

// McGraw and Wong (1992): men are 69.7 inches tall with a standard deviation of 2.8, women 64.3 with 2.6; a man is the
// taller one with a probability of 0.92.
TEST(EffectConversions, SuperiorityIsThatOfMcGrawAndWong) {
  EXPECT_NEAR(ValueOf("--means 69.7,64.3 --sd 2.8,2.6", "superiority"), 0.92, 0.005);
}

// The limits of the noncentralities as R's pt gives them, and in multiple precision for F.
TEST(EffectConversions, HaveTheIntervalsOfNoncentralities) {
  const std::string t = "--t 2.3 --n 20,20";
  EXPECT_NEAR(ValueOf(t, "d"), 2.3 * std::sqrt(0.1), 1e-15);
  EXPECT_NEAR(ValueOf(t, "noncentrality"), 2.3, 1e-14);
  ExpectInterval(t, "noncentrality", 0.259270438165346, 4.312447517749983, 1e-11);
  ExpectInterval(t, "d", 0.0819885114552342, 1.3637156446029353, 1e-11);
  ExpectInterval("--t 2.3 --df 38", "d", 0.0819885114552342, 1.3637156446029353, 1e-11);
  ExpectInterval("--t 2.3 --n 20 --one-sample", "dz", 0.0409846267465679, 0.9757565950303693, 1e-11);
  ExpectInterval("--t 2.3 --df 19 --one-sample", "dz", 0.0409846267465679, 0.9757565950303693, 1e-11);
  ExpectInterval("--means 52,47 --sd 10,12 --n 20,25", "d", -0.150047900661759, 1.040991789990955, 1e-11);
  const std::string f = "--f-statistic 5 --df 4,75";
  ExpectInterval(f, "noncentrality", 3.3860614805925301, 39.283911101575558, 1e-12);
  ExpectInterval(f, "f2", 0.042325768507406626, 0.49104888876969448, 1e-14);
  ExpectInterval(f, "f", 0.20573227385951536, 0.70074880575688067, 1e-14);
  ExpectInterval(f, "eta-squared", 0.040607044156661723, 0.32933117919082616, 1e-14);
  const std::string regression = "--r-squared 0.3 --predictors 3 --n 50";
  ExpectInterval(regression, "r-squared", 0.067403971366635694, 0.45012136435204937, 1e-14);
  ExpectInterval(regression, "noncentrality", 3.6137818142658273, 40.929155560085356, 1e-12);
  EXPECT_NEAR(ValueOf(regression, "adjusted-r-squared"), 1 - 0.7 * 49 / 46, 1e-15);
}

TEST(EffectConversions, AgreeWhicheverWayTheStudyIsReported) {
  const std::string means = "--means 52,47 --sd 10,12 --n 20,25";
  const EffectAnswer answer = Converted(means);
  const auto typed = [&](const std::string& effect) { return Shortest(Of(answer, effect).value); };
  for (const std::string& same :
       {"--effect-d " + typed("d") + " --n 20,25", "--hedges-g " + typed("g") + " --n 20,25",
        "--t " + typed("noncentrality") + " --n 20,25", "--superiority " + typed("superiority") + " --n 20,25"}) {
    for (const EffectResult& result : answer.results) {
      const EffectValue other = Of(Converted(same), result.size->name);
      EXPECT_NEAR(other.value, result.value.value, 1e-12) << same << ' ' << result.size->name;
      EXPECT_NEAR(other.limits->lower, result.value.limits->lower, 1e-11) << same << ' ' << result.size->name;
      EXPECT_NEAR(other.limits->upper, result.value.limits->upper, 1e-11) << same << ' ' << result.size->name;
    }
  }
}

TEST(EffectConversions, ComeBackToWhereTheyBegan) {
  for (double d : {-3.0, -0.5, 0.0, 0.2, 0.8, 5.0}) {
    const EffectAnswer answer = Converted("--effect-d " + Shortest(d));
    EXPECT_NEAR(ValueOf("--r " + Shortest(Of(answer, "r").value), "d"), d, 1e-12);
    EXPECT_NEAR(ValueOf("--superiority " + Shortest(Of(answer, "superiority").value), "d"), d, 1e-11);
    EXPECT_NEAR(ValueOf("--odds-ratio " + Shortest(Of(answer, "approximate-odds-ratio").value), "approximate-d"), d,
                1e-12);
    EXPECT_NEAR(ValueOf("--eta-squared " + Shortest(Of(answer, "eta-squared").value), "f"), std::fabs(d) / 2, 1e-12);
  }
  for (const char* effect : {"odds-ratio", "risk-ratio", "risk-difference"}) {
    const double value = ValueOf("--proportions 0.3,0.45", effect);
    EXPECT_NEAR(ValueOf("--proportion1 0.3 --" + std::string(effect) + ' ' + Shortest(value), "proportion2"), 0.45,
                1e-14);
  }
  EXPECT_NEAR(
      ValueOf("--proportion1 0.3 --effect-h " + Shortest(ValueOf("--proportions 0.3,0.45", "h")), "proportion2"), 0.45,
      1e-14);
  EXPECT_NEAR(ValueOf("--r 0.5 --effect-q " + Shortest(ValueOf("--correlations 0.5,-0.3", "q")), "second-r"), -0.3,
              1e-14);
}

// Two measurements as uncorrelated groups of one standard deviation have sqrt(2) times it between their differences.
TEST(EffectConversions, OfPairsCountTheirCorrelation) {
  EXPECT_NEAR(ValueOf("--means 52,47 --sd 10 --correlation 0.5 --n 30", "dz"), 0.5, 1e-15);
  EXPECT_NEAR(ValueOf("--means 52,47 --sd 8,12 --correlation 0.3", "dz"), 5 / std::sqrt(64 + 144 - 2 * 0.3 * 96),
              1e-15);
  EXPECT_NEAR(ValueOf("--mean-difference 5 --sd-difference 10", "dz"), 0.5, 1e-15);
  EXPECT_NEAR(ValueOf("--mean 52 --test-value 47 --sd 10", "dz"), 0.5, 1e-15);
}

TEST(EffectConversions, TellOfAMagnitudeThatMayBe0) {
  const std::string study = "--effect-d -0.1 --n 40";
  for (const char* effect : {"f", "f2", "eta-squared"}) {
    const EffectValue value = Of(Converted(study), effect);
    EXPECT_EQ(value.limits->lower, 0) << effect;
    EXPECT_GT(value.limits->upper, value.value) << effect;
  }
  const EffectValue far = Of(Converted("--effect-d -2 --n 40"), "f");
  EXPECT_GT(far.limits->lower, 0.5);
  EXPECT_LT(far.limits->upper, 1.5);
}

TEST(EffectConversions, WidenWithTheConfidence) {
  for (const char* study : {"--effect-d 0.5 --n 40", "--r 0.3 --n 50", "--f-statistic 5 --df 4,75"}) {
    const EffectAnswer usual = Converted(study);
    const EffectAnswer narrow = Converted(study + std::string(" --confidence 0.5"));
    for (std::size_t i = 0; i < usual.results.size(); ++i) {
      EXPECT_LT(usual.results[i].value.limits->lower, narrow.results[i].value.limits->lower) << study;
      EXPECT_GT(usual.results[i].value.limits->upper, narrow.results[i].value.limits->upper) << study;
    }
  }
}

TEST(EffectConversions, AreRightAtTheEndsOfTheirRanges) {
  EXPECT_EQ(ValueOf("--eta-squared 0", "f"), 0);
  EXPECT_EQ(ValueOf("--f-statistic 0 --df 2,57", "f"), 0);
  EXPECT_EQ(ValueOf("--effect-f2 0", "r-squared"), 0);
  EXPECT_NEAR(ValueOf("--effect-f 1000000", "eta-squared"), 1, 1e-11);
  EXPECT_EQ(ValueOf("--effect-d 0", "superiority"), 0.5);
  EXPECT_NEAR(ValueOf("--effect-d 1000000", "r"), 1, 1e-11);
  EXPECT_FALSE(Gives(Converted("--effect-d 1000000"), "approximate-odds-ratio"));
  EXPECT_EQ(ValueOf("--means 5,5 --sd 1 --n 2", "d"), 0);
  EXPECT_FALSE(Gives(Converted("--t 1 --n 1,2"), "g")) << "one degree of freedom has no mean of d";
  EXPECT_NEAR(ValueOf("--proportions 0,1", "h"), std::acos(-1.0), 1e-15);
  EXPECT_EQ(ValueOf("--proportion1 0.5 --risk-ratio 0", "proportion2"), 0);
  EXPECT_EQ(ValueOf("--proportion1 0.5 --risk-ratio 2", "proportion2"), 1);
  EXPECT_EQ(ValueOf("--proportion1 0.5 --risk-difference -0.5", "proportion2"), 0);
}

TEST(EffectConversions, WithoutEventsLeaveOutWhatDividesByThem) {
  const EffectAnswer none = Converted("--counts 0,20,5,15");
  EXPECT_FALSE(Gives(none, "odds-ratio"));
  EXPECT_FALSE(Gives(none, "risk-ratio"));
  EXPECT_TRUE(Of(none, "risk-difference").limits);
  const EffectAnswer noneInSecond = Converted("--events 5,0 --n 20");
  EXPECT_EQ(Of(noneInSecond, "risk-ratio").value, 0);
  EXPECT_FALSE(Of(noneInSecond, "risk-ratio").limits);
  EXPECT_FALSE(Gives(noneInSecond, "log-odds-ratio"));
  EXPECT_TRUE(Holds(Reported("--events 5,0 --n 20").note, "No confidence interval can be computed here of risk ratio"));
  EXPECT_EQ(Of(Converted("--counts 0,20,0,20"), "h").value, 0);
}

TEST(EffectConversions, RefuseWhatDoesNotFit) {
  EXPECT_EQ(Refusal("--sd 10"), "Also give --means, or --mean-difference, or --mean for the effect sizes.");
  EXPECT_TRUE(Holds(Refusal("--n 20"), "or --mean-difference and --sd-difference, or others for the effect sizes."));
  EXPECT_TRUE(Holds(Refusal("--effect-d 0.5 --r 0.3"), "exclude each other"));
  EXPECT_TRUE(Holds(Refusal("--t 2 --n 10,20,30"), "--n must be one size that both groups have, or two sizes."));
  EXPECT_TRUE(Holds(Refusal("--r 0.3 --n 10,20"), "--n must be one number here"));
  EXPECT_TRUE(Holds(Refusal("--r 0.3 --n 3"), "--n must be at least 4"));
  EXPECT_TRUE(Holds(Refusal("--t 2 --n 1"), "--n must be more than 2 in both groups together."));
  EXPECT_TRUE(Holds(Refusal("--t 2 --n 1 --one-sample"), "--n must be at least 2"));
  EXPECT_TRUE(Holds(Refusal("--means 1,2 --sd 1 --n 1,20"), "--n must be at least 2"));
  EXPECT_TRUE(Holds(Refusal("--hedges-g 0.5 --n 1,2"), "--n must be more than 3"));
  EXPECT_TRUE(Holds(Refusal("--t 2 --df 3,4"), "--df must be one number with --t"));
  EXPECT_TRUE(Holds(Refusal("--f-statistic 2 --df 3"), "--df must be two numbers"));
  EXPECT_TRUE(Holds(Refusal("--means 1,2 --sd 1,2,3"), "--sd must be one standard deviation"));
  EXPECT_TRUE(Holds(Refusal("--mean 1 --sd 1,2"), "--sd must be one number with --mean"));
  EXPECT_TRUE(Holds(Refusal("--events 5,30 --n 20"), "--events must be at most --n in each group."));
  EXPECT_TRUE(Holds(Refusal("--counts 0,0,5,5"), "--counts leaves a group empty"));
  EXPECT_TRUE(Holds(Refusal("--proportion1 0.8 --risk-ratio 2"), "--risk-ratio puts the second proportion outside"));
  EXPECT_TRUE(Holds(Refusal("--proportion1 0.8 --risk-difference 0.3"), "--risk-difference puts"));
  EXPECT_TRUE(Holds(Refusal("--proportion1 0.8 --effect-h 2"), "--effect-h puts the second proportion outside"));
  EXPECT_TRUE(Holds(Refusal("--r-squared 0.3 --predictors 3 --n 4"), "--n must be at least --predictors + 2"));
  EXPECT_EQ(Refusal("--proportion1 0 --risk-ratio 2 --odds-ratio 2"),
            "--odds-ratio and --risk-ratio exclude each other.");
}

// Whatever the inputs are, there is an answer or a reason, and no number that is none.
TEST(EffectConversions, AnswerOrRefuseWhateverIsGiven) {
  const std::vector<double> numbers{-1e308, -3, -1, -1e-300, 0, 1e-300, 0.3, 1, 2, 57, 1e9, 1e308};
  int answered = 0;
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    for (double first : numbers) {
      for (double second : numbers) {
        InputValues values;
        bool isFirst = true;
        for (Name name : All(conversion)) {
          const Parameter& parameter = *FindParameter(EffectInputs(), name);
          const double number = isFirst ? first : second;
          isFirst = false;
          if (parameter.kind == Kind::Flag) {
            values[std::string(name.Text())] = true;
          } else if (parameter.IsList()) {
            const std::size_t length = parameter.length != 0 ? parameter.length : (name == Name("df") ? 2 : 1);
            values[std::string(name.Text())] = Numbers(length, number);
          } else {
            values[std::string(name.Text())] = number;
          }
        }
        try {
          for (const Entry& entry : ConvertEffect(values).results) {
            const double* value = std::get_if<double>(&entry.value);
            EXPECT_TRUE(!value || std::isfinite(*value)) << entry.name;
          }
          ++answered;
        } catch (const Failure& failure) {
          EXPECT_FALSE(Said(failure).empty());
        }
      }
    }
  }
  EXPECT_GE(answered, 200);
}

TEST(EffectReports, ShowEachIntervalBesideItsEffectSize) {
  const Report report = Reported("--effect-d 0.5 --n 40 --confidence 0.9");
  const std::string text = RenderText(report);
  EXPECT_TRUE(Holds(text, "\n  confidence ")) << text;
  EXPECT_TRUE(Holds(text, "90%")) << text;
  EXPECT_TRUE(Holds(text, "\n  Cohen's d ")) << text;
  EXPECT_EQ(text.find("lower"), std::string::npos) << text;
  EXPECT_TRUE(Holds(report.sentence, "(90% confidence interval ")) << report.sentence;
  const std::string csv = RenderCsv(report);
  EXPECT_TRUE(Holds(csv, ",d,d-lower,d-upper,g,")) << csv;
}

TEST(EffectReports, NameNoColumnTwice) {
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    const std::string csv = RenderCsv(Reported(Typed(All(conversion))));
    std::istringstream columns(csv.substr(0, csv.find('\n')));
    std::set<std::string> names;
    for (std::string name; std::getline(columns, name, ',');) EXPECT_TRUE(names.insert(name).second) << name;
  }
}

// A column that is left out of a CSV has the value of the input.
TEST(EffectReports, RepeatWhatWasGivenAsItIs) {
  for (const EffectConversion& conversion : EffectSizes().conversions) {
    const Report report = Reported(Typed(All(conversion)));
    for (const Entry& input : report.inputs) {
      for (const Entry& result : report.results) {
        EXPECT_TRUE(input.name != result.name || input.value == result.value) << input.name;
      }
    }
  }
}

TEST(EffectReports, SayWhatIsApproximateOrMissing) {
  EXPECT_TRUE(
      Holds(Reported("--effect-d 0.5").note, "Without the size of the study there are no confidence intervals."));
  EXPECT_TRUE(Holds(Reported("--effect-d 0.5").note, "two equal groups"));
  EXPECT_TRUE(Holds(Reported("--effect-d 0.5").note, "The odds ratio is approximate"));
  EXPECT_TRUE(Holds(Reported("--effect-d 0.5 --n 20").note, "Hedges' g is d corrected for its bias"));
  EXPECT_FALSE(Holds(Reported("--effect-d 0.5 --n 20").note, "two equal groups"));
  EXPECT_TRUE(Holds(Reported("--odds-ratio 2").note, "approximate"));
  EXPECT_TRUE(Holds(Reported("--t 2 --df 38").note, "two equal groups"));
}

TEST(EffectReports, ExplainEachEffectSize) {
  const Report report = ConvertEffect(ValuesTyped(EffectInputs(), "effect --t 2.3 --n 20"), true);
  ASSERT_TRUE(report.explanation);
  EXPECT_EQ(report.explanation->formulas.size(), 10u);
  EXPECT_TRUE(Holds(RenderText(report), "  Cohen's d: d = t sqrt(1 / n1 + 1 / n2)\n    Source: "));
  EXPECT_TRUE(Holds(RenderMarkdown(report), "- Cohen's d: d = t sqrt(1 / n1 + 1 / n2). Source: "));
  const auto json = nlohmann::json::parse(RenderJson(report));
  EXPECT_EQ(json["details"]["d"]["formula"], "d = t sqrt(1 / n1 + 1 / n2)");
  EXPECT_EQ(json["question"], "effect-sizes");
  EXPECT_FALSE(json.contains("export"));
}

TEST(EffectDescriptions, AreThereForOtherFrontEnds) {
  const auto json = nlohmann::json::parse(RenderEffectsJson());
  const Effects& effects = EffectSizes();
  ASSERT_EQ(json["conversions"].size(), effects.conversions.size());
  ASSERT_EQ(json["effect-sizes"].size(), effects.sizes.size());
  EXPECT_EQ(json["parameters"].size(), effects.inputs.parameters.size());
  EXPECT_EQ(json["examples"].size(), effects.inputs.examples.size());
  EXPECT_EQ(json["conversions"][0]["needs"], (std::vector<std::string>{"means", "sd"}));
  EXPECT_EQ(json["conversions"][0]["uses"][0]["test"], "two-means");
  EXPECT_EQ(json["effect-sizes"][0]["name"], "d");
  for (const auto& conversion : json["conversions"]) EXPECT_NE(conversion["title"], "");
  EXPECT_GE(json["effect-sizes"][0]["formulas"].size(), 5u);
}

}  // namespace
}  // namespace planner
