#include "words/densities_json.h"

namespace planner {
namespace {

const char* WordOf(StatisticFamily family) {
  switch (family) {
    case StatisticFamily::T: return "t";
    case StatisticFamily::F: return "F";
    case StatisticFamily::Normal: return "normal";
    case StatisticFamily::Count: return "count";
  }
  return "";
}

void WriteCurve(JsonWriter& json, const char* key, const Numbers& numbers) {
  json.Key(key);
  json.Of(numbers);
}

}  // namespace

void WriteDensities(JsonWriter& json, const Densities& densities) {
  json.OpenObject();
  json.Text("statistic", WordOf(densities.family));
  if (densities.rejectsTo) json.Number("rejects-to", *densities.rejectsTo);
  if (densities.rejectsFrom) json.Number("rejects-from", *densities.rejectsFrom);
  json.Number("level", densities.level);
  json.Number("power", densities.power);
  WriteCurve(json, "x", densities.x);
  WriteCurve(json, "without", densities.without);
  WriteCurve(json, "with", densities.with);
  json.CloseObject();
}

}  // namespace planner
