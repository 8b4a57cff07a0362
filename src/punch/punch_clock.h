#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <QString>

namespace kurbo {

enum class Punch { Enter, Leave, Out, In };

// Who punches, and by how many seconds (0 to 999) the enter time is set back and the leave time forward.
struct Puncher {
    QString staff;
    int EnterDelay = 0;
    int LeaveGain = 0;
};

enum class PunchResult {
    Done,    // written; the session ends
    Refused, // the day is entered or left already, and it was said; the session ends
    Stopped, // no calendar, a failure or no answer: nothing was written or said beyond a message; the session goes on
};

// One press of a punch button: the calendar is tested, the state of the day worked out, the row written, and a warning
// given when the day looks wrong.
[[nodiscard]] PunchResult punch(const Context& context, Connection& connection, const Puncher& puncher, Punch kind);

} // namespace kurbo
