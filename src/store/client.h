#pragma once

#include "base/guard.h"
#include "store/access.h"
#include "store/connection.h"

#include <QString>

namespace kurbo {

// Who works at the window, "ADMIN" in both for the administrator.
struct Session {
    QString SessionSection;
    QString SessionStaff;
    AccessRights access;
    Seconds EnterDelay{};
    Seconds LeaveGain{};
};

// What the whole running client shares.
class Client final {
  public:
    explicit Client(const Context& surroundings) : context(surroundings), CurrentConnection(&HomeConnection) {}
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    const Context& context;
    QString DbPath;
    bool DbUsable = true;
    Connection HomeConnection;
    Connection OtherConnection;
    // An alias, never a connection of its own.
    Connection* CurrentConnection;
    Session session;

    // Opens the home database on DbPath, and works on it unless a screen is at another site's file; throws.
    void openHome();
    // Opens the file that is worked on again, where the disk or the network has taken it away; false after a failure,
    // which is reported under the form's name.
    [[nodiscard]] bool hasConnection(QStringView form);
    // The same for the home file.
    [[nodiscard]] bool hasHome(QStringView form);
    void closeConnections();
    // The administrator's help in the administrator's session; else that for people.
    [[nodiscard]] const QString& helpPath() const;
};

} // namespace kurbo
