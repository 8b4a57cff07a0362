#pragma once

#include "store/client.h"

namespace kurbo {

enum class Punch { Enter, Leave, Out, In };

enum class PunchResult {
    Done,    // written; the session ends
    Refused, // the day is entered or left already, and it was said; the session ends
    Stopped, // no right, no calendar, a failure or no answer: nothing was written or said beyond a message; the session
             // goes on
};

// One press of a punch button in a session that the log-in has opened: its right and the calendar are tested, the state
// of the day worked out, the row written, and a warning given when the day looks wrong.
[[nodiscard]] PunchResult punch(const Context& context, Connection& connection, const Session& session, Punch kind);

} // namespace kurbo
