#include "store/client.h"

#include "store/database_file.h"

namespace kurbo {

void Client::openHome() {
    HomeConnection.open(DbPath, databasePassword());
    if (!OtherConnection.isOpen()) CurrentConnection = &HomeConnection;
}

void Client::reopenCurrent() {
    if (CurrentConnection->isOpen()) return;
    const QString path = CurrentConnection->path();
    CurrentConnection->open(path.isEmpty() ? DbPath : path, databasePassword());
}

void Client::closeConnections() {
    HomeConnection.close();
    OtherConnection.close();
    CurrentConnection = &HomeConnection;
}

const QString& Client::helpPath() const {
    return isAdminCode(session.SessionStaff) ? context.paths.adminHelpPath : context.paths.helpPath;
}

} // namespace kurbo
