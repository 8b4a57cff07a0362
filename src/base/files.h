#pragma once

#include <QByteArray>
#include <QString>

namespace kurbo {

// Trims and ends the folder in exactly one slash.
[[nodiscard]] QString addSlash(const QString& folder);

// Trims `path` in place. True when the file, or with `folder` the folder, is there; false for an empty path and on any
// failure.
[[nodiscard]] bool CheckPath(QString& path, bool folder = false);

// All bytes of a file; throws a Fault.
[[nodiscard]] QByteArray readFile(const QString& path);

// Replaces `path` by `bytes` in one step: a reader sees the old file or the new one, also after a power cut. Throws a
// Fault and leaves the old file.
void replaceFile(const QString& path, const QByteArray& bytes);

// Puts `from` in the place of `to` and makes the change last through a power cut. Throws a Fault.
void renameOver(const QString& from, const QString& to);

// Takes away a read-only mark; does nothing when it can't.
void makeWritable(const QString& path);

} // namespace kurbo
