#pragma once

#include "base/system/plain_file.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace kurbo {

// Trims and ends the folder in exactly one slash.
[[nodiscard]] QString addSlash(const QString& folder);

// Trims `path` in place. True when the file, or with `folder` the folder, is there; false for an empty path and on any
// failure.
[[nodiscard]] bool CheckPath(QString& path, bool folder = false);

// Whether the trimmed path is a file, or with `orFolder` a file or a folder; false for an empty path.
[[nodiscard]] bool FileExists(const QString& path, bool orFolder = false);

// What follows the last slash, and what stands before it; the whole text without one.
[[nodiscard]] QString FileNameOf(const QString& path);
[[nodiscard]] QString FolderOf(const QString& path);

// All bytes of a file; throws a Fault.
[[nodiscard]] QByteArray readFile(const QString& path);

// Replaces `path` by `bytes` in one step: a reader sees the old file or the new one, also after a power cut. The new
// one gets the group and the permissions of the old; `newMode`, less the umask, counts where there was none. A link is
// replaced itself. Throws a Fault and leaves the old file.
void replaceFile(const QString& path, const QByteArray& bytes, mode_t newMode = commonMode);

// The same for a file that is there; the old one is kept as keepAside() does.
void replaceAndKeep(const QString& path, const QByteArray& bytes);

// What is to be replaced where a person has chosen `path`: a link stays, and what it leads to goes. Throws a Complaint
// for anything that is no file.
[[nodiscard]] QString chosenFile(const QString& path);

// Gives a file the name "PATH.old", or "PATH.old2" and so on: the first one that nothing has. Gives that name; throws a
// Fault.
QString keepAside(const QString& path);

// Puts `from` in the place of `to` and makes the change last through a power cut. Throws a Fault.
void renameOver(const QString& from, const QString& to);

// The file behind a symbolic link; the path itself where nothing is there.
[[nodiscard]] QString realPath(const QString& path);

// A name beside `path` that no other client uses.
[[nodiscard]] QString freshNameBeside(const QString& path);

// Whether both paths are one file.
[[nodiscard]] bool isSameFile(const QString& left, const QString& right);

// Takes away a read-only mark; does nothing when it can't.
void makeWritable(const QString& path);

} // namespace kurbo
