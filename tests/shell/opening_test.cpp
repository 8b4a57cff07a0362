#include "screen/fields/data_combo.h"
#include "shell/login/frmLogin.h"
#include "support/sample_company.h"

#include <QTest>

namespace kurbo::test {

// The main window's first moments.

TEST_F(SampleCompany, AWindowThatCouldNotLoadOnlyCloses) {
    connection.close();
    QFile::remove(client.DbPath);
    frmLogin window(client);
    desk.prompts.expect(u"エラー番号："_q);
    window.load();
    window.show();
    window.greet();
    window.findChild<DataCombo*>(u"dcbSection"_q)->setFocus();
    QCoreApplication::processEvents();
    desk.prompts.expect(u"が見つかりません。"_q);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(SampleCompany, MoreThanAYearOfRowsIsTold) {
    insert("T01_Calendar", "DateID, Date", u"'20251119', #2025/11/19#"_q);
    addCard(1, *makeDay(2025, 11, 19), {}, {});
    addCard(2, *makeDay(2026, 11, 20), {}, {});
    frmLogin window(client);
    window.load();
    desk.prompts.expect(u"レコード数が１年分を超えています。"_q);
    window.greet();
}

} // namespace kurbo::test
