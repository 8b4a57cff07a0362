#pragma once

#include <QString>

namespace kurbo {

// Archives with named members, as zip files. A member's name is a plain file name of ASCII letters, digits, ".", "-"
// and "_" that begins with none of these signs; an archive holds at most 16 members, of 48 MiB together. An empty file
// is an archive without members. Members are listed as they are stored, but "Text.tmp" always last.
//
// Each operation throws foreignFile() for an archive that is damaged, encrypted, not a zip file or not of that kind,
// and a Fault when a file can't be read or written.

// Adds `file` under its own name without the folder, in the place of a member of that name; makes a missing archive.
// The archive is replaced in one step: after a failure the old one is still there. Throws foreignFile() also when the
// name or the size is beyond what an archive holds.
void ArchiveAdd(const QString& archive, const QString& file);

// Writes a member to `toFile`, which it replaces in one step, and to no other file. Throws foreignFile() also when
// there is no such member.
void ArchiveExtract(const QString& archive, const QString& member, const QString& toFile);

[[nodiscard]] int ArchiveCount(const QString& archive);
// The name at `index`, which counts from 0; throws foreignFile() beyond the last.
[[nodiscard]] QString ArchiveName(const QString& archive, int index);

} // namespace kurbo
