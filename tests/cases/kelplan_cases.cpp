// Compares the answers of the C interface with references. A line of the file is an object:
//   request  of `kelplan_solve`
//   result   the member of the answer's results that is compared, such as "power", or "n", which of several groups is a list
//   value    what it is to be: a number, or a list of numbers
//   within   how far it may be from it
//   source   where the value is from
// Every line counts: one that cannot be read, or asks for a result that the answer has not, is a failure.

#include <kelplan.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <nlohmann/json.hpp>
#include <string>

namespace {

using Json = nlohmann::json;

Json Solved(const Json& request) {
  char* answer = nullptr;
  kelplan_solve(request.dump().c_str(), nullptr, &answer);
  Json json = Json::parse(answer ? answer : "", nullptr, false);
  kelplan_free(answer);
  return json;
}

double DifferenceOf(const Json& found, const Json& value) {
  if (found.is_number() && value.is_number()) return std::fabs(found.get<double>() - value.get<double>());
  if (!found.is_array() || !value.is_array() || found.size() != value.size() || value.empty()) return INFINITY;
  double largest = 0;
  for (std::size_t i = 0; i < value.size(); ++i) largest = std::fmax(largest, DifferenceOf(found[i], value[i]));
  return largest;
}

/// What is wrong with the answer to a line; empty where nothing is.
std::string Complaint(const std::string& line) {
  const Json row = Json::parse(line, nullptr, false);
  for (const char* member : {"request", "result", "value", "within", "source"}) {
    if (!row.is_object() || !row.contains(member)) return std::string("has no ") + member;
  }
  const Json answer = Solved(row["request"]);
  const std::string result = row["result"].get<std::string>();
  if (!answer.is_object() || !answer.contains("results") || !answer["results"].contains(result)) {
    return "is answered by " + answer.dump();
  }
  const Json& found = answer["results"][result];
  if (DifferenceOf(found, row["value"]) <= row["within"].get<double>()) return {};
  return result + " is " + found.dump();
}

}  // namespace

int main(int argc, char** argv) {
  std::ifstream file(argc == 2 ? argv[1] : "");
  std::string line;
  int lines = 0;
  int failures = 0;
  while (std::getline(file, line)) {
    ++lines;
    const std::string complaint = Complaint(line);
    if (complaint.empty()) continue;
    std::fprintf(stderr, "line %d: %s\n  %s\n", lines, complaint.c_str(), line.c_str());
    ++failures;
  }
  std::printf("%d cases, %d failures\n", lines, failures);
  return lines > 0 && failures == 0 ? 0 : 1;
}
