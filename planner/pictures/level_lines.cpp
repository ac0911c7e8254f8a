#include "pictures/level_lines.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <set>

namespace planner {
namespace {

/// Marching squares: each cell joins the crossings on its edges, and crossings that cells share make the lines.
class Tracer {
public:
  Tracer(const Series& surface, double level) : surface_(surface), level_(level) {
    for (std::size_t i = 0; i + 1 < surface.x.size(); ++i) {
      for (std::size_t j = 0; j + 1 < surface.y.size(); ++j) JoinCrossings(i, j);
    }
  }

  /// Open lines first, from their ends; what is left is closed.
  std::vector<Line> Lines() {
    std::vector<Line> lines;
    for (const auto& [edge, neighbours] : joined_) {
      if (neighbours.size() == 1 && !seen_.count(edge)) lines.push_back(LineFrom(edge));
    }
    for (const auto& [edge, neighbours] : joined_) {
      if (seen_.count(edge)) continue;
      Line line = LineFrom(edge);
      line.x.push_back(line.x.front());
      line.y.push_back(line.y.front());
      lines.push_back(line);
    }
    return lines;
  }

private:
  using Edge = std::size_t;  // twice the number of its first point, and one more where it runs along y

  std::size_t Number(std::size_t i, std::size_t j) const { return i * surface_.y.size() + j; }
  Edge AlongX(std::size_t i, std::size_t j) const { return 2 * Number(i, j); }
  Edge AlongY(std::size_t i, std::size_t j) const { return 2 * Number(i, j) + 1; }
  std::size_t Next(Edge edge) const { return edge / 2 + (edge % 2 == 1 ? 1 : surface_.y.size()); }

  bool IsCrossed(Edge edge) const {
    return (surface_.value[edge / 2] < level_) != (surface_.value[Next(edge)] < level_);
  }

  void JoinCrossings(std::size_t i, std::size_t j) {
    double sum = 0;
    for (std::size_t corner : {Number(i, j), Number(i + 1, j), Number(i, j + 1), Number(i + 1, j + 1)}) {
      if (std::isnan(surface_.value[corner])) return;
      sum += surface_.value[corner];
    }
    std::vector<Edge> crossed;
    for (Edge edge : {AlongX(i, j), AlongY(i + 1, j), AlongX(i, j + 1), AlongY(i, j)}) {
      if (IsCrossed(edge)) crossed.push_back(edge);
    }
    // On a saddle the corners that are on the side of the middle belong together: lines cut off the other two.
    const bool isMiddleLow = sum / 4 < level_;
    const bool isFirstLow = surface_.value[Number(i, j)] < level_;
    if (crossed.size() == 4 && isMiddleLow != isFirstLow)
      std::rotate(crossed.begin(), crossed.begin() + 3, crossed.end());
    for (std::size_t k = 0; k + 1 < crossed.size(); k += 2) {
      joined_[crossed[k]].push_back(crossed[k + 1]);
      joined_[crossed[k + 1]].push_back(crossed[k]);
    }
  }

  void AddPoint(Line& line, Edge edge) {
    const std::size_t rows = surface_.y.size();
    const std::size_t a = edge / 2;
    const std::size_t b = Next(edge);
    const double share = (level_ - surface_.value[a]) / (surface_.value[b] - surface_.value[a]);
    line.x.push_back(std::lerp(surface_.x[a / rows], surface_.x[b / rows], share));
    line.y.push_back(std::lerp(surface_.y[a % rows], surface_.y[b % rows], share));
    seen_.insert(edge);
  }

  Line LineFrom(Edge edge) {
    Line line;
    for (bool goesOn = true; goesOn;) {
      AddPoint(line, edge);
      goesOn = false;
      for (Edge next : joined_.at(edge)) {
        if (seen_.count(next)) continue;
        edge = next;
        goesOn = true;
        break;
      }
    }
    return line;
  }

  const Series& surface_;
  double level_;
  std::map<Edge, std::vector<Edge>> joined_;
  std::set<Edge> seen_;
};

}  // namespace

std::vector<Line> LevelLines(const Series& surface, double level) { return Tracer(surface, level).Lines(); }

}  // namespace planner
