#pragma once

#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/card_office.h"
#include "card/frmKurbo.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/masked_box.h"
#include "screen/grid/grid.h"
#include "support/window.h"

namespace kurbo::test {

// The card's window, worked as a person works it.
class CardWindow : public Window<frmKurbo, CardOffice> {
  protected:
    void openAs(const QString& staff) {
        logIn(staff);
        show();
    }
    [[nodiscard]] Grid& grid() const { return of<Grid>("vfgKurbo"); }
    [[nodiscard]] GridModel& cells() const { return *grid().grid(); }
    [[nodiscard]] QString cell(int day, int column) const { return cells().TextMatrix(firstCardDay + day - 1, column); }
    void type(int day, int column, const QString& text) const {
        grid().setFocus();
        grid().Select(firstCardDay + day - 1, column);
        for (const QChar sign : text) QTest::keyClick(QApplication::focusWidget(), sign.toLatin1());
    }
    void choose(const char* combo, const QString& code) const {
        auto* const list = &of<DataCombo>(combo);
        list->setFocus();
        list->setBoundText(code);
        Q_EMIT list->activated(list->currentIndex());
    }
    [[nodiscard]] QString shown() const {
        return of<DataCombo>("dcbStaff").boundText() + u' ' + of<MaskedBox>("mskStart").maskText() + u'-' +
               of<MaskedBox>("mskEnd").maskText();
    }
};

} // namespace kurbo::test
