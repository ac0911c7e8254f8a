#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "kelcommon/kel_dist_fun.h"
#include "kelcommon/kel_mv.h"
#include "reference_table.h"

using KelCommon::KelMV;
using KelMath::KelDistFun;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct ContractRow {
  const char* function;
  Arguments arguments;
  double value;
  long err;
};

const double missing = KelMV::Missing();

// One answer of the contract a line.
const ContractRow contractRows[] = {
    {"IdfF", {-0.1, 3, 20}, missing, 0},
    {"IdfF", {1.1, 3, 20}, missing, 0},
    {"IdfF", {0.5, 0, 20}, missing, 0},
    {"IdfF", {0.5, 3, 0}, missing, 0},
    {"IdfF", {0.5, 3, -1}, missing, 0},
    {"IdfF", {0, 0, 20}, missing, 0},
    {"IdfF", {1, 3, -1}, missing, 0},
    {"IdfF", {0, 3, 20}, 0, 0},
    {"IdfF", {1, 3, 20}, infinity, 0},
    {"NonCentralCdfF", {1, 0, 20, 1, 0}, missing, 0},
    {"NonCentralCdfF", {1, 3, 0, 1, 0}, missing, 0},
    {"NonCentralCdfF", {1, 3, 20, -1, 0}, missing, 0},
    {"NonCentralCdfF", {1, 3, 20, -1e-300, 0}, missing, 0},
    {"NonCentralCdfF", {-1, 0, 20, 1, 0}, missing, 0},
    {"NonCentralCdfF", {0, 3, 20, 1, 0}, 0, 0},
    {"NonCentralCdfF", {-2, 3, 20, 1, 0}, 0, 0},
    {"NonCentralCdfF", {-infinity, 3, 20, 1, 0}, 0, 0},
    {"NonCentralCdfF", {missing, 3, 20, 1, 0}, 0, 0},
    {"NonCentralCdfF", {infinity, 3, 20, 1, 0}, 1, 0},
    {"NonCentralCdfF", {5, 3, 20, infinity, 0}, 0, 0},
    {"IdfT", {-0.1, 10, 0, 0}, missing, 0},
    {"IdfT", {1.1, 10, 0, 0}, missing, 0},
    {"IdfT", {-1e-300, 10, 0, 0}, missing, 0},
    {"IdfT", {1.0000000000000002, 10, 0, 0}, missing, 0},
    {"IdfT", {0, -infinity, 0, 0}, missing, 0},
    {"IdfT", {0.5, 0, 0, 0}, missing, 0},
    {"IdfT", {0.5, -3, 0, 0}, missing, 0},
    {"IdfT", {0, 10, 0, 0}, -infinity, 0},
    {"IdfT", {1, 10, 0, 0}, infinity, 0},
    {"IdfT", {0.5, 10, 0, 0}, 0, 0},
    {"NonCentralCdfT", {1, 0, 1, 0}, missing, 0},
    {"NonCentralCdfT", {1, -1, 1, 0}, missing, 0},
    {"NonCentralCdfT", {infinity, 0, 1, 0}, missing, 0},
    {"NonCentralCdfT", {1, -2, infinity, 0}, missing, 0},
    {"NonCentralCdfT", {-infinity, 10, 1, 0}, 0, 0},
    {"NonCentralCdfT", {missing, 10, 1, 0}, 0, 0},
    {"NonCentralCdfT", {infinity, 10, 1, 0}, 1, 0},
    {"NonCentralCdfT", {1, 10, infinity, 0}, 0, 0},
    {"NonCentralCdfT", {1, 10, -infinity, 0}, 1, 0},
    {"CdfStdNorm", {-infinity}, 0, 0},
    {"CdfStdNorm", {missing}, 0, 0},
    {"CdfStdNorm", {infinity}, 1, 0},
    {"CdfStdNorm", {0}, 0.5, 0},
    {"IdfStdNorm", {-0.1}, missing, 0},
    {"IdfStdNorm", {1.1}, missing, 0},
    {"IdfStdNorm", {0}, -infinity, 0},
    {"IdfStdNorm", {1}, infinity, 0},
    {"IdfStdNorm", {0.5}, 0, 0},
    {"CdfBeta", {0.5, -1, 2}, missing, 0},
    {"CdfBeta", {0.5, 2, -1}, missing, 0},
    {"CdfBeta", {0.5, 0, 0}, missing, 0},
    {"CdfBeta", {-0.5, 2, 3}, 0, 0},
    {"CdfBeta", {0, 2, 3}, 0, 0},
    {"CdfBeta", {1, 2, 3}, 1, 0},
    {"CdfBeta", {1.5, 2, 3}, 1, 0},
    {"CdfBeta", {-infinity, 2, 3}, 0, 0},
    {"CdfBeta", {infinity, 2, 3}, 1, 0},
    {"CdfBeta", {-0.5, 0, 3}, 0, 0},
    {"CdfBeta", {0, 0, 3}, 1, 0},
    {"CdfBeta", {0.5, 0, 3}, 1, 0},
    {"CdfBeta", {0.999, 3, 0}, 0, 0},
    {"CdfBeta", {1, 3, 0}, 1, 0},
    {"CdfBeta", {0.5, infinity, 3}, 0, 0},
    {"CdfBeta", {0.5, 3, infinity}, 1, 0},
    {"CdfBeta", {0, 3, infinity}, 1, 0},
    {"CdfBeta", {1, infinity, 3}, 1, 0},
    {"IdfBeta", {-0.1, 2, 3}, missing, 0},
    {"IdfBeta", {1.1, 2, 3}, missing, 0},
    {"IdfBeta", {0.5, -2, 3}, missing, 0},
    {"IdfBeta", {0.5, 2, -3}, missing, 0},
    {"IdfBeta", {0.5, 0, 0}, missing, 0},
    {"IdfBeta", {0.3, 0, 3}, 0, 0},
    {"IdfBeta", {0.3, 3, 0}, 1, 0},
    {"IdfBeta", {0.3, 3, infinity}, 0, 0},
    {"IdfBeta", {0.3, infinity, 3}, 1, 0},
    {"IdfBeta", {0, 2, 3}, 0, 0},
    // The odds are near the largest double.
    {"IdfBeta", {0.168060302734375, 1.2508678166857988e+188, 0.0002593994140625}, 1, 0},
    {"IdfBeta", {1, 2, 3}, 1, 0},
    {"CdfBin", {3, -1, 0.3}, missing, 1},
    {"CdfBin", {3, infinity, 0.3}, missing, 1},
    {"CdfBin", {3, 10, -0.1}, missing, 1},
    {"CdfBin", {3, 10, 1.1}, missing, 1},
    {"CdfBin", {nan, 10, 0.3}, nan, 1},
    {"CdfBin", {-1, 10, 0.3}, 0, 0},
    {"CdfBin", {-infinity, 10, 0.3}, 0, 0},
    {"CdfBin", {10, 10, 0.3}, 1, 0},
    {"CdfBin", {infinity, 10, 0.3}, 1, 0},
    {"CdfBin", {10.5, 10.5, 0.3}, 1, 0},
    {"CdfBin", {3, 10, 0}, 1, 0},
    {"CdfBin", {3, 10, 1}, 0, 0},
    {"CdfBin", {0, 0, 0.3}, 1, 0},
    {"CdfBin", {0, 5, 0.5}, 0.03125, 0},
    {"CdfBin", {26, 53, 0.5}, 0.5, 0},
    {"IdfBin", {-0.1, 10, 0.3}, missing, 1},
    {"IdfBin", {1.1, 10, 0.3}, missing, 1},
    {"IdfBin", {0.5, -1, 0.3}, missing, 1},
    {"IdfBin", {0.5, infinity, 0.3}, missing, 1},
    {"IdfBin", {0.5, 10, 1.1}, missing, 1},
    {"IdfBin", {0.5, 10, nan}, nan, 1},
    {"IdfBin", {1, 10, 0.3}, 10, 0},
    {"IdfBin", {1, 10.5, 0.3}, 10.5, 0},
    {"IdfBin", {0, 10, 0.3}, -1, 0},
    {"IdfBin", {0.001, 5, 0.5}, -1, 0},
    {"IdfBin", {0.03125, 5, 0.5}, 0, 0},
    {"IdfBin", {0.5, 0, 0.3}, -1, 0},
    {"IdfBin", {0.5, 10, 0}, -1, 0},
    {"IdfBin", {0.5, 10, 1}, 9, 0},
    {"PdfBin", {3, -1, 0.3}, missing, 1},
    {"PdfBin", {3, infinity, 0.3}, missing, 1},
    {"PdfBin", {3, 10, 1.1}, missing, 1},
    {"PdfBin", {3, nan, 0.3}, nan, 1},
    {"PdfBin", {-1, 10, 0.3}, 0, 0},
    {"PdfBin", {11, 10, 0.3}, 0, 0},
    {"PdfBin", {0, 10, 0}, 1, 0},
    {"PdfBin", {3, 10, 0}, 0, 0},
    {"PdfBin", {10, 10, 1}, 1, 0},
    {"PdfBin", {9, 10, 1}, 0, 0},
    {"PdfBin", {0, 0, 0.3}, 1, 0},
    {"PdfNegBin", {3, 0, 0.3}, missing, 1},
    {"PdfNegBin", {3, -2, 0.3}, missing, 1},
    {"PdfNegBin", {3, 2, 0}, missing, 1},
    {"PdfNegBin", {3, 2, 1.1}, missing, 1},
    {"PdfNegBin", {nan, 2, 0.3}, nan, 1},
    {"PdfNegBin", {-1, 2, 0.3}, 0, 0},
    {"PdfNegBin", {0, 2, 1}, 1, 0},
    {"PdfNegBin", {3, 2, 1}, 0, 0},
    {"PdfNegBin", {0, 2, 0.25}, 0.0625, 0},
    {"orvadnlgam", {1}, 0, 0},
    {"orvadnlgam", {2}, 0, 0},
    {"orvadnlgam", {0}, infinity, 0},
    {"orvadnlgam", {-3}, infinity, 0},
    {"orvadnlgam", {infinity}, infinity, 0},
    {"orvadnlgam", {-infinity}, infinity, 0},
    {"orvadnlgam", {nan}, nan, 0},
    {"CdfGamma", {1, 0}, missing, 0},
    {"CdfGamma", {1, -2}, missing, 0},
    {"CdfGamma", {-1, 0}, missing, 0},
    {"CdfGamma", {0, 3}, 0, 0},
    {"CdfGamma", {-2, 3}, 0, 0},
    {"CdfGamma", {-infinity, 3}, 0, 0},
    {"CdfGamma", {missing, 3}, 0, 0},
    {"CdfGamma", {infinity, 3}, 1, 0},
    {"CdfGamma", {5, infinity}, 0, 0},
    {"CdfGamma", {infinity, infinity}, 0, 0},
    {"CdfGamma", {1e300, 1e299}, 1, 0},
    {"CdfGamma", {1e299, 1e300}, 0, 0},
    {"CdfGamma", {1e300, 1e300}, 0.5, 0},
    {"SfGamma", {1, 0}, missing, 0},
    {"SfGamma", {1, -2}, missing, 0},
    {"SfGamma", {-1, 0}, missing, 0},
    {"SfGamma", {0, 3}, 1, 0},
    {"SfGamma", {-2, 3}, 1, 0},
    {"SfGamma", {-infinity, 3}, 1, 0},
    {"SfGamma", {missing, 3}, 1, 0},
    {"SfGamma", {infinity, 3}, 0, 0},
    {"SfGamma", {5, infinity}, 1, 0},
    {"SfGamma", {infinity, infinity}, 1, 0},
    {"SfGamma", {1e300, 1e299}, 0, 0},
    {"SfGamma", {1e299, 1e300}, 1, 0},
    {"SfGamma", {1e300, 1e300}, 0.5, 0},
    {"CdfChiSquare", {1, 0}, missing, 0},
    {"CdfChiSquare", {1, -2}, missing, 0},
    {"CdfChiSquare", {-1, 0}, missing, 0},
    {"CdfChiSquare", {0, 3}, 0, 0},
    {"CdfChiSquare", {-2, 3}, 0, 0},
    {"CdfChiSquare", {-infinity, 3}, 0, 0},
    {"CdfChiSquare", {missing, 3}, 0, 0},
    {"CdfChiSquare", {infinity, 3}, 1, 0},
    {"CdfChiSquare", {5, infinity}, 0, 0},
    {"CdfChiSquare", {infinity, infinity}, 0, 0},
    {"CdfChiSquare", {1e300, 1e299}, 1, 0},
    {"CdfChiSquare", {1e299, 1e300}, 0, 0},
    {"CdfChiSquare", {1e300, 1e300}, 0.5, 0},
    {"SfChiSquare", {1, 0}, missing, 0},
    {"SfChiSquare", {1, -2}, missing, 0},
    {"SfChiSquare", {-1, 0}, missing, 0},
    {"SfChiSquare", {0, 3}, 1, 0},
    {"SfChiSquare", {-2, 3}, 1, 0},
    {"SfChiSquare", {-infinity, 3}, 1, 0},
    {"SfChiSquare", {missing, 3}, 1, 0},
    {"SfChiSquare", {infinity, 3}, 0, 0},
    {"SfChiSquare", {5, infinity}, 1, 0},
    {"SfChiSquare", {infinity, infinity}, 1, 0},
    {"SfChiSquare", {1e300, 1e299}, 0, 0},
    {"SfChiSquare", {1e299, 1e300}, 1, 0},
    {"SfChiSquare", {1e300, 1e300}, 0.5, 0},
    {"IdfGamma", {-0.1, 3}, missing, 0},
    {"IdfGamma", {1.1, 3}, missing, 0},
    {"IdfGamma", {0.5, 0}, missing, 0},
    {"IdfGamma", {0.5, -1}, missing, 0},
    {"IdfGamma", {0, 3}, 0, 0},
    {"IdfGamma", {1, 3}, infinity, 0},
    {"IdfGamma", {0.5, infinity}, infinity, 0},
    {"IsfGamma", {-0.1, 3}, missing, 0},
    {"IsfGamma", {1.1, 3}, missing, 0},
    {"IsfGamma", {0.5, 0}, missing, 0},
    {"IsfGamma", {0.5, -1}, missing, 0},
    {"IsfGamma", {0, 3}, infinity, 0},
    {"IsfGamma", {1, 3}, 0, 0},
    {"IsfGamma", {0.5, infinity}, infinity, 0},
    {"IdfChiSquare", {-0.1, 3}, missing, 0},
    {"IdfChiSquare", {1.1, 3}, missing, 0},
    {"IdfChiSquare", {0.5, 0}, missing, 0},
    {"IdfChiSquare", {0.5, -1}, missing, 0},
    {"IdfChiSquare", {0, 3}, 0, 0},
    {"IdfChiSquare", {1, 3}, infinity, 0},
    {"IdfChiSquare", {0.5, infinity}, infinity, 0},
    {"IsfChiSquare", {-0.1, 3}, missing, 0},
    {"IsfChiSquare", {1.1, 3}, missing, 0},
    {"IsfChiSquare", {0.5, 0}, missing, 0},
    {"IsfChiSquare", {0.5, -1}, missing, 0},
    {"IsfChiSquare", {0, 3}, infinity, 0},
    {"IsfChiSquare", {1, 3}, 0, 0},
    {"IsfChiSquare", {0.5, infinity}, infinity, 0},
    {"NonCentralCdfChiSquare", {1, 0, 2}, missing, 0},
    {"NonCentralCdfChiSquare", {1, 3, -1}, missing, 0},
    {"NonCentralCdfChiSquare", {1, 3, -1e-300}, missing, 0},
    {"NonCentralCdfChiSquare", {-1, 0, 2}, missing, 0},
    {"NonCentralCdfChiSquare", {0, 3, 2}, 0, 0},
    {"NonCentralCdfChiSquare", {-2, 3, 2}, 0, 0},
    {"NonCentralCdfChiSquare", {infinity, 3, 2}, 1, 0},
    {"NonCentralCdfChiSquare", {5, 3, infinity}, 0, 0},
    {"NonCentralCdfChiSquare", {5, infinity, 2}, 0, 0},
    {"NonCentralCdfChiSquare", {1e300, 1e280, 1e299}, 1, 0},
    {"NonCentralCdfChiSquare", {1e299, 1e280, 1e300}, 0, 0},
    {"NonCentralSfChiSquare", {1, 0, 2}, missing, 0},
    {"NonCentralSfChiSquare", {1, 3, -1}, missing, 0},
    {"NonCentralSfChiSquare", {1, 3, -1e-300}, missing, 0},
    {"NonCentralSfChiSquare", {-1, 0, 2}, missing, 0},
    {"NonCentralSfChiSquare", {0, 3, 2}, 1, 0},
    {"NonCentralSfChiSquare", {-2, 3, 2}, 1, 0},
    {"NonCentralSfChiSquare", {infinity, 3, 2}, 0, 0},
    {"NonCentralSfChiSquare", {5, 3, infinity}, 1, 0},
    {"NonCentralSfChiSquare", {5, infinity, 2}, 1, 0},
    {"NonCentralSfChiSquare", {1e300, 1e280, 1e299}, 0, 0},
    {"NonCentralSfChiSquare", {1e299, 1e280, 1e300}, 1, 0},
    {"NonCentralityChiSquare", {-0.1, 3, 2}, missing, 0},
    {"NonCentralityChiSquare", {1.1, 3, 2}, missing, 0},
    {"NonCentralityChiSquare", {0.5, 0, 2}, missing, 0},
    {"NonCentralityChiSquare", {0.5, infinity, 2}, missing, 0},
    {"NonCentralityChiSquare", {0.5, 3, 0}, missing, 0},
    {"NonCentralityChiSquare", {0.5, 3, infinity}, missing, 0},
    {"NonCentralityChiSquare", {0.05, 3.8, 1}, missing, 0},
    {"NonCentralityChiSquare", {1, 3, 2}, infinity, 0},
    {"PdfPoisson", {3, -1}, missing, 0},
    {"PdfPoisson", {-1, 2}, 0, 0},
    {"PdfPoisson", {0, 0}, 1, 0},
    {"PdfPoisson", {3, 0}, 0, 0},
    {"PdfPoisson", {3, infinity}, 0, 0},
    {"PdfPoisson", {infinity, 3}, 0, 0},
    {"CdfPoisson", {3, -1}, missing, 0},
    {"CdfPoisson", {-1, 2}, 0, 0},
    {"CdfPoisson", {0, 0}, 1, 0},
    {"CdfPoisson", {3, infinity}, 0, 0},
    {"CdfPoisson", {infinity, 3}, 1, 0},
    {"CdfPoisson", {infinity, infinity}, 1, 0},
    {"SfPoisson", {3, -1}, missing, 0},
    {"SfPoisson", {-1, 2}, 1, 0},
    {"SfPoisson", {0, 0}, 0, 0},
    {"SfPoisson", {3, infinity}, 1, 0},
    {"SfPoisson", {infinity, 3}, 0, 0},
    {"IdfPoisson", {-0.1, 3}, missing, 0},
    {"IdfPoisson", {1.1, 3}, missing, 0},
    {"IdfPoisson", {0.5, -1}, missing, 0},
    {"IdfPoisson", {0, 3}, -1, 0},
    {"IdfPoisson", {1, 3}, infinity, 0},
    {"IdfPoisson", {0.5, 0}, -1, 0},
    {"IdfPoisson", {0.5, infinity}, infinity, 0},
    {"IdfPoisson", {0.9, 0.01}, -1, 0},
    {"CdfCorrelation", {0.1, 2, 0.3}, missing, 0},
    {"CdfCorrelation", {0.1, 10, -1.5}, missing, 0},
    {"CdfCorrelation", {2, 10, 1.5}, missing, 0},
    {"CdfCorrelation", {-1, 10, 0.3}, 0, 0},
    {"CdfCorrelation", {-infinity, 10, 0.3}, 0, 0},
    {"CdfCorrelation", {1, 10, 0.3}, 1, 0},
    {"CdfCorrelation", {infinity, 10, 0.3}, 1, 0},
    {"CdfCorrelation", {0.29, infinity, 0.3}, 0, 0},
    {"CdfCorrelation", {0.3, infinity, 0.3}, 1, 0},
    {"CdfCorrelation", {0.99, 10, 1}, 0, 0},
    {"CdfCorrelation", {-1, 10, -1}, 1, 0},
    {"SfCorrelation", {0.1, 2, 0.3}, missing, 0},
    {"SfCorrelation", {0.1, 10, 1.5}, missing, 0},
    {"SfCorrelation", {-1, 10, 0.3}, 1, 0},
    {"SfCorrelation", {1, 10, 0.3}, 0, 0},
    {"SfCorrelation", {0.29, infinity, 0.3}, 1, 0},
    {"SfCorrelation", {0.3, infinity, 0.3}, 0, 0},
    {"SfCorrelation", {0.99, 10, 1}, 1, 0},
    {"IdfCorrelation", {-0.1, 10, 0.3}, missing, 0},
    {"IdfCorrelation", {1.1, 10, 0.3}, missing, 0},
    {"IdfCorrelation", {0.5, 2, 0.3}, missing, 0},
    {"IdfCorrelation", {0.5, 10, 1.5}, missing, 0},
    {"IdfCorrelation", {0, 10, 0.3}, -1, 0},
    {"IdfCorrelation", {1, 10, 0.3}, 1, 0},
    {"IdfCorrelation", {0.5, 10, 0}, 0, 0},
    {"IdfCorrelation", {0.1, infinity, 0.3}, 0.3, 0},
    {"IdfCorrelation", {0.1, 10, -1}, -1, 0},
    {"IdfCorrelation", {1e-100, 2.5, 0.3}, -1, 0},
};

