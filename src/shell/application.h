#pragma once

#include <QApplication>

namespace kurbo {

// Gives the application its look: style, colours, font, icon and the toolkit's Japanese texts.
void dress(QApplication& application);

// The logo at a height in pixels, sharp on dense screens too.
[[nodiscard]] QPixmap logo(int height);

} // namespace kurbo
