#pragma once

#include <QString>
#include <QWidget>

namespace kurbo {

// A form is a window whose name begins with "frm"; it is loaded while it is on the screen or minimised.

[[nodiscard]] bool IsFormLoaded(const QString& name);
// The forms that are open in which people work; the progress windows and those that only show a text are none of them.
[[nodiscard]] QWidgetList openScreens();
// How many these are.
[[nodiscard]] int openForms();
// Brings a loaded form to the front; false when it isn't loaded.
[[nodiscard]] bool activateForm(const QString& name);
// Out of its icon, above the other windows, with the focus.
void bringToFront(QWidget& form);

// Esc closes the list or the menu that is open, and then the form. An open cell of a grid takes the key itself.
void wireEscape(QWidget& form);

// Whether a message box or a file dialog is up, that is a modal window which is no form.
[[nodiscard]] bool isBoxUp();

} // namespace kurbo
