#include "screen/fields/data_combo.h"
#include "shell/login/frmLogin.h"
#include "support/sample_company.h"

#include <QFile>
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
    connection.execute(u"INSERT INTO T01_Calendar (F_DateID, F_Date) VALUES ('20251119', #2025/11/19#)"_q);
    connection.execute(u"INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) VALUES (1, '20251119', '1001')"_q);
    connection.execute(u"INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User) VALUES (2, '20261120', '1001')"_q);
    frmLogin window(client);
    window.load();
    desk.prompts.expect(u"レコード数が１年分を超えています。"_q);
    window.greet();
}

} // namespace kurbo::test
