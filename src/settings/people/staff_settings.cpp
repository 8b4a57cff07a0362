#include "settings/people/staff_settings.h"

#include "base/failure.h"
#include "base/field_tests.h"
#include "base/numbers.h"
#include "settings/listing.h"
#include "store/record_set.h"

namespace kurbo {
namespace {

using Field = StaffSettings::Field;
using Choice = StaffSettings::Choice;

constexpr int monthEnd = 31;
constexpr int lastCloseDay = 27;
constexpr int mostSeconds = 999;

bool isPassword(const QString& text) {
    constexpr qsizetype longest = 10;
    return text.size() <= longest && IsAlphaNumeric(text);
}

bool isCloseDay(const QString& text) {
    if (!IsIntegerText(text, IntegerMode::Positive)) return false;
    const double day = *numberOf(text);
    return day <= lastCloseDay || day == monthEnd;
}

bool isSeconds(const QString& text) {
    return IsIntegerText(text, IntegerMode::NotNegative) && *numberOf(text) <= mostSeconds;
}

struct FieldFacts {
    const char16_t* field;
    const char16_t* name;              // in front of "が不正です。"
    const char16_t* demand;            // behind it
    const char16_t* missing = nullptr; // null where nothing has to stand
    bool (*takes)(const QString& text);
    const char16_t* label; // in the listing
};

// In the order of the fields.
constexpr std::array<FieldFacts, StaffSettings::fields> fieldFacts{{
    {.field = u"F_Password",
     .name = u"パスワード",
     .demand = u"パスワードは半角英数字10文字以内で入力します。",
     .missing = u"パスワードが入力されていません。",
     .takes = isPassword,
     .label = u"ﾊﾟｽﾜｰﾄﾞ"},
    {.field = u"F_CloseDay",
     .name = u"タイムカード締日",
     .demand = u"タイムカード締日は1～27, 31(末締は31)の範囲で入力します。",
     .missing = u"締日が入力されていません。",
     .takes = isCloseDay,
     .label = u"ﾀｲﾑｶｰﾄﾞ締日"},
    {.field = u"F_PaidTotal",
     .name = u"有給休暇残数",
     .demand = u"数値を入力して下さい。",
     .missing = u"有給休暇残数が入力されていません。",
     .takes = isNumeric,
     .label = u"有給休暇残数"},
    {.field = u"F_EnterDelay",
     .name = u"出社時刻調整時間",
     .demand = u"出社時刻調整時間は0～999(秒)の範囲で入力します。",
     .takes = isSeconds,
     .label = u"出社時刻調整"},
    {.field = u"F_LeaveGain",
     .name = u"退社時刻調整時間",
     .demand = u"退社時刻調整時間は0～999(秒)の範囲で入力します。",
     .takes = isSeconds,
     .label = u"退社時刻調整"},
}};

struct ChoiceFacts {
    const char16_t* field;
    const char16_t* table;
    const char16_t* code;
    const char16_t* name;
    const char16_t* word;  // in its messages
    const char16_t* label; // in the listing
};

// In the order of the choices.
constexpr std::array<ChoiceFacts, StaffSettings::choices> choiceFacts{{
    {.field = u"F_Weekday",
     .table = u"M03_WeekdayStyle",
     .code = u"F_WeekdayCode",
     .name = u"F_WeekdayName",
     .word = u"平日勤務形態",
     .label = u"平日勤務"},
    {.field = u"F_Holiday",
     .table = u"M04_HolidayStyle",
     .code = u"F_HolidayCode",
     .name = u"F_HolidayName",
     .word = u"休日勤務形態",
     .label = u"休日勤務"},
    {.field = u"F_AmHoliday",
     .table = u"M05_AmHolidayStyle",
     .code = u"F_AmHolidayCode",
     .name = u"F_AmHolidayName",
     .word = u"午前休日勤務形態",
     .label = u"午前休日勤務"},
    {.field = u"F_PmHoliday",
     .table = u"M06_PmHolidayStyle",
     .code = u"F_PmHolidayCode",
     .name = u"F_PmHolidayName",
     .word = u"午後休日勤務形態",
     .label = u"午後休日勤務"},
    {.field = u"F_AdjustHours",
     .table = u"M07_AdjustHours",
     .code = u"F_AdjustCode",
     .name = u"F_AdjustName",
     .word = u"時間調整方法",
     .label = u"時間調整方法"},
    {.field = u"F_Access",
     .table = u"M08_Access",
     .code = u"F_AccessCode",
     .name = u"F_AccessName",
     .word = u"アクセス権",
     .label = u"ｱｸｾｽ権"},
}};

QString word(const char16_t* text) {
    return QString::fromUtf16(text);
}

// Paid leave is kept in single precision.
QString fieldText(Field field, const Value& value) {
    constexpr int singleDigits = 7;
    if (field == Field::Paid && !value.isNull()) return QString::number(value.real(), 'g', singleDigits);
    return value.text();
}

Value fieldValue(Field field, const QString& text) {
    if (field == Field::Password) return text;
    const double number = numberOf(text).value_or(0);
    if (field == Field::Paid) return static_cast<double>(singleOf(number));
    return wholeOf<int>(number);
}

void requireChoice(Connection& connection, const ChoiceFacts& facts, int code) {
    const QString statement =
        QStringLiteral("SELECT %1 FROM %2 WHERE (%1 = ?);").arg(word(facts.code), word(facts.table));
    if (!connection.hasRow(statement, {code}))
        throw Complaint(word(facts.word) +
                        QStringLiteral("は他のユーザーによって削除されています。選択し直して下さい。"));
}

void requireStaff(Connection& connection, const QString& staff) {
    if (!connection.hasRow(QStringLiteral("SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffCode = ?);"), {staff}))
        throw Complaint(QStringLiteral("選択した社員は他のユーザーによって削除されています。"));
}

void setFields(Connection& connection, RecordSet& row, const StaffSettings& settings, const clsWorkTime& style) {
    for (std::size_t i = 0; i < fieldFacts.size(); ++i)
        row.set(word(fieldFacts[i].field), fieldValue(static_cast<Field>(i), settings.texts[i].trimmed()));
    for (std::size_t i = 0; i < choiceFacts.size(); ++i) {
        if (!isUsed(static_cast<Choice>(i), style)) continue;
        const int code = settings.codes[i].toInt();
        requireChoice(connection, choiceFacts[i], code);
        row.set(word(choiceFacts[i].field), code);
    }
}

QString closeDayAfter(int day) {
    if (day < lastCloseDay) return QString::number(day + 1);
    return QString::number(day < monthEnd ? monthEnd : 1);
}

QString closeDayBefore(int day) {
    if (day == 1) return QString::number(monthEnd);
    return QString::number(day <= lastCloseDay ? day - 1 : lastCloseDay);
}

QString steppedCloseDay(const QString& text, bool up) {
    const bool valid = IsIntegerText(text, IntegerMode::Positive) && (up || *numberOf(text) <= monthEnd);
    if (!valid) return up ? QStringLiteral("1") : QString::number(monthEnd);
    const int day = static_cast<int>(std::min<double>(*numberOf(text), monthEnd));
    return up ? closeDayAfter(day) : closeDayBefore(day);
}

QString steppedPaid(const QString& text, bool up) {
    constexpr double half = 0.5;
    constexpr int singleDigits = 7;
    const auto days = numberOf(text);
    if (!days || (!up && *days < half)) return QStringLiteral("0");
    return QString::number(up ? *days + half : *days - half, 'g', singleDigits);
}

QString steppedSeconds(const QString& text, bool up) {
    constexpr double longest = 1e6;
    const bool valid = IsIntegerText(text, IntegerMode::NotNegative) && *numberOf(text) <= longest;
    const int seconds = valid ? wholeOf<int>(*numberOf(text)) : 0;
    if (up) return QString::number(valid && seconds < mostSeconds ? seconds + 1 : 0);
    return QString::number(seconds > 0 ? seconds - 1 : mostSeconds);
}

} // namespace

bool isUsed(StaffSettings::Choice choice, const clsWorkTime& style) {
    if (choice == StaffSettings::AmHoliday) return style.plngAmHolidayWork > 0;
    return choice != StaffSettings::PmHoliday || style.plngPmHolidayWork > 0;
}

QList<CodeName> settingStaff(Connection& connection, const QString& section) {
    if (!section.isEmpty()) return displayedStaff(connection, section);
    Rows rows = connection.rows(
        QStringLiteral("SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Display = True) ORDER BY F_Order;"));
    QList<CodeName> people;
    while (rows.next()) people.append({rows.text(0), rows.text(1)});
    return people;
}

QList<CodeName> settingChoices(Connection& connection, StaffSettings::Choice choice) {
    const ChoiceFacts& facts = choiceFacts[choice];
    Rows rows = connection.rows(QStringLiteral("SELECT DISTINCT %1, %2 FROM %3 WHERE (%1 > 0) ORDER BY %1;")
                                    .arg(word(facts.code), word(facts.name), word(facts.table)));
    QList<CodeName> entries;
    while (rows.next()) entries.append({rows.text(0), rows.text(1)});
    return entries;
}

StaffSettings ShowStaff(Connection& connection, const QString& staff, const clsWorkTime& style) {
    const RecordSet row(connection,
                        QStringLiteral("SELECT F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, F_LeaveGain, "
                                       "F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday, F_AdjustHours, F_Access "
                                       "FROM M02_StaffInfo WHERE (F_StaffCode = ?);"),
                        {staff});
    StaffSettings settings;
    if (!row.atRow()) return settings;
    for (std::size_t i = 0; i < fieldFacts.size(); ++i)
        settings.texts[i] = fieldText(static_cast<Field>(i), row.value(word(fieldFacts[i].field)));
    for (std::size_t i = 0; i < choiceFacts.size(); ++i)
        if (isUsed(static_cast<Choice>(i), style)) settings.codes[i] = row.value(word(choiceFacts[i].field)).text();
    return settings;
}

QString staffFieldRefusal(StaffSettings::Field field, const QString& text) {
    const FieldFacts& facts = fieldFacts[field];
    return facts.takes(text) ? QString() : QStringLiteral("不正な入力です。") + word(facts.demand);
}

void checkStaffSettings(const StaffSettings& settings, const clsWorkTime& style) {
    for (std::size_t i = 0; i < fieldFacts.size(); ++i) {
        const FieldFacts& facts = fieldFacts[i];
        const QString text = settings.texts[i].trimmed();
        if (text.isEmpty() && facts.missing) throw Complaint(word(facts.missing));
        if (!text.isEmpty() && !facts.takes(text))
            throw Complaint(word(facts.name) + QStringLiteral("が不正です。") + word(facts.demand));
    }
    for (std::size_t i = 0; i < choiceFacts.size(); ++i)
        if (isUsed(static_cast<Choice>(i), style) && settings.codes[i].isEmpty())
            throw Complaint(word(choiceFacts[i].word) + QStringLiteral("が入力されていません。"));
}

void UpdateStaff(Connection& connection, const QString& staff, const StaffSettings& settings,
                 const clsWorkTime& style) {
    Transaction transaction(connection);
    requireStaff(connection, staff);
    RecordSet row(connection, QStringLiteral("SELECT * FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
    if (!row.atRow()) {
        row.addNew();
        row.set(QStringLiteral("F_StaffCode"), staff);
    }
    setFields(connection, row, settings, style);
    row.updateBatch();
    transaction.commit();
}

void DeleteStaff(Connection& connection, const QString& staff) {
    connection.execute(QStringLiteral("DELETE * FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
}

QString stepped(StaffSettings::Field field, const QString& text, bool up) {
    if (field == StaffSettings::CloseDay) return steppedCloseDay(text.trimmed(), up);
    if (field == StaffSettings::Paid) return steppedPaid(text, up);
    return steppedSeconds(text.trimmed(), up);
}

QStringList staffListing(const CodeName& section, const CodeName& staff, const StaffSettings& settings) {
    constexpr int labelWidth = 16;
    QStringList listing{QStringLiteral("  部課：%1 (%2)").arg(section.code, section.name),
                        QStringLiteral("  氏名：%1 (%2)").arg(staff.code, staff.name)};
    for (std::size_t i = 0; i < fieldFacts.size(); ++i) {
        const QString& text = settings.texts[i];
        listing.append(listingLabel(word(fieldFacts[i].label), labelWidth) +
                       (i == Field::Password ? QString(text.size(), u'*') : text));
    }
    for (std::size_t i = 0; i < choiceFacts.size(); ++i)
        listing.append(listingLabel(word(choiceFacts[i].label), labelWidth) + settings.codes[i]);
    return listing;
}

} // namespace kurbo
