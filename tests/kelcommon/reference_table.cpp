#include "reference_table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

#include "kelcommon/chi_integral.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// Smaller probabilities are promised an absolute error only; below the second the digits of a double thin out.
constexpr double leastRelativeProbability = 1e-12;
constexpr double leastProbability = 1e-290;

// An error code that no function gives shows a function that does not write it.
constexpr long unwritten = -77;

std::vector<std::string> SplitLine(const std::string& line) {
  std::vector<std::string> cells;
  std::stringstream stream(line);
  for (std::string cell; std::getline(stream, cell, ',');) cells.push_back(cell);
  return cells;
}

std::string CellOr(const std::vector<std::string>& cells, std::size_t i, const std::string& otherwise) {
  return i < cells.size() && !cells[i].empty() ? cells[i] : otherwise;
}

ReferenceRow ParseRow(const std::string& line, const std::string& fileName, int lineNumber) {
  const std::vector<std::string> cells = SplitLine(line);
  ReferenceRow row{};
  row.function = cells.at(0);
  for (std::size_t i = 0; i < row.arguments.size(); ++i)
    row.arguments[i] = std::strtod(CellOr(cells, i + 1, "0").c_str(), nullptr);
  row.value = std::strtod(cells.at(6).c_str(), nullptr);
  row.err = std::strtol(CellOr(cells, 7, "0").c_str(), nullptr, 10);
  row.region = CellOr(cells, 8, fileName.substr(0, fileName.find('.')));
  row.place = fileName + ":" + std::to_string(lineNumber);
  return row;
}

void ReadFile(const std::filesystem::path& path, std::vector<ReferenceRow>& rows) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  if (line.rfind("function,a1", 0) != 0) return;
  for (int number = 2; std::getline(file, line); ++number)
    rows.push_back(ParseRow(line, path.filename().string(), number));
}

bool IsSpecial(double value) { return !std::isfinite(value) || KelMV::IsMissing(value); }

bool IsMedianOfSymmetric(const Function& function, const ReferenceRow& row) {
  return (function.name == "IdfStdNorm" || function.name == "IdfT") && row.arguments[0] == 0.5 &&
         std::fabs(row.value) < 1e-30;
}

// The independent set sums its noncentral distributions near 1 to 40 digits: a tail below 1e-25 has fewer than fifteen
// of its own, and below 1e-40 none.
bool IsNoiseOfIndependentSet(const ReferenceRow& row) {
  return row.region == "distributions" && (row.function == "NonCentralCdfT" || row.function == "NonCentralCdfF") &&
         row.value < 1e-25;
}

template <double (*function)(double, double) noexcept>
Outcome Call(const Arguments& a) {
  return {function(a[0], a[1]), 0};
}

template <double (*function)(double, double, double) noexcept>
Outcome Call(const Arguments& a) {
  return {function(a[0], a[1], a[2]), 0};
}

double Bounded(double x) {
  constexpr double most = std::numeric_limits<double>::max();
  return std::isnan(x) ? x : std::min(std::max(x, -most), most);
}

// The mean of a normal probability, Phi(slope u - shift) up to a limit: Owen's Q function. Two infinities would have no
// difference.
Outcome CallMeanOverChi(const Arguments& a) {
  const double slope = Bounded(a[0]);
  const double shift = Bounded(a[1]);
  kelcommon::ChiRange range;
  range.limit = a[3];
  return {kelcommon::MeanOverChi([=](double u) { return KelDistFun::CdfStdNorm(slope * u - shift); }, a[2], range), 0};
}

bool AreSame(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

}  // namespace

