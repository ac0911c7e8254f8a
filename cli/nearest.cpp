#include "nearest.h"

#include <algorithm>
#include <numeric>

namespace {

/// Levenshtein's distance, one row of his table at a time.
std::size_t Distance(const std::string& from, const std::string& to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

/// The letters without the dashes before an option.
std::size_t Letters(const std::string& word) {
  return word.size() - std::min(word.find_first_not_of('-'), word.size());
}

}  // namespace

std::string Nearest(const std::string& typed, const std::vector<std::string>& words) {
  constexpr std::size_t longestTypo = 64;
  if (typed.size() > longestTypo) return "";
  std::string nearest;
  std::size_t least = 3;  // more letters off than two is another word
  for (const std::string& word : words) {
    const std::size_t distance = Distance(typed, word);
    if (distance >= least || 2 * distance >= Letters(word)) continue;
    least = distance;
    nearest = word;
  }
  return nearest;
}
