#pragma once

#include <QString>

namespace kurbo {

// True when the file opens with the password and answers the question of the login list; never a message.
[[nodiscard]] bool IsDbOK(const QString& path);

// Deletes the lock file of a path that holds ".mdb", unless another client holds it.
void RemoveStaleLock(const QString& path);

} // namespace kurbo