const std::vector<Function>& Functions() {
  static const std::vector<Function> functions = {
      {"IdfF", 3, Kind::quantile,
       [](const Arguments& a) {
         return Outcome{KelDistFun::IdfF(a[0], a[1], a[2]), 0};
       }},
      {"NonCentralCdfF", 5, Kind::probability,
       [](const Arguments& a) {
         return Outcome{KelDistFun::NonCentralCdfF(a[0], a[1], a[2], a[3], a[4]), 0};
       }},
      {"IdfT", 4, Kind::quantile,
       [](const Arguments& a) {
         return Outcome{KelDistFun::IdfT(a[0], a[1], a[2], a[3]), 0};
       }},
      {"NonCentralCdfT", 4, Kind::probability,
       [](const Arguments& a) {
         return Outcome{KelDistFun::NonCentralCdfT(a[0], a[1], a[2], a[3]), 0};
       }},
      {"CdfStdNorm", 1, Kind::probability,
       [](const Arguments& a) {
         return Outcome{KelDistFun::CdfStdNorm(a[0]), 0};
       }},
      {"IdfStdNorm", 1, Kind::quantile,
       [](const Arguments& a) {
         return Outcome{KelDistFun::IdfStdNorm(a[0]), 0};
       }},
      {"CdfBeta", 3, Kind::probability,
       [](const Arguments& a) {
         return Outcome{KelDistFun::CdfBeta(a[0], a[1], a[2]), 0};
       }},
      {"IdfBeta", 3, Kind::quantile,
       [](const Arguments& a) {
         return Outcome{KelDistFun::IdfBeta(a[0], a[1], a[2]), 0};
       }},
      {"CdfBin", 3, Kind::probability,
       [](const Arguments& a) {
         Outcome outcome{0, unwritten};
         outcome.value = KelDistFun::CdfBin(a[0], a[1], a[2], outcome.err);
         return outcome;
       }},
      {"IdfBin", 3, Kind::count,
       [](const Arguments& a) {
         Outcome outcome{0, unwritten};
         outcome.value = KelDistFun::IdfBin(a[0], a[1], a[2], outcome.err);
         return outcome;
       }},
      {"PdfBin", 3, Kind::probability,
       [](const Arguments& a) {
         Outcome outcome{0, unwritten};
         outcome.value = KelDistFun::PdfBin(a[0], a[1], a[2], outcome.err);
         return outcome;
       }},
      {"PdfNegBin", 3, Kind::probability,
       [](const Arguments& a) {
         Outcome outcome{0, unwritten};
         outcome.value = KelDistFun::PdfNegBin(a[0], a[1], a[2], outcome.err);
         return outcome;
       }},
      {"orvadnlgam", 1, Kind::logarithm,
       [](const Arguments& a) {
         return Outcome{KelDistFun::orvadnlgam(a[0]), 0};
       }},
      {"CdfGamma", 2, Kind::probability, Call<kelcommon::CdfGamma>},
      {"SfGamma", 2, Kind::probability, Call<kelcommon::SfGamma>},
      {"IdfGamma", 2, Kind::quantile, Call<kelcommon::IdfGamma>},
      {"IsfGamma", 2, Kind::quantile, Call<kelcommon::IsfGamma>},
      {"CdfChiSquare", 2, Kind::probability, Call<kelcommon::CdfChiSquare>},
      {"SfChiSquare", 2, Kind::probability, Call<kelcommon::SfChiSquare>},
      {"IdfChiSquare", 2, Kind::quantile, Call<kelcommon::IdfChiSquare>},
      {"IsfChiSquare", 2, Kind::quantile, Call<kelcommon::IsfChiSquare>},
      {"NonCentralCdfChiSquare", 3, Kind::probability, Call<kelcommon::NonCentralCdfChiSquare>},
      {"NonCentralSfChiSquare", 3, Kind::probability, Call<kelcommon::NonCentralSfChiSquare>},
      {"NonCentralityChiSquare", 3, Kind::quantile, Call<kelcommon::NonCentralityChiSquare>},
      {"PdfPoisson", 2, Kind::probability, Call<kelcommon::PdfPoisson>},
      {"CdfPoisson", 2, Kind::probability, Call<kelcommon::CdfPoisson>},
      {"SfPoisson", 2, Kind::probability, Call<kelcommon::SfPoisson>},
      {"IdfPoisson", 2, Kind::count, Call<kelcommon::IdfPoisson>},
      {"CdfStudentizedRange", 3, Kind::probability, Call<kelcommon::CdfStudentizedRange>},
      {"SfStudentizedRange", 3, Kind::probability, Call<kelcommon::SfStudentizedRange>},
      {"IdfStudentizedRange", 3, Kind::quantile, Call<kelcommon::IdfStudentizedRange>},
      {"IsfStudentizedRange", 3, Kind::quantile, Call<kelcommon::IsfStudentizedRange>},
      {"CdfBivariateNormal", 3, Kind::probability, Call<kelcommon::CdfBivariateNormal>},
      {"CdfCorrelation", 3, Kind::probability, Call<kelcommon::CdfCorrelation>},
      {"SfCorrelation", 3, Kind::probability, Call<kelcommon::SfCorrelation>},
      {"IdfCorrelation", 3, Kind::quantile, Call<kelcommon::IdfCorrelation>},
      {"MeanOverChi", 4, Kind::probability, CallMeanOverChi},
  };
  return functions;
}

