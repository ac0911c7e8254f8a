#include <set>

#include "catalogue/catalogue.h"
#include "catalogue/effects.h"
#include "report.h"
#include "words/effect_report.h"
#include "words/render.h"

namespace {

using namespace keltest;

TEST(JsonDoor, AnswersEveryExampleAsTheProgramDoes) {
  for (const planner::Test& test : planner::Tests()) {
    for (const planner::Example& example : test.examples) {
      SCOPED_TRACE(example.arguments);
      EXPECT_EQ(std::string(ExpectAnswerOfProgram(test, example)["sentence"]).rfind(example.sentence, 0), 0u);
    }
  }
}

TEST(JsonDoor, ConvertsEveryExampleAsTheProgramDoes) {
  const planner::Test& inputs = planner::EffectSizes().inputs;
  for (const planner::Example& example : inputs.examples) {
    for (bool explained : {false, true}) {
      SCOPED_TRACE(example.arguments);
      Json request{{"inputs", JsonInputsOf(inputs, example)}};
      if (explained) request["explain"] = true;
      const Reply reply = Asked(kelplan_convert, request.dump());
      EXPECT_EQ(reply.status, KELPLAN_OK);
      const planner::Report report = planner::ConvertEffect(planner::InputsOf(inputs, example), explained);
      ExpectReport(reply.json, report);
      EXPECT_EQ(std::string(reply.json["sentence"]).rfind(example.sentence, 0), 0u);
      EXPECT_EQ(reply.json.contains("details"), explained);
    }
  }
}

TEST(JsonDoor, SaysWhatIsWrongWithAConversion) {
  const struct {
    const char* request;
    int status;
    const char* code;
  } wrongs[] = {
      {"[]", 2, "not-an-object"},
      {R"({"test":"effect","inputs":{"effect-d":0.5}})", 2, "unknown-member"},
      {R"({"inputs":{"effect-d":0.5},"densities":true})", 2, "unknown-member"},
      {R"({"inputs":{"effect-d":0.5},"explain":"yes"})", 2, "wrong-type"},
      {R"({"inputs":{"effect-d":[0.5,1]}})", 2, "several-values"},
      {R"({"inputs":{"effect-d":"large"}})", 2, "not-allowed"},
      {R"({"inputs":{"power":0.5}})", 2, "not-an-input"},
      {R"({"inputs":{}})", 2, "incomplete"},
      {"{}", 2, "incomplete"},
  };
  for (const auto& [request, status, code] : wrongs) {
    const Reply reply = Asked(kelplan_convert, request);
    EXPECT_EQ(reply.status, status) << request;
    EXPECT_EQ(reply.json["error"]["code"], code) << request << reply.json;
  }
  const Json error = Asked(kelplan_convert, R"({"inputs":{"power":0.5}})").json["error"];
  EXPECT_EQ(error["message"], "power is no input of effect.");
}

TEST(JsonDoor, SpellsEffectSizesWithUnderscoresWhereAsked) {
  const Json reply =
      Asked(kelplan_convert, R"({"inputs":{"effect_d":0.5,"n":20},"names":"underscore","explain":true,"text":true})")
          .json;
  EXPECT_EQ(reply["text"].get<std::string>().substr(0, 13), "Effect sizes\n");
  EXPECT_EQ(reply["inputs"]["effect_d"], 0.5);
  EXPECT_TRUE(reply["results"].contains("eta_squared")) << reply;
  EXPECT_TRUE(reply["details"].contains("eta_squared"));
}

TEST(JsonDoor, SpellsTheNumbersThatCanBeSolvedForAsAsked) {
  const char* request =
      R"({"test":"two-means","names":"underscore","inputs":{"sd":10,"n":30,"power":0.8,"solve":"%"}})";
  const auto asked = [request](const std::string& word) {
    const std::string text = request;
    return Asked(kelplan_solve, text.substr(0, text.find('%')) + word + text.substr(text.find('%') + 1)).json;
  };
  EXPECT_EQ(asked("mean_difference"), asked("mean-difference"));
  EXPECT_TRUE(asked("mean_difference")["results"].contains("mean_difference"));
  const Json error = asked("effect")["error"];
  EXPECT_EQ(error["allowed"], "effect_d, mean_difference, sd, ratio, mean_ratio, cv, margin, alpha or assurance");
  EXPECT_EQ(
      error["message"],
      "solve is \"effect\", but must be effect_d, mean_difference, sd, ratio, mean_ratio, cv, margin, alpha or assurance.");
}

TEST(JsonDoor, DescribesEveryTest) {
  const Json description = Json::parse(kelplan_describe());
  EXPECT_EQ(description["schema"], 1);
  EXPECT_TRUE(description["effects"] == Json::parse(planner::RenderEffectsJson()));
  for (const Json& example : description["effects"]["examples"]) EXPECT_FALSE(example["inputs"].empty());
  ASSERT_EQ(description["tests"].size(), planner::Tests().size());
  EXPECT_TRUE(description["tests"] == Json::parse(planner::RenderListJson()));
  EXPECT_EQ(kelplan_describe(), kelplan_describe());
  for (const Json& test : description["tests"]) {
    EXPECT_FALSE(test["examples"].empty()) << test["name"];
    EXPECT_FALSE(test["sources"].empty()) << test["name"];
    for (const Json& route : test["routes"]) EXPECT_FALSE(route["results"].empty()) << test["name"];
  }
}

struct Wrong {
  std::string request;
  int status;
  std::string kind;
  std::string code;
};

std::string OfTwoMeans(const std::string& inputs) { return R"({"test":"two-means","inputs":)" + inputs + "}"; }

TEST(JsonDoor, SaysWhatIsWrongWithARequest) {
  const Wrong wrongs[] = {
      {"", 2, "request", "not-json"},
      {"\xff", 2, "request", "not-json"},
      {"{\"test\":\"\xc3\"}", 2, "request", "not-json"},
      {"{} {}", 2, "request", "not-json"},
      {OfTwoMeans(R"({"effect-d":NaN,"n":20})"), 2, "request", "not-json"},
      {OfTwoMeans(R"({"effect-d":1e999,"n":20})"), 2, "request", "not-json"},
      {"[1]", 2, "request", "not-an-object"},
      {std::string(100000, '['), 2, "request", "nested-too-deeply"},
      {R"({"a":)" + std::string(100000, '{'), 2, "request", "not-json"},
      {std::string(17 << 20, ' '), 2, "request", "too-large"},
      {OfTwoMeans(R"({"effect-d":1,"effect-d":2,"n":20})"), 2, "request", "key-repeated"},
      {OfTwoMeans(R"({"effect-d":1,"d":2,"n":20})"), 2, "request", "key-repeated"},
      {"{}", 2, "request", "test-missing"},
      {R"({"test":1})", 2, "request", "wrong-type"},
      {R"({"test":"t-test"})", 2, "request", "test-unknown"},
      {R"({"test":"two-means","inputs":[]})", 2, "request", "wrong-type"},
      {R"({"test":"two-means","names":"camel"})", 2, "request", "wrong-type"},
      {R"({"test":"two-means","columns":[]})", 2, "request", "unknown-member"},
      {R"({"test":"two-means","inputs":{"effect-d":0.5,"n":20},"explain":1})", 2, "request", "wrong-type"},
      {R"({"test":"two-means","inputs":{"effect-d":[0.5,1],"n":20},"explain":true})", 2, "request", "several-values"},
      {OfTwoMeans(R"({"effect-d":"half","n":20})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":{},"n":20})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":true,"n":20})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":[],"n":20})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":0.5,"n":[20,"x"]})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":0.5,"power":2})"), 2, "input", "not-allowed"},
      {OfTwoMeans(R"({"effect-d":0.5})"), 2, "input", "incomplete"},
      {OfTwoMeans(R"({"colour":0.5})"), 2, "input", "not-an-input"},
      {OfTwoMeans(R"({"effect-d":0,"power":0.8})"), 3, "no-solution", "no-effect"},
  };
  for (const auto& [request, status, kind, code] : wrongs) {
    SCOPED_TRACE(request.substr(0, 100));
    const Reply reply = Asked(kelplan_solve, request);
    EXPECT_EQ(reply.status, status);
    ASSERT_TRUE(reply.json.contains("error")) << reply.json;
    EXPECT_EQ(reply.json["error"]["kind"], kind);
    EXPECT_EQ(reply.json["error"]["code"], code);
    EXPECT_NE(reply.json["error"]["message"], "");
  }
}

