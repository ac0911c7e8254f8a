#pragma once

#include <string>

#include "planner/solve.h"
#include "planner/test.h"

namespace planner {

/// What a front end puts around headings and answers; empty for plain text.
struct Paint {
  std::string heading;
  std::string answer;
  std::string end;
};

/// A report as an aligned table with its sentence.
std::string RenderText(const Report& report, const Paint& paint = {});

/// A report as a Markdown table with its sentence.
std::string RenderMarkdown(const Report& report);

/// A report for programs, numbers in the shortest digits that read back the same.
std::string RenderJson(const Report& report);

/// A report as a header line and a line of values; the entries of a list are separated by spaces.
std::string RenderCsv(const Report& report);

/// What a test is, takes and answers, with worked examples.
std::string RenderHelp(const Test& test, const Paint& paint = {});

/// The tests that there are, one a line.
std::string RenderList(const Paint& paint = {});

/// The descriptions of all tests, for other front ends.
std::string RenderListJson();

}  // namespace planner