const Function& FindFunction(const std::string& name) {
  for (const Function& function : Functions())
    if (function.name == name) return function;
  std::fprintf(stderr, "references name the unknown function '%s'\n", name.c_str());
  std::exit(2);
}

std::vector<ReferenceRow> ReadReferences(const std::string& folder) {
  std::vector<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    if (entry.path().extension() == ".csv") paths.push_back(entry.path());
  std::sort(paths.begin(), paths.end());
  std::vector<ReferenceRow> rows;
  for (const auto& path : paths) ReadFile(path, rows);
  return rows;
}

Error MeasureError(const Function& function, const ReferenceRow& row, const Outcome& outcome) {
  constexpr Error none = {0, 0, 0};
  constexpr Error unbounded = {infinity, infinity, infinity};
  if (IsMedianOfSymmetric(function, row)) return outcome.value == 0 ? none : unbounded;
  if (outcome.err != row.err) return unbounded;
  if (AreSame(outcome.value, row.value)) return none;
  if (IsSpecial(outcome.value) || IsSpecial(row.value)) return unbounded;
  if (function.kind == Kind::count) return unbounded;
  const double absolute = std::fabs(outcome.value - row.value);
  const double relative = absolute / std::fabs(row.value);
  if (function.kind == Kind::probability && row.value < leastProbability) return {absolute, 0, 0};
  if (IsNoiseOfIndependentSet(row)) return {absolute, 0, 0};
  if (function.kind == Kind::probability && row.value <= leastRelativeProbability) return {absolute, 0, relative};
  if (function.kind == Kind::logarithm) return {absolute, std::min(absolute, relative), 0};
  return {absolute, relative, 0};
}

std::map<FunctionRegion, Worst> MeasureErrors(const std::vector<ReferenceRow>& rows) {
  std::map<FunctionRegion, Worst> measured;
  for (const ReferenceRow& row : rows) {
    const Function& function = FindFunction(row.function);
    const Error error = MeasureError(function, row, function.call(row.arguments));
    Worst& worst = measured[{row.function, row.region}];
    ++worst.cases;
    if (!worst.byAbsolute || error.absolute > worst.largest.absolute) {
      worst.largest.absolute = error.absolute;
      worst.byAbsolute = &row;
    }
    if (!worst.byRelative || error.relative > worst.largest.relative) {
      worst.largest.relative = error.relative;
      worst.byRelative = &row;
    }
    worst.largest.relativeOfSmall = std::max(worst.largest.relativeOfSmall, error.relativeOfSmall);
  }
  return measured;
}

std::map<FunctionRegion, Error> ReadAchieved(const std::string& path) {
  std::map<FunctionRegion, Error> achieved;
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    const std::vector<std::string> cells = SplitLine(line);
    achieved[{cells.at(0), cells.at(1)}] = {std::strtod(cells.at(2).c_str(), nullptr),
                                            std::strtod(cells.at(3).c_str(), nullptr),
                                            std::strtod(cells.at(4).c_str(), nullptr)};
  }
  return achieved;
}

void WriteAchieved(const std::string& path, const std::map<FunctionRegion, Worst>& measured) {
  std::ofstream file(path, std::ios::binary);
  file << "function,region,absolute,relative,relative of values up to 1e-12\n";
  for (const auto& [key, worst] : measured)
    file << key.first << ',' << key.second << ',' << Shortest(worst.largest.absolute) << ','
         << Shortest(worst.largest.relative) << ',' << Shortest(worst.largest.relativeOfSmall) << '\n';
}

std::string Describe(const ReferenceRow& row) {
  std::string text;
  for (int i = 0; i < FindFunction(row.function).arity; ++i)
    text += (i == 0 ? "" : ", ") + Shortest(row.arguments[static_cast<std::size_t>(i)]);
  return text;
}

std::string Shortest(double value) {
  // Not by to_chars, which some standard libraries lack for doubles.
  constexpr int enoughDigits = std::numeric_limits<double>::max_digits10;
  char text[32];
  for (int digits = 1; digits <= enoughDigits; ++digits) {
    std::snprintf(text, sizeof text, "%.*g", digits, value);
    if (std::strtod(text, nullptr) == value) break;
  }
  return text;
}
