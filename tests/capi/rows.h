#ifndef KELPOWER_TESTS_CAPI_ROWS_H
#define KELPOWER_TESTS_CAPI_ROWS_H

#include <cmath>
#include <cstdint>
#include <cstring>

#include "support.h"

// Rows of a batch beside requests of the same designs.
namespace keltest {

inline std::uint64_t BitsOf(double number) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &number, sizeof bits);
  return bits;
}

/// A column of an example: an input's number, or an entry of its list.
struct Varied {
  std::string name;
  int entry;  // -1 for none
  bool isWhole;
  double value;
};

/// All numbers of an example as columns; what is left stays fixed.
inline std::vector<Varied> VariedOf(const Json& test, const Json& inputs) {
  std::vector<Varied> varied;
  for (const Json& parameter : test["parameters"]) {
    const std::string name = parameter["name"];
    const bool tellsLengths = name == "groups" || name == "levels" || name == "measurements";
    if (!inputs.contains(name) || tellsLengths) continue;
    const bool isWhole = parameter["limits"].contains("whole");
    const Json& value = inputs[name];
    if (value.is_number()) varied.push_back({name, -1, isWhole, value});
    if (!value.is_array()) continue;
    if (value.size() == 1) {  // stands for all groups
      varied.push_back({name, -1, isWhole, value[0]});
      continue;
    }
    for (std::size_t i = 0; i < value.size(); ++i) varied.push_back({name, static_cast<int>(i), isWhole, value[i]});
  }
  return varied;
}

/// The number of a column in a row: that of the example, and some around it.
inline double NumberAt(const Varied& column, std::size_t row) {
  const double number = column.value * (1 + 0.03 * static_cast<double>(row % 5));
  return column.isWhole ? std::ceil(number) : number;
}

inline void Put(Json& inputs, const Varied& column, double number) {
  if (column.entry < 0) {
    inputs[column.name] = number;
  } else {
    inputs[column.name][static_cast<std::size_t>(column.entry)] = number;
  }
}

inline Json ColumnOf(const Varied& column) {
  if (column.entry < 0) return column.name;
  return {{"name", column.name}, {"entry", column.entry}};
}

inline void ExpectSameRow(const Json& results, const Table& table, std::size_t row, const Reply& alone) {
  EXPECT_EQ(table.status[row], alone.status) << row << ' ' << alone.json;
  for (std::size_t i = 0; i < results.size(); ++i) {
    const double number = table.results[i][row];
    const std::string name = results[i]["name"];
    const Json value = alone.json.contains("results") && alone.json["results"].contains(name)
                           ? alone.json["results"][name]
                           : Json(nullptr);
    if (value.is_null()) {
      EXPECT_TRUE(std::isnan(number)) << name << ' ' << number;
      continue;
    }
    const double expected = results[i].contains("entry") ? value[std::size_t(results[i]["entry"])] : value;
    EXPECT_EQ(BitsOf(number), BitsOf(expected)) << name << ": " << number << ' ' << expected;
  }
}

/// Runs a batch whose columns are all numbers of a design, and expects of its rows what they get as requests.
inline void ExpectSameRows(const Json& test, const Json& design) {
  constexpr std::size_t rows = 5;
  Json fixed = design;
  const std::vector<Varied> varied = VariedOf(test, fixed);
  Json request{{"test", test["name"]}, {"columns", Json::array()}};
  Table table;
  for (const Varied& column : varied) {
    fixed.erase(column.name);
    request["columns"].push_back(ColumnOf(column));
    table.columns.emplace_back();
    for (std::size_t row = 0; row < rows; ++row) table.columns.back().push_back(NumberAt(column, row));
  }
  request["inputs"] = fixed;
  const Prepared prepared = Prepare(request);
  ASSERT_EQ(prepared.status, KELPLAN_OK) << prepared.json;
  EXPECT_EQ(RunAll(prepared, table, rows), KELPLAN_OK);
  EXPECT_EQ(table.status.front(), KELPLAN_OK);
  for (std::size_t row = 0; row < rows; ++row) {
    Json inputs = design;
    for (const Varied& column : varied) Put(inputs, column, NumberAt(column, row));
    ExpectSameRow(prepared.json["results"], table, row, Solved({{"test", test["name"]}, {"inputs", inputs}}));
  }
}

}  // namespace keltest

#endif
