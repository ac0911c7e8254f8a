#ifndef KELPOWER_CLI_ROFF_H
#define KELPOWER_CLI_ROFF_H

#include <string>
#include <string_view>
#include <vector>

/// A manual page in the macros of man(7), which groff and mandoc read. Its functions take text with the escapes that
/// `Prose`, `Literal`, `Bold` and `Italic` make.
class ManPage {
public:
  /// `date` and `version` stand in the foot.
  ManPage(const std::string& name, const std::string& date, const std::string& version);

  void Section(std::string_view title);
  void Subsection(const std::string& title);
  void Paragraph(const std::string& text);
  /// A term, and what is said of it, indented.
  void Item(const std::string& term, const std::string& text);
  /// Lines without space between them, of which each is indented where it goes on.
  void Lines(const std::vector<std::string>& lines);
  /// A command to be typed.
  void Command(const std::string& command);

  const std::string& Text() const { return text_; }

private:
  void Line(const std::string& text);
  void BeginParagraph();

  std::string text_;
  bool isBegun_ = true;  // a heading begins a paragraph by itself
};

/// Text to be read: hyphens join words, and stand as they are in options and before numbers.
std::string Prose(std::string_view text);

/// Text to be typed as it stands.
std::string Literal(std::string_view text);

std::string Bold(std::string_view literal);
std::string Italic(std::string_view literal);

#endif
