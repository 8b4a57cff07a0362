#include "settings/people/frmAccess.h"

#include "screen/fields/data_list.h"
#include "screen/grid/grid.h"
#include "support/window.h"

namespace kurbo::test {
namespace {

class frmAccessTest : public Window<frmAccess> {
  protected:
    [[nodiscard]] QString shown() const {
        return of<DataList>("dtsAccess").text() + u'/' + of<QLineEdit>("txtAccess").text();
    }
    // By hand, so that the screen hears of it.
    void choose(int row) const {
        of<DataList>("dtsAccess").setCurrentRow(row);
        QTest::qWait(1);
    }
};

TEST_F(frmAccessTest, OneRound) {
    open();
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
    type("txtAccess", u"Reader"_q);
    auto& grid = of<Grid>("vfgAccess");
    grid.setFocus();
    grid.Select(firstAccessRow, static_cast<int>(AccessColumn::FirstRight));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_TRUE(grid.grid()->CellChecked(firstAccessRow, static_cast<int>(AccessColumn::FirstRight)));
    desk.prompts.expect(u"有効なデータが入力されていません。"_q);
    click("cmdUpdate");
    grid.grid()->edit(firstAccessRow, static_cast<int>(AccessColumn::Section), u"所属部課"_q);
    desk.prompts.expect(u"追加・変更を更新します。"_q);
    click("cmdUpdate");
    EXPECT_EQ(shown(), u"Reader/Reader"_q);
    EXPECT_FALSE(isUpdatable());
    EXPECT_EQ(asked(u"SELECT F_ReadMyKurbo FROM M08_Access WHERE (F_AccessName = 'Reader')"_q), u"-1"_q);

    type("txtAccess", u"Other"_q);
    desk.prompts.expect(u"アクセス権は変更されています。変更を破棄しますか？"_q, Answer::No);
    choose(1);
    EXPECT_EQ(shown(), u"Reader/Other"_q);
    desk.prompts.expect(u"アクセス権設定は変更されています。変更を破棄しますか？"_q, Answer::No);
    EXPECT_FALSE(form->close());
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes);
    choose(1);
    EXPECT_EQ(shown(), u"一般/一般"_q);
}

// One right's boxes must never be stored under another one's code.
TEST_F(frmAccessTest, AFailedReadingKeepsTheRight) {
    open();
    choose(1);
    type("txtAccess", u"Other"_q);
    connection.engine("ALTER TABLE M08_Access RENAME TO Gone");
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(u"エラー番号："_q);
    choose(2);
    EXPECT_EQ(shown(), u"一般/Other"_q);
    connection.engine("ALTER TABLE Gone RENAME TO M08_Access");
    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 2)"_q);
    desk.prompts.expect(u"変更を破棄しますか？"_q, Answer::Yes).expect(deletedAccessText());
    choose(2);
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
}

TEST_F(frmAccessTest, WhatIsNeededStays) {
    open();
    desk.prompts.expect(u"「新しいアクセス権」は削除できません。"_q);
    trigger("mnuDelete");
    choose(1);
    desk.prompts.expect(u"表示されているアクセス権は使用されているため削除できません。"_q);
    trigger("mnuDelete");
    connection.execute(u"UPDATE M02_StaffInfo SET F_Access = 2 WHERE (F_Access = 1)"_q);
    desk.prompts.expect(u"表示されているアクセス権を削除します。\r\n\r\nよろしいですか？"_q);
    trigger("mnuDelete");
    EXPECT_EQ(shown(), u"新しいアクセス権/新しいアクセス権"_q);
    EXPECT_EQ(asked(u"SELECT F_AccessName FROM M08_Access WHERE (F_AccessCode = 1)"_q), QString());

    connection.execute(u"DELETE * FROM M08_Access WHERE (F_AccessCode = 0)"_q);
    desk.prompts.expect(u"「新しいアクセス権」が削除されています。"_q);
    open();
    EXPECT_FALSE(of<QWidget>("picAccess").isEnabled());
}

} // namespace
} // namespace kurbo::test
