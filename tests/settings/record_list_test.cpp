#include "settings/people/password.h"
#include "settings/records.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

class RecordListTest : public SampleCompany {
  protected:
    RecordListTest() {
        for (const char16_t* code : {u"S02", u"S03"}) addSection(QString::fromUtf16(code));
    }
    void addSection(const QString& code) {
        RecordTexts texts = with(sectionList().fields, u"F_SectionCode"_q, code);
        texts[0] = code + u"部"_q;
        writeRecord(connection, sectionList(), {newCode(), {}, texts});
    }
    [[nodiscard]] QString order(const RecordList& list) {
        QString codes;
        for (const CodeName& entry : recordNames(connection, list)) codes += entry.code + u' ';
        return codes.trimmed();
    }
    QString renamed(const RecordList& list, const QString& code, const QString& field, const QString& text) {
        const RecordTexts before = readRecord(connection, list, code);
        RecordEdit edit{code, before, before};
        for (const RecordField& other : list.fields)
            if (auto& now = edit.now[fieldAt(list.fields, other.name)]; other.required && now.isEmpty()) now = u"ｱ"_q;
        edit.now[fieldAt(list.fields, field)] = text;
        return refusalOf([&] {
            checkRecord(connection, list, edit);
            writeRecord(connection, list, edit);
        });
    }
    [[nodiscard]] QString added(const RecordList& list, const QString& field, const QString& text) {
        return refusalOf([&] { checkRecord(connection, list, {newCode(), {}, with(list.fields, field, text)}); });
    }
};

TEST_F(RecordListTest, RecordsMoveUntilTheEnds) {
    const auto moved = [this](const QString& code, Direction direction) {
        moveRecord(connection, sectionList(), code, direction);
        return order(sectionList());
    };
    EXPECT_EQ(moved(u"S01"_q, Direction::Up), u"NEW S01 S02 S03"_q);
    EXPECT_EQ(moved(u"S03"_q, Direction::Down), u"NEW S01 S02 S03"_q);
    EXPECT_EQ(moved(newCode(), Direction::Down), u"NEW S01 S02 S03"_q);
    EXPECT_EQ(moved(u"S03"_q, Direction::Up), u"NEW S01 S03 S02"_q);
    EXPECT_EQ(asked(u"SELECT F_Order FROM C02_Section WHERE (F_SectionCode = 'S03')"_q), u"2"_q);
    removeRecord(connection, sectionList(), u"S03"_q);
    EXPECT_EQ(moved(u"S02"_q, Direction::Up), u"NEW S02 S01"_q) << "over the gap";
    EXPECT_EQ(refusalOf([&] { moved(u"S03"_q, Direction::Up); }), QString::number(int(StoreError::RowGone)));
    addSection(u"S04"_q);
    EXPECT_EQ(order(sectionList()), u"NEW S02 S01 S04"_q);
    EXPECT_EQ(order(staffList()), u"NEW 1001 1002 1003 1004"_q) << "nobody meets the administrator";
    moveRecord(connection, staffList(), u"1001"_q, Direction::Up);
    EXPECT_EQ(asked(u"SELECT F_Order FROM C03_Staff WHERE (F_StaffCode = 'ADMIN')"_q), u"0"_q);
}

