#include "roff.h"

#include <cctype>

#include "format/format.h"

using planner::Formatted;

namespace {

bool IsDigit(char letter) { return std::isdigit(static_cast<unsigned char>(letter)) != 0; }
bool IsAlphanumeric(char letter) { return std::isalnum(static_cast<unsigned char>(letter)) != 0; }

/// Whether the dash at `at` joins two parts of a word or two numbers. The one of an exponent or an option does not.
bool IsHyphen(std::string_view word, std::size_t at) {
  if (at == 0 || !IsAlphanumeric(word[at - 1]) || word.find("--") != std::string_view::npos) return false;
  const bool isOfExponent = at > 1 && word[at - 1] == 'e' && IsDigit(word[at - 2]);
  return !isOfExponent;
}

std::string Escaped(char letter) {
  switch (letter) {
    case '\\': return "\\e";
    case '-': return "\\-";
    case '\'': return "\\(aq";
    case '`': return "\\(ga";
    case '^': return "\\(ha";
    case '~': return "\\(ti";
    default: return std::string(1, letter);
  }
}

}  // namespace

ManPage::ManPage(const std::string& name, const std::string& date, const std::string& version)
    : text_(Formatted(".TH {} 1 {} \"kelpower {}\" \"User Commands\"\n.ad l\n.nh\n", Literal(name), date, version)) {}

void ManPage::Section(std::string_view title) {
  text_ += Formatted(".SH {}\n", title);
  isBegun_ = true;
}

void ManPage::Subsection(const std::string& title) {
  text_ += Formatted(".SS {}\n", title);
  isBegun_ = true;
}

void ManPage::Paragraph(const std::string& text) {
  BeginParagraph();
  Line(text);
}

void ManPage::Item(const std::string& term, const std::string& text) {
  text_ += ".TP\n";
  Line(term);
  Line(text);
}

void ManPage::Lines(const std::vector<std::string>& lines) {
  text_ += ".PD 0\n";
  for (const std::string& line : lines) {
    text_ += ".HP 4\n";
    Line(line);
  }
  text_ += ".PD\n";
}

void ManPage::Command(const std::string& command) {
  BeginParagraph();
  text_ += ".RS 4\n";
  Line(Bold(command));
  text_ += ".RE\n";
}

void ManPage::BeginParagraph() {
  if (!isBegun_) text_ += ".PP\n";
}

/// A line that starts with a dot would be a macro.
void ManPage::Line(const std::string& text) {
  if (text.front() == '.') text_ += "\\&";
  text_ += text + '\n';
  isBegun_ = false;
}

std::string Prose(std::string_view text) {
  std::string roff;
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == ' ') start = at + 1;
    const std::string_view word = text.substr(start, text.find(' ', start) - start);
    const bool isHyphen = text[at] == '-' && IsHyphen(word, at - start);
    roff += isHyphen ? "-" : Escaped(text[at]);
  }
  return roff;
}

std::string Literal(std::string_view text) {
  std::string roff;
  for (char letter : text) roff += Escaped(letter);
  return roff;
}

std::string Bold(std::string_view literal) { return Formatted("\\fB{}\\fR", Literal(literal)); }
std::string Italic(std::string_view literal) { return Formatted("\\fI{}\\fR", Literal(literal)); }
