#pragma once

#include <QString>

namespace kurbo {

// Opens a text file in the program that the desktop has for such files, and doesn't wait for it. False when there is
// none.
[[nodiscard]] bool openInViewer(const QString& path);

} // namespace kurbo
