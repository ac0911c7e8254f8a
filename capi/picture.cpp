#include "picture.h"

#include "pictures/captions.h"
#include "pictures/figure.h"

namespace kelplan {
namespace {

void WriteTexts(Reply& reply, const char* key, const std::vector<std::string>& texts) {
  reply.Key(key);
  reply.OpenArray();
  for (const std::string& text : texts) reply.Text(text);
  reply.CloseArray();
}

void WriteNumbers(Reply& reply, const char* key, const std::vector<double>& numbers) {
  reply.Key(key);
  reply.OpenArray();
  for (double number : numbers) reply.Number(number);
  reply.CloseArray();
}

void WriteLevel(Reply& reply, const planner::PowerLevel& level) {
  reply.OpenObject();
  reply.Number("power", level.power);
  reply.Key("lines");
  reply.OpenArray();
  for (const planner::Line& line : level.lines) {
    reply.OpenObject();
    WriteNumbers(reply, "x", line.x);
    WriteNumbers(reply, "y", line.y);
    reply.CloseObject();
  }
  reply.CloseArray();
  reply.CloseObject();
}

/// A text for each curve; an empty one where its design lies outside.
std::vector<std::string> TextsOfDesigns(const planner::ChartData& chart) {
  std::vector<std::string> texts;
  for (const planner::ChartCurve& curve : chart.curves) {
    texts.push_back(curve.mark ? planner::MarkText(chart, curve) : "");
  }
  return texts;
}

std::vector<std::string> LabelsOfCurves(const planner::ChartData& chart) {
  std::vector<std::string> labels;
  for (const planner::ChartCurve& curve : chart.curves) labels.push_back(planner::LabelOf(chart, curve));
  return labels;
}

}  // namespace

void WritePicture(Reply& reply, const planner::ChartData& chart) {
  const planner::Figure figure = planner::FigureOf(chart);
  reply.Key("picture");
  reply.OpenObject();
  reply.Text("title", figure.title);
  WriteTexts(reply, "fixed", planner::HeldFixed(chart));
  reply.Text("values", figure.valueTitle);
  WriteTexts(reply, "curves", LabelsOfCurves(chart));
  WriteTexts(reply, "designs", TextsOfDesigns(chart));
  if (figure.IsSurface()) {
    reply.Key("levels");
    reply.OpenArray();
    for (const planner::PowerLevel& level : figure.levels) WriteLevel(reply, level);
    reply.CloseArray();
  }
  if (!figure.note.empty()) reply.Text("note", figure.note);
  reply.Text("description", planner::DescriptionOf(chart));
  reply.CloseObject();
}

}  // namespace kelplan
