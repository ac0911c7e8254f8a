#ifndef KELPOWER_CLI_MAN_PAGE_H
#define KELPOWER_CLI_MAN_PAGE_H

#include <span>
#include <string>
#include <string_view>

#include "model/test.h"
#include "roff.h"

/// The manual page of a test or of another command; without a name that of the program. Its date is that of
/// SOURCE_DATE_EPOCH where the environment has it, so that two builds of one source give the same page. Throws a
/// UsageError where there is no such command.
std::string ManPageOf(const std::string& command);

// What pages share.

/// "kelpower --n N [--one-sided]" in the fonts of a manual page.
std::string UsageInFonts(const std::string& usage);

/// The options of a test or of the effect sizes: those that are offered around every question, or the others.
void AddInputs(ManPage& page, const planner::Test& test, bool areOffered = false);

/// The page's options with what they mean.
struct OptionMeaning {
  std::string_view name;
  std::string_view value;
  std::string_view meaning;
};
void AddOptions(ManPage& page, std::span<const OptionMeaning> options);

void AddExamples(ManPage& page, const planner::Test& test);

/// A call of the program and what is said of it.
void AddCall(ManPage& page, const std::string& arguments, const std::string& sentence);

/// Each formula once, with its source, as for the examples.
void AddFormulas(ManPage& page, const planner::Test& test);

/// The sections of questions, options, charts, examples and formulas.
void AddTest(ManPage& page, const planner::Test& test);

void AddExitStatus(ManPage& page);

#endif
