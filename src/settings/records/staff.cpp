#include "settings/records/staff.h"

#include "base/day_arithmetic.h"

#include <algorithm>

namespace kurbo {
namespace {

using enum FieldKind;

constexpr auto dateOnUpdate = u"日付をyyyy/mm/dd形式で入力します。";

constexpr std::array fields{
    RecordField{u"F_StaffName", u"txtName", u"      氏名：", Name, 20, true, true, u"氏名",
                u"氏名は全角10文字(半角20文字)以内で入力します。"},
    RecordField{u"F_Kana", u"txtKana", u"     ﾌﾘｶﾞﾅ：", SingleByte, 20, true, true, u"フリガナ",
                u"フリガナは半角20文字以内で入力します。"},
    RecordField{u"F_StaffCode", u"txtCode", u"  社員ｺｰﾄﾞ：", Code, 10, false, true, u"社員コード",
                u"社員コードは半角10文字以内で入力します。", u"部課コードは半角10文字以内で入力します。"},
    RecordField{u"F_Section", u"dcbSection", u"  所属部課：", List, 0, true, true, u"所属部課",
                u"所属部課はリストから選択して下さい。"},
    RecordField{u"F_ZipCode", u"txtZipCode", u"  郵便番号：", SingleByte, 12, false, false, u"郵便番号",
                u"郵便番号は半角12文字以内で入力します。"},
    RecordField{u"F_Pref", u"cboPref", u"  都道府県：", Prefecture, 1, true, false, u"都道府県名",
                u"都道府県名はリストから選択して下さい。"},
    RecordField{u"F_Address1", u"txtAddress1", u"     住所1：", Text, 50, true, false, u"住所1",
                u"住所1は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_Address2", u"txtAddress2", u"     住所2：", Text, 50, true, false, u"住所2",
                u"住所2は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_Tel", u"txtTel", u"  電話番号：", SingleByte, 20, false, false, u"電話番号",
                u"電話番号は半角20文字以内で入力します。"},
    RecordField{u"F_HPhone", u"txtHPhone", u"  携帯番号：", SingleByte, 20, false, false, u"携帯番号",
                u"携帯番号は半角20文字以内で入力します。"},
    RecordField{u"F_EMail", u"txtEMail", u"    E-Mail：", Text, 50, false, false, u"メールアドレス",
                u"メールアドレスは半角50文字以内で入力します。"},
    RecordField{u"F_Birth", u"mskBirthday", u"  生年月日：", Date, 0, false, false, u"生年月日",
                u"生年月日はyyyy/mm/ddの形式で入力します。", dateOnUpdate},
    RecordField{u"F_Sex", u"optSex", u"      性別：", Option, 0, false, false, u"男", u"女"},
    RecordField{u"F_Join", u"mskJoin", u"    入社日：", Date, 0, false, false, u"入社日",
                u"入社日はyyyy/mm/ddの形式で入力します。", dateOnUpdate},
    RecordField{u"F_Retire", u"mskRetire", u"    退社日：", Date, 0, false, false, u"退社日",
                u"退社日はyyyy/mm/ddの形式で入力します。", dateOnUpdate},
    RecordField{u"F_Display", u"chkDisplay", u"      表示：", Flag, 0, false, false, u"", u"", nullptr, u"1"},
};

constexpr RecordList list{
    u"社員",
    fields,
    {u"新しい社員", u"氏名", u"ADMIN"},
    true,
    u"SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode <> 'ADMIN') ORDER BY F_Order;",
    u"SELECT F_StaffCode, F_StaffName, F_Kana, F_Section, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, F_HPhone, "
    u"F_EMail, F_Birth, F_Sex, F_Join, F_Retire, F_Order, F_Display FROM C03_Staff WHERE (F_StaffCode = ?);",
    u"SELECT * FROM C03_Staff WHERE (F_StaffCode = ?);",
    u"SELECT F_Order FROM C03_Staff ORDER BY F_Order;",
    u"DELETE * FROM C03_Staff WHERE (F_StaffCode = ?);",
    {u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = ?);",
     u"SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?);",
     u"SELECT F_DestCode FROM T04_Destination WHERE (F_User = ?);"},
    &displayedSections,
    u"ShowStaffRecord",
    u"UpdateStaffRecord",
    u"DeleteStaffRecord",
    u"PrintStaffRecord",
};

// Years, and the months behind them when there are any.
QString spanText(const QString& label, const QString& yearWord, const QString& yearsAndMonths) {
    constexpr int yearDigits = 4;
    const int months = yearsAndMonths.sliced(yearDigits).toInt();
    QString span = label + QString::number(yearsAndMonths.first(yearDigits).toInt()) + yearWord;
    if (months != 0) span += QStringLiteral("%1月").arg(months);
    return span;
}

QString textOf(const RecordTexts& texts, QStringView field) {
    return texts[fieldAt(fields, field)];
}

} // namespace

const RecordList& staffList() {
    return list;
}

QString ageText(const QString& birth, Day today) {
    const auto from = parseSlashDate(birth);
    if (!from) return {};
    return spanText(QStringLiteral("年齢："), QStringLiteral("歳"), YearsAndMonths(*from, {}, today));
}

QString serviceText(const QString& join, const QString& retire, Day today) {
    const auto from = parseSlashDate(join);
    const auto to = parseSlashDate(retire);
    if (!from || (!to && !retire.isEmpty())) return {};
    return spanText(QStringLiteral("勤続："), QStringLiteral("年"), YearsAndMonths(*from, to, today));
}

QStringList staffListing(const RecordTexts& texts, const QList<CodeName>& sections, Day today) {
    const auto inBrackets = [](const QString& note) {
        return note.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(note);
    };
    const auto section = std::ranges::find(sections, textOf(texts, u"F_Section"), &CodeName::code);
    const QString service = serviceText(textOf(texts, u"F_Join"), textOf(texts, u"F_Retire"), today);
    return fieldLines(fields, texts,
                      {{QStringLiteral("F_Section"), section == sections.end() ? QString() : inBrackets(section->name)},
                       {QStringLiteral("F_Birth"), inBrackets(ageText(textOf(texts, u"F_Birth"), today))},
                       {QStringLiteral("F_Join"), inBrackets(service)}});
}

} // namespace kurbo
