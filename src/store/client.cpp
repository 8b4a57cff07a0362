#include "store/client.h"

#include "store/database_file.h"

namespace kurbo {

void Client::openHome() {
    HomeConnection.open(DbPath, databasePassword());
    CurrentConnection = &HomeConnection;
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
