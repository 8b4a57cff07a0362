#include "shell/client.h"

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

} // namespace kurbo
