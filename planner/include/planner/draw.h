#pragma once

#include <optional>
#include <string>

#include "planner/chart.h"
#include "planner/test.h"

namespace planner {

/// What the user asks of a chart. Of a surface, `from` and `to` have one entry for each axis; empty for the usual
/// range.
struct ChartRequest {
  std::string name;
  Numbers from;
  Numbers to;
  std::optional<double> step;  // as a share of the range
};

/// The design on a chart: its place on each axis, and its power.
struct DesignMark {
  Numbers at;
  double power;
};

/// A computed chart.
struct Picture {
  const Test* test;
  const Chart* chart;
  Series series;
  std::optional<DesignMark> mark;  // unless the design lies outside
};

/// Computes a chart. Throws an InputError when the inputs or the range are wrong.
Picture Draw(const Test& test, const ChartRequest& request, const Given& given);

/// The names of a test's charts, each once.
std::vector<std::string> ChartNames(const Test& test);

/// How a picture is put on paper or screen.
struct Canvas {
  std::string terminal;  // of gnuplot, with its options
  bool characters;       // it shows characters only
};

/// A picture as commands for gnuplot, data included, which put it to the standard output.
std::string RenderGnuplot(const Picture& picture, const Canvas& canvas);

/// A picture as a table, a line for each point; a missing power is an empty field.
std::string RenderCsv(const Picture& picture);

/// A picture for programs; a missing power is null.
std::string RenderJson(const Picture& picture);

}  // namespace planner
