#pragma once

struct sqlite3;

namespace kurbo {

// The dialect's functions under their names in the engine: kurbo_left, kurbo_mid, kurbo_right, kurbo_clng,
// kurbo_cdate, kurbo_format. Null in gives Null out; a value that doesn't convert raises an error.
void installFunctions(sqlite3* database);

} // namespace kurbo
