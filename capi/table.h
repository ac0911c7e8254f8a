#ifndef KELPOWER_CAPI_TABLE_H
#define KELPOWER_CAPI_TABLE_H

#include "call.h"
#include "request.h"

namespace kelplan {

/// Answers all combinations of the request's alternatives. What all designs share is said once, and a design that has no
/// answer has its error in its row. Throws an InputError where no design can be asked at all.
void ReplyWithTable(Call& call, const Request& request);

}  // namespace kelplan

#endif
