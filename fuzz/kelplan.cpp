// Any bytes as a request to libkelplan, and any doubles as columns of its batches: a reply that is one object of JSON
// with an error exactly where the status says so, numbers exactly in the rows that are answered, within a bounded time.
//
// Run: make fuzz. New inputs are kept in the build folder; the committed ones in fuzz/corpus/kelplan are its seeds.

#include <kelplan.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "reader.h"
#include "watch.h"

namespace {

using kelfuzz::Reader;
using Json = nlohmann::json;

[[noreturn]] void Fail(const char* what, const std::string& request, const std::string& answer) {
  std::fprintf(stderr, "%s\nrequest: %s\nanswer: %s\n", what, request.c_str(), answer.c_str());
  std::abort();
}

/// Stops when it has been asked often: an exact test may take minutes by rights.
int StopSoon(void* payload) { return ++*static_cast<int*>(payload) > 20; }

struct Stop {
  int asked = 0;
  kelplan_options options{sizeof(kelplan_options), StopSoon, &asked};
};

bool IsStatus(int status) {
  return status == KELPLAN_OK || status == KELPLAN_BAD_INPUT || status == KELPLAN_NO_SOLUTION ||
         status == KELPLAN_STOPPED;
}

/// Takes the answer, which must be of its status.
Json Checked(const std::string& request, int status, char* taken) {
  const std::string answer = taken ? taken : "";
  kelplan_free(taken);
  const Json json = Json::parse(answer, nullptr, false);
  if (!json.is_object() || json["schema"] != 1) Fail("no answer", request, answer);
  if (!IsStatus(status)) Fail("no status", request, answer);
  if (json.contains("error") != (status != KELPLAN_OK)) Fail("status of another answer", request, answer);
  return json;
}

/// The place of the power or half-width, which is there exactly where a row is answered.
std::size_t IndexOfReached(const Json& json, const std::string& request) {
  const Json& results = json["results"];
  for (std::size_t i = 0; i < results.size(); ++i) {
    const Json& name = results[i]["name"];
    if (name == "power" || name == "expected-power" || name == "expected_power") return i;
    if (name == "half-width" || name == "half_width") return i;
  }
  Fail("no result to reach", request, json.dump());
}

void Run(const kelplan_batch* batch, const Json& json, Reader& reader, const std::string& request) {
  constexpr std::size_t rows = 3;
  const std::size_t columnCount = json["columns"].size();
  const std::size_t resultCount = json["results"].size();
  std::vector<double> numbers(columnCount * rows);
  for (double& number : numbers) number = reader.Number();
  std::vector<double> values(resultCount * rows);
  std::vector<const double*> columns;
  std::vector<double*> results;
  for (std::size_t i = 0; i < columnCount; ++i) columns.push_back(&numbers[i * rows]);
  for (std::size_t i = 0; i < resultCount; ++i) results.push_back(&values[i * rows]);
  const std::size_t reached = IndexOfReached(json, request);
  int status[rows] = {-1, -1, -1};
  Stop stop;
  const int call =
      kelplan_run(batch, rows, columns.data(), nullptr, results.data(), nullptr, status, sizeof(int), &stop.options);
  if (call != KELPLAN_OK && call != KELPLAN_STOPPED) Fail("status of the call", request, json.dump());
  for (std::size_t row = 0; row < rows; ++row) {
    if (!IsStatus(status[row])) Fail("status of a row", request, json.dump());
    const double value = values[reached * rows + row];
    if (std::isfinite(value) != (status[row] == KELPLAN_OK)) Fail("value of a row", request, json.dump());
  }
}

void AskColumns(const std::string& request, Reader& reader) {
  kelplan_batch* batch = nullptr;
  char* answer = nullptr;
  const int status = kelplan_prepare(request.c_str(), &batch, &answer);
  const Json json = Checked(request, status, answer);
  if ((batch != nullptr) != (status == KELPLAN_OK)) Fail("batch of another status", request, json.dump());
  if (batch) Run(batch, json, reader, request);
  kelplan_release(batch);
}

using Door = int (*)(const char*, const kelplan_options*, char**);

void AskJson(const std::string& request, Door door) {
  Stop stop;
  char* answer = nullptr;
  const int status = door(request.c_str(), &stop.options, &answer);
  Checked(request, status, answer);
}

/// Adds columns for circumstances of the study that the test offers.
void AddOffers(Json& request, const Json& test, unsigned chosen) {
  const char* const offers[][2] = {{"dropout"},    {"comparisons"}, {"cluster-size", "icc"}, {"effect-sd"},
                                   {"population"}, {"assurance"},   {"cluster-cv"}};
  for (std::size_t i = 0; i < std::size(offers); ++i) {
    if ((chosen >> i & 1) == 0) continue;
    for (const Json& parameter : test["parameters"]) {
      const Json& name = parameter["name"];
      const bool isOffered = name == offers[i][0] || (offers[i][1] && name == offers[i][1]);
      if (isOffered) request["columns"].push_back(name);
    }
  }
}

/// A batch whose columns are all numbers of an example, and some circumstances of the study.
std::string BatchOfExample(Reader& reader) {
  static const Json tests = Json::parse(kelplan_describe())["tests"];
  const Json& test = tests[reader.Byte() % tests.size()];
  const Json& example = test["examples"][reader.Byte() % test["examples"].size()];
  Json request{{"test", test["name"]}, {"inputs", Json::object()}, {"columns", Json::array()}};
  for (const auto& [name, value] : example["inputs"].items()) {
    if (value.is_number() && name != "groups") {
      request["columns"].push_back(name);
    } else if (value.is_array() && value.size() > 1) {
      for (std::size_t i = 0; i < value.size(); ++i) request["columns"].push_back({{"name", name}, {"entry", i}});
    } else {
      request["inputs"][name] = value;
    }
  }
  AddOffers(request, test, reader.Byte());
  return request.dump();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reader reader(data, size);
  const unsigned kind = reader.Byte() % 5;
  const std::string bytes(reinterpret_cast<const char*>(data) + (size > 0), size - (size > 0));
  const keltest::Watch watch(bytes);
  if (kind == 0) AskColumns(BatchOfExample(reader), reader);
  if (kind == 1) AskColumns(bytes, reader);
  const Door doors[] = {kelplan_solve, kelplan_draw, kelplan_convert};
  if (kind >= 2) AskJson(bytes, doors[kind - 2]);
  return 0;
}