TEST(JsonDoor, RefusesArraysThatAreTooLarge) {
  std::string many = "[0.5";
  for (int i = 0; i < 300000; ++i) many += ",1";
  EXPECT_EQ(Asked(kelplan_solve, OfTwoMeans("{\"effect-d\":" + many + "]}")).json["error"]["code"], "too-large");
  Json alpha = Json::array();
  Json effects = Json::array();
  for (int i = 1; i <= 1000; ++i) {
    alpha.push_back(i * 1e-4);
    effects.push_back(i * 1e-3);
  }
  const Reply reply = Solved({{"test", "two-means"}, {"inputs", {{"effect-d", effects}, {"n", 20}, {"alpha", alpha}}}});
  EXPECT_EQ(reply.status, KELPLAN_BAD_INPUT);
  EXPECT_EQ(reply.json["error"]["code"], "too-many-designs");
}

TEST(JsonDoor, AnErrorNamesTheParameterTheValueAndWhatIsAllowed) {
  const Json error = Asked(kelplan_solve, OfTwoMeans(R"({"effect-d":0.5,"power":2})")).json["error"];
  EXPECT_EQ(error["parameter"], "power");
  EXPECT_EQ(error["parameters"], Json({"power"}));
  EXPECT_EQ(error["value"], 2);
  EXPECT_EQ(error["allowed"], "a number between 0 and 1, neither included");
  EXPECT_EQ(error["message"], "power is 2, but must be a number between 0 and 1, neither included.");
  EXPECT_EQ(error["template"], "{power} is 2, but must be a number between 0 and 1, neither included.");
}

