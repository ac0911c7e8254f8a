#ifndef KELPOWER_PLANNER_MODEL_DETAILS_H
#define KELPOWER_PLANNER_MODEL_DETAILS_H

#include <limits>
#include <optional>
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

/// Distributions of test statistics. With the effect t and F are noncentral, and the normal distribution is shifted and
/// scaled against the standard one; a count is binomial.
enum class StatisticFamily { T, F, Normal, Count };

/// The distribution of a test's statistic without and with the effect, and where the test rejects. What a family does
/// not have stays as it is.
struct TestStatistic {
  StatisticFamily family;
  double df1 = 0;            // degrees of freedom: of t, of the effect of F
  double df2 = 0;            // of the error of F
  double noncentrality = 0;  // of t and F
  double mean = 0;           // with the effect, of the normal distribution
  double sd = 1;
  double trials = 0;  // of a count
  double nullProportion = 0;
  double proportion = 0;                                         // with the effect
  double rejectsTo = -std::numeric_limits<double>::infinity();   // and below
  double rejectsFrom = std::numeric_limits<double>::infinity();  // and above
};

/// What is behind an answer.
struct Details {
  double value = 0;  // the power or half-width once more, from the figures
  std::vector<DetailFigure> figures = {};
  std::string formula = {};  // with figures and inputs in braces
  std::string source = {};
  std::vector<Equivalent> equivalents = {};
  std::optional<TestStatistic> statistic = {};  // of a test whose power is that of one statistic

  void Add(std::string name, std::string label, double figure) {
    figures.push_back({std::move(name), std::move(label), figure});
  }
};

}  // namespace planner

#endif
