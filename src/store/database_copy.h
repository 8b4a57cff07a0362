#pragma once

#include "store/exclusive.h"

#include <QString>

namespace kurbo {

// A whole copy of the connection's file as it stands in its transaction, under a name that is not in use; `notice` runs
// now and then meanwhile. Throws a Fault; what was written then stays behind.
void writeCopy(Connection& from, const QString& target, const WorkNotice& notice = {});

// Throws a Fault when the file is damaged or no database of this system.
void requireWhole(const QString& path, const QString& password);
// The same for an open file.
void requireWhole(Connection& connection);

// Puts a finished copy, which nobody has open, in the place of a database, with nothing left of what stood there
// before; that is kept under the name `keptAs`, if one is given. Throws a Fault and leaves the old file.
void putInPlace(const QString& copy, const QString& target, const QString& password, const QString& keptAs = {});

} // namespace kurbo
