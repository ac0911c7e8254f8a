#ifndef KELPOWER_PLANNER_WORDS_LIST_JSON_H
#define KELPOWER_PLANNER_WORDS_LIST_JSON_H

#include "model/test.h"
#include "words/json_writer.h"

namespace planner {

/// Writes a list under a key, an entry at a time.
template <typename List, typename Write>
void WriteList(JsonWriter& json, const char* key, const List& list, const Write& write) {
  json.Key(key);
  json.OpenArray();
  for (const auto& entry : list) write(entry);
  json.CloseArray();
}

void WriteNames(JsonWriter& json, const char* key, const Names& names);

/// A parameter of a test or a conversion, as an object.
void WriteParameter(JsonWriter& json, const Parameter& parameter);

/// An example of a test or of conversions, as an object.
void WriteExample(JsonWriter& json, const Test& test, const Example& example);

}  // namespace planner

#endif
