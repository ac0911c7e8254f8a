#include "frame/integral.h"

#include <cmath>

namespace kelpower {

namespace {

constexpr int mostHalvings = 30;
constexpr int mostPieces = 3000;

constexpr int pairs = 7;
constexpr double centreKronrod = 0.209482141084727828012999174891714;
constexpr double centreGauss = 0.417959183673469387755102040816327;

/// A pair of nodes +-x on [-1, 1] with its weights; that of Gauss is 0 where the node is not his.
struct NodePair {
  double x;
  double kronrod;
  double gauss;
};

constexpr NodePair nodes[pairs] = {
    {0.991455371120812639206854697526329, 0.022935322010529224963732008058970, 0},
    {0.949107912342758524526189684047851, 0.063092092629978553290700663189204, 0.129484966168869693270611432679082},
    {0.864864423359769072789712788640926, 0.104790010322250183839876322541518, 0},
    {0.741531185599394439863864773280788, 0.140653259715525918745189590510238, 0.279705391489276667901467771423780},
    {0.586087235467691130294144691258379, 0.169004726639267902826583426598550, 0},
    {0.405845151377397166906606412076961, 0.190350578064785409913256402421014, 0.381830050505118944950369775488975},
    {0.207784955007898467600689403773245, 0.204432940075298892414161999234649, 0}};

class Halving {
public:
  Halving(FunctionView<double(double)> f, double tolerance) : f_(f), tolerance_(tolerance) {}

  Integral Over(double from, double to, int depth) {
    const double half = (to - from) / 2;
    const double centre = from + half;
    const double atCentre = f_(centre);
    double kronrod = centreKronrod * atCentre;
    double gauss = centreGauss * atCentre;
    for (const NodePair& node : nodes) {
      const double sum = f_(centre - half * node.x) + f_(centre + half * node.x);
      kronrod += node.kronrod * sum;
      gauss += node.gauss * sum;
    }
    const double error = std::fabs((kronrod - gauss) * half);
    ++pieces_;
    if (!(error > tolerance_) || depth == mostHalvings || pieces_ >= mostPieces) return {kronrod * half, error};
    const Integral left = Over(from, centre, depth + 1);
    const Integral right = Over(centre, to, depth + 1);
    return {left.value + right.value, left.error + right.error};
  }

private:
  FunctionView<double(double)> f_;
  double tolerance_;
  int pieces_ = 0;
};

}  // namespace

Integral Integrate(FunctionView<double(double)> f, double from, double to, double tolerance) {
  return Halving(f, tolerance).Over(from, to, 0);
}

}  // namespace kelpower
