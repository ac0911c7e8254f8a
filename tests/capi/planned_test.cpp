#include <algorithm>

#include "catalogue/catalogue.h"
#include "report.h"
#include "rows.h"

// What is known of a study before it starts, through both doors.
namespace {

using namespace keltest;

const char* const designs[] = {
    "two-means --effect-d 0.5 --power 0.8 --dropout 0.15",
    "two-means --effect-d 0.5 --power 0.8 --ratio 2 --cluster-size 20 --icc 0.05 --cluster-cv 0.4 --dropout 0.15",
    "two-means --effect-d 0.5 --n 60,80 --cluster-size 12.5 --icc 0.02",
    "two-means --effect-d 0.5 --n 60 --comparisons 3",
    "two-means --effect-d 0.5 --n 60 --effect-sd 0.1",
    "two-means --effect-d 0.5 --power 0.7 --effect-sd 0.1 --comparisons 2 --cluster-size 10 --icc 0.05 --dropout 0.1",
    "two-means --n 100 --power 0.8 --cluster-size 20 --icc 0.05 --comparisons 2",
    "two-means --sd 10,14 --half-width 4 --assurance 0.85 --ratio 2",
    "mean --sd 10 --half-width 3 --assurance 0.85 --dropout 0.2",
    "mean --sd 10 --n 50 --half-width 3 --solve assurance",
    "mean --sd 10 --half-width 2.5 --population 300 --comparisons 3 --dropout 0.1",
    "paired-means --sd-difference 10 --half-width 3 --assurance 0.85",
    "proportion --proportion 0.3 --half-width 0.05 --population 1000",
    "proportion --proportion 0.3 --half-width 0.05 --interval-method clopper-pearson --assurance 0.85",
    "two-proportions --proportions 0.5,0.7 --power 0.8 --cluster-size 15 --icc 0.03 --dropout 0.1",
    "anova --effect-f 0.25 --groups 3 --power 0.8 --dropout 0.1 --comparisons 2",
    "contrast --coefficients 1,-0.5,-0.5 --sd 6 --half-width 2 --assurance 0.8",
    "pairwise --pair 1,3 --means 10,12,15 --sd 6 --power 0.8 --dropout 0.1",
    "pearson --r 0.3 --power 0.8 --effect-sd 0.05 --dropout 0.1",
    "pearson --r 0.3 --half-width 0.1 --assurance 0.85",
    "regression --effect-f2 0.15 --predictors 3 --power 0.8 --dropout 0.1",
};

struct Design {
  const planner::Test& test;
  planner::Example example;
};

Design DesignOf(const std::string& arguments) {
  const planner::Test* test = planner::FindTest(arguments.substr(0, arguments.find(' ')));
  return {*test, {.arguments = arguments, .sentence = ""}};
}

Json Described(const std::string& test) {
  const Json description = Json::parse(kelplan_describe());
  for (const Json& one : description["tests"]) {
    if (one["name"] == test) return one;
  }
  return {};
}

TEST(Planned, IsAnsweredAsTheProgramDoes) {
  for (const char* arguments : designs) {
    SCOPED_TRACE(arguments);
    const auto [test, example] = DesignOf(arguments);
    ExpectAnswerOfProgram(test, example);
  }
}

TEST(Planned, IsAnsweredInRows) {
  for (const char* arguments : designs) {
    SCOPED_TRACE(arguments);
    const auto [test, example] = DesignOf(arguments);
    ExpectSameRows(Described(test.name), JsonInputsOf(test, example));
  }
}

/// How many inputs the route needs besides what is solved for; 0 where the reply lacks one of them.
std::size_t MetNeeds(const Json& route, const Json& reply, const std::string& unknown) {
  if (route["question"] != reply["question"]) return 0;
  std::size_t count = 0;
  for (const std::string name : route["needs"]) {
    if (name == unknown) continue;
    if (!reply["inputs"].contains(name) && !reply["inputs"].contains("target-" + name)) return 0;
    ++count;
  }
  return count;
}

/// The described route that answers: of those that need no more than is given the one that needs most.
Json RouteOf(const Json& test, const Json& reply, const std::string& unknown) {
  Json chosen;
  std::size_t most = 0;
  for (const Json& route : test["routes"]) {
    const std::size_t met = MetNeeds(route, reply, unknown);
    if (met > most) chosen = route;
    most = std::max(most, met);
  }
  return chosen;
}

/// Whether the route of the description names the results: all that the batch has, and those that are always there.
bool Names(const Json& route, const Json& results, const std::string& unknown) {
  const auto isSame = [](const Json& a, const Json& b) {
    return a["name"] == b["name"] && a["label"] == b["label"] && a["kind"] == b["kind"];
  };
  const auto isIn = [&](const Json& list, const Json& one) {
    return std::any_of(list.begin(), list.end(), [&](const Json& other) { return isSame(one, other); });
  };
  const auto isNamed = [&](const Json& one) { return one["name"] == unknown || isIn(route["results"], one); };
  const auto isThere = [&](const Json& one) { return one.contains("optional") || isIn(results, one); };
  return std::all_of(results.begin(), results.end(), isNamed) &&
         std::all_of(route["results"].begin(), route["results"].end(), isThere);
}

void ExpectNamed(const Json& test, const Json& inputs) {
  const Reply reply = Solved({{"test", test["name"]}, {"inputs", inputs}});
  const Prepared prepared = Prepare({{"test", test["name"]}, {"inputs", inputs}});
  ASSERT_EQ(prepared.status, KELPLAN_OK);
  std::string unknown;  // the first result, where it is solved for
  for (const Json& one : test["unknowns"]) {
    if (one["name"] == prepared.json["results"][0]["name"]) unknown = one["name"];
  }
  const Json route = RouteOf(test, reply.json, unknown);
  ASSERT_FALSE(route.is_null()) << reply.json;
  EXPECT_TRUE(Names(route, prepared.json["results"], unknown)) << route << prepared.json;
}

TEST(Planned, ResultsAreNamedByTheDescription) {
  for (const char* arguments : designs) {
    SCOPED_TRACE(arguments);
    const auto [test, example] = DesignOf(arguments);
    ExpectNamed(Described(test.name), JsonInputsOf(test, example));
  }
  const Json description = Json::parse(kelplan_describe());
  for (const Json& test : description["tests"]) {
    for (const Json& example : test["examples"]) {
      SCOPED_TRACE(example["arguments"]);
      ExpectNamed(test, example["inputs"]);
    }
  }
}

}  // namespace
