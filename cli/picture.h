#ifndef KELPOWER_CLI_PICTURE_H
#define KELPOWER_CLI_PICTURE_H

#include <optional>
#include <string>

#include "model/chart.h"

/// How a picture is to look.
struct PictureOptions {
  std::string title = {};  // in place of the test's
  std::optional<double> width = {};
  std::optional<double> height = {};  // both in pixels of 1/96 inch
  std::optional<double> dpi = {};     // of PNG
};

std::string SvgPicture(const planner::ChartData& chart, const PictureOptions& options);
std::string PngPicture(const planner::ChartData& chart, const PictureOptions& options);
std::string PdfPicture(const planner::ChartData& chart, const PictureOptions& options);

/// The chart in characters, as large as the terminal.
std::string PictureInCharacters(const planner::ChartData& chart, const PictureOptions& options);

#endif
