#include "settings/records/staff.h"

#include "base/day_arithmetic.h"
#include "settings/records/shared_fields.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr RecordField date(const char16_t* name, const char16_t* control, const char16_t* word) {
    return {.name = name, .control = control, .label = word, .kind = FieldKind::Date, .subject = word};
}

constexpr std::array fields{
    RecordField{.name = u"F_StaffName",
                .control = u"txtName",
                .label = u"氏名",
                .kind = FieldKind::Name,
                .limit = 20,
                .japanese = true,
                .required = true,
                .subject = u"氏名"},
    RecordField{.name = u"F_Kana",
                .control = u"txtKana",
                .label = u"ﾌﾘｶﾞﾅ",
                .kind = FieldKind::SingleByte,
                .limit = 20,
                .japanese = true,
                .required = true,
                .subject = u"フリガナ"},
    RecordField{.name = u"F_StaffCode",
                .control = u"txtCode",
                .label = u"社員ｺｰﾄﾞ",
                .kind = FieldKind::Code,
                .limit = 10,
                .required = true,
                .subject = u"社員コード",
                .demandOnUpdate = u"部課コードは半角10文字以内で入力します。"},
    RecordField{.name = u"F_Section",
                .control = u"dcbSection",
                .label = u"所属部課",
                .kind = FieldKind::List,
                .japanese = true,
                .required = true,
                .subject = u"所属部課"},
    zipCodeField,
    prefectureField(1),
    address1Field,
    address2Field,
    telephoneField,
    RecordField{.name = u"F_HPhone",
                .control = u"txtHPhone",
                .label = u"携帯番号",
                .kind = FieldKind::SingleByte,
                .limit = 20,
                .subject = u"携帯番号"},
    RecordField{.name = u"F_EMail",
                .control = u"txtEMail",
                .label = u"E-Mail",
                .kind = FieldKind::Text,
                .limit = 50,
                .subject = u"メールアドレス",
                .demand = u"メールアドレスは半角50文字以内で入力します。"},
    date(u"F_Birth", u"mskBirthday", u"生年月日"),
    RecordField{.name = u"F_Sex",
                .control = u"optSex",
                .label = u"性別",
                .kind = FieldKind::Option,
                .zeroWord = u"男",
                .oneWord = u"女"},
    date(u"F_Join", u"mskJoin", u"入社日"),
    date(u"F_Retire", u"mskRetire", u"退社日"),
    displayField,
};

constexpr RecordList list{
    .noun = u"社員",
    .fields = fields,
    .reserved = {.name = u"新しい社員", .nameWord = u"氏名", .otherCode = u"ADMIN"},
    .needsReserved = true,
    .list = u"SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode <> 'ADMIN') ORDER BY F_Order;",
    .show = u"SELECT F_StaffCode, F_StaffName, F_Kana, F_Section, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, "
            u"F_HPhone, F_EMail, F_Birth, F_Sex, F_Join, F_Retire, F_Order, F_Display FROM C03_Staff "
            u"WHERE (F_StaffCode = ?);",
    .update = u"SELECT * FROM C03_Staff WHERE (F_StaffCode = ?);",
    .orders = u"SELECT F_Order FROM C03_Staff ORDER BY F_Order;",
    .remove = u"DELETE * FROM C03_Staff WHERE (F_StaffCode = ?);",
    .uses = {u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = ?);",
             u"SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?);",
             u"SELECT F_DestCode FROM T04_Destination WHERE (F_User = ?);"},
    .choices = &displayedSections,
    .showName = u"ShowStaffRecord",
    .updateName = u"UpdateStaffRecord",
    .removeName = u"DeleteStaffRecord",
    .printName = u"PrintStaffRecord",
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
