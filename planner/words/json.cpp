#include <cmath>
#include <nlohmann/json.hpp>

#include "words/render.h"

namespace planner {
namespace {

using Json = nlohmann::ordered_json;

Json PowersOf(const Numbers& powers, std::size_t first, std::size_t count) {
  Json list = Json::array();
  for (std::size_t i = first; i < first + count; ++i) {
    list.push_back(std::isnan(powers[i]) ? Json() : Json(powers[i]));
  }
  return list;
}

}  // namespace

std::string RenderJson(const ChartData& chart) {
  const Series& series = chart.series;
  Json object;
  object["test"] = chart.test->name;
  object["chart"] = chart.chart->name;
  for (const Axis& axis : chart.chart->axes) object["axes"].push_back(axis.title);
  if (chart.mark) object["design"] = {{"at", chart.mark->at}, {"power", chart.mark->power}};
  object["x"] = series.x;
  if (series.y.empty()) {
    object["power"] = PowersOf(series.power, 0, series.power.size());
  } else {
    object["y"] = series.y;
    object["power"] = Json::array();
    const std::size_t row = series.y.size();
    for (std::size_t i = 0; i < series.x.size(); ++i) object["power"].push_back(PowersOf(series.power, i * row, row));
  }
  object["export"] = chart.exportName;
  return object.dump() + '\n';
}

}  // namespace planner
