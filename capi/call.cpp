#include "call.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

#include "json_tree.h"
#include "model/problem.h"
#include "words/problem_json.h"

namespace kelplan {
namespace {

#define KELPLAN_HEAD "{\"schema\":1,\"version\":\"" KELPOWER_VERSION "\""

// Said when there is no memory to say it with.
char noMemory[] = KELPLAN_HEAD
    ",\"error\":{\"kind\":\"memory\",\"code\":\"no-memory\",\"parameters\":[],"
    "\"message\":\"There is not enough memory.\"}}";

/// A problem of the request or of the library, which concerns no input.
void ReplyWith(Call& call, const char* kind, const char* code, const char* message) {
  Reply reply(call);
  reply.Key("error");
  reply.OpenObject();
  reply.Text("kind", kind);
  reply.Text("code", code);
  reply.Key("parameters");
  reply.OpenArray();
  reply.CloseArray();
  reply.Text("message", message);
  reply.CloseObject();
  reply.CloseObject();
}

int ReplyWith(Call& call, const planner::Problem& problem, int status) {
  Reply reply(call);
  reply.Key("error");
  planner::WriteProblem(reply, problem);
  reply.CloseObject();
  return status;
}

int Attempt(Call& call, void (*door)(Call&)) {
  try {
    door(call);
    return KELPLAN_OK;
  } catch (const planner::InputError& error) {
    return ReplyWith(call, error.problem, KELPLAN_BAD_INPUT);
  } catch (const planner::NoSolution& error) {
    return ReplyWith(call, error.problem, KELPLAN_NO_SOLUTION);
  } catch (const planner::Stopped& error) {
    return ReplyWith(call, error.problem, KELPLAN_STOPPED);
  } catch (const BadRequest& error) {
    ReplyWith(call, "request", error.Code(), error.what());
    return KELPLAN_BAD_INPUT;
  }
}

char* CopyOf(const std::string& text) {
  const auto copy = static_cast<char*>(std::malloc(text.size() + 1));
  if (copy) std::memcpy(copy, text.c_str(), text.size() + 1);
  return copy;
}

int AttemptOrFail(Call& call, void (*door)(Call&)) noexcept {
  try {
    return Attempt(call, door);
  } catch (const std::bad_alloc&) {
    return KELPLAN_NO_MEMORY;
  } catch (const std::length_error&) {
    return KELPLAN_NO_MEMORY;
  } catch (...) {
  }
  try {
    ReplyWith(call, "fault", "fault", "The library has failed; please report the request.");
    return KELPLAN_FAILED;
  } catch (...) {
    return KELPLAN_NO_MEMORY;
  }
}

}  // namespace

Reply::Reply(Call& call) : JsonWriter((call.reply.clear(), call.reply), planner::JsonLayout::Compact, call.names) {
  OpenObject();
  Number("schema", 1);
  Text("version", KELPOWER_VERSION);
}

int Answer(Call& call, void (*door)(Call&), char** answer) noexcept {
  int status = AttemptOrFail(call, door);
  if (!answer) return status;
  *answer = status == KELPLAN_NO_MEMORY ? noMemory : CopyOf(call.reply);
  if (*answer) return status;
  *answer = noMemory;
  return KELPLAN_NO_MEMORY;
}

void Free(char* answer) noexcept {
  if (answer != noMemory) std::free(answer);
}

}  // namespace kelplan
