#ifndef KELPOWER_CLI_HELP_H
#define KELPOWER_CLI_HELP_H

#include <string>

#include "model/test.h"
#include "words/render.h"

/// The input as an option: "--effect-d".
std::string OptionOf(std::string_view input);

/// What a test is, takes and answers, with worked examples.
std::string HelpOf(const planner::Test& test, const planner::Highlights& highlights = {});

/// What files of designs look like, and how they are answered.
std::string HelpOfRun(const planner::Highlights& highlights = {});

/// What effect sizes are converted from, with worked examples.
std::string HelpOfEffects(const planner::Highlights& highlights = {});

/// The tests that there are and what there is besides, one a line.
std::string ListOfTests(const planner::Highlights& highlights = {});

#endif
