// Any doubles to any function of kelcommon: the answer must be in range, NaN exactly for a NaN argument, the same
// twice, with an error code written, and within a bounded time.
//
// Run: make fuzz. New inputs are kept in the build folder; the committed ones in fuzz/corpus/kelcommon are its seeds.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "kelcommon/chi_integral.h"
#include "kelcommon/distributions.h"
#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "reader.h"
#include "watch.h"

using KelCommon::KelMV;
using kelfuzz::Reader;
using KelMath::KelDistFun;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

// An error code that no function gives.
constexpr long unwritten = -77;

struct Answer {
  double value;
  long err;
};

using Arguments = std::array<double, 4>;

struct Function {
  const char* name;
  std::size_t arity;
  double low;  // of an answer that is neither NaN nor missing
  double high;
  Answer (*call)(const Arguments&);
};

using Binomial = double (*)(double, double, double, long&);

template <Binomial function>
Answer CallBinomial(const Arguments& a) {
  Answer answer{0, unwritten};
  answer.value = function(a[0], a[1], a[2], answer.err);
  return answer;
}

template <double (*function)(double, double) noexcept>
Answer Call(const Arguments& a) {
  return {function(a[0], a[1]), 0};
}

template <double (*function)(double, double, double) noexcept>
Answer Call(const Arguments& a) {
  return {function(a[0], a[1], a[2]), 0};
}

double Bounded(double x) {
  constexpr double most = std::numeric_limits<double>::max();
  return std::isnan(x) ? x : std::min(std::max(x, -most), most);
}

// The mean of Phi(slope u - shift) up to a limit. Its own contract in terms of the others: without degrees of freedom it
// is NaN where they are missing, and below a limit of 0 the function is not asked, whatever it is.
Answer CallMeanOverChi(const Arguments& a) {
  constexpr double nan = std::numeric_limits<double>::quiet_NaN();
  const double slope = Bounded(a[0]);
  const double shift = Bounded(a[1]);
  kelcommon::ChiRange range;
  range.limit = a[3];
  const double mean =
      kelcommon::MeanOverChi([=](double u) { return KelDistFun::CdfStdNorm(slope * u - shift); }, a[2], range);
  const bool hasNan = std::isnan(slope) || std::isnan(shift) || std::isnan(a[2]) || std::isnan(a[3]);
  if (a[2] <= 0) return {hasNan || !std::isnan(mean) ? nan : KelMV::Missing(), 0};
  if (a[3] <= 0) return {hasNan || mean != 0 ? nan : mean, 0};
  return {mean, 0};
}

const Function functions[] = {
    {"IdfF", 3, 0, infinity,
     [](const Arguments& a) {
       return Answer{KelDistFun::IdfF(a[0], a[1], a[2]), 0};
     }},
    {"NonCentralCdfF", 4, 0, 1,
     [](const Arguments& a) {
       return Answer{KelDistFun::NonCentralCdfF(a[0], a[1], a[2], a[3], 1e-12), 0};
     }},
    {"IdfT", 2, -infinity, infinity,
     [](const Arguments& a) {
       return Answer{KelDistFun::IdfT(a[0], a[1], 1e-40, 1e-30), 0};
     }},
    {"NonCentralCdfT", 3, 0, 1,
     [](const Arguments& a) {
       return Answer{KelDistFun::NonCentralCdfT(a[0], a[1], a[2], 1e-12), 0};
     }},
    {"CdfStdNorm", 1, 0, 1,
     [](const Arguments& a) {
       return Answer{KelDistFun::CdfStdNorm(a[0]), 0};
     }},
    {"IdfStdNorm", 1, -infinity, infinity,
     [](const Arguments& a) {
       return Answer{KelDistFun::IdfStdNorm(a[0]), 0};
     }},
    {"CdfBeta", 3, 0, 1,
     [](const Arguments& a) {
       return Answer{KelDistFun::CdfBeta(a[0], a[1], a[2]), 0};
     }},
    {"IdfBeta", 3, 0, 1,
     [](const Arguments& a) {
       return Answer{KelDistFun::IdfBeta(a[0], a[1], a[2]), 0};
     }},
    {"CdfBin", 3, 0, 1, CallBinomial<KelDistFun::CdfBin>},
    {"IdfBin", 3, -1, std::numeric_limits<double>::max(), CallBinomial<KelDistFun::IdfBin>},
    {"PdfBin", 3, 0, infinity, CallBinomial<KelDistFun::PdfBin>},
    {"PdfNegBin", 3, 0, infinity, CallBinomial<KelDistFun::PdfNegBin>},
    {"orvadnlgam", 1, -infinity, infinity,
     [](const Arguments& a) {
       return Answer{KelDistFun::orvadnlgam(a[0]), 0};
     }},
    {"CdfGamma", 2, 0, 1, Call<kelcommon::CdfGamma>},
    {"SfGamma", 2, 0, 1, Call<kelcommon::SfGamma>},
    {"IdfGamma", 2, 0, infinity, Call<kelcommon::IdfGamma>},
    {"IsfGamma", 2, 0, infinity, Call<kelcommon::IsfGamma>},
    {"CdfChiSquare", 2, 0, 1, Call<kelcommon::CdfChiSquare>},
    {"SfChiSquare", 2, 0, 1, Call<kelcommon::SfChiSquare>},
    {"IdfChiSquare", 2, 0, infinity, Call<kelcommon::IdfChiSquare>},
    {"IsfChiSquare", 2, 0, infinity, Call<kelcommon::IsfChiSquare>},
    {"NonCentralCdfChiSquare", 3, 0, 1, Call<kelcommon::NonCentralCdfChiSquare>},
    {"NonCentralSfChiSquare", 3, 0, 1, Call<kelcommon::NonCentralSfChiSquare>},
    {"NonCentralityChiSquare", 3, 0, infinity, Call<kelcommon::NonCentralityChiSquare>},
    {"PdfPoisson", 2, 0, infinity, Call<kelcommon::PdfPoisson>},
    {"CdfPoisson", 2, 0, 1, Call<kelcommon::CdfPoisson>},
    {"SfPoisson", 2, 0, 1, Call<kelcommon::SfPoisson>},
    {"IdfPoisson", 2, -1, infinity, Call<kelcommon::IdfPoisson>},
    {"CdfStudentizedRange", 3, 0, 1, Call<kelcommon::CdfStudentizedRange>},
    {"SfStudentizedRange", 3, 0, 1, Call<kelcommon::SfStudentizedRange>},
    {"IdfStudentizedRange", 3, 0, infinity, Call<kelcommon::IdfStudentizedRange>},
    {"IsfStudentizedRange", 3, 0, infinity, Call<kelcommon::IsfStudentizedRange>},
    {"CdfBivariateNormal", 3, 0, 1, Call<kelcommon::CdfBivariateNormal>},
    {"CdfCorrelation", 3, 0, 1, Call<kelcommon::CdfCorrelation>},
    {"SfCorrelation", 3, 0, 1, Call<kelcommon::SfCorrelation>},
    {"IdfCorrelation", 3, -1, 1, Call<kelcommon::IdfCorrelation>},
    {"MeanOverChi", 4, 0, 1 + 1e-13, CallMeanOverChi},
};
constexpr std::size_t functionCount = sizeof functions / sizeof functions[0];