TEST(JsonDoor, SpellsNamesWithUnderscoresWhereAsked) {
  Json request{{"test", "two-means"}, {"names", "underscore"}, {"inputs", {{"effect_d", 0.5}, {"power", 0.8}}}};
  const Reply reply = Solved(request);
  EXPECT_EQ(reply.json["inputs"]["target_power"], 0.8);
  EXPECT_EQ(reply.json["inputs"]["effect_d"], 0.5);
  request["inputs"]["effect_d"] = "x";
  const Json error = Solved(request).json["error"];
  EXPECT_EQ(error["parameter"], "effect_d");
  EXPECT_EQ(std::string(error["message"]).substr(0, 12), "effect_d is ");
}

TEST(JsonDoor, AlternativesGiveATableWithErrorsInTheirRows) {
  const Reply reply =
      Solved({{"test", "two-means"}, {"inputs", {{"effect-d", {0.2, 0}}, {"power", {0.8, 0.9}}, {"ratio", 2}}}});
  ASSERT_EQ(reply.status, KELPLAN_OK);
  EXPECT_EQ(reply.json["inputs"]["ratio"], 2);
  EXPECT_FALSE(reply.json["inputs"].contains("effect-d"));
  ASSERT_EQ(reply.json["rows"].size(), 4u);
  const Json alone =
      Solved({{"test", "two-means"}, {"inputs", {{"effect-d", 0.2}, {"power", 0.9}, {"ratio", 2}}}}).json;
  EXPECT_EQ(reply.json["rows"][1]["results"], alone["results"]);
  EXPECT_EQ(reply.json["rows"][1]["inputs"], Json({{"effect-d", 0.2}, {"target-power", 0.9}}));
  EXPECT_EQ(reply.json["rows"][2]["error"]["code"], "no-effect");
  EXPECT_FALSE(reply.json["rows"][2].contains("results"));
}

