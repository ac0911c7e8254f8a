#ifndef KELPOWER_PLANNER_WORDS_EXPLAIN_H
#define KELPOWER_PLANNER_WORDS_EXPLAIN_H

#include <string>
#include <vector>

#include "model/answer.h"

namespace planner {

/// A figure of an explanation.
struct ExplainedFigure {
  std::string name;
  std::string label;
  double value;
  std::string shown;  // the value for reading
};

/// How another program is asked the same.
struct ProgramCall {
  std::string program;
  std::string call;
  bool isSame;
  std::string remark;  // why its answer differs, or what to mind; may be empty
};

/// How one of several results was computed.
struct ExplainedFormula {
  std::string name;
  std::string label;
  std::string formula;
  std::string source;
};

/// What is behind an answer, in words. Where each result has its own formula, these take the place of the one.
struct Explanation {
  std::string heading;
  std::vector<ExplainedFigure> figures;
  std::string formula;
  std::string source;
  std::vector<ProgramCall> programs;
  std::vector<ExplainedFormula> formulas = {};
};

/// The figures as they are, at the sizes given or found.
Details DetailsOf(const Answer& answer);

Explanation Explain(const Answer& answer);

/// The explanation below a report, as text and as Markdown.
std::string RenderText(const Explanation& explanation, const std::string& heading, const std::string& end);
std::string RenderMarkdown(const Explanation& explanation);

}  // namespace planner

#endif
