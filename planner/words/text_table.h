#ifndef KELPOWER_PLANNER_WORDS_TEXT_TABLE_H
#define KELPOWER_PLANNER_WORDS_TEXT_TABLE_H

#include <cstddef>
#include <string>
#include <vector>

#include "words/render.h"

namespace planner {

/// A table to be read, with a column a figure. The last column is for notes, and left out where there are none.
struct TextTable {
  static constexpr char betweenCells = '\t';

  std::string title;
  std::vector<std::string> heads;
  std::size_t inputs;  // of the columns; the others are answers
  std::string rows;    // a line each
  std::string below;   // a line under the table
};

std::string RenderText(const TextTable& table, const Highlights& highlights);
std::string RenderMarkdown(const TextTable& table);

}  // namespace planner

#endif
