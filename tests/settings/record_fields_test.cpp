#include "settings/records.h"

namespace kurbo::test {
namespace {

using RecordFieldsTest = SampleCompany;

struct Refusal {
    RecordFields fields;
    const char16_t* field;
    const char16_t* text;
    const char16_t* onUpdate;
    const char16_t* onLeaving; // null where the screen doesn't ask
};

QString filled(const char16_t* text) {
    QString whole = QString::fromUtf16(text);
    // "x51" stands for 51 letters.
    return whole.startsWith(u'x') ? QString(whole.sliced(1).toInt(), u'x') : whole;
}

TEST_F(RecordFieldsTest, EveryRefusalHasItsWords) {
    const RecordFields corp = corpFields();
    const RecordFields section = sectionList().fields;
    const RecordFields staff = staffList().fields;
    constexpr auto fromList = u"リストから選択して下さい｡ ";
    const std::array refusals{
        Refusal{corp, u"F_Corp", u" ", u"会社名が入力されていません。", u""},
        Refusal{corp, u"F_Corp", u"x51", u"会社名が不正です。会社名は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。会社名は全角25文字(半角50文字)以内で入力します。"},
        Refusal{corp, u"F_Branch", u"x51", u"支社店名が不正です。支社店名は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。支社店名は全角25文字(半角50文字)以内で入力します。"},
        Refusal{corp, u"F_ZipCode", u"１", u"郵便番号が不正です。郵便番号は半角12文字以内で入力します。",
                u"不正な入力です。郵便番号は半角12文字以内で入力します。"},
        Refusal{corp, u"F_Pref", u"江戸", u"都道府県名が不正です。都道府県名はリストから選択して下さい。", fromList},
        Refusal{corp, u"F_Pref", u"全国", u"", u""},
        Refusal{corp, u"F_Address1", u"x51", u"住所1が不正です。住所1は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。住所1は全角25文字(半角50文字)以内で入力します。"},
        Refusal{corp, u"F_Address2", u"x51", u"住所2が不正です。住所2は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。住所2は全角25文字(半角50文字)以内で入力します。"},
        Refusal{corp, u"F_Tel", u"x21", u"電話番号が不正です。電話番号は半角20文字以内で入力します。",
                u"不正な入力です。電話番号は半角20文字以内で入力します。"},
        Refusal{corp, u"F_Fax", u"x21", u"ﾌｧｯｸｽ番号が不正です。ﾌｧｯｸｽ番号は半角20文字以内で入力します。",
                u"不正な入力です。ﾌｧｯｸｽ番号は半角20文字以内で入力します。"},
        Refusal{corp, u"F_Title", u"x21", u"代表者肩書が不正です。代表者肩書は全角10文字(半角20文字)以内で入力します。",
                u"不正な入力です。代表者肩書は全角10文字(半角20文字)以内で入力します。"},
        Refusal{corp, u"F_President", u"x31", u"代表者名が不正です。代表者名は全角15文字(半角30文字)以内で入力します。",
                u"不正な入力です。代表者名は全角15文字(半角30文字)以内で入力します。"},
        Refusal{section, u"F_SectionName", u"", u"部課名が入力されていません。", nullptr},
        Refusal{section, u"F_SectionName", u"新しい部課",
                u"部課名を変更して下さい。\r\n名称「新しい部課」は使用できません。", nullptr},
        Refusal{section, u"F_SectionName", u"x31",
                u"部課名が不正です。部課名は全角15文字(半角30文字)以内で入力します。", nullptr},
        Refusal{section, u"F_SectionCode", u"", u"部課コードが入力されていません。", nullptr},
        Refusal{section, u"F_SectionCode", u"x11", u"部課コードが不正です。部課コードは半角10文字以内で入力します。",
                nullptr},
        Refusal{section, u"F_SectionCode", u"new", u"部課コードが不正です。「NEW」はシステム予約コードです。", nullptr},
        Refusal{section, u"F_SectionCode", u"mysection",
                u"部課コードが不正です。「MySection」はシステム予約コードです。", nullptr},
        Refusal{section, u"F_Tel", u"x21", u"電話番号が不正です。電話番号は半角20文字以内で入力します。", nullptr},
        Refusal{section, u"F_Fax", u"x21", u"ﾌｧｯｸｽ番号が不正です。ﾌｧｯｸｽ番号は半角20文字以内で入力します。", nullptr},
        Refusal{section, u"F_DB", u"", u"データベースのパスが入力されていません。", nullptr},
        Refusal{section, u"F_DB", u"x101",
                u"データベースのパスが不正です。\r\nデータベースのパスは全角50文字(半角100文字)以内で入力します。\r\n"
                u"データベースの保存場所を変更し、パスを短縮して下さい。",
                nullptr},
        Refusal{staff, u"F_StaffName", u"", u"氏名が入力されていません。", u""},
        Refusal{staff, u"F_StaffName", u"新しい社員", u"氏名を変更して下さい。\r\n氏名「新しい社員」は使用できません。",
                u""},
        Refusal{staff, u"F_StaffName", u"x21", u"氏名が不正です。氏名は全角10文字(半角20文字)以内で入力します。",
                u"不正な入力です。氏名は全角10文字(半角20文字)以内で入力します。"},
        Refusal{staff, u"F_Kana", u"", u"フリガナが入力されていません。", u""},
        Refusal{staff, u"F_Kana", u"ア", u"フリガナが不正です。フリガナは半角20文字以内で入力します。",
                u"不正な入力です。フリガナは半角20文字以内で入力します。"},
        Refusal{staff, u"F_StaffCode", u"", u"社員コードが入力されていません。", u""},
        Refusal{staff, u"F_StaffCode", u"x11", u"社員コードが不正です。部課コードは半角10文字以内で入力します。",
                u"不正な入力です。社員コードは半角10文字以内で入力します。"},
        Refusal{staff, u"F_StaffCode", u"nEw", u"社員コードが不正です。「NEW」はシステム予約コードです。",
                u"不正な入力です。「NEW」はシステム予約コードです。"},
        Refusal{staff, u"F_StaffCode", u"admin", u"社員コードが不正です。「ADMIN」はシステム予約コードです。", u""},
        Refusal{staff, u"F_Section", u"", u"所属部課が入力されていません。", u""},
        Refusal{staff, u"F_Section", u"総務", u"所属部課が不正です。所属部課はリストから選択して下さい。", fromList},
        Refusal{staff, u"F_ZipCode", u"x13", u"郵便番号が不正です。郵便番号は半角12文字以内で入力します。",
                u"不正な入力です。郵便番号は半角12文字以内で入力します。"},
        Refusal{staff, u"F_Pref", u"全国", u"都道府県名が不正です。都道府県名はリストから選択して下さい。", fromList},
        Refusal{staff, u"F_Address1", u"x51", u"住所1が不正です。住所1は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。住所1は全角25文字(半角50文字)以内で入力します。"},
        Refusal{staff, u"F_Address2", u"x51", u"住所2が不正です。住所2は全角25文字(半角50文字)以内で入力します。",
                u"不正な入力です。住所2は全角25文字(半角50文字)以内で入力します。"},
        Refusal{staff, u"F_Tel", u"x21", u"電話番号が不正です。電話番号は半角20文字以内で入力します。",
                u"不正な入力です。電話番号は半角20文字以内で入力します。"},
        Refusal{staff, u"F_HPhone", u"x21", u"携帯番号が不正です。携帯番号は半角20文字以内で入力します。",
                u"不正な入力です。携帯番号は半角20文字以内で入力します。"},
        Refusal{staff, u"F_EMail", u"x51", u"メールアドレスが不正です。メールアドレスは半角50文字以内で入力します。",
                u"不正な入力です。メールアドレスは半角50文字以内で入力します。"},
        Refusal{staff, u"F_Birth", u"1980/02/30", u"生年月日が不正です。日付をyyyy/mm/dd形式で入力します。",
                u"不正な入力です。生年月日はyyyy/mm/ddの形式で入力します。"},
        Refusal{staff, u"F_Join", u"2026/__/__", u"入社日が不正です。日付をyyyy/mm/dd形式で入力します。",
                u"不正な入力です。入社日はyyyy/mm/ddの形式で入力します。"},
        Refusal{staff, u"F_Retire", u"2026/13/01", u"退社日が不正です。日付をyyyy/mm/dd形式で入力します。",
                u"不正な入力です。退社日はyyyy/mm/ddの形式で入力します。"},
    };
    for (const Refusal& wrong : refusals) {
        const QString text = filled(wrong.text);
        const bool isSection = wrong.fields.data() == section.data();
        const RecordRules rules{{u"S01"_q}, isSection ? &sectionList().reserved : &staffList().reserved};
        const QString name = QString::fromUtf16(wrong.field);
        SCOPED_TRACE(name.toStdString() + " " + text.toStdString());
        EXPECT_EQ(refusalOf([&] { checkFields(wrong.fields, with(wrong.fields, name, text), rules); }),
                  QString::fromUtf16(wrong.onUpdate));
        if (!wrong.onLeaving) continue;
        const RecordField& field = wrong.fields[static_cast<std::size_t>(fieldAt(wrong.fields, name))];
        EXPECT_EQ(refusalOnLeaving(field, text.trimmed(), rules.choices), QString::fromUtf16(wrong.onLeaving));
    }
}

// What fills a field of a number of bytes, in several scripts, and whether a field of single bytes takes it.
QList<std::pair<QString, bool>> limits(int bytes) {
    return {{QString(bytes / 2, u'漢'), false},   {QString(bytes, u'x'), true},
            {QString(bytes, u'ｱ'), true},         {u"'%' OR \"?\" --"_q.first(qMin(bytes, 13)), true},
            {u"𠮷"_q.repeated(bytes / 2), false}, {u"😀"_q.repeated(bytes / 2), false}};
}

template <typename Check, typename Store>
void tryLimits(RecordFields fields, Check check, Store stored) {
    for (qsizetype i = 0; i < static_cast<qsizetype>(fields.size()); ++i) {
        const RecordField& field = fields[static_cast<std::size_t>(i)];
        const bool oneByte = field.kind == FieldKind::SingleByte || field.kind == FieldKind::Code;
        if (!oneByte && field.kind != FieldKind::Text && field.kind != FieldKind::Name) continue;
        const QString refused = QString::fromUtf16(field.subject) + u"が不正です。"_q;
        for (const auto& [text, isOneByte] : limits(field.limit)) {
            SCOPED_TRACE(QString::fromUtf16(field.name).toStdString() + " " + text.toStdString());
            RecordTexts texts = goodTexts(fields);
            texts[i] = text;
            const QString refusal = refusalOf([&] { check(texts); });
            EXPECT_EQ(refusal.isEmpty(), isOneByte || !oneByte) << refusal;
            if (refusal.isEmpty()) {
                EXPECT_EQ(stored(texts), texts);
            }
            texts[i] = QString(field.limit, u'x') + u'ｱ';
            EXPECT_TRUE(refusalOf([&] { check(texts); }).startsWith(refused));
        }
    }
}

TEST_F(RecordFieldsTest, TextsAtTheirLimitsComeBackAsTheyWere) {
    tryLimits(
        corpFields(), [](const RecordTexts& texts) { checkFields(corpFields(), texts, {}); },
        [this](const RecordTexts& texts) {
            writeCorp(connection, readCorp(connection), texts);
            return readCorp(connection);
        });
    for (const RecordList* list : {&sectionList(), &staffList()})
        tryLimits(
            list->fields,
            [&](const RecordTexts& texts) {
                checkRecord(connection, *list, {newCode(), {}, texts});
            },
            [&](const RecordTexts& texts) {
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
    EXPECT_EQ(count(u"C01_Corp"_q), 1);
    connection.execute(u"UPDATE C01_Corp SET F_Pref = '大阪府'"_q);
    EXPECT_EQ(readCorp(connection)[3], u"大阪府"_q) << "stored by its name";
}

TEST_F(RecordFieldsTest, AgesAreWholeYearsAndMonths) {
    EXPECT_EQ(ageText(u"1980/01/15"_q, today), u"年齢：46歳3月"_q);
    EXPECT_EQ(ageText(u"1980/04/16"_q, today), u"年齢：45歳11月"_q);
    EXPECT_EQ(ageText(u"1980/__/__"_q, today) + ageText({}, today), QString());
    EXPECT_EQ(serviceText(u"2010/04/01"_q, {}, today), u"勤続：16年"_q);
    EXPECT_EQ(serviceText(u"2010/04/01"_q, u"2020/06/30"_q, today), u"勤続：10年2月"_q);
    EXPECT_EQ(serviceText(u"2010/04/01"_q, u"2020/__/__"_q, today), QString());
}

} // namespace
} // namespace kurbo::test
