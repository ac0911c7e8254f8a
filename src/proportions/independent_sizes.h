#ifndef KELPOWER_PROPORTIONS_INDEPENDENT_SIZES_H
#define KELPOWER_PROPORTIONS_INDEPENDENT_SIZES_H

#include "frame/answer.h"
#include "frame/function_view.h"
#include "frame/stop.h"
#include "proportions/independent_design.h"

// The sizes of two groups that give a test of two independent proportions a power.

namespace kelpower::proportions {

/// The two proportions, and what is wanted of their group sizes.
struct IndependentSizes {
  double p1;
  double p2;
  double ratio;  ///< the size of group 2 over that of group 1
};

/// The size of group 1 from which on the arcsine test is valid.
double FirstArcsineSize(const IndependentSizes& wanted);

/// Whether the power of a test for large samples is known never to fall as the groups grow from two subjects in group 1
/// on.
bool NeverFalls(const IndependentDesign& design, double ratio);

/// The size of group 1, unrounded, at which `powerAt` reaches `power`.
Answer FirstSizeForPower(double lower, double upper, FunctionView<double(double size1)> powerAt, bool neverFalls,
                         double power, Stop stop);

/// The whole size of group 2 that goes with a whole one of group 1: at least one subject.
double WholeSecondSize(double ratio, double size1);

/// A power at two sizes, or a number that says why there is none.
using PowerOfSizes = FunctionView<double(double size1, double size2)>;

/// The search for the sizes of an exact test. Its power is not monotone in them, so this looks for a real size first,
/// then for smaller ones below it, and goes up from the smallest in ones.
struct ExactSizeSearch {
  PowerOfSizes searched;  ///< what the search of real sizes goes by
  PowerOfSizes reached;   ///< what whole sizes must reach
  double ratio;           ///< the size of group 2 over that of group 1
  double power;
  Stop stop;

  /// The size of group 1, unrounded.
  Answer FirstSize(double lower, double upper) const;

  /// The whole size of group 1 that is found from an earlier one. Uncountable where the power is not reached before the
  /// tables can no longer be counted.
  Answer WholeFirstSize(double earlier) const;

private:
  Answer SmallestFound(double size1) const;
};

/// The size of group 1 at which a test reaches `power`: unrounded of a test for large samples, whole of an exact one.
/// Group 2 has at least one subject. The search of the conditional test goes by the z test until its last steps,
/// because that counts rows instead of tables.
Answer FirstSizeForPower(const IndependentDesign& design, const IndependentSizes& wanted, double power, Stop stop = {});

}  // namespace kelpower::proportions

#endif
