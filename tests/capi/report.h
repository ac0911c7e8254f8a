#ifndef KELPOWER_TESTS_CAPI_REPORT_H
#define KELPOWER_TESTS_CAPI_REPORT_H

#include "solve/solve.h"
#include "support.h"
#include "words/example_inputs.h"
#include "words/explain.h"
#include "words/render.h"

// Replies beside the reports that the program prints.
namespace keltest {

inline Json JsonInputsOf(const planner::Test& test, const planner::Example& example) {
  std::string inputs;
  planner::JsonWriter json(inputs);
  json.OpenObject();
  for (const auto& [name, value] : planner::InputsOf(test, example)) {
    json.Key(name);
    json.Of(value);
  }
  json.CloseObject();
  return Json::parse(inputs);
}

inline void ExpectReport(Json reply, const planner::Report& report) {
  Json expected = Json::parse(planner::RenderJson(report));
  expected.erase("schema-version");
  EXPECT_EQ(reply["schema"], 1);
  EXPECT_EQ(reply["version"], kelplan_version());
  reply.erase("schema");
  reply.erase("version");
  EXPECT_EQ(reply, expected);
}

/// Asks for an example with its explanation, expects what the program prints, and gives the reply.
inline Json ExpectAnswerOfProgram(const planner::Test& test, const planner::Example& example) {
  const planner::Answer answer = planner::Solve(test, planner::InputsOf(test, example));
  planner::Report report = planner::MakeReport(answer);
  report.explanation = planner::Explain(answer);
  const Reply reply = Solved({{"test", test.name}, {"inputs", JsonInputsOf(test, example)}, {"explain", true}});
  EXPECT_EQ(reply.status, KELPLAN_OK);
  ExpectReport(reply.json, report);
  return reply.json;
}

}  // namespace keltest

#endif
