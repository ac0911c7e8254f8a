#include <fmt/format.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "planner/draw.h"

namespace planner {
namespace {

using Json = nlohmann::ordered_json;

std::string Quoted(const std::string& title) {
  return title.find(',') == std::string::npos ? title : '"' + title + '"';
}

std::string Cell(double power) { return std::isnan(power) ? "" : Shortest(power); }

Json PowersOf(const Numbers& powers, std::size_t first, std::size_t count) {
  Json list = Json::array();
  for (std::size_t i = first; i < first + count; ++i) {
    list.push_back(std::isnan(powers[i]) ? Json() : Json(powers[i]));
  }
  return list;
}

}  // namespace

std::string RenderCsv(const Picture& picture) {
  const Series& series = picture.series;
  std::string text;
  for (const Axis& axis : picture.chart->axes) text += Quoted(axis.title) + ',';
  text += "power\n";
  for (std::size_t i = 0; i < series.x.size(); ++i) {
    if (series.y.empty()) text += fmt::format("{},{}\n", Shortest(series.x[i]), Cell(series.power[i]));
    for (std::size_t j = 0; j < series.y.size(); ++j) {
      text += fmt::format("{},{},{}\n", Shortest(series.x[i]), Shortest(series.y[j]),
                          Cell(series.power[i * series.y.size() + j]));
    }
  }
  return text;
}

std::string RenderJson(const Picture& picture) {
  const Series& series = picture.series;
  Json object;
  object["test"] = picture.test->name;
  object["chart"] = picture.chart->name;
  for (const Axis& axis : picture.chart->axes) object["axes"].push_back(axis.title);
  if (picture.mark) object["design"] = {{"at", picture.mark->at}, {"power", picture.mark->power}};
  object["x"] = series.x;
  if (series.y.empty()) {
    object["power"] = PowersOf(series.power, 0, series.power.size());
  } else {
    object["y"] = series.y;
    object["power"] = Json::array();
    const std::size_t row = series.y.size();
    for (std::size_t i = 0; i < series.x.size(); ++i) object["power"].push_back(PowersOf(series.power, i * row, row));
  }
  object["export"] = picture.chart->exportName;
  return object.dump() + '\n';
}

}  // namespace planner
