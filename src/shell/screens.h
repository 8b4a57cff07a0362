#pragma once

#include "store/client.h"

#include <QMainWindow>

namespace kurbo {

// Makes and loads a screen by its form's name; null for one that a later version brings.
[[nodiscard]] QMainWindow* makeScreen(Client& client, const QString& name);

} // namespace kurbo
