#pragma once

#include "store/client.h"
#include "store/readers.h"

#include <QString>

#include <optional>

namespace kurbo {

// Whether the password is the person's; Latin letters in either case. A missing person, a wrong and a Null password are
// all alike. An apostrophe can't stand in a password: it is reported, and counts as wrong.
[[nodiscard]] bool IsPasswordOK(const Context& context, Connection& connection, const QString& staff,
                                const QString& password);
// Seconds by which the person's punches are shifted; Null counts as 0. False after a reported failure.
[[nodiscard]] bool GetTimeDiff(const Context& context, Connection& connection, const QString& staff,
                               Seconds& EnterDelay, Seconds& LeaveGain);

// What was typed into the login fields. The codes may be in any case; the administrator needs no section.
struct Credentials {
    QString section;
    QString staff;
    QString password;
};

enum class LoginResult {
    Open,    // the session is filled and the punch clock opens
    Refused, // wrong password; it was said
    Thrown,  // the third wrong password in a row, which was said, or any attempt after it; the client ends
    Stopped, // not in the login lists, no access right or a failure; it was said
};

// The one way into a session: it admits the administrator and whom the login lists hold. It counts wrong passwords in a
// row, over all people; after the third nobody is admitted any more.
class Login final {
  public:
    explicit Login(Client& client) : client_(client) {}
    // Fills the client's session, with the codes as the store spells them, or leaves it as it is.
    [[nodiscard]] LoginResult attempt(const Credentials& credentials);
    [[nodiscard]] bool isThrown() const;

  private:
    struct Listed {
        QString section;
        CodeName staff;
    };

    [[nodiscard]] std::optional<Listed> listed(const Credentials& credentials) const;
    [[nodiscard]] LoginResult wrongPassword();
    [[nodiscard]] LoginResult admit(const Listed& person);

    Client& client_;
    int FailedLogins_ = 0;
};

// Whether the login button may be pressed: the administrator needs no section.
[[nodiscard]] bool CheckLoginInput(const QString& sectionText, const QString& staffText, const QString& password);

} // namespace kurbo
