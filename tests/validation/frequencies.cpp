#include "kelcommon/distributions.h"
#include "validation/counts.h"

// Tests of the frequencies of categories.
namespace kelpower::validation {

Study OfGoodnessOfFit(Inputs& inputs) {
  const auto n = static_cast<long>(inputs.Number("n"));
  const Numbers proportions = Scaled(inputs.List("proportions"));
  const auto categories = static_cast<double>(proportions.size());
  const Numbers null = inputs.Has("null-proportions") ? Scaled(inputs.List("null-proportions"))
                                                      : Numbers(proportions.size(), 1 / categories);
  const double critical = kelcommon::IsfChiSquare(inputs.Alpha(), categories - 1);
  const bool isLikelihoodRatio = inputs.Flag("likelihood-ratio");
  return OfCounts(false, {{n, proportions}}, [=](const Numbers& counts) {
    const TableStatistics found = OfFit(counts, null, static_cast<double>(n));
    return (isLikelihoodRatio ? found.likelihoodRatio : found.pearson) > critical;
  });
}

/// Profiles are groups of fixed sizes; a table is one sample.
Study OfContingency(Inputs& inputs) {
  const double n = inputs.Number("n");
  const auto rows = static_cast<std::size_t>(inputs.Number("rows"));
  const bool hasProfiles = inputs.Has("profiles");
  const Numbers cells = inputs.List(hasProfiles ? "profiles" : "table");
  const std::size_t columns = cells.size() / rows;
  std::vector<CountedGroup> groups;
  if (hasProfiles) {
    const Numbers shares = Scaled(inputs.Has("ratios") ? inputs.List("ratios") : Numbers(rows, 1));
    for (std::size_t row = 0; row < rows; ++row) {
      const auto from = cells.begin() + static_cast<std::ptrdiff_t>(row * columns);
      groups.push_back({std::lround(n * shares[row]), Scaled({from, from + static_cast<std::ptrdiff_t>(columns)})});
    }
  } else {
    groups.push_back({static_cast<long>(n), Scaled(cells)});
  }
  const double df = (static_cast<double>(rows) - 1) * (static_cast<double>(columns) - 1);
  const double critical = kelcommon::IsfChiSquare(inputs.Alpha(), df);
  const bool isLikelihoodRatio = inputs.Flag("likelihood-ratio");
  return OfCounts(false, groups, [=](const Numbers& counts) {
    const TableStatistics found = OfTable(counts, rows, n);
    return (isLikelihoodRatio ? found.likelihoodRatio : found.pearson) > critical;
  });
}

Study OfOrdinal(Inputs& inputs) {
  const Numbers n = inputs.PerGroup("n", 2);
  const Numbers first = Scaled(inputs.List("probabilities1"));
  const Numbers second =
      inputs.Has("odds-ratio") ? Moved(first, inputs.Number("odds-ratio")) : Scaled(inputs.List("probabilities2"));
  inputs.Choice("method", "");  // says how the power is approximated
  double superiority = 0;
  double below = 0;
  for (std::size_t i = 0; i < first.size(); ++i) {
    superiority += first[i] * (below + second[i] / 2);
    below += second[i];
  }
  const Rejection rejects =
      SymmetricRejection(inputs.Alpha(), inputs.Flag("one-sided"), superiority - 0.5, UpperNormal);
  return OfCounts(false, {{static_cast<long>(n[0]), first}, {static_cast<long>(n[1]), second}},
                  [=](const Numbers& counts) { return rejects(RankZ(counts)); });
}

}  // namespace kelpower::validation
