#include "store/file/is_db_ok.h"

#include "store/connection.h"
#include "store/file/database_file.h"
#include "store/readers.h"

namespace kurbo {

bool IsDbOK(const QString& path) {
    try {
        Connection connection;
        connection.open(path, databasePassword());
        (void)loginSections(connection);
        return true;
    } catch (const Fault&) {
        return false;
    }
}

void RemoveStaleLock(const QString& path) {
    if (path.contains(QStringLiteral(".mdb"), Qt::CaseInsensitive)) LockFile::removeStale(path);
}

} // namespace kurbo
