#include "base/system/code_page.h"
#include "settings/people/password.h"
#include "settings/records/corp.h"
#include "settings/records/section.h"
#include "settings/records/staff.h"
#include "store/engine_fault.h"
#include "support/sample_company.h"
#include "support/table.h"

#include <QRegularExpression>

namespace kurbo::test {
namespace {

// A text that each field takes, by their kinds.
RecordTexts goodTexts(RecordFields fields) {
    static const std::array good{u"ｱ1"_q,     u"ｱ1"_q,  u"ｱ1"_q, u"ｱ1"_q, u"1980/02/29"_q,
                                 u"東京都"_q, u"S01"_q, u"1"_q,  u"1"_q};
    RecordTexts texts;
    for (const RecordField& field : fields) texts.append(good[static_cast<std::size_t>(field.kind)]);
    return texts;
}

RecordTexts with(RecordFields fields, const QString& field, const QString& text) {
    RecordTexts texts = goodTexts(fields);
    texts[fieldAt(fields, field)] = text;
    return texts;
}

using RecordFieldsTest = SampleCompany;

// Screen, field, text ("x51": 51 letters, "-": none), what would be right or the whole refusal on an update, and the
// refusal on leaving where it isn't made of the same words ("-": none). "/n" is the end of a line.
constexpr auto refusals = R"(
corp F_Corp - 会社名が入力されていません。 -
corp F_Corp x51 会社名は全角25文字(半角50文字)以内で入力します。
corp F_Pref 江戸 都道府県名が不正です。都道府県名はリストから選択して下さい。 リストから選択して下さい｡_
corp F_Pref 全国 - -
section F_SectionName - 部課名が入力されていません。 -
section F_SectionName 新しい部課 部課名を変更して下さい。/n名称「新しい部課」は使用できません。 -
section F_SectionCode - 部課コードが入力されていません。 -
section F_SectionCode mysection 部課コードが不正です。「MySection」はシステム予約コードです。 -
section F_SectionCode new 部課コードが不正です。「NEW」はシステム予約コードです。 不正な入力です。「NEW」はシステム予約コードです。
section F_DB - データベースのパスが入力されていません。 -
staff F_StaffName - 氏名が入力されていません。 -
staff F_StaffName 新しい社員 氏名を変更して下さい。/n氏名「新しい社員」は使用できません。 -
staff F_StaffName x21 氏名は全角10文字(半角20文字)以内で入力します。
staff F_Kana - フリガナが入力されていません。 -
staff F_StaffCode - 社員コードが入力されていません。 -
staff F_StaffCode x11 社員コードが不正です。部課コードは半角10文字以内で入力します。 不正な入力です。社員コードは半角10文字以内で入力します。
staff F_StaffCode nEw 社員コードが不正です。「NEW」はシステム予約コードです。 不正な入力です。「NEW」はシステム予約コードです。
staff F_StaffCode admin 社員コードが不正です。「ADMIN」はシステム予約コードです。 -
staff F_Section - 所属部課が入力されていません。 -
staff F_Section 総務 所属部課が不正です。所属部課はリストから選択して下さい。 リストから選択して下さい｡_
staff F_Birth 1980/02/30 生年月日が不正です。日付をyyyy/mm/dd形式で入力します。 不正な入力です。生年月日はyyyy/mm/ddの形式で入力します。
staff F_Retire 2026/13/01 退社日が不正です。日付をyyyy/mm/dd形式で入力します。 不正な入力です。退社日はyyyy/mm/ddの形式で入力します。
section F_DB x101 データベースのパスが不正です。/nデータベースのパスは全角50文字(半角100文字)以内で入力します。/nデータベースの保存場所を変更し、パスを短縮して下さい。 ?
)";

TEST_F(RecordFieldsTest, EveryRefusalHasItsWords) {
    const QHash<QString, RecordFields> tables{
        {u"corp"_q, corpFields()}, {u"section"_q, sectionList().fields}, {u"staff"_q, staffList().fields}};
    for (const QStringList& row : rowsOf(refusals)) {
        SCOPED_TRACE(row[0].toStdString());
        QStringList words = row[0].split(u' ');
        if (words.size() == 4) {
            words.append(u"不正な入力です。"_q + words[3]);
            words[3] = words[3].section(u'は', 0, 0) + u"が不正です。"_q + words[3];
        }
        words.replaceInStrings(QRegularExpression(u"^-$"_q), {});
        if (words[2].startsWith(u'x')) words[2] = QString(words[2].sliced(1).toInt(), u'x');
        const RecordFields fields = tables.value(words[0]);
        const ReservedRecord& reserved = words[0] == u"section" ? sectionList().reserved : staffList().reserved;
        EXPECT_EQ(refusalOf([&] {
                      checkFields(fields, with(fields, words[1], words[2]), {{u"S01"_q}, &reserved});
                  }),
                  words[3]);
        if (words[4] == u"?") continue;
        const RecordField& field = fields[static_cast<std::size_t>(fieldAt(fields, words[1]))];
        EXPECT_EQ(refusalOnLeaving(field, words[2], {u"S01"_q}), words[4].replace(u'_', u' '));
    }
}

// Every text at its limit, the others good; `stored` writes them and reads them again.
template <typename Store>
void tryLimits(RecordFields fields, Store stored) {
    RecordTexts texts = goodTexts(fields);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const RecordField& field = fields[static_cast<std::size_t>(i)];
        const bool oneByte = field.kind == FieldKind::SingleByte || field.kind == FieldKind::Code;
        if (!oneByte && field.kind != FieldKind::Text && field.kind != FieldKind::Name) continue;
        const QString sign = oneByte ? u"ｱ"_q : u"𠮷"_q;
        texts[i] = sign.repeated(field.limit / byteLength(sign));
        RecordTexts longer = texts;
        longer[i] += u'x';
        EXPECT_TRUE(refusalOf([&] {
                        checkFields(fields, longer, {{u"S01"_q}, &sectionList().reserved});
                    }).contains(u"半角%1文字"_q.arg(field.limit)));
    }
    EXPECT_EQ(refusalOf([&] { checkFields(fields, texts, {{u"S01"_q}, &sectionList().reserved}); }), QString());
    EXPECT_EQ(stored(texts), texts);
}

