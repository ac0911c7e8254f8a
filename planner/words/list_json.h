#ifndef KELPOWER_PLANNER_WORDS_LIST_JSON_H
#define KELPOWER_PLANNER_WORDS_LIST_JSON_H

#include "model/parameter.h"
#include "words/json_writer.h"

// What descriptions in JSON share.
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
void WriteParameter(JsonWriter& json, const Parameter& parameter);

}  // namespace planner

#endif
