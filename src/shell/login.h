#pragma once

#include "store/client.h"

#include <QString>

namespace kurbo {

// Whether the password is the person's; Latin letters in either case. A missing person, a wrong and a Null password are
// all alike. An apostrophe can't stand in a password: it is reported, and counts as wrong.
[[nodiscard]] bool IsPasswordOK(const Context& context, Connection& connection, const QString& staff,
                                const QString& password);
// Seconds by which the person's punches are shifted; Null counts as 0. False after a reported failure.
[[nodiscard]] bool GetTimeDiff(const Context& context, Connection& connection, const QString& staff, int& EnterDelay,
                               int& LeaveGain);

// What was typed into the login fields.
struct Credentials {
    QString section;   // code
    QString staff;     // code, or "ADMIN" as typed
    QString staffText; // name shown, for messages
    QString password;
};

enum class LoginResult {
    Open,    // the session is filled and the punch clock opens
    Refused, // wrong password; it was said
    Thrown,  // the third wrong password in a row; it was said, and the client ends
    Stopped, // no access right or a failure; it was said
};

// The log-in of one window; it counts wrong passwords in a row, over all people.
class Login final {
  public:
    explicit Login(Client& client) : client_(client) {}
    [[nodiscard]] LoginResult attempt(const Credentials& credentials);

  private:
    [[nodiscard]] LoginResult wrongPassword();
    [[nodiscard]] LoginResult admit(const Credentials& credentials);

    Client& client_;
    int FailedLogins_ = 0;
};

// Whether the login button may be pressed: the administrator needs no section.
[[nodiscard]] bool CheckLoginInput(const QString& sectionText, const QString& staffText, const QString& password);

} // namespace kurbo