TEST_F(RecordFieldsTest, TextsAtTheirLimitsComeBackAsTheyWere) {
    tryLimits(corpFields(), [this](const RecordTexts& texts) {
        writeCorp(connection, readCorp(connection), texts);
        return readCorp(connection);
    });
    for (const RecordList* list : {&sectionList(), &staffList()})
        tryLimits(list->fields, [&](const RecordTexts& texts) {
            const QString code = writeRecord(connection, *list, {newCode(), {}, texts});
            const RecordTexts stored = readRecord(connection, *list, code);
            removeRecord(connection, *list, code);
            return stored;
        });
}

TEST_F(RecordFieldsTest, BlanksAreStoredAsNullAndPrefecturesByNumber) {
    RecordTexts texts = goodTexts(corpFields());
    writeCorp(connection, readCorp(connection), texts);
    EXPECT_EQ(asked(u"SELECT F_Pref FROM C01_Corp"_q), u"13"_q);
    for (qsizetype i = 1; i < texts.size(); ++i) texts[i] = u" "_q;
    writeCorp(connection, readCorp(connection), texts);
    for (const RecordField& field : corpFields().subspan(1))
        EXPECT_EQ(asked(u"SELECT %1 FROM C01_Corp"_q.arg(QString::fromUtf16(field.name))), u"-"_q);
    connection.execute(u"UPDATE C01_Corp SET F_Pref = '大阪府'"_q);
    EXPECT_EQ(readCorp(connection)[3], u"大阪府"_q) << "stored by its name";
}

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
    EXPECT_EQ(moved(u"S03"_q, Direction::Up), u"NEW S01 S03 S02"_q);
    removeRecord(connection, sectionList(), u"S03"_q);
    EXPECT_EQ(moved(u"S02"_q, Direction::Up), u"NEW S02 S01"_q) << "over the gap";
    EXPECT_EQ(refusalOf([&] { moved(u"S03"_q, Direction::Up); }), QString::number(int(StoreError::RowGone)));
    addSection(u"S04"_q);
    EXPECT_EQ(order(sectionList()), u"NEW S02 S01 S04"_q);
    moveRecord(connection, staffList(), u"1001"_q, Direction::Up);
    EXPECT_EQ(asked(u"SELECT F_Order FROM C03_Staff WHERE (F_StaffCode = 'ADMIN')"_q), u"0"_q);
}

TEST_F(RecordListTest, NewRecordsDifferFromAllOthers) {
    for (const QStringList& row : rowsOf(R"(
F_SectionName | 総務部    | 部課名を変更して下さい。/n同じ部課名が既に登録されています。
F_SectionCode | s01       | 部課コードを変更して下さい。/n同じ部課コードが既に登録されています。
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
    EXPECT_EQ(renamed(sectionList(), u"S03"_q, u"F_SectionCode"_q, u"S09"_q), QString());
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
    // The box at fault and what is said; nothing for a good change.
    const auto refusal = [this](const PasswordChange& change) {
        const auto found = checkPasswordChange(connection, u"1001"_q, change);
        return found ? QString::number(int(found->box)) + found->text : QString();
    };
    const QString wrong = u"1不正な入力です。パスワードは半角英数字10文字以内で入力します。"_q;
    for (const auto& [change, said] :
         {std::pair{PasswordChange{u"kurbo1"_q, u"new1"_q, u"new2"_q},
                    u"2確認用パスワードが新しいパスワードと異なります。"_q},
          {{{}, u"new1"_q, u"new1"_q}, u"0現在登録されているパスワードを入力して下さい。"_q},
          {{u"' OR 1=1 --"_q, u"new1"_q, u"new1"_q}, u"0"_q},
          {{u"kurbo1"_q, u"12345678901"_q, u"12345678901"_q}, wrong},
          {{u"kurbo1"_q, u"pass_1"_q, u"pass_1"_q}, wrong},
          {{u"kurbo1"_q, u"kurbo1"_q, u"kurbo1"_q}, QString()}})
        EXPECT_EQ(refusal(change), said) << change.wanted;
    UpdatePassword(connection, u"1001"_q, u"New1234567"_q);
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001')"_q), u"New1234567"_q);
    EXPECT_EQ(asked(u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1002')"_q), u"kurbo1"_q);
}

} // namespace
} // namespace kurbo::test
