#pragma once

#include "store/client.h"

#include <QWidget>

namespace kurbo {

// Opens a help file where it speaks of the window's active control, or else of what holds that control, of the window,
// or at its top; says so when the file is missing.
void openHelp(Prompts& prompts, const QString& path, QWidget& window);

// F1 and mnuTopic open the help of who is logged in, and mnuVersion shows the version, as far as the window has them.
void wireHelp(QWidget& window, const Client& client);

} // namespace kurbo
