#ifndef KELPOWER_PLANNER_PICTURES_SVG_H
#define KELPOWER_PLANNER_PICTURES_SVG_H

#include <string>

namespace planner {

/// A picture that gnuplot wrote as SVG, with a title and a description for those who have it read to them in place of
/// gnuplot's own.
std::string WithTitleAndDescription(const std::string& svg, const std::string& title, const std::string& description);

}  // namespace planner

#endif
