#include "searches.h"

#include <fstream>
#include <sstream>

std::map<FunctionRegion, Search> ReadSearches(const std::string& path) {
  std::map<FunctionRegion, Search> searches;
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    std::stringstream stream(line);
    FunctionRegion key;
    Search search;
    std::getline(stream, key.first, ',');
    std::getline(stream, key.second, ',');
    std::getline(stream, search.evaluations, ',');
    std::getline(stream, search.seeds, ',');
    std::getline(stream, search.ranges, ',');
    searches[key] = search;
  }
  return searches;
}