TEST(Contract, GivesTheStatedAnswers) {
  for (const ContractRow& row : contractRows) {
    const Outcome outcome = FindFunction(row.function).call(row.arguments);
    const ReferenceRow described{row.function, "", row.arguments, row.value, row.err, ""};
    SCOPED_TRACE(described.function + "(" + Describe(described) + ")");
    if (std::isnan(row.value))
      EXPECT_TRUE(std::isnan(outcome.value));
    else
      EXPECT_EQ(outcome.value, row.value);
    EXPECT_EQ(outcome.err, row.err);
  }
}

// The trailing arguments of these functions are tuning arguments, which are not looked at.
int ArgumentsThatCount(const Function& function) {
  if (function.name == "IdfT") return 2;
  if (function.name == "NonCentralCdfT") return 3;
  if (function.name == "NonCentralCdfF") return 4;
  return function.arity;
}

TEST(Contract, NanInAnyArgumentGivesNan) {
  for (const Function& function : Functions())
    for (int i = 0; i < ArgumentsThatCount(function); ++i)
      for (const double others : {0.5, 3.0, -1.0, 0.0, 1.0, infinity}) {
        Arguments arguments;
        arguments.fill(others);
        arguments[static_cast<std::size_t>(i)] = nan;
        EXPECT_TRUE(std::isnan(function.call(arguments).value))
            << function.name << ", argument " << i << ", " << others;
      }
}

