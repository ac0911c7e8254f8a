#ifndef KELPOWER_PLANNER_MODEL_DETAILS_H
#define KELPOWER_PLANNER_MODEL_DETAILS_H

#include <string>
#include <utility>
#include <vector>

namespace planner {

/// A figure behind an answer, such as a critical value.
struct DetailFigure {
  std::string name;  // in formulas and for programs
  std::string label;
  double value;
};

/// How another program is asked the same. In braces: inputs and figures in all their digits; `n-or-power` and the like
/// give what was given, as the program wants it.
struct Equivalent {
  std::string program;  // "pwr", "R", "G*Power", "SAS"
  std::string call;
  bool isSame = true;  // gives the same answer; else the remark says why it does not
  std::string remark = {};
};

/// What is behind an answer.
struct Details {
  double value = 0;  // the power or half-width once more, from the figures
  std::vector<DetailFigure> figures = {};
  std::string formula = {};  // with figures and inputs in braces
  std::string source = {};
  std::vector<Equivalent> equivalents = {};

  void Add(std::string name, std::string label, double figure) {
    figures.push_back({std::move(name), std::move(label), figure});
  }
};

}  // namespace planner

#endif