std::string Describe(const Function& function, const Arguments& arguments) {
  std::string text = function.name;
  for (std::size_t i = 0; i < function.arity; ++i) {
    char argument[32];
    std::snprintf(argument, sizeof argument, "%s%.17g", i == 0 ? "(" : ", ", arguments[i]);
    text += argument;
  }
  return text + ")";
}

[[noreturn]] void Fail(const char* what, const Function& function, const Arguments& arguments, const Answer& answer) {
  std::fprintf(stderr, "%s: %s = %.17g, error code %ld\n", what, Describe(function, arguments).c_str(), answer.value,
               answer.err);
  std::abort();
}

Answer CallOnce(const Function& function, const Arguments& arguments) {
  const keltest::Watch watch(Describe(function, arguments));
  return function.call(arguments);
}

void Check(const Function& function, const Arguments& arguments) {
  const Answer answer = CallOnce(function, arguments);
  const Answer again = CallOnce(function, arguments);

  bool hasNan = false;
  for (std::size_t i = 0; i < function.arity; ++i) hasNan = hasNan || std::isnan(arguments[i]);
  if (std::isnan(answer.value) != hasNan) Fail("NaN", function, arguments, answer);
  if (std::memcmp(&answer.value, &again.value, sizeof answer.value) != 0)
    Fail("not the same twice", function, arguments, answer);
  if (answer.err != again.err) Fail("error code not the same twice", function, arguments, answer);
  if (answer.err != 0 && answer.err != 1) Fail("error code", function, arguments, answer);
  if (hasNan || KelMV::IsMissing(answer.value)) return;
  if (answer.err != 0) Fail("error code of an answer", function, arguments, answer);
  if (answer.value < function.low) Fail("too small", function, arguments, answer);
  if (answer.value > function.high) Fail("too large", function, arguments, answer);
}

// The quantile of the binomial is defined by its probabilities, bit for bit.
void CheckBinomialQuantile(const Arguments& arguments) {
  long err = unwritten;
  const double k = KelDistFun::IdfBin(arguments[0], arguments[1], arguments[2], err);
  if (err != 0 || arguments[0] == 1 || k > 0x1p52) return;
  const double at = KelDistFun::CdfBin(k, arguments[1], arguments[2], err);
  const double above = KelDistFun::CdfBin(k + 1, arguments[1], arguments[2], err);
  if (!(at <= arguments[0]) || !(above > arguments[0])) Fail("not the quantile", functions[9], arguments, {k, err});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reader reader(data, size);
  const Function& function = functions[reader.Byte() % functionCount];
  Arguments arguments{};
  for (std::size_t i = 0; i < function.arity; ++i) arguments[i] = reader.Number();
  Check(function, arguments);
  if (std::strcmp(function.name, "IdfBin") == 0) CheckBinomialQuantile(arguments);
  return 0;
}
