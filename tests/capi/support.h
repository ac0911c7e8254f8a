#ifndef KELPOWER_TESTS_CAPI_SUPPORT_H
#define KELPOWER_TESTS_CAPI_SUPPORT_H

#include <gtest/gtest.h>
#include <kelplan.h>

#include <cstddef>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

// What the tests of the C interface share.
namespace keltest {

using Json = nlohmann::ordered_json;

struct Reply {
  int status;
  Json json;
};

inline Json Taken(char* answer) {
  const Json json = Json::parse(answer ? answer : "null", nullptr, false);
  kelplan_free(answer);
  EXPECT_FALSE(json.is_discarded());
  return json;
}

using Door = int (*)(const char*, const kelplan_options*, char**);

inline Reply Asked(Door door, const std::string& request, const kelplan_options* options = nullptr) {
  char* answer = nullptr;
  const int status = door(request.c_str(), options, &answer);
  return {status, Taken(answer)};
}

inline Reply Solved(const Json& request, const kelplan_options* options = nullptr) {
  return Asked(kelplan_solve, request.dump(), options);
}

struct Releases {
  void operator()(kelplan_batch* batch) const { kelplan_release(batch); }
};
using Batch = std::unique_ptr<kelplan_batch, Releases>;

struct Prepared {
  int status;
  Json json;
  Batch batch;
};

inline Prepared Prepare(const Json& request) {
  kelplan_batch* batch = nullptr;
  char* answer = nullptr;
  const int status = kelplan_prepare(request.dump().c_str(), &batch, &answer);
  return {status, Taken(answer), Batch(batch)};
}

/// Columns of doubles, and the results and statuses of their rows.
struct Table {
  std::vector<std::vector<double>> columns;
  std::vector<std::vector<double>> results;
  std::vector<int> status;
};

/// Runs the batch over whole columns.
inline int RunAll(const Prepared& prepared, Table& table, std::size_t rows, const kelplan_options* options = nullptr) {
  table.results.assign(prepared.json["results"].size(), std::vector<double>(rows, -1));
  table.status.assign(rows, -1);
  std::vector<const double*> columns;
  std::vector<double*> results;
  for (const auto& column : table.columns) columns.push_back(column.data());
  for (auto& result : table.results) results.push_back(result.data());
  return kelplan_run(prepared.batch.get(), rows, columns.data(), nullptr, results.data(), nullptr, table.status.data(),
                     sizeof(int), options);
}

}  // namespace keltest

#endif
