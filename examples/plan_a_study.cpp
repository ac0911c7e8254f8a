// Three teaching methods are expected to lead to mean scores of 50, 54 and 57, with a standard deviation of 10.
#include <cstdio>

#include "kelpower.h"

int main() {
  const double means[] = {50, 54, 57};
  const double pooledSD = 10;
  const double alpha = 0.05;

  const double twentyEach[] = {20, 20, 20};
  std::printf("power with 20 a group: %.4f\n", PowerOverallTest(3, means, pooledSD, twentyEach, alpha));

  // The first method is the usual one and gets twice as many pupils as each of the others.
  const double ratios[] = {2, 1, 1};
  DoubleVector sizes;
  const double total = PowerReverseOverallTest(3, means, pooledSD, ratios, 0.9, sizes, alpha);
  std::printf("for a power of 0.9: %.0f + %.0f + %.0f = %.0f pupils\n", sizes[0], sizes[1], sizes[2], total);
  std::printf("power with these: %.4f\n", PowerOverallTest(3, means, pooledSD, sizes.data(), alpha));
}
