#pragma once

#include <QLineEdit>
#include <QWidget>

namespace kurbo {

// Tells the input method whether the field takes Japanese text.
void SetImeOpen(QWidget* field, bool open);

void SelectAllText(QLineEdit* field);

} // namespace kurbo
