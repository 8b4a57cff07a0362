#pragma once

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
// What stands before the name's first dot; the whole name without one.
[[nodiscard]] QString WithoutExtension(const QString& fileName);
// The paths of a folder and names that NUL characters part. A single field is a path already.
[[nodiscard]] QStringList SplitFileList(const QString& chosen);

// All bytes of a file; throws a Fault.
[[nodiscard]] QByteArray readFile(const QString& path);

// Replaces `path` by `bytes` in one step: a reader sees the old file or the new one, also after a power cut. Throws a
// Fault and leaves the old file.
void replaceFile(const QString& path, const QByteArray& bytes);

// Returns when the file's bytes are on the disk to stay. Throws a Fault.
void syncFile(const QString& path);

// Puts `from` in the place of `to` and makes the change last through a power cut. Throws a Fault.
void renameOver(const QString& from, const QString& to);

// The file behind a symbolic link; the path itself where nothing is there.
[[nodiscard]] QString realPath(const QString& path);

// A name beside `path` that no other client uses.
[[nodiscard]] QString freshNameBeside(const QString& path);

// Gives `to` the group and the permissions of `from`; false when it can't, and `to` would shut others out.
[[nodiscard]] bool shareLike(const QString& from, const QString& to);

// Whether both paths are one file.
[[nodiscard]] bool isSameFile(const QString& left, const QString& right);

// Takes away a read-only mark; does nothing when it can't.
void makeWritable(const QString& path);

} // namespace kurbo
