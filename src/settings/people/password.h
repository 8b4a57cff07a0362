#pragma once

#include "store/connection.h"

#include <optional>

namespace kurbo {

// A person's change of the own password, as it was typed.
struct PasswordChange {
    QString old;
    QString wanted;
    QString confirmation;
};

enum class PasswordBox { Old, Wanted, Confirmation };
// What is wrong, and in which box. The wrong old password has a message of its own, and no text here.
struct PasswordRefusal {
    PasswordBox box;
    QString text;
};

[[nodiscard]] QString oldPasswordMissing();
// Why a new password can't be taken; empty when it can.
[[nodiscard]] QString passwordRefusal(const QString& wanted);
// The first thing that is wrong. Throws.
[[nodiscard]] std::optional<PasswordRefusal> checkPasswordChange(Connection& connection, const QString& staff,
                                                                 const PasswordChange& change);
// Stores a checked password. Throws.
void UpdatePassword(Connection& connection, const QString& staff, const QString& newPassword);

} // namespace kurbo
