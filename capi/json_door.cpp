#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "call.h"
#include "caller_stop.h"
#include "catalogue/effects.h"
#include "picture.h"
#include "request.h"
#include "solve/chart.h"
#include "solve/densities.h"
#include "solve/solve.h"
#include "table.h"
#include "words/calls.h"
#include "words/chart_json.h"
#include "words/densities_json.h"
#include "words/effect_report.h"
#include "words/explain.h"
#include "words/render.h"
#include "words/report_json.h"

namespace kelplan {
namespace {

void WriteDensities(Reply& reply, const planner::Answer& answer) {
  reply.Key("densities");
  const std::optional<planner::TestStatistic> statistic = planner::DetailsOf(answer).statistic;
  if (!statistic) return reply.Null();
  planner::WriteDensities(reply, planner::DensitiesOf(*statistic));
}

void WriteCalls(Reply& reply, const planner::Calls& calls) {
  reply.Key("calls");
  reply.OpenObject();
  reply.Text("program", calls.program);
  reply.Text("python", calls.python);
  reply.Text("r", calls.r);
  reply.CloseObject();
}

/// Members of a request for one design that add to its answer.
constexpr std::string_view additions[] = {"explain", "densities", "text", "calls"};

void ReplyWithAnswer(Call& call, const Request& request) {
  const bool hasDensities = request.IsSet("densities");
  const bool hasText = request.IsSet("text");
  const bool hasCalls = request.IsSet("calls");
  const planner::InputValues values = request.Values();
  const planner::Answer answer = planner::Solve(request.AskedTest(), values, call.stop);
  planner::Report report = planner::MakeReport(answer);
  if (request.IsSet("explain")) report.explanation = planner::Explain(answer);
  Reply reply(call);
  planner::WriteReport(reply, report);
  if (hasDensities) WriteDensities(reply, answer);
  if (hasText) reply.Text("text", planner::RenderText(report));
  if (hasCalls) WriteCalls(reply, planner::CallsOf(request.AskedTest(), values));
  reply.CloseObject();
  if (call.IsStopped()) throw planner::Stopped();
}

void Solve(Call& call) {
  const JsonTree tree = ReadJson(call.request);
  call.names = NamesOf(tree);
  const Request request(tree, {std::begin(additions), std::end(additions)});
  if (!request.HasAlternatives()) return ReplyWithAnswer(call, request);
  for (std::string_view member : additions) {
    if (!request.IsSet(member)) continue;
    throw BadRequest("several-values",
                     "\"" + std::string(member) + "\" is of one design, but an input has several values.");
  }
  ReplyWithTable(call, request);
}

void Draw(Call& call) {
  const JsonTree tree = ReadJson(call.request);
  call.names = NamesOf(tree);
  const Request request(tree, {"chart", "from", "to", "step", "y", "picture"});
  const bool hasPicture = request.IsSet("picture");
  const planner::ChartRequest asked = request.Chart();
  const planner::ChartData chart =
      planner::ComputeChart(request.AskedTest(), asked, request.ValuesBesides(asked.alternatives), call.stop);
  Reply reply(call);
  planner::WriteChart(reply, chart);
  if (hasPicture) WritePicture(reply, chart);
  reply.CloseObject();
}

void Convert(Call& call) {
  const JsonTree tree = ReadJson(call.request);
  call.names = NamesOf(tree);
  const Request request(tree, planner::EffectSizes().inputs, {"explain", "text"});
  if (call.IsStopped()) throw planner::Stopped();
  const planner::Report report = planner::ConvertEffect(request.Values(), request.IsSet("explain"));
  const bool hasText = request.IsSet("text");
  Reply reply(call);
  planner::WriteReport(reply, report);
  if (hasText) reply.Text("text", planner::RenderText(report));
  reply.CloseObject();
}

int Ask(const char* request, const kelplan_options* options, void (*door)(Call&), char** answer) {
  CallerStop stop(options);
  Call call{.request = request ? request : "", .stop = stop.IsAsked() ? &stop : nullptr};
  return Answer(call, door, answer);
}

std::string Description() {
  return "{\"schema\":1,\"version\":\"" KELPOWER_VERSION "\",\"tests\":" +
         planner::RenderListJson(planner::JsonLayout::Compact) +
         ",\"effects\":" + planner::RenderEffectsJson(planner::JsonLayout::Compact) + "}";
}

}  // namespace
}  // namespace kelplan

const char* kelplan_version(void) { return KELPOWER_VERSION; }

const char* kelplan_describe(void) {
  try {
    static const std::string description = kelplan::Description();
    return description.c_str();
  } catch (...) {
    return nullptr;
  }
}

int kelplan_solve(const char* request, const kelplan_options* options, char** answer) {
  return kelplan::Ask(request, options, kelplan::Solve, answer);
}

int kelplan_draw(const char* request, const kelplan_options* options, char** answer) {
  return kelplan::Ask(request, options, kelplan::Draw, answer);
}

int kelplan_convert(const char* request, const kelplan_options* options, char** answer) {
  return kelplan::Ask(request, options, kelplan::Convert, answer);
}

void kelplan_free(char* answer) { kelplan::Free(answer); }
