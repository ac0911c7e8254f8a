#include <fmt/format.h>

#include <cstdio>
#include <exception>
#include <string>

#include "arguments.h"
#include "chart.h"
#include "computation.h"
#include "planner/error.h"
#include "planner/render.h"
#include "planner/solve.h"
#include "terminal.h"

namespace {

enum Status { done = 0, failed = 1, wrongInput = 2, noSolution = 3, interrupted = 130 };

std::string Overview(const planner::Paint& paint) {
  return fmt::format(
      "{0}kelpower{1} plans studies: power, sample size and precision of statistical tests.\n\n"
      "  kelpower TEST [options]   what you leave out is what is solved for\n"
      "  kelpower TEST --help      what a test takes and answers, with examples\n"
      "  kelpower TEST ... --chart NAME   draw the power of a design\n"
      "  kelpower list             the tests; with --format json their descriptions\n"
      "  kelpower --version\n\n"
      "{0}Tests{1}\n{2}",
      paint.heading, paint.end, planner::RenderList(paint));
}

std::string Rendered(const planner::Report& report, Format format, const planner::Paint& paint) {
  switch (format) {
    case Format::Text: return planner::RenderText(report, paint);
    case Format::Json: return planner::RenderJson(report);
    case Format::Csv: return planner::RenderCsv(report);
    case Format::Markdown: return planner::RenderMarkdown(report);
  }
  return "";
}

std::string List(Format format, const planner::Paint& paint) {
  if (format == Format::Text) return planner::RenderList(paint);
  if (format == Format::Json) return planner::RenderListJson();
  throw planner::InputError("--format of list must be text or json.");
}

planner::Report Solved(const Request& request) {
  const bool findsSizes = request.given.count("power") + request.given.count("half-width") > 0;
  Computation computation(findsSizes ? "the sample size" : "the answer");
  return planner::Solve(*request.test, request.given, &computation);
}

std::string Answer(const Request& request, const planner::Paint& paint) {
  switch (request.command) {
    case Command::Overview: return Overview(paint);
    case Command::Version: return "kelpower " KELPOWER_VERSION "\n";
    case Command::List: return List(request.format, paint);
    case Command::TestHelp: return planner::RenderHelp(*request.test, paint);
    case Command::Solve: return Rendered(Solved(request), request.format, paint);
    case Command::Chart: return ChartAnswer(request);
  }
  return "";
}

Status Print(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
  if (!written) std::perror("kelpower: cannot write the answer");
  return written ? done : failed;
}

Status Complain(const std::exception& error, Status status) {
  std::fputs(fmt::format("kelpower: {}\n", error.what()).c_str(), stderr);
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  PrepareStandardStreams();
  try {
    return Print(Answer(ParseArguments(argc, argv), PaintFor(stdout)));
  } catch (const planner::InputError& error) {
    return Complain(error, wrongInput);
  } catch (const planner::NoSolution& error) {
    return Complain(error, noSolution);
  } catch (const planner::Stopped& error) {
    return Complain(error, interrupted);
  } catch (const std::exception& error) {
    return Complain(error, failed);
  }
}
