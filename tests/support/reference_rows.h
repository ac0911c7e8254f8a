#ifndef KELPOWER_TESTS_SUPPORT_REFERENCE_ROWS_H
#define KELPOWER_TESTS_SUPPORT_REFERENCE_ROWS_H

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace kelpower {

/// The numbers of a file of references: a header, then rows of numbers separated by commas. Empty where a row has not
/// as many as the header.
inline std::vector<std::vector<double>> ReferenceRows(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::vector<std::vector<double>> rows;
  std::size_t columns = 0;
  while (std::getline(file, line)) {
    std::istringstream cells(line);
    std::string cell;
    std::vector<double> row;
    if (columns == 0) {
      while (std::getline(cells, cell, ',')) ++columns;
      continue;
    }
    while (std::getline(cells, cell, ',')) row.push_back(std::stod(cell));
    if (row.size() != columns) return {};
    rows.push_back(row);
  }
  return rows;
}

}  // namespace kelpower

#endif
