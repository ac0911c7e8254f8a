#ifndef KELPOWER_PLANNER_WORDS_JSON_WRITER_H
#define KELPOWER_PLANNER_WORDS_JSON_WRITER_H

#include <string>
#include <string_view>
#include <vector>

#include "model/value.h"

namespace planner {

/// How JSON is laid out: in one line without spaces, or a line for each entry.
enum class JsonLayout { Compact, Lines };

/// How names of inputs and results are spelt as keys: `effect-d`, or `effect_d` as languages have it.
enum class NameStyle { Dashes, Underscores };

std::string Spelt(std::string_view name, NameStyle style);

/// Writes JSON in place, without a document in memory. Numbers have the shortest digits that read back the same, whole
/// ones no decimal point; what is not finite is null.
class JsonWriter {
public:
  explicit JsonWriter(std::string& out, JsonLayout layout = JsonLayout::Compact, NameStyle names = NameStyle::Dashes)
      : out_(out), layout_(layout), names_(names) {}

  void OpenObject() { Open('{'); }
  void CloseObject() { Close('}'); }
  void OpenArray() { Open('['); }
  void CloseArray() { Close(']'); }

  void Key(std::string_view key);
  /// The key that is the name of an input or a result.
  void KeyOfName(std::string_view name) { Key(Spelt(name, names_)); }
  /// Such a name as a value.
  void Name(std::string_view name) { Text(Spelt(name, names_)); }

  void Text(std::string_view text);
  void Number(double number);
  void Flag(bool flag);
  void Null();
  void Of(const Value& value);
  void Of(const Numbers& numbers);
  /// JSON that stands written, of one value.
  void Written(std::string_view json);

  void Text(std::string_view key, std::string_view text) { Key(key), Text(text); }
  void TextUnlessEmpty(std::string_view key, std::string_view text) {
    if (!text.empty()) Text(key, text);
  }
  void Number(std::string_view key, double number) { Key(key), Number(number); }
  void Flag(std::string_view key, bool flag) { Key(key), Flag(flag); }

  NameStyle Names() const { return names_; }

private:
  void BeginValue();
  void BeginEntry();
  void NewLine();
  void Open(char bracket);
  void Close(char bracket);

  std::string& out_;
  JsonLayout layout_;
  NameStyle names_;
  std::vector<bool> hasEntries_;  // of the containers that are open
  bool isAfterKey_ = false;
};

}  // namespace planner

#endif
