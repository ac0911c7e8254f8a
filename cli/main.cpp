#include <cstdio>
#include <exception>
#include <string>

#include "arguments.h"
#include "chart.h"
#include "complete.h"
#include "computation.h"
#include "designs.h"
#include "format/format.h"
#include "help.h"
#include "man_page.h"
#include "solve/solve.h"
#include "terminal.h"
#include "usage_error.h"
#include "words/effect_report.h"
#include "words/problem.h"
#include "words/render.h"

using planner::Formatted;

namespace {

enum Status { done = 0, failed = 1, wrongInput = 2, noSolution = 3, interrupted = 130 };

std::string Overview(const planner::Highlights& highlights) {
  return Formatted(
      "{0}kelpower{1} plans studies: power, sample size and precision of statistical tests.\n\n"
      "  kelpower TEST [options]         what you leave out is what is solved for\n"
      "  kelpower TEST --help            what a test takes and answers, with examples\n"
      "  kelpower TEST ... --chart NAME  draw the power of a design\n"
      "  kelpower run FILE               answer a file of designs; kelpower run --help says how\n"
      "  kelpower effect ...             effect sizes from what a study reports; kelpower effect --help says how\n"
      "  kelpower list                   the tests; with --format json their descriptions\n"
      "  kelpower --version\n\n"
      "{0}For example{1}\n"
      "How many subjects does a medium effect need?\n"
      "  kelpower two-means --effect-d 0.5 --power 0.8\n"
      "Which difference do 35 and 50 subjects detect, at a standard deviation of 10?\n"
      "  kelpower two-means --n 35,50 --sd 10 --power 0.8\n"
      "A table of sizes, and a figure of three curves:\n"
      "  kelpower two-means --effect-d 0.2:0.8:0.1 --power 0.8,0.9\n"
      "  kelpower two-means --effect-d 0.3,0.5,0.8 --power 0.8 --chart n --output curves.svg\n"
      "Clusters of 20, of whom 15 % drop out:\n"
      "  kelpower two-means --effect-d 0.5 --power 0.8 --cluster-size 20 --icc 0.05 --dropout 0.15\n\n"
      "{0}Tests{1}\n{2}",
      highlights.heading, highlights.end, ListOfTests(highlights));
}

std::string Rendered(const planner::Report& report, Format format, const planner::Highlights& highlights) {
  switch (format) {
    case Format::Text: return planner::RenderText(report, highlights);
    case Format::Json: return planner::RenderJson(report);
    case Format::Csv: return planner::RenderCsv(report);
    case Format::Markdown: return planner::RenderMarkdown(report);
    case Format::Ndjson: break;  // a table, even of one design
  }
  return "";
}

std::string List(Format format, const planner::Highlights& highlights) {
  if (format == Format::Text) return ListOfTests(highlights);
  if (format == Format::Json) return planner::RenderListJson();
  throw UsageError("--format of list must be text or json.");
}

planner::Report Solved(const Request& request) {
  const bool findsSizes = request.values.count("power") + request.values.count("half-width") > 0;
  Computation computation(findsSizes ? "the sample size" : "the answer");
  const planner::Answer answer = planner::Solve(*request.test, request.values, &computation);
  planner::Report report = planner::MakeReport(answer);
  if (request.isExplained) report.explanation = planner::Explain(answer);
  return report;
}

std::string Answer(const Request& request, const planner::Highlights& highlights) {
  switch (request.command) {
    case Command::Overview: return Overview(highlights);
    case Command::Version: return "kelpower " KELPOWER_VERSION "\n";
    case Command::List: return List(request.format, highlights);
    case Command::TestHelp: return HelpOf(*request.test, highlights);
    case Command::RunHelp: return HelpOfRun(highlights);
    case Command::EffectHelp: return HelpOfEffects(highlights);
    case Command::Effect:
      return Rendered(planner::ConvertEffect(request.values, request.isExplained), request.format, highlights);
    case Command::Solve: return Rendered(Solved(request), request.format, highlights);
    case Command::Chart: return ChartAnswer(request);
    case Command::ManPage: return ManPageOf(request.words.empty() ? "" : request.words.front());
    case Command::Complete: return Completions(request.words);
    case Command::Table:
    case Command::Run: break;  // printed as they are computed
  }
  return "";
}

Status Print(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  if (!written) std::perror("kelpower: cannot write the answer");
  return written ? done : failed;
}

Status Complain(const std::string& sentence, Status status) {
  std::fputs(Formatted("kelpower: {}\n", sentence).c_str(), stderr);
  return status;
}

/// The problem in the names of the options.
std::string SentenceOf(const planner::Failure& failure) { return planner::Sentence(failure.problem, OptionOf); }

Status AnswerDesigns(const Request& request, const planner::Highlights& highlights) {
  const bool isWhole = request.command == Command::Run ? RunFile(request) : PrintTable(request, highlights);
  return isWhole ? done : Complain("The computation was stopped; the rows up to there are whole.", interrupted);
}

Status Do(const Request& request, const planner::Highlights& highlights) {
  const bool isOfMany = request.command == Command::Run || request.command == Command::Table;
  const Status status = isOfMany ? AnswerDesigns(request, highlights) : Print(Answer(request, highlights));
  if (status == done) SaveDesign(request);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  PrepareStandardStreams();
  try {
    return Do(ParseArguments(argc, argv), HighlightsFor(stdout));
  } catch (const UsageError& error) {
    return Complain(error.what(), wrongInput);
  } catch (const planner::InputError& error) {
    return Complain(SentenceOf(error), wrongInput);
  } catch (const planner::NoSolution& error) {
    return Complain(SentenceOf(error), noSolution);
  } catch (const planner::Stopped& error) {
    return Complain(SentenceOf(error), interrupted);
  } catch (const std::exception& error) {
    return Complain(error.what(), failed);
  }
}
