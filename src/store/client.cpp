#include "store/client.h"

#include "store/file/database_file.h"

namespace kurbo {

void Client::openHome() {
    HomeConnection.open(DbPath, databasePassword());
    if (!OtherConnection.isOpen()) CurrentConnection = &HomeConnection;
}

bool Client::hasConnection(QStringView form) {
    return guarded(context, form, u"ReConnect", false, [this] {
        if (CurrentConnection->isOpen()) return true;
        const QString path = CurrentConnection->path();
        CurrentConnection->open(path.isEmpty() ? DbPath : path, databasePassword());
        return true;
    });
}

bool Client::hasHome(QStringView form) {
    return guarded(context, form, u"ReConnect", false, [this] {
        if (!HomeConnection.isOpen()) HomeConnection.open(DbPath, databasePassword());
        return true;
    });
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
