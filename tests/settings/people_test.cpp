#include "settings/people/staff_settings.h"

#include "month/loaders.h"
#include "settings/people/access_sheet.h"
#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class StaffSettingsTest : public SampleCompany {
  protected:
    StaffSettingsTest() {
        insert("M04_HolidayStyle", "HolidayCode", u"1"_q);
        insert("M05_AmHolidayStyle", "AmHolidayCode", u"1"_q);
        insert("M06_PmHolidayStyle", "PmHolidayCode", u"1"_q);
        insert("M07_AdjustHours", "AdjustCode, AdjustName", u"9, '無'"_q);
        readCompanyStyle(connection, style);
        good = ShowStaff(connection, u"1001"_q, style);
        good.texts = {u"abc123"_q, u"20"_q, u"1.5"_q, QString(), u"30"_q};
        good.codes = {u"1"_q, u"1"_q, u"1"_q, u"1"_q, u"9"_q, u"1"_q};
    }
    [[nodiscard]] QString refusal(const StaffSettings& settings) {
        return refusalOf([&] { checkStaffSettings(settings, style); });
    }
    [[nodiscard]] QString stored(const QString& field) {
        return asked(u"SELECT %1 FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q.arg(field));
    }

    clsWorkTime style;
    StaffSettings good;
};

// Field (0 password, 1 closing day, 2 paid leave, 3 enter delay, 4 leave gain), text, and what is said of it.
constexpr auto refusals = R"(
0 |             | パスワードが入力されていません。
0 | abcde123456 | パスワードが不正です。パスワードは半角英数字10文字以内で入力します。
0 | ａ          | パスワードが不正です。パスワードは半角英数字10文字以内で入力します。
0 | abcde12345  |
1 |             | 締日が入力されていません。
1 | 28          | タイムカード締日が不正です。タイムカード締日は1～27, 31(末締は31)の範囲で入力します。
1 | 31          |
2 |             | 有給休暇残数が入力されていません。
2 | x           | 有給休暇残数が不正です。数値を入力して下さい。
2 | -1.5        |
3 | 1000        | 出社時刻調整時間が不正です。出社時刻調整時間は0～999(秒)の範囲で入力します。
)";

TEST_F(StaffSettingsTest, TheFirstRuleThatFailsIsTold) {
    for (const QStringList& row : rowsOf(refusals)) {
        StaffSettings settings = good;
        settings.texts[row[0].toUInt()] = row[1];
        EXPECT_EQ(refusal(settings), row[2]) << row[0] << row[1];
    }
    std::size_t choice = 0;
    for (const auto& subject : {u"平日勤務形態"_q, u"休日勤務形態"_q, u"午前休日勤務形態"_q, u"午後休日勤務形態"_q,
                                u"時間調整方法"_q, u"アクセス権"_q}) {
        StaffSettings settings = good;
        settings.codes[choice++].clear();
        EXPECT_EQ(refusal(settings), subject + u"が入力されていません。"_q);
    }
}

TEST_F(StaffSettingsTest, WhatTheCompanyLacksIsNotAskedForAndStays) {
    style.plngAmHolidayWork = 0;
    StaffSettings settings = good;
    settings.codes[StaffSettings::AmHoliday].clear();
    EXPECT_EQ(refusal(settings), QString());
    connection.execute(u"UPDATE M02_StaffInfo SET F_AmHoliday = 7 WHERE (F_StaffCode = '1001')"_q);
    UpdateStaff(connection, u"1001"_q, settings, style);
    EXPECT_EQ(stored(u"F_AmHoliday"_q), u"7"_q);
}

TEST_F(StaffSettingsTest, TheFirstUpdateMakesTheRow) {
    DeleteStaff(connection, u"1001"_q);
    good.texts[StaffSettings::Paid] = u"12.3"_q;
    UpdateStaff(connection, u"1001"_q, good, style);
    const StaffSettings read = ShowStaff(connection, u"1001"_q, style);
    EXPECT_EQ(read.texts, (std::array<QString, 5>{u"abc123"_q, u"20"_q, u"12.3"_q, u"0"_q, u"30"_q}));
    EXPECT_EQ(read.codes, good.codes);

    // What another administrator has taken away meanwhile can't be given.
    good.codes[StaffSettings::Adjust] = u"8"_q;
    good.texts[StaffSettings::CloseDay] = u"5"_q;
    EXPECT_THROW(UpdateStaff(connection, u"1001"_q, good, style), Complaint);
    EXPECT_EQ(stored(u"F_CloseDay"_q), u"20"_q);
}

TEST_F(StaffSettingsTest, ButtonsStepAroundTheEnds) {
    // Field as above, text, the next one up, the next one down.
    for (const QStringList& row : rowsOf("1|1|2|31\n1|26|27|25\n1|27|31|26\n1|29|31|27\n1|31|1|27\n1|x|1|31\n"
                                         "2|0.3|0.8|0\n2||0|0\n2|10|10.5|9.5\n3|999|0|998\n4|0|1|999\n4||0|999")) {
        const auto field = static_cast<StaffSettings::Field>(row[0].toInt());
        EXPECT_EQ(stepped(field, row[1], true), row[2]) << row[1];
        EXPECT_EQ(stepped(field, row[1], false), row[3]) << row[1];
    }
}

constexpr int section = static_cast<int>(AccessColumn::Section);

class AccessSheetTest : public SampleCompany {
  protected:
    AccessSheetTest() {
        sheet.grid.setRules(&rules);
        insert("C02_Section", "SectionCode, SectionName, Order, Display", u"'S02', '工場', 2, True"_q);
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
    sheet.grid.clear(firstAccessRow, section);
    EXPECT_EQ(UpdateAccess(connection, code, u"主任"_q, sheet), code);
    EXPECT_EQ(right(code, u"F_Section"_q) + right(code, u"F_ReadMyKurbo"_q) + right(code, u"F_WriteMyPaid"_q),
              u"MySection-10"_q);
    DeleteAccess(connection, code);
    EXPECT_THROW((void)UpdateAccess(connection, code, u"主任"_q, sheet), Complaint);
    EXPECT_EQ(right(code, u"F_Section"_q), QString());
}

TEST_F(AccessSheetTest, CellsTakeListedSections) {
    EXPECT_EQ(rules.refusal(2, section, u"総務"_q), u"不正な入力です。リストから選択して下さい。"_q);
    EXPECT_EQ(rules.refusal(2, section, u"所属部課"_q), QString());
    sheet.grid.edit(2, section, u" 工場 "_q);
    EXPECT_EQ(sheet.grid.TextMatrix(2, section), u"S02"_q);
}

} // namespace
} // namespace kurbo::test
