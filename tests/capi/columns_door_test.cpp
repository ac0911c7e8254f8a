#include <cmath>
#include <cstring>
#include <future>
#include <thread>

#include "rows.h"

namespace {

using namespace keltest;

TEST(ColumnsDoor, AnswersRowsOfEveryExampleAsTheOtherDoor) {
  const Json description = Json::parse(kelplan_describe());
  int count = 0;
  for (const Json& test : description["tests"]) {
    for (const Json& example : test["examples"]) {
      SCOPED_TRACE(example["arguments"]);
      ExpectSameRows(test, example["inputs"]);
      ++count;
    }
  }
  EXPECT_GT(count, 26);
}

const Json ofEffects{{"test", "two-means"}, {"inputs", {{"alpha", 0.05}}}, {"columns", {"effect-d", "n"}}};

std::size_t IndexOf(const Prepared& prepared, const std::string& name) {
  const Json& results = prepared.json["results"];
  for (std::size_t i = 0; i < results.size(); ++i) {
    if (results[i]["name"] == name) return i;
  }
  ADD_FAILURE() << name;
  return 0;
}

double PowerOf(double d, double n) {
  return Solved({{"test", "two-means"}, {"inputs", {{"effect-d", d}, {"n", n}}}}).json["results"]["power"];
}

TEST(ColumnsDoor, OneNumberStandsForAllGroups) {
  const Prepared prepared = Prepare(ofEffects);
  Table table{.columns = {{0.5, 0.2}, {50, 20}}, .results = {}, .status = {}};
  EXPECT_EQ(RunAll(prepared, table, 2), KELPLAN_OK);
  const auto& power = table.results[IndexOf(prepared, "power")];
  EXPECT_EQ(power[0], PowerOf(0.5, 50));
  EXPECT_EQ(power[1], PowerOf(0.2, 20));
  EXPECT_EQ(table.results[IndexOf(prepared, "total")][0], 100);
}

TEST(ColumnsDoor, RowsThatAreRefusedDoNotEndTheCall) {
  const double nan = std::nan("");
  const double infinity = HUGE_VAL;
  const Prepared prepared = Prepare(ofEffects);
  Table table{.columns = {{nan, 0.5, 0.5, infinity, 0.5}, {50, -1, 20.5, 50, 50}}, .results = {}, .status = {}};
  EXPECT_EQ(RunAll(prepared, table, 5), KELPLAN_OK);
  EXPECT_EQ(table.status, (std::vector<int>{2, 2, 2, 2, 0}));
  const auto& power = table.results[IndexOf(prepared, "power")];
  for (int row = 0; row < 4; ++row) EXPECT_TRUE(std::isnan(power[std::size_t(row)]));
  EXPECT_EQ(power[4], PowerOf(0.5, 50));

  const Prepared sizes = Prepare({{"test", "two-means"}, {"inputs", {{"power", 0.8}}}, {"columns", {"effect-d"}}});
  Table none{.columns = {{0, 0.5}}, .results = {}, .status = {}};
  EXPECT_EQ(RunAll(sizes, none, 2), KELPLAN_OK);
  EXPECT_EQ(none.status, (std::vector<int>{KELPLAN_NO_SOLUTION, KELPLAN_OK}));
  EXPECT_EQ(none.results[IndexOf(sizes, "total")][1], 128);
}

TEST(ColumnsDoor, GoesByStridesOfAnyKind) {
  const Prepared prepared = Prepare(ofEffects);
  const std::size_t power = IndexOf(prepared, "power");
  const std::size_t total = IndexOf(prepared, "total");
  struct Record {
    double effect;
    int status;
    double power;
  };
  Record records[] = {{0.2, -1, -1}, {0.5, -1, -1}, {0.8, -1, -1}};
  const double n = 50;
  const double* columns[] = {&records[2].effect, &n};
  const std::ptrdiff_t back = -static_cast<std::ptrdiff_t>(sizeof(Record));
  const std::ptrdiff_t columnStrides[] = {back, 0};
  double* results[] = {nullptr, nullptr};
  std::ptrdiff_t resultStrides[] = {0, 0};
  results[power] = &records[2].power;
  resultStrides[power] = back;
  results[total] = nullptr;
  EXPECT_EQ(kelplan_run(prepared.batch.get(), 3, columns, columnStrides, results, resultStrides, &records[2].status,
                        back, nullptr),
            KELPLAN_OK);
  for (const Record& record : records) {
    EXPECT_EQ(record.power, PowerOf(record.effect, 50));
    EXPECT_EQ(record.status, 0);
  }
}

TEST(ColumnsDoor, NumbersNeedNotBeAligned) {
  const Prepared prepared = Prepare(ofEffects);
  char bytes[64] = {};
  const double given[] = {0.5, 50};
  std::memcpy(bytes + 1, given, sizeof given);
  const double* columns[] = {reinterpret_cast<const double*>(bytes + 1), reinterpret_cast<const double*>(bytes + 9)};
  double* results[2] = {};
  results[IndexOf(prepared, "power")] = reinterpret_cast<double*>(bytes + 17);
  EXPECT_EQ(kelplan_run(prepared.batch.get(), 1, columns, nullptr, results, nullptr, nullptr, 0, nullptr), KELPLAN_OK);
  double power = 0;
  std::memcpy(&power, bytes + 17, sizeof power);
  EXPECT_EQ(power, PowerOf(0.5, 50));
}

TEST(ColumnsDoor, NoRowsNeedNoArrays) {
  const Prepared prepared = Prepare(ofEffects);
  EXPECT_EQ(kelplan_run(prepared.batch.get(), 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr), KELPLAN_OK);
  EXPECT_EQ(kelplan_run(prepared.batch.get(), 1, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr),
            KELPLAN_BAD_INPUT);
  EXPECT_EQ(kelplan_run(nullptr, 0, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr), KELPLAN_BAD_INPUT);
  const double* columns[] = {nullptr, nullptr};
  double* results[] = {nullptr, nullptr};
  EXPECT_EQ(kelplan_run(prepared.batch.get(), 1, columns, nullptr, results, nullptr, nullptr, 0, nullptr),
            KELPLAN_BAD_INPUT);
}

TEST(ColumnsDoor, ABatchWithoutColumnsRepeatsItsDesign) {
  const Prepared prepared = Prepare({{"test", "two-means"}, {"inputs", {{"effect-d", 0.5}, {"n", 50}}}});
  Table table;
  EXPECT_EQ(RunAll(prepared, table, 3), KELPLAN_OK);
  EXPECT_EQ(table.results[IndexOf(prepared, "power")], std::vector<double>(3, PowerOf(0.5, 50)));
}

TEST(ColumnsDoor, SaysWhatIsWrongWithAPreparation) {
  const struct {
    const char* request;
    const char* code;
  } wrongs[] = {
      {R"({"test":"two-means","columns":["colour"]})", "not-an-input"},
      {R"({"test":"two-means","columns":"n"})", "wrong-type"},
      {R"({"test":"two-means","columns":[3]})", "wrong-type"},
      {R"({"test":"two-means","columns":[{"name":"n","entry":-1}]})", "wrong-type"},
      {R"({"test":"two-means","columns":[{"name":"n","entry":1e300}]})", "wrong-type"},
      {R"({"test":"two-means","columns":["one-sided"]})", "no-column"},
      {R"({"test":"two-means","columns":["means"]})", "no-column"},
      {R"({"test":"two-means","columns":["n","n"]})", "no-column"},
      {R"({"test":"two-means","columns":["n",{"name":"n","entry":0}]})", "no-column"},
      {R"({"test":"two-means","inputs":{"effect-d":0.5,"n":20},"columns":["n"]})", "no-column"},
      {R"({"test":"two-means","inputs":{"effect-d":0.5},"columns":[{"name":"n","entry":1}]})", "no-column"},
      {R"({"test":"two-means","inputs":{"effect-d":0.5},"columns":[{"name":"n","entry":0}]})", "no-column"},
      {R"({"test":"two-means","columns":[{"name":"effect-d","entry":0}]})", "no-column"},
      {R"({"test":"anova","inputs":{"effect-f":0.2,"n":20},"columns":["groups"]})", "no-column"},
      {R"({"test":"two-means","inputs":{"effect-d":[0.5,1]},"columns":["n"]})", "several-values"},
      {R"({"test":"two-means","inputs":{"alpha":2},"columns":["n","effect-d"]})", "not-allowed"},
      {R"({"test":"two-means","columns":["n"]})", "incomplete"},
  };
  for (const auto& [request, code] : wrongs) {
    const Prepared prepared = Prepare(Json::parse(request));
    EXPECT_EQ(prepared.status, KELPLAN_BAD_INPUT) << request;
    EXPECT_FALSE(prepared.batch);
    EXPECT_EQ(prepared.json["error"]["code"], code) << request << prepared.json;
  }
  EXPECT_EQ(kelplan_prepare("{", nullptr, nullptr), KELPLAN_BAD_INPUT);
  EXPECT_EQ(kelplan_prepare(ofEffects.dump().c_str(), nullptr, nullptr), KELPLAN_OK);
}

TEST(ColumnsDoor, ThreadsRunOneBatch) {
  constexpr std::size_t rows = 400;
  const Prepared prepared =
      Prepare({{"test", "proportion"}, {"inputs", {{"null", 0.5}, {"exact", true}}}, {"columns", {"proportion", "n"}}});
  ASSERT_EQ(prepared.status, KELPLAN_OK) << prepared.json;
  Table table;
  table.columns.assign(2, {});
  for (std::size_t i = 0; i < rows; ++i) {
    table.columns[0].push_back(0.55 + 0.001 * static_cast<double>(i));
    table.columns[1].push_back(static_cast<double>(20 + i));
  }
  Table alone = table;
  RunAll(prepared, alone, rows);
  std::vector<std::future<std::vector<double>>> threads;
  for (int i = 0; i < 8; ++i) {
    threads.push_back(std::async(std::launch::async, [&] {
      Table own = table;
      for (int repeat = 0; repeat < 20; ++repeat) RunAll(prepared, own, rows);
      return own.results[IndexOf(prepared, "power")];
    }));
  }
  const auto& expected = alone.results[IndexOf(prepared, "power")];
  for (auto& thread : threads) {
    const std::vector<double> power = thread.get();
    EXPECT_EQ(std::memcmp(power.data(), expected.data(), rows * sizeof(double)), 0);
  }
}

int StopAtOnce(void*) { return 1; }

int StopWhenAskedAgain(void* payload) { return ++*static_cast<int*>(payload) > 1; }

TEST(ColumnsDoor, LeavesTheRowsThatAStopDoesNotReach) {
  const Prepared prepared = Prepare(ofEffects);
  kelplan_options options{sizeof(kelplan_options), StopAtOnce, nullptr};
  Table table{.columns = {std::vector<double>(3, 0.5), std::vector<double>(3, 50)}, .results = {}, .status = {}};
  EXPECT_EQ(RunAll(prepared, table, 3, &options), KELPLAN_STOPPED);
  EXPECT_EQ(table.status, std::vector<int>(3, KELPLAN_STOPPED));

  // Asked again after a millisecond, in the midst of the rows; also where all of them are refused.
  for (double n : {50.0, -1.0}) {
    int asked = 0;
    options = {sizeof(kelplan_options), StopWhenAskedAgain, &asked};
    constexpr std::size_t rows = 200000;
    Table many{.columns = {std::vector<double>(rows, 0.5), std::vector<double>(rows, n)}, .results = {}, .status = {}};
    EXPECT_EQ(RunAll(prepared, many, rows, &options), KELPLAN_STOPPED);
    EXPECT_EQ(many.status.front(), n > 0 ? KELPLAN_OK : KELPLAN_BAD_INPUT);
    EXPECT_EQ(many.status.back(), KELPLAN_STOPPED);
    EXPECT_TRUE(std::isnan(many.results[0].back()));
  }

  // The next call is not stopped.
  Table again{.columns = {{0.5}, {50}}, .results = {}, .status = {}};
  EXPECT_EQ(RunAll(prepared, again, 1), KELPLAN_OK);
  EXPECT_EQ(again.status.front(), KELPLAN_OK);
}

}  // namespace
