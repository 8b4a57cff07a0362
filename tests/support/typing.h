#pragma once

#include "screen/fields/fields.h"
#include "screen/grid/grid.h"

#include <QApplication>
#include <QTest>

namespace kurbo::test {

inline void sendKeys(QWidget* field, const QString& text) {
    for (const char32_t sign : text.toUcs4())
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString::fromUcs4(&sign, 1), {});
}

// Replaces what stands in a text box, a masked box or an editable combo, as an input method does.
inline void typeInto(QWidget* field, const QString& text) {
    field->setFocus();
    editorOf(field)->selectAll();
    QTest::keyClick(editorOf(field), Qt::Key_Delete);
    sendKeys(editorOf(field), text);
}

// Types into a cell and takes it with Enter.
inline void typeCell(Grid& grid, int row, int column, const QString& text) {
    grid.setFocus();
    grid.Select(row, column);
    QTest::keyClick(&grid, Qt::Key_F2);
    sendKeys(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

} // namespace kurbo::test
