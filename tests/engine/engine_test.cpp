// The engine reports what it must: it is run on functions made for it, with cases that are right and cases that are
// wrong in one way each.

#include "engine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <limits>

#include "achieved.h"
#include "support/platform.h"

namespace {

using namespace keltest;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double missingValue = std::numeric_limits<double>::lowest();

int liveRecords = 0;

double Echo(double x) { return x; }
double Mix(double x, std::int32_t i, std::uint8_t b) { return x + 10 * i + 100 * b; }
double Sum(std::int32_t count, const double* numbers) {
  if (!numbers) return -1;
  double sum = 0;
  for (std::int32_t i = 0; i < count; ++i) sum += numbers[i];
  return sum;
}
double Repair(double* numbers) { return numbers[1] = -numbers[0]; }
double Meddle(const double* numbers) { return const_cast<double*>(numbers)[0] = 7; }
void Append(double x, DoubleVector& out) { out.push_back(x); }
double AskUpTo(std::int32_t times, StopRequest* stop) {
  if (!stop) return -2;
  for (std::int32_t i = 0; i < times; ++i)
    if (stop->ShouldStop()) return missingValue;
  return 1;
}
double Unused(const void* unused) { return unused ? 1 : 0; }

double* NewArray(std::int32_t size, double value) {
  auto* array = new double[static_cast<std::size_t>(size)];
  for (std::int32_t i = 0; i < size; ++i) array[i] = value + i;
  return array;
}
XYPlot PlotLine(std::int32_t count, double y) {
  if (count < 0) return {0, nullptr, nullptr};
  ++liveRecords;
  return {count, NewArray(count, 0), NewArray(count, y)};
}
XYPlot PlotNSC(std::int32_t count, double y) { return PlotLine(count, y); }  // the name of a double-precision chart
XYZPlot PlotPlane(std::int32_t xCount, std::int32_t yCount, double z) {
  ++liveRecords;
  return {xCount, yCount, NewArray(xCount, 0), NewArray(yCount, 5), NewArray(xCount * yCount, z)};
}
void FreeMemXYPlot(XYPlot* record) {
  if (record->x) --liveRecords;
  delete[] record->x;
  delete[] record->y;
}
void FreeMemXYZPlot(XYZPlot* record) {
  if (record->x) --liveRecords;
  delete[] record->x;
  delete[] record->y;
  delete[] record->z;
}

const std::vector<Function> functions = {
    Bind("Echo", &Echo),
    Bind("Mix", &Mix),
    Bind("Sum", &Sum),
    Bind("Repair", &Repair),
    Bind("Meddle", &Meddle),
    Bind("Append", &Append),
    Bind("AskUpTo", &AskUpTo),
    Bind("Unused", &Unused),
    Bind("PlotLine", &PlotLine),
    Bind("PlotNSC", &PlotNSC),
    Bind("PlotPlane", &PlotPlane),
    Bind("FreeMemXYPlot", &FreeMemXYPlot),
    Bind("FreeMemXYZPlot", &FreeMemXYZPlot),
};

Summary RunText(const std::string& text) {
  Summary summary;
  RunCase(functions, ParseCase(text, 1), summary);
  return summary;
}

// The message of the one failure that the case must give, or what was wrong about that.
std::string Failure(const std::string& text) {
  const auto failures = RunText(text).findings.failures;
  if (failures.size() != 1) return std::to_string(failures.size()) + " failures";
  return failures[0];
}

#define EXPECT_PASSES(text) EXPECT_EQ(Failure(text), "0 failures")
#define EXPECT_FAILS(text, message) EXPECT_NE(Failure(text).find(message), std::string::npos) << Failure(text)

TEST(Binding, DeducesTypes) {
  EXPECT_EQ(Find(functions, "Mix")->arguments, "dib");
  EXPECT_EQ(Find(functions, "Sum")->arguments, "ip");
  EXPECT_EQ(Find(functions, "Repair")->arguments, "P");
  EXPECT_EQ(Find(functions, "Append")->arguments, "dv");
  EXPECT_EQ(Find(functions, "AskUpTo")->arguments, "is");
  EXPECT_EQ(Find(functions, "Unused")->arguments, "n");
  EXPECT_EQ(Find(functions, "FreeMemXYPlot")->arguments, "X");
  EXPECT_EQ(Find(functions, "FreeMemXYZPlot")->arguments, "Z");
  EXPECT_EQ(Find(functions, "Echo")->result, "d");
  EXPECT_EQ(Find(functions, "Append")->result, "void");
  EXPECT_EQ(Find(functions, "PlotLine")->result, "XY");
  EXPECT_EQ(Find(functions, "PlotPlane")->result, "XYZ");
  EXPECT_EQ(Find(functions, "Absent"), nullptr);
}

TEST(Engine, PassesRightCases) {
  EXPECT_PASSES(R"({"fn": "Echo", "kind": "edge", "args": [0.25], "ret": 0.25})");
  EXPECT_PASSES(R"({"fn": "Echo", "kind": "edge", "args": ["nan"], "ret": "nan"})");
  EXPECT_PASSES(R"({"fn": "Echo", "kind": "edge", "args": ["-inf"], "ret": "-inf"})");
  EXPECT_PASSES(R"({"fn": "Mix", "kind": "edge", "args": [1.0, -2, 255], "ret": 25481.0})");
  EXPECT_PASSES(R"({"fn": "Sum", "kind": "edge", "args": [2, [3.0, 4.0]], "ret": 7.0})");
  EXPECT_PASSES(R"({"fn": "Sum", "kind": "edge", "args": [0, []], "ret": 0.0})");
  EXPECT_PASSES(R"({"fn": "Sum", "kind": "edge", "args": [0, null], "ret": -1.0})");
  EXPECT_PASSES(R"({"fn": "Repair", "kind": "edge", "args": [[3.0, 0.0]], "ret": -3.0, "out": {"0": [3.0, -3.0]}})");
  EXPECT_PASSES(R"({"fn": "Append", "kind": "edge", "args": [2.0, [1.0]], "ret": null, "out": {"1": [1.0, 2.0]}})");
  EXPECT_PASSES(R"({"fn": "AskUpTo", "kind": "edge", "args": [5, 9], "ret": 1.0, "asked": 5})");
  EXPECT_PASSES(R"({"fn": "AskUpTo", "kind": "edge", "args": [5, 3], "ret": -1.7976931348623157e+308, "asked": 3})");
  EXPECT_PASSES(R"({"fn": "AskUpTo", "kind": "edge", "args": [5, null], "ret": -2.0})");
  EXPECT_PASSES(R"({"fn": "Unused", "kind": "edge", "args": [null], "ret": 0.0})");
  EXPECT_PASSES(
      R"({"fn": "PlotLine", "kind": "edge", "args": [2, 0.5], "ret": {"count": 2, "x": [0, 1], "y": [0.5, 1.5]}})");
  EXPECT_PASSES(R"({"fn": "PlotLine", "kind": "edge", "args": [0, 0.5], "ret": {"count": 0, "x": [], "y": []}})");
  EXPECT_PASSES(R"({"fn": "PlotLine", "kind": "edge", "args": [-1, 0.5], "ret": {"count": 0, "x": null, "y": null}})");
  EXPECT_PASSES(R"({"fn": "PlotNSC", "kind": "edge", "args": [1, 0.1], "ret": {"count": 1, "x": [0], "y": [0.1]}})");
  EXPECT_PASSES(
      R"({"fn": "PlotPlane", "kind": "edge", "args": [1, 2, 0.5],
          "ret": {"xCount": 1, "yCount": 2, "x": [0], "y": [5, 6], "z": [0.5, 1.5]}})");
  EXPECT_EQ(liveRecords, 0);
}

