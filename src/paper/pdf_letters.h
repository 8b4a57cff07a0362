#pragma once

#include <QByteArray>

namespace kurbo {

// Names the glyphs of a PDF just written by the letters that they stand for, so that its text can be searched and
// copied: the toolkit names a glyph by the lowest character that is drawn with it, which for many Kanji is a radical.
void nameLetters(QByteArray& pdf);

} // namespace kurbo
