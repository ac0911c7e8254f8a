#ifndef KELPOWER_CAPI_JSON_TREE_H
#define KELPOWER_CAPI_JSON_TREE_H

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelplan {

/// What is wrong with a request besides its inputs.
class BadRequest : public std::runtime_error {
public:
  /// `code` is a word that never changes; the message a sentence.
  BadRequest(const char* code, const std::string& message) : std::runtime_error(message), code_(code) {}
  const char* Code() const { return code_; }

private:
  const char* code_;
};

/// A value of JSON that has been read.
struct JsonTree {
  enum class Kind { Null, Flag, Number, Text, Array, Object };

  Kind kind = Kind::Null;
  bool flag = false;
  double number = 0;
  std::string text;
  std::vector<JsonTree> items;    // of an array or an object
  std::vector<std::string> keys;  // of an object: of each item

  bool Is(Kind other) const { return kind == other; }
  /// The item with that key, or null.
  const JsonTree* Find(std::string_view key) const;
};

/// Reads what other programs wrote. Throws a BadRequest for anything that is not JSON, and for what no request needs: a
/// key that stands twice, deep nesting, more values than memory should be given to.
JsonTree ReadJson(std::string_view text);

/// The value as JSON, for messages; long ones are cut.
std::string ShortText(const JsonTree& value);

}  // namespace kelplan

#endif
