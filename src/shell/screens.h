#pragma once

#include "store/client.h"

#include <QMainWindow>

namespace kurbo {

// Makes and loads a screen by its form's name, which is one of those in the table.
[[nodiscard]] QMainWindow* makeScreen(Client& client, const QString& name);

} // namespace kurbo
