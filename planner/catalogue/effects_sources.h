#ifndef KELPOWER_PLANNER_CATALOGUE_EFFECTS_SOURCES_H
#define KELPOWER_PLANNER_CATALOGUE_EFFECTS_SOURCES_H

#include <string>

// What the formulas of effect sizes are taken from.
namespace planner {

inline std::string Cohen(const std::string& section) {
  return "Cohen (1988), Statistical Power Analysis for the Behavioral Sciences, 2nd ed., section " + section;
}

inline std::string Borenstein(const std::string& chapter) {
  return "Borenstein et al. (2009), Introduction to Meta-Analysis, chapter " + chapter;
}

/// The end of a source that tells how the interval of an F test is found.
inline std::string ByNoncentralityOfF() {
  return "; its interval by the noncentrality of F (Smithson 2001, Educational and Psychological Measurement 61, "
         "605-632; Steiger 2004, Psychological Methods 9, 164-182)";
}

}  // namespace planner

#endif