TEST(JsonDoor, AlternativesOfWordsGiveTheResultsOfAll) {
  const Json inputs{{"proportions", {{0.3, 0.5}}}, {"method", {"z", "conditional"}}, {"power", 0.8}};
  const Reply reply = Solved({{"test", "two-proportions"}, {"inputs", inputs}});
  ASSERT_EQ(reply.status, KELPLAN_OK) << reply.json;
  std::set<std::string> names;
  for (const Json& column : reply.json["columns"]) names.insert(column["name"]);
  for (const Json& row : reply.json["rows"]) {
    for (const auto& result : row["results"].items()) EXPECT_EQ(names.count(result.key()), 1u) << result.key();
  }
  EXPECT_FALSE(reply.json["rows"][0]["results"].contains("lasting-n"));
  EXPECT_EQ(reply.json["rows"][1]["results"]["lasting-n"], Json({102, 102}));
}

TEST(JsonDoor, AListVariesAsAnArrayOfArrays) {
  const Reply reply = Solved({{"test", "two-means"}, {"inputs", {{"effect-d", 0.5}, {"n", {{20, 30}, {40, 40}}}}}});
  ASSERT_EQ(reply.status, KELPLAN_OK);
  EXPECT_EQ(reply.json["rows"][0]["inputs"]["n"], Json({20, 30}));
  EXPECT_EQ(reply.json["rows"][1]["results"]["total"], 80);
}

TEST(JsonDoor, TellsTheDistributionsOfTheStatistic) {
  const Json t = Solved({{"test", "two-means"}, {"inputs", {{"effect-d", 0.5}, {"n", 50}}}, {"densities", true}}).json;
  EXPECT_EQ(t["densities"]["statistic"], "t");
  EXPECT_NEAR(double(t["densities"]["power"]), double(t["results"]["power"]), 1e-12);
  EXPECT_NEAR(double(t["densities"]["level"]), 0.05, 1e-12);
  EXPECT_EQ(t["densities"]["x"].size(), t["densities"]["with"].size());
  const Json width =
      Solved({{"test", "mean"}, {"inputs", {{"sd", 1}, {"n", 50}, {"interval", true}}}, {"densities", true}}).json;
  EXPECT_TRUE(width["densities"].is_null());
}

TEST(JsonDoor, DrawsAChart) {
  const Json request{{"test", "two-means"},
                     {"names", "underscore"},
                     {"inputs", {{"effect_d", {0.2, 0.5}}, {"power", 0.8}}},
                     {"chart", "n"}};
  const Reply reply = Asked(kelplan_draw, request.dump());
  ASSERT_EQ(reply.status, KELPLAN_OK) << reply.json;
  EXPECT_GT(reply.json["x"].size(), 10u);
  ASSERT_EQ(reply.json["curves"].size(), 2u);
  EXPECT_EQ(reply.json["varied"], "effect_d");
  EXPECT_EQ(reply.json["curves"][1]["effect_d"], 0.5);
  EXPECT_EQ(reply.json["curves"][1]["power"].size(), reply.json["x"].size());
  Json sizes = request;
  sizes["inputs"]["effect_d"] = 0.5;
  sizes["chart"] = "effect-d";
  sizes["y"] = "n";
  EXPECT_EQ(Asked(kelplan_draw, sizes.dump()).json["quantity"], "sample-size");
  sizes["y"] = "x";
  EXPECT_EQ(Asked(kelplan_draw, sizes.dump()).json["error"]["code"], "wrong-type");
  Json twice = request;
  twice["inputs"]["power"] = {0.8, 0.9};
  EXPECT_EQ(Asked(kelplan_draw, twice.dump()).json["error"]["code"], "several-values");
  Json wrong = request;
  wrong["chart"] = "nothing";
  EXPECT_EQ(Asked(kelplan_draw, wrong.dump()).status, KELPLAN_BAD_INPUT);
  wrong["chart"] = 3;
  EXPECT_EQ(Asked(kelplan_draw, wrong.dump()).json["error"]["code"], "wrong-type");
  wrong.erase("chart");
  EXPECT_EQ(Asked(kelplan_draw, wrong.dump()).json["error"]["code"], "chart-missing");
}

