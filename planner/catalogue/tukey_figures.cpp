#include <algorithm>

#include "catalogue/tukey.h"

namespace planner {

AskedPair PairOf(const Inputs& in) {
  if (!in.Has("pair")) return {0, 1};
  return {static_cast<std::size_t>(in.List("pair")[0]) - 1, static_cast<std::size_t>(in.List("pair")[1]) - 1};
}

bool IsAboutOnePair(const Inputs& in) { return in.Has("pair") || in.Groups() == 2; }

Numbers MeansOfTukey(const Inputs& in) {
  Numbers means;
  if (in.Has("means")) {
    means = in.List("means");
    for (double& mean : means) mean /= in.Number("sd");
  } else {
    means.assign(static_cast<std::size_t>(in.Groups()), in.Number("effect-d") / 2);
    means.front() = 0;
    means.back() = in.Number("effect-d");
  }
  return means;
}

double EffectOfTukeyPair(const Inputs& in) {
  if (!in.Has("means")) return in.Number("effect-d");
  const AskedPair pair = PairOf(in);
  return (in.List("means")[pair.first] - in.List("means")[pair.second]) / in.Number("sd");
}

bool AreEqual(const Inputs& in, Name list) {
  if (!in.Has(list)) return true;
  const Numbers& numbers = in.List(list);
  return std::all_of(numbers.begin(), numbers.end(), [&](double number) { return number == numbers.front(); });
}

}  // namespace planner
