#ifndef KELPOWER_TOOLS_ACCURACY_SEARCHES_H
#define KELPOWER_TOOLS_ACCURACY_SEARCHES_H

#include <map>
#include <string>

#include "reference_table.h"

/// How a region was searched for its largest errors; by tools/references/search_worst.py.
struct Search {
  std::string evaluations;  ///< how many points were tried
  std::string seeds;
  std::string ranges;  ///< of the arguments, as far as the name of the region leaves them open
};

/// The searches in tests/kelcommon/references/searched.csv.
std::map<FunctionRegion, Search> ReadSearches(const std::string& path);

#endif