TEST(Contract, TuningArgumentsChangeNothing) {
  EXPECT_EQ(KelDistFun::IdfT(0.975, 17, 1e-40, 1e-30), KelDistFun::IdfT(0.975, 17, nan, -1));
  EXPECT_EQ(KelDistFun::NonCentralCdfT(2, 17, 1.5, 1e-12), KelDistFun::NonCentralCdfT(2, 17, 1.5, nan));
  EXPECT_EQ(KelDistFun::NonCentralCdfF(2, 3, 17, 1.5, 1e-12), KelDistFun::NonCentralCdfF(2, 3, 17, 1.5, nan));
}

TEST(Missing, IsTheMostNegativeDoubleAndNothingElse) {
  EXPECT_EQ(KelMV::Missing(), -1.7976931348623157e308);
  EXPECT_TRUE(KelMV::IsMissing(KelMV::Missing()));
  EXPECT_FALSE(KelMV::IsMissing(std::nextafter(KelMV::Missing(), 0)));
  EXPECT_FALSE(KelMV::IsMissing(-infinity));
  EXPECT_FALSE(KelMV::IsMissing(nan));
  EXPECT_FALSE(KelMV::IsMissing(-1));
}

// A shape beyond 1e290 puts all mass at its own end, at moderate points too.
TEST(Contract, HugeShapesGiveSteps) {
  for (double x : {0.081865809296115172, 0.2, 0.45, 0.8}) {
    EXPECT_EQ(KelDistFun::CdfBeta(x, 17048.885118005728, 4.9166453185029568e290), 1) << x;
    EXPECT_EQ(KelDistFun::CdfBeta(x, 4.9166453185029568e290, 17048.885118005728), 0) << x;
  }
}

}  // namespace
