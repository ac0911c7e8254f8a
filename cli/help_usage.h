#ifndef KELPOWER_CLI_HELP_USAGE_H
#define KELPOWER_CLI_HELP_USAGE_H

#include <string>
#include <vector>

#include "model/test.h"
#include "words/render.h"

/// "kelpower two-means --means M1,M2 --sd SD --n N", with what may be given besides in brackets.
std::string Usage(const planner::Test& test, const planner::Route& route);

/// How a question is asked, a line for each way; "(--means M1,M2 | --mean-difference D)" where one of several is given.
std::vector<std::string> Usages(const planner::Test& test, planner::Question question);

const char* HeadingOf(planner::Question question);

/// The commonest call: it asks for the sizes.
const planner::Example& FirstExample(const planner::Test& test);

std::string ExampleText(const planner::Example& example);

/// How each question is asked.
std::string UsageSection(const planner::Test& test, const planner::Highlights& highlights);

#endif
