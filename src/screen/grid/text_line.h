#pragma once

#include <QStringList>

namespace kurbo {

// A file of one line of text in the system's code page: its fields in double quotes, parted by commas, ended by CR LF.
// A double quote within a field stands doubled.

// Replaces the file in one step. Throws foreignFile() for a field that such a line can't give back: one with a control
// character, or with a character that the code page doesn't hold as it is; a Fault when the file can't be written. The
// old file then stays.
void writeTextLine(const QString& file, const QStringList& fields);

// The fields; the end of the line may be missing. Throws foreignFile() unless the file holds one line of exactly
// `count` fields in at most 64 KiB; a Fault when it can't be read.
[[nodiscard]] QStringList readTextLine(const QString& file, int count);

} // namespace kurbo
