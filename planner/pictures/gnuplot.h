#ifndef KELPOWER_PLANNER_PICTURES_GNUPLOT_H
#define KELPOWER_PLANNER_PICTURES_GNUPLOT_H

#include <string>

#include "pictures/figure.h"

namespace planner {

/// Where gnuplot puts a picture.
struct GnuplotTerminal {
  std::string name;  // with its options
  bool showsCharactersOnly = false;
  double fontSize = 14;      // of the text, in the terminal's points
  double lines = 40;         // of text that fit above each other
  std::size_t upright = 40;  // letters beside the drawing, from its bottom to its top
};

/// A figure as commands for gnuplot, data included, which put it to the standard output.
std::string GnuplotCommands(const Figure& figure, const GnuplotTerminal& terminal);

}  // namespace planner

#endif
