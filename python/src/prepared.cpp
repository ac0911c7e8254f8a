#include "prepared.h"

#include <nlohmann/json.hpp>

namespace kelpython {

Prepared::Prepared(const char* request) {
  kelplan_batch* batch = nullptr;
  char* answer = nullptr;
  status_ = kelplan_prepare(request, &batch, &answer);
  batch_.reset(batch);
  const std::unique_ptr<char, void (*)(char*)> text(answer, kelplan_free);
  if (answer) answer_ = answer;
  if (!batch) return;
  const nlohmann::json reply = nlohmann::json::parse(answer_);
  columns_ = reply.at("columns").size();
  for (const nlohmann::json& result : reply.at("results")) results_.push_back(result.at("name"));
}

}  // namespace kelpython