TEST(Engine, ReportsWrongScalars) {
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [0.25], "ret": 0.250000001})", "result = 0.25, expected");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [0.25], "ret": "nan"})", "expected nan");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": ["nan"], "ret": 0.25})", "result = nan");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [1e308], "ret": "inf"})", "expected inf");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [-1.00000000000001], "ret": -1.0})", "expected -1");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [-2.00000000000001], "ret": -2.0})", "expected -2");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": ["-inf"], "ret": -1.7976931348623157e+308})",
               "expected -1.79");
  EXPECT_FAILS(R"({"fn": "Absent", "kind": "edge", "args": [1], "ret": 1})", "no such function");
}

TEST(Engine, ReportsWrongOutputs) {
  EXPECT_FAILS(R"({"fn": "Append", "kind": "edge", "args": [2.0, [1.0]], "ret": null, "out": {"1": [1.0, 3.0]}})",
               "argument 1[1] = 2, expected 3");
  EXPECT_FAILS(R"({"fn": "Append", "kind": "edge", "args": [2.0, []], "ret": null, "out": {"1": [2.0, 2.0]}})",
               "size of argument 1 is 1, expected 2");
  EXPECT_FAILS(R"({"fn": "Append", "kind": "edge", "args": [2.0, []], "ret": null})", "argument 1 was changed");
  EXPECT_FAILS(R"({"fn": "Append", "kind": "edge", "args": [2.0, []], "ret": 1.0, "out": {"1": [2.0]}})", "has none");
  EXPECT_FAILS(R"({"fn": "Repair", "kind": "edge", "args": [[3.0, 0.0]], "ret": -3.0, "out": {"0": [3.0, 0.0]}})",
               "argument 0[1] = -3, expected 0");
  EXPECT_FAILS(R"({"fn": "Meddle", "kind": "edge", "args": [[3.0]], "ret": 7.0})", "argument 0 was changed");
  EXPECT_FAILS(R"({"fn": "AskUpTo", "kind": "edge", "args": [5, 9], "ret": 1.0, "asked": 4})",
               "questions is 5, expected 4");
}

