#pragma once

#include "base/system/plain_file.h"
#include "store/file/exclusive.h"

#include <QString>

namespace kurbo {

// A whole copy of the connection's file as it stands in its transaction, into an empty file; `notice` runs now and then
// meanwhile. Throws a Fault.
void writeCopy(Connection& from, const FreshFile& target, const WorkNotice& notice = {});

// Throws a Fault when the file is damaged or no database of this system.
void requireWhole(const QString& path, const QString& password);
// The same for an open file.
void requireWhole(Connection& connection);

// Whether the file that was there is kept, under a name beside it that nothing has.
enum class OldFile { Goes, Kept };

// Puts a finished copy, which nobody has open, in the place of a database, with nothing left of what stood there
// before. Throws a Fault and leaves the old file.
void putInPlace(FreshFile& copy, const QString& target, const QString& password, OldFile old);

} // namespace kurbo
