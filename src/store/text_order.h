#pragma once

#include <QStringView>

struct sqlite3;

namespace kurbo {

// The store's order of text: by character, Latin letters of both widths, Greek and Cyrillic without regard to case.
// Below 0, 0 or above 0.
[[nodiscard]] int compareText(QStringView left, QStringView right);

// Makes that order the meaning of NOCASE on this connection. Text in plain ASCII sorts as with the engine's own NOCASE,
// so any tool reads the file.
void installTextOrder(sqlite3* database);

} // namespace kurbo
