#include "pictures/svg.h"

namespace planner {
namespace {

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (char letter : text) {
    switch (letter) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      default: escaped += letter;
    }
  }
  return escaped;
}

/// Takes out the first element of that name.
void Remove(std::string& svg, const std::string& element) {
  const std::string end = "</" + element + ">";
  const std::size_t from = svg.find("<" + element + ">");
  const std::size_t to = svg.find(end);
  if (from != std::string::npos && to != std::string::npos && from < to) svg.erase(from, to + end.size() - from);
}

}  // namespace

// Gnuplot draws all pictures alike, and stays right where its fonts and margins change. Its SVG has a title and a
// description for the program that wrote it, which readers aloud would read out.
std::string WithTitleAndDescription(const std::string& svg, const std::string& title, const std::string& description) {
  std::string named = svg;
  Remove(named, "title");
  Remove(named, "desc");
  const std::size_t start = named.find("<svg");
  const std::size_t end = start == std::string::npos ? start : named.find('>', start);
  if (end == std::string::npos) return svg;
  named.insert(end + 1, "\n<title id=\"title\">" + Escaped(title) + "</title>\n<desc id=\"description\">" +
                            Escaped(description) + "</desc>");
  named.insert(end, " role=\"img\" aria-labelledby=\"title description\"");
  return named;
}

}  // namespace planner
