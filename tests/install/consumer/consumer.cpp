// A program outside the project that uses every public header of an installation.

#include <kelcommon/kel_dist_fun.h>
#include <kelcommon/kel_mv.h>
#include <kelpower.h>

#include <cstdio>

#ifdef BOOST_VERSION
#error "a public header includes Boost"
#endif

int main() {
  const double means[] = {50, 54, 57};
  const double ratios[] = {1, 1, 2};
  DoubleVector sizes;
  const double total = PowerReverseOverallTest(3, means, 10, ratios, 0.9, sizes, 0.05);
  std::printf("sizes %g = %g + %g + %g\n", total, sizes.at(0), sizes.at(1), sizes.at(2));

  std::printf("power %.6f\n", PowerOverallTest(3, means, 10, sizes.data(), 0.05));
  std::printf("missing %d\n", KelCommon::KelMV::IsMissing(PowerOverallTest(1, means, 10, sizes.data(), 0.05)));
  std::printf("normal %.6f\n", KelMath::KelDistFun::IdfStdNorm(0.975));

  XYPlot curve = PlotNOverallTest(3, means, 10, sizes.data(), 30, 60, 0.05);
  std::printf("curve %d\n", curve.count);
  FreeMemXYPlot(&curve);
}