TEST(Engine, ReportsWrongCharts) {
  EXPECT_FAILS(
      R"({"fn": "PlotLine", "kind": "edge", "args": [1, 0.5], "ret": {"count": 2, "x": [0, 1], "y": [0.5, 1.5]}})",
      "count is 1, expected 2");
  EXPECT_FAILS(R"({"fn": "PlotLine", "kind": "edge", "args": [1, 0.5], "ret": {"count": 1, "x": [1e-12], "y": [0.5]}})",
               "x[0] = 0");
  EXPECT_FAILS(
      R"({"fn": "PlotLine", "kind": "edge", "args": [1, 0.5], "ret": {"count": 1, "x": [0], "y": [0.5000005]}})",
      "y[0] = 0.5");
  EXPECT_FAILS(
      R"({"fn": "PlotLine", "kind": "edge", "args": [1, 0.1], "ret": {"count": 1, "x": [0], "y": [0.10000000149011612]}})",
      "y[0] = 0.1");
  EXPECT_FAILS(
      R"({"fn": "PlotNSC", "kind": "edge", "args": [1, 0.10000000149011612], "ret": {"count": 1, "x": [0], "y": [0.1]}})",
      "y[0] = 0.1");
  EXPECT_EQ(
      RunText(R"({"fn": "PlotLine", "kind": "edge", "args": [0, 0.5], "ret": {"count": 0, "x": null, "y": null}})")
          .findings.failures.size(),
      2u);
  EXPECT_EQ(RunText(R"({"fn": "PlotLine", "kind": "edge", "args": [-1, 0.5], "ret": {"count": 0, "x": [], "y": []}})")
                .findings.failures.size(),
            2u);
  EXPECT_FAILS(
      R"({"fn": "PlotPlane", "kind": "edge", "args": [1, 2, 0.5],
          "ret": {"xCount": 1, "yCount": 2, "x": [0], "y": [5, 6], "z": [0.5, 0.5]}})",
      "z[1] = 1.5");
  EXPECT_FAILS(
      R"({"fn": "PlotPlane", "kind": "edge", "args": [1, 2, 0.5],
          "ret": {"xCount": 1, "yCount": 1, "x": [0], "y": [5], "z": [0.5]}})",
      "yCount is 2, expected 1");
  EXPECT_EQ(liveRecords, 0);
}