TEST_F(RecordListTest, NewRecordsDifferFromAllOthers) {
    for (const QStringList& row : rowsOf(R"(
F_SectionName | 総務部    | 部課名を変更して下さい。/n同じ部課名が既に登録されています。
F_SectionCode | s01       | 部課コードを変更して下さい。/n同じ部課コードが既に登録されています。
F_SectionCode | MYSECTION | 部課コードが不正です。「MySection」はシステム予約コードです。
F_StaffName   | 山田太郎  | 氏名を変更して下さい。/n同じ氏名が既に登録されています。
F_StaffCode   | 1001      | 社員コードを変更して下さい。/n同じ社員コードが既に登録されています。
)"))
        EXPECT_EQ(added(row[0].startsWith(u"F_Se"_q) ? sectionList() : staffList(), row[0], row[1]), row[2]);
}

TEST_F(RecordListTest, WhatIsUsedKeepsItsCode) {
    const QString used = u"表示されている%1の%2コードは他のテーブルで使用されているため変更できません。\r\n"
                         u"%2コードを元に戻すか、変更したデータを破棄して下さい。"_q;
    insert("M08_Access", "AccessCode, AccessName, Section", u"9, '他', 'S02'"_q);
    for (const char16_t* code : {u"S01", u"S02"}) {
        const QString section = QString::fromUtf16(code);
        EXPECT_EQ(renamed(sectionList(), section, u"F_SectionCode"_q, u"S09"_q), used.arg(u"部課"_q, u"部課"_q));
        EXPECT_EQ(refusalOf([&] { removeRecord(connection, sectionList(), section); }),
                  u"表示されている部課は使用されているため削除できません。"_q);
    }
    EXPECT_EQ(renamed(sectionList(), u"S01"_q, u"F_SectionName"_q, u"管理部"_q), QString());
    EXPECT_EQ(renamed(sectionList(), u"S03"_q, u"F_SectionCode"_q, u"S09"_q), QString());
    EXPECT_EQ(renamed(sectionList(), u"S09"_q, u"F_SectionCode"_q, u"s02"_q),
              u"部課コードを変更して下さい。\r\n同じ部課コードが既に登録されています。"_q);
    EXPECT_EQ(renamed(sectionList(), u"S09"_q, u"F_SectionCode"_q, u"s09"_q), QString()) << "its own in other letters";
    EXPECT_EQ(renamed(staffList(), u"1001"_q, u"F_StaffName"_q, u"鈴木花子"_q), QString()) << "two of one name";
    EXPECT_EQ(renamed(staffList(), u"1001"_q, u"F_StaffCode"_q, u"1009"_q), used.arg(u"社員"_q, u"社員"_q));
    connection.execute(u"DELETE FROM M02_StaffInfo WHERE (F_StaffCode = '1003')"_q);
    insert("T04_Destination", "DestCode, User", u"1, '1003'"_q);
    EXPECT_TRUE(isUsedRecord(connection, staffList(), u"1003"_q));
    connection.execute(u"DELETE FROM T04_Destination"_q);
    addCard(1, today, u"09:00"_q, {}, {}, u"1003"_q);
    EXPECT_TRUE(isUsedRecord(connection, staffList(), u"1003"_q));
    connection.execute(u"DELETE FROM T02_Kurbo"_q);
    removeRecord(connection, staffList(), u"1003"_q);
    EXPECT_EQ(order(staffList()), u"NEW 1001 1002 1004"_q);
}

TEST_F(RecordListTest, TwoPeopleAtOneRecordLoseNothing) {
    const RecordTexts before = readRecord(connection, sectionList(), u"S02"_q);
    const int tel = fieldAt(sectionList().fields, u"F_Tel");
    const int fax = fieldAt(sectionList().fields, u"F_Fax");
    RecordEdit mine{u"S02"_q, before, before};
    RecordEdit theirs = mine;
    mine.now[tel] = u"1"_q;
    theirs.now[fax] = u"2"_q;
    writeRecord(connection, sectionList(), theirs);
    writeRecord(connection, sectionList(), mine);
    const RecordTexts both = readRecord(connection, sectionList(), u"S02"_q);
    EXPECT_EQ(both[tel] + both[fax], u"12"_q);
    removeRecord(connection, sectionList(), u"S02"_q);
    EXPECT_EQ(refusalOf([&] { writeRecord(connection, sectionList(), mine); }),
              QString::number(int(StoreError::RowGone)));
}

TEST_F(RecordListTest, PasswordsAreChangedByThePersonAlone) {
    const auto refusal = [this](const QString& old, const QString& wanted, const QString& again) {
        const auto found = checkPasswordChange(connection, u"1001"_q, {old, wanted, again});
        return found ? QString::number(int(found->box)) + found->text : QString();
    };
    EXPECT_EQ(refusal(u"kurbo1"_q, u"new1"_q, u"new2"_q), u"2確認用パスワードが新しいパスワードと異なります。"_q);
    EXPECT_EQ(refusal({}, u"new1"_q, u"new1"_q), u"0現在登録されているパスワードを入力して下さい。"_q);
    EXPECT_EQ(refusal(u"' OR 1=1 --"_q, u"new1"_q, u"new1"_q), u"0"_q);
    for (const QString& wrong : {u"12345678901"_q, u"pass_1"_q, u"ﾊﾟｽ"_q, u" "_q})
        EXPECT_EQ(refusal(u"kurbo1"_q, wrong, wrong),
                  u"1不正な入力です。パスワードは半角英数字10文字以内で入力します。"_q);
    EXPECT_EQ(refusal(u"kurbo1"_q, u"kurbo1"_q, u"kurbo1"_q), QString()) << "the same again";
    UpdatePassword(connection, u"1001"_q, u"New1234567"_q);
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"New1234567"_q);
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1002')"_q), u"kurbo1"_q);
    EXPECT_EQ(refusalOf([this] { UpdatePassword(connection, u"9999"_q, u"a"_q); }),
              QString::number(int(StoreError::RowGone)));
}

} // namespace
} // namespace kurbo::test
