#ifndef KELPOWER_CAPI_CALL_H
#define KELPOWER_CAPI_CALL_H

#include <memory>
#include <string>
#include <string_view>

#include "kelplan.h"
#include "model/stop_request.h"
#include "words/json_writer.h"

namespace kelplan {

/// A call of a door that takes a request.
struct Call {
  std::string_view request;
  planner::StopRequest* stop = nullptr;
  planner::NameStyle names = planner::NameStyle::Dashes;  // as the request wants them
  std::string reply = {};
  kelplan_batch* batch = nullptr;  // that a preparation made

  bool IsStopped() const { return stop && stop->ShouldStop(); }
};

/// A reply as it is written: an object that begins with the schema and the version.
class Reply : public planner::JsonWriter {
public:
  explicit Reply(Call& call);
};

/// Calls a door, and turns whatever it throws into a reply and a status. The reply is handed over as the caller's.
int Answer(Call& call, void (*door)(Call&), char** answer) noexcept;

/// Releases a reply.
void Free(char* answer) noexcept;

}  // namespace kelplan

#endif