TEST(Engine, ReportsCasesThatDoNotFit) {
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [1, 2], "ret": 1})", "the case has 2 arguments");
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": ["one"], "ret": 1})", "not a number");
  EXPECT_FAILS(R"({"fn": "Mix", "kind": "edge", "args": [1, 2, 256], "ret": 1})", "not an integer of its type");
  EXPECT_FAILS(R"({"fn": "Mix", "kind": "edge", "args": [1, 2.5, 0], "ret": 1})", "not an integer of its type");
  EXPECT_FAILS(R"({"fn": "Unused", "kind": "edge", "args": [1], "ret": 0})", "unused");
  EXPECT_THROW(ParseCase(R"({"fn": "Echo", "args": [1], "ret": 1})", 1), std::exception);
  EXPECT_THROW(ParseCase(R"({"fn": "Echo")", 1), std::exception);
  EXPECT_THROW(ReadCases("no such file"), std::exception);
}

TEST(Engine, PutsWhatIsWantedInPlaceOfSupersededReferences) {
  const std::string path = testing::TempDir() + "superseded.json";
  std::ofstream(path) << R"([{"family": "echoes", "reason": "It was wrong.", "fn": "Echo", "args": [1.0], "ret": 1.0,
                              "out": {}}])";
  std::vector<VectorCase> cases = {ParseCase(R"({"fn": "Echo", "kind": "edge", "args": [1.0], "ret": 2.0})", 1),
                                   ParseCase(R"({"fn": "Echo", "kind": "edge", "args": [2.0], "ret": 2.0})", 2)};
  EXPECT_FALSE(RunCases(functions, cases).at("Echo").findings.failures.empty());
  Supersede(path, "others", cases);
  EXPECT_FALSE(RunCases(functions, cases).at("Echo").findings.failures.empty());
  Supersede(path, "echoes", cases);
  EXPECT_TRUE(RunCases(functions, cases).at("Echo").findings.failures.empty());

  cases.erase(cases.begin());
  EXPECT_THROW(Supersede(path, "echoes", cases), std::exception);
  EXPECT_THROW(Supersede("no such file", "echoes", cases), std::exception);
}

TEST(Engine, CallsButDoesNotCompareUncertainCases) {
  const Summary loose = RunText(R"({"fn": "Echo", "kind": "loose", "args": [1.0], "ret": 2.0})");
  EXPECT_EQ(loose.loose, 1u);
  EXPECT_TRUE(loose.findings.failures.empty());
  const Summary tie = RunText(R"({"fn": "Echo", "kind": "edge", "args": [1.0], "ret": 2.0, "margin": 9e-8})");
  EXPECT_EQ(tie.nearTie, 1u);
  EXPECT_TRUE(tie.findings.failures.empty());
  EXPECT_FAILS(R"({"fn": "Echo", "kind": "edge", "args": [1.0], "ret": 2.0, "margin": 1.1e-7})", "result");
  const Summary chart =
      RunText(R"({"fn": "PlotLine", "kind": "loose", "args": [3, 0.5], "ret": {"count": 0, "x": null, "y": null}})");
  EXPECT_EQ(chart.cases, 1u);
  EXPECT_EQ(liveRecords, 0);
}

TEST(Engine, KeepsTheWorstCase) {
  const std::vector<VectorCase> cases = {
      ParseCase(R"({"fn": "Echo", "kind": "edge", "args": [1.0], "ret": 1.000000000001})", 1),
      ParseCase(R"({"fn": "Echo", "kind": "edge", "args": [3.0], "ret": 3.00000000001})", 2),
      ParseCase(R"({"fn": "Echo", "kind": "edge", "args": [2.0], "ret": 2.0})", 3),
  };
  const Summary summary = RunCases(functions, cases).at("Echo");
  EXPECT_EQ(summary.cases, 3u);
  EXPECT_TRUE(summary.findings.failures.empty());
  EXPECT_NEAR(summary.findings.worst[0].difference, 1e-11 / 3, 1e-14);
  EXPECT_NE(summary.findings.worst[0].where.find("line 2: Echo(3.0)"), std::string::npos);
}

