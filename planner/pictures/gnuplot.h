#ifndef KELPOWER_PLANNER_PICTURES_GNUPLOT_H
#define KELPOWER_PLANNER_PICTURES_GNUPLOT_H

#include <string>

#include "pictures/figure.h"

namespace planner {

/// Where gnuplot puts a picture.
struct GnuplotTerminal {
  std::string name;  // with its options
  bool showsCharactersOnly;
};

/// A figure as commands for gnuplot, data included, which put it to the standard output.
std::string GnuplotCommands(const Figure& figure, const GnuplotTerminal& terminal);

}  // namespace planner

#endif
