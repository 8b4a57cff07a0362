#pragma once

#include "base/prompts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

namespace kurbo {

// Tells the input method whether the field takes Japanese text.
void SetImeOpen(QWidget* field, bool open);

void SelectAllText(QLineEdit* field);

// The text box of a field: the field itself or that of an editable combo; null for any other.
[[nodiscard]] QLineEdit* editorOf(QWidget* field);

// The 47 prefectures in the order of their codes, which are the entries' data; before them "全国" when `withAll`.
void FillPrefectures(QComboBox& list, bool withAll);

// Says that a password is wrong and puts `text` into its box.
void RefusePassword(Prompts& prompts, QLineEdit& box, const QString& text);

} // namespace kurbo
