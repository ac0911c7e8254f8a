#ifndef KELPOWER_PLANNER_WORDS_RENDER_H
#define KELPOWER_PLANNER_WORDS_RENDER_H

#include <string>

#include "model/chart.h"
#include "model/test.h"
#include "words/report.h"

namespace planner {

/// What a front end puts around headings and answers, such as colours; empty for plain text.
struct Highlights {
  std::string heading;
  std::string answer;
  std::string end;
};

/// A report as an aligned table with its sentence.
std::string RenderText(const Report& report, const Highlights& highlights = {});

/// A report as a Markdown table with its sentence.
std::string RenderMarkdown(const Report& report);

/// A report for programs, numbers in the shortest digits that read back the same.
std::string RenderJson(const Report& report);

/// A report as a header line and a line of values; the entries of a list are separated by spaces.
std::string RenderCsv(const Report& report);

/// A chart as a table, a line for each point; a gap is an empty field.
std::string RenderCsv(const ChartData& chart);

/// A chart for programs; a gap is null.
std::string RenderJson(const ChartData& chart);

/// The descriptions of all tests, for other front ends.
std::string RenderListJson();

/// The description of all conversions of effect sizes, which `ConvertEffect` in words/effect_report.h makes.
std::string RenderEffectsJson();

}  // namespace planner

#endif
