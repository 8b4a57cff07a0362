#pragma once

#include <QWidget>

namespace kurbo {

// Out of its icon, above the other windows, with the focus.
void bringToFront(QWidget& form);

// Esc closes the list or the menu that is open, and then the form. An open cell of a grid takes the key itself.
void wireEscape(QWidget& form);

// Whether a message box or a file dialog is up, that is a modal dialog which is no form.
[[nodiscard]] bool isBoxUp();

} // namespace kurbo
