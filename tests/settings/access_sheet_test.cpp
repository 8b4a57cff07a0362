#include "settings/people/access_sheet.h"

#include "base/failure.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

constexpr int section = static_cast<int>(AccessColumn::Section);

class AccessSheetTest : public SampleCompany {
  protected:
    AccessSheetTest() {
        sheet.grid.setRules(&rules);
        connection.execute(u"INSERT INTO C02_Section (F_SectionCode, F_SectionName, F_Order, F_Display) "
                           "VALUES ('S02', '工場', 2, True)"_q);
        ShowAccess(connection, 0, style, sheet);
    }
    void fillRow(int row, const QString& code, const QList<int>& columns) {
        sheet.grid.TextMatrix(row, section, code);
        for (const int column : columns) sheet.grid.CellChecked(row, column, true);
    }
    [[nodiscard]] QString refusal(int code, const QString& name) {
        return refusalOf([&] { checkAccess(connection, code, name, sheet); });
    }
    [[nodiscard]] QString right(int code, const QString& field) {
        return asked(u"SELECT %1 FROM M08_Access WHERE (F_AccessCode = %2) AND (F_Order = 1)"_q.arg(field).arg(code));
    }

    AccessSheet sheet;
    AccessRules rules{sheet};
    clsWorkTime style;
};

TEST_F(AccessSheetTest, TheFirstRuleThatFailsIsTold) {
    const QString change = u"アクセス権名称を変更して下さい。\r\n"_q;
    const auto is = [this](int code, const QString& name, const QString& message) {
        EXPECT_EQ(refusal(code, name), message) << name;
    };
    is(0, u"所属長"_q, change + u"同じアクセス権名称が既に登録されています。"_q);
    is(1, u"新しいアクセス権"_q, change + u"名称「新しいアクセス権」は使用できません。"_q);
    is(0, {}, u"アクセス権名称が入力されていません。"_q);
    is(0, QString(16, u'権'), u"アクセス権名称が不正です。アクセス権名称は全角15文字(半角30文字)以内で入力します。"_q);
    is(0, QString(15, u'権'),
       u"アクセス権を削除する場合は削除ボタンをクリックして下さい。\r\n有効なデータが入力されていません。"_q);
    fillRow(3, u"MySection"_q, {4});
    fillRow(5, u"s01"_q, {4});
    fillRow(4, {}, {4});
    is(1, u"所属長"_q,
       u"3行目で部課が選択されていません。\r\n部課を選択するか、その行のチェックを全て外して下さい。"_q);
    sheet.grid.CellChecked(4, 4, false);
    is(1, u"所属長"_q, {});
    fillRow(9, u"S01"_q, {});
    is(0, u"新任"_q, u"１つの部課に複数のアクセス権が設定されています。"_q);
    fillRow(9, u"S99"_q, {});
    is(0, u"新任"_q, u"部課名が不正です。部課名はリストから選択して下さい。"_q);
}

TEST_F(AccessSheetTest, ARightIsRewrittenAsItStands) {
    fillRow(4, u"S02"_q, {24});
    fillRow(7, u"MySection"_q, {4, 10});
    const int code = UpdateAccess(connection, 0, u"主任's 50%"_q, sheet);
    EXPECT_EQ(code, 3);
    EXPECT_EQ(right(code, u"F_Section"_q) + right(code, u"F_WriteApproval"_q) + right(code, u"F_ReadMyKurbo"_q),
              u"S02-10"_q);

    // The leave that the company doesn't use any more loses its right; an emptied row goes.
    style.pbleEnablePaid = false;
    ShowAccess(connection, code, style, sheet);
    EXPECT_EQ(sheet.grid.Rows(), firstAccessRow + 2 + 20);
    EXPECT_TRUE(sheet.grid.ColHidden(10) && sheet.grid.ColHidden(11) && !sheet.grid.ColHidden(12));
    sheet.grid.clear(firstAccessRow, section);
    EXPECT_EQ(UpdateAccess(connection, code, u"主任"_q, sheet), code);
    EXPECT_EQ(right(code, u"F_Section"_q) + right(code, u"F_ReadMyKurbo"_q) + right(code, u"F_WriteMyPaid"_q),
              u"MySection-10"_q);
    EXPECT_EQ(asked(u"SELECT F_AccessName FROM M08_Access WHERE (F_AccessCode = 3) AND (F_Order = 2)"_q), QString());

    DeleteAccess(connection, code);
    EXPECT_THROW((void)UpdateAccess(connection, code, u"主任"_q, sheet), Complaint);
    EXPECT_EQ(right(code, u"F_Section"_q), QString());
}

TEST_F(AccessSheetTest, CellsTakeListedSectionsAndTellWhatTheyAre) {
    EXPECT_EQ(rules.refusal(2, section, u"総務"_q), u"不正な入力です。リストから選択して下さい。"_q);
    EXPECT_EQ(rules.refusal(2, section, u"所属部課"_q), QString());
    sheet.grid.edit(2, section, u" 工場 "_q);
    EXPECT_EQ(sheet.grid.TextMatrix(2, section), u"S02"_q);
    EXPECT_EQ(rules.tip(2, 11), u"他ﾕｰｻﾞｰの有給休暇の更新権を設定します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"_q);
    EXPECT_EQ(rules.tip(2, 22), u"自分のタイムカードの削除権を設定します(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)"_q);
    EXPECT_EQ(sheet.grid.TextMatrix(0, 22) + sheet.grid.TextMatrix(1, 23) + sheet.grid.TextMatrix(0, 24),
              u"削除他承認"_q);
}

} // namespace
} // namespace kurbo::test
