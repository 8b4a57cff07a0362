#pragma once

#include "card/card_cells.h"
#include "card/card_grid.h"
#include "card/card_office.h"
#include "card/frmKurbo.h"
#include "screen/fields/data_combo.h"
#include "screen/fields/masked_box.h"
#include "screen/grid/grid.h"

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTest>

namespace kurbo::test {

// The card's window, worked as a person works it.
class CardWindow : public CardOffice {
  protected:
    ~CardWindow() override { delete form; }
    void openAs(const QString& staff) {
        logIn(staff);
        form = new frmKurbo(client);
        form->load();
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    template <typename Widget>
    [[nodiscard]] Widget* find(const char* name) const {
        auto* const found = form->findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    [[nodiscard]] Grid& grid() const { return *find<Grid>("vfgKurbo"); }
    [[nodiscard]] GridModel& cells() const { return *grid().grid(); }
    [[nodiscard]] QString cell(int day, int column) const { return cells().TextMatrix(firstCardDay + day - 1, column); }
    void press(int key) const { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
    void type(int day, int column, const QString& text) const {
        grid().setFocus();
        grid().Select(firstCardDay + day - 1, column);
        for (const QChar sign : text) QTest::keyClick(QApplication::focusWidget(), sign.toLatin1());
    }
    void choose(const char* combo, const QString& code) const {
        auto* const list = find<DataCombo>(combo);
        list->setFocus();
        list->setBoundText(code);
        Q_EMIT list->activated(list->currentIndex());
    }
    [[nodiscard]] QString shown() const {
        return find<DataCombo>("dcbStaff")->boundText() + u' ' + find<MaskedBox>("mskStart")->maskText() + u'-' +
               find<MaskedBox>("mskEnd")->maskText();
    }
    void trigger(const char* action) const { find<QAction>(action)->trigger(); }

    QPointer<frmKurbo> form;
};

} // namespace kurbo::test