TEST(Compare, DifferencesAreAbsoluteOrRelative) {
  EXPECT_EQ(Difference(1.5, 1.5, Metric::Value), 0);
  EXPECT_DOUBLE_EQ(Difference(3e-11, 2e-11, Metric::Value), 1e-11);
  EXPECT_DOUBLE_EQ(Difference(1e20, 2e20, Metric::Value), 0.5);
  EXPECT_EQ(Difference(-infinite, missingValue, Metric::Value), infinite);
  EXPECT_EQ(Difference(missingValue, -infinite, Metric::Single), infinite);
  EXPECT_EQ(Difference(0.5, std::nan(""), Metric::Grid), infinite);
  EXPECT_EQ(Difference(std::nan(""), 0.5, Metric::Grid), infinite);
  EXPECT_EQ(Difference(infinite, 0.5, Metric::Single), infinite);
}

TEST(Compare, SentinelsAreNoCoordinates) {
  const double nearMinusOne = std::nextafter(-1.0, 0.0);
  EXPECT_EQ(Difference(nearMinusOne, -1, Metric::Value), infinite);
  EXPECT_EQ(Difference(nearMinusOne, -1, Metric::Single), infinite);
  EXPECT_LT(Difference(nearMinusOne, -1, Metric::Grid), 1e-15);
}

TEST(Compare, SinglePrecisionCountsUlps) {
  const auto next = static_cast<double>(std::nextafter(0.7f, 1.0f));
  const auto reference = static_cast<double>(0.7f);
  EXPECT_EQ(Difference(next, reference, Metric::Single), 1);
  EXPECT_EQ(Difference(2 * next - reference, reference, Metric::Single), 2);
  EXPECT_EQ(Difference(0.7, reference, Metric::Single), infinite) << "was not rounded";
  EXPECT_EQ(Difference(reference, 0.7, Metric::Single), infinite) << "was rounded";
  EXPECT_EQ(Difference(0.7, 0.7, Metric::Single), 0);
}

TEST(Achieved, GrowthBeyondHalfIsReported) {
  const Achieved stored = {{"Echo", {1e-12, 0, 1}}};
  EXPECT_TRUE(Growth(stored, {{"Echo", {1.4e-12, 9e-17, 1}}}).empty());
  EXPECT_EQ(Growth(stored, {{"Echo", {1.6e-12, 0, 1}}}).size(), 1u);
  EXPECT_EQ(Growth(stored, {{"Echo", {1e-12, 2e-16, 1}}}).size(), 1u);
  EXPECT_EQ(Growth(stored, {{"Echo", {1e-12, 0, 2}}}).size(), 1u);
  EXPECT_EQ(Growth(stored, {{"Other", {0, 0, 0}}}).size(), 1u);
}

TEST(Achieved, FileKeepsWhatIsWritten) {
  const std::string path = ::testing::TempDir() + "kelpower_achieved.json";
  WriteAchieved(path, {{"Echo", {1.25e-12, 0, 1}}, {"Other", {0, 3e-16, 0}}});
  const Achieved read = ReadAchieved(path);
  std::remove(path.c_str());
  EXPECT_EQ(read.size(), 2u);
  EXPECT_EQ(read.at("Echo")[0], 1.25e-12);
  EXPECT_EQ(read.at("Other")[1], 3e-16);
  EXPECT_TRUE(ReadAchieved(path).empty());
}

TEST(Achieved, APlatformMayHaveAFileOfItsOwn) {
  EXPECT_EQ(FileOfPlatform("means.achieved.json", ""), "means.achieved.json");
  EXPECT_EQ(FileOfPlatform("means.achieved.json", "arm64"), "means.achieved-arm64.json");
  const std::string common = ::testing::TempDir() + "kelpower_achieved.json";
  const std::string own = FileOfPlatform(common, "arm64");
  EXPECT_EQ(FileToCompareWith(common, "arm64"), common);
  WriteAchieved(own, {});
  EXPECT_EQ(FileToCompareWith(common, "arm64"), own);
  EXPECT_EQ(FileToCompareWith(common, "wasm"), common);
  std::remove(own.c_str());
}

}  // namespace
