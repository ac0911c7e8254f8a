#include "choose_route.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <set>

#include "planner/error.h"

namespace planner {
namespace {

constexpr std::array<Question, 3> askedQuestions{Question::SampleSize, Question::HalfWidth,
                                                 Question::SampleSizeForHalfWidth};

bool IsCommon(const std::string& name) {
  if (name == "alpha") return true;
  return std::any_of(askedQuestions.begin(), askedQuestions.end(),
                     [&](Question question) { return AskedBy(question) == name; });
}

std::vector<const Route*> RoutesOf(const Test& test, Question question) {
  std::vector<const Route*> routes;
  for (const Route& route : test.routes) {
    if (route.question == question) routes.push_back(&route);
  }
  return routes;
}

bool TakesAll(const Route& route, const Names& names) {
  return std::all_of(names.begin(), names.end(), [&](const std::string& name) { return Takes(route, name); });
}

bool AnyTakesAll(const std::vector<const Route*>& routes, const Names& names) {
  return std::any_of(routes.begin(), routes.end(), [&](const Route* route) { return TakesAll(*route, names); });
}

std::string Options(const Names& names, const std::string& lastSeparator) {
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? lastSeparator : ", ";
    text += "--" + names[i];
  }
  return text;
}

/// The options that ask a question whose routes take `name`.
Names AskersOf(const Test& test, const std::string& name) {
  Names askers;
  for (Question question : askedQuestions) {
    if (AnyTakesAll(RoutesOf(test, question), {name})) askers.push_back(AskedBy(question));
  }
  return askers;
}

void RejectUnused(const Test& test, Question question, const std::vector<const Route*>& routes, const Names& given) {
  for (const std::string& name : given) {
    if (AnyTakesAll(routes, {name})) continue;
    if (question == Question::Power) {
      throw InputError(
          fmt::format("--{} has a use only together with {}.", name, Options(AskersOf(test, name), " or ")));
    }
    throw InputError(
        fmt::format("--{} asks for {}, so --{} cannot be given as well.", AskedBy(question), Wording(question), name));
  }
}

void RejectConflicts(const std::vector<const Route*>& routes, const Names& given) {
  for (std::size_t i = 0; i < given.size(); ++i) {
    for (std::size_t j = i + 1; j < given.size(); ++j) {
      if (AnyTakesAll(routes, {given[i], given[j]})) continue;
      throw InputError(fmt::format("--{} and --{} exclude each other.", given[i], given[j]));
    }
  }
  if (!AnyTakesAll(routes, given)) throw InputError(fmt::format("{} do not go together.", Options(given, " and ")));
}

Names Missing(const Route& route, const Names& given) {
  Names missing;
  for (const std::string& need : route.needs) {
    if (!Contains(given, need)) missing.push_back(need);
  }
  return missing;
}

[[noreturn]] void RejectIncomplete(const Test& test, Question question, const std::vector<Names>& missing) {
  std::string ways;
  bool sizesMissing = true;
  std::set<Names> said;
  for (const Names& names : missing) {
    sizesMissing = sizesMissing && Contains(names, "n");
    if (!said.insert(names).second) continue;
    ways += (ways.empty() ? "" : ", or ") + Options(names, " and ");
  }
  std::string text = fmt::format("Also give {} to be told {}", ways, Wording(question));
  if (question == Question::Power && sizesMissing && Answers(test, Question::SampleSize)) {
    text += "; to be told the sample size, give --power in place of --n";
  }
  throw InputError(text + ".");
}

}  // namespace

bool Contains(const Names& names, const std::string& name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool Takes(const Route& route, const std::string& name) {
  return Contains(route.needs, name) || Contains(route.accepts, name);
}

Names GivenNames(const Given& given) {
  Names names;
  for (const auto& [name, value] : given) {
    const bool* flag = std::get_if<bool>(&value);
    if (flag && !*flag) continue;
    names.push_back(name);
  }
  return names;
}

Question AskedQuestion(const Names& given) {
  Question asked = Question::Power;
  for (Question question : askedQuestions) {
    if (!Contains(given, AskedBy(question))) continue;
    if (asked != Question::Power) {
      throw InputError(fmt::format("--{} and --{} exclude each other: each asks for an answer of its own.",
                                   AskedBy(asked), AskedBy(question)));
    }
    asked = question;
  }
  return asked;
}

const Route& ChooseRoute(const Test& test, Question question, const Names& given) {
  const std::vector<const Route*> routes = RoutesOf(test, question);
  Names own;
  std::copy_if(given.begin(), given.end(), std::back_inserter(own),
               [](const std::string& name) { return !IsCommon(name); });
  RejectUnused(test, question, routes, own);
  RejectConflicts(routes, own);
  std::vector<Names> incomplete;
  for (const Route* route : routes) {
    if (!TakesAll(*route, own)) continue;
    Names missing = Missing(*route, own);
    if (missing.empty()) return *route;
    incomplete.push_back(std::move(missing));
  }
  RejectIncomplete(test, question, incomplete);
}

}  // namespace planner