TEST(JsonDoor, TellsWhatAPictureSays) {
  Json request{
      {"test", "two-means"}, {"inputs", {{"effect-d", {0.2, 0.5}}, {"power", 0.8}}}, {"chart", "n"}, {"picture", true}};
  const Json curves = Asked(kelplan_draw, request.dump()).json["picture"];
  EXPECT_EQ(curves["title"], "Independent-samples t test of two means");
  EXPECT_EQ(curves["fixed"], Json({"two-sided", "significance level 0.05"}));
  EXPECT_EQ(curves["values"], "power");
  EXPECT_EQ(curves["curves"], Json({"effect size d 0.2", "effect size d 0.5"}));
  EXPECT_EQ(curves["designs"], Json({"n per group = 394, power 0.80", "n per group = 64, power 0.80"}));
  EXPECT_EQ(curves["description"].get<std::string>().substr(0, 21), "Power over sample siz");
  EXPECT_FALSE(curves.contains("levels"));
  request["from"] = 2;
  request["to"] = 100;
  EXPECT_EQ(Asked(kelplan_draw, request.dump()).json["picture"]["designs"], Json({"", "n per group = 64, power 0.80"}));
}

TEST(JsonDoor, TellsTheLinesOfEqualPower) {
  Json request{{"test", "two-means"},
               {"inputs", {{"effect-d", 0.5}, {"power", 0.8}}},
               {"chart", "n-effect-d"},
               {"picture", true}};
  const Json surface = Asked(kelplan_draw, request.dump()).json["picture"];
  ASSERT_EQ(surface["levels"].size(), 4u);
  EXPECT_EQ(surface["levels"][1]["power"], 0.8);
  const Json line = surface["levels"][1]["lines"][0];
  EXPECT_GT(line["x"].size(), 100u);
  EXPECT_EQ(line["x"].size(), line["y"].size());
  EXPECT_FALSE(surface.contains("note"));
  request["picture"] = 1;
  EXPECT_EQ(Asked(kelplan_draw, request.dump()).json["error"]["code"], "wrong-type");
}

int CountAndStop(void* payload) {
  ++*static_cast<int*>(payload);
  return 1;
}

TEST(JsonDoor, StopsWhereTheCallerAsksForIt) {
  int asked = 0;
  kelplan_options options{sizeof(kelplan_options), CountAndStop, &asked};
  const Json request{{"test", "two-means"}, {"inputs", {{"effect-d", 0.5}, {"n", 50}}}};
  const Reply reply = Solved(request, &options);
  EXPECT_EQ(reply.status, KELPLAN_STOPPED);
  EXPECT_EQ(reply.json["error"]["kind"], "stopped");
  EXPECT_EQ(asked, 1);
  const Json table{{"test", "two-means"}, {"inputs", {{"effect-d", {0.5, 0.6}}, {"n", 50}}}};
  EXPECT_EQ(Solved(table, &options).status, KELPLAN_STOPPED);
  EXPECT_EQ(Asked(kelplan_convert, R"({"inputs":{"effect-d":0.5}})", &options).status, KELPLAN_STOPPED);
  options.size = sizeof(size_t);  // of a caller that knows no more than the size
  EXPECT_EQ(Solved(request, &options).status, KELPLAN_OK);
  options = {sizeof(kelplan_options), nullptr, nullptr};
  EXPECT_EQ(Solved(request, &options).status, KELPLAN_OK);
}

TEST(JsonDoor, TakesNullForWhatIsNotThere) {
  EXPECT_EQ(kelplan_solve(nullptr, nullptr, nullptr), KELPLAN_BAD_INPUT);
  char* answer = nullptr;
  EXPECT_EQ(kelplan_draw(nullptr, nullptr, &answer), KELPLAN_BAD_INPUT);
  EXPECT_EQ(Taken(answer)["error"]["code"], "not-json");
  EXPECT_EQ(kelplan_convert(nullptr, nullptr, nullptr), KELPLAN_BAD_INPUT);
  kelplan_free(nullptr);
  kelplan_release(nullptr);
}

}  // namespace
