#include "card/card_office.h"
#include "card/frmKurbo.h"
#include "settings/records/frmStaff.h"
#include "shell/login/frmLogin.h"
#include "support/typing.h"
#include "totals/frmTotal.h"

namespace kurbo::test {

TEST_F(CardOffice, EscClosesAListBeforeItsWindow) {
    logIn(u"1002"_q);
    const auto leaveList = [](const QWidget& form) {
        EXPECT_TRUE(QApplication::activePopupWidget());
        QTest::keyClick(form.windowHandle(), Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible() && !QApplication::activePopupWidget()) << form.objectName();
    };
    const auto leaveLists = [&]<typename Form>(Form* window) {
        const std::unique_ptr<Form> form(window);
        form->load();
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        for (auto* const grid : form->template findChildren<Grid*>())
            for (int column = 1; column < 4 && !grid->template findChild<QComboBox*>(); ++column) {
                grid->Select(grid->Row(), column);
                QTest::keyClick(grid, Qt::Key_F2);
            }
        for (auto* const combo : form->template findChildren<QComboBox*>()) {
            if (!combo->isVisible() || !combo->isEnabled() || combo->count() == 0) continue;
            combo->showPopup();
            leaveList(*form);
        }
    };
    leaveLists(new frmLogin(client));
    leaveLists(new frmKurbo(client));
    leaveLists(new frmTotal(client));
    leaveLists(new frmStaff(client));
}

} // namespace kurbo::test
