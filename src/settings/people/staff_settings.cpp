#include "settings/people/staff_settings.h"

#include "base/failure.h"
#include "base/field_tests.h"
#include "base/numbers.h"
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

struct FieldRule {
    const char16_t* field;
    const char16_t* name;    // in front of "が不正です。"
    const char16_t* rule;    // behind it
    const char16_t* missing; // null where nothing has to stand
    bool (*takes)(const QString& text);
    const char16_t* label; // in the listing
};

constexpr std::array<FieldRule, StaffSettings::fields> fieldRules{{
    {u"F_Password", u"パスワード", u"パスワードは半角英数字10文字以内で入力します。",
     u"パスワードが入力されていません。", isPassword, u"         ﾊﾟｽﾜｰﾄﾞ："},
    {u"F_CloseDay", u"タイムカード締日", u"タイムカード締日は1～27, 31(末締は31)の範囲で入力します。",
     u"締日が入力されていません。", isCloseDay, u"     ﾀｲﾑｶｰﾄﾞ締日："},
    {u"F_PaidTotal", u"有給休暇残数", u"数値を入力して下さい。", u"有給休暇残数が入力されていません。", isNumeric,
     u"    有給休暇残数："},
    {u"F_EnterDelay", u"出社時刻調整時間", u"出社時刻調整時間は0～999(秒)の範囲で入力します。", nullptr, isSeconds,
     u"    出社時刻調整："},
    {u"F_LeaveGain", u"退社時刻調整時間", u"退社時刻調整時間は0～999(秒)の範囲で入力します。", nullptr, isSeconds,
     u"    退社時刻調整："},
}};

struct ChoiceRule {
    const char16_t* field;
    const char16_t* table;
    const char16_t* code;
    const char16_t* name;
    const char16_t* word; // in its messages
    const char16_t* label;
};

constexpr std::array<ChoiceRule, StaffSettings::choices> choiceRules{{
    {u"F_Weekday", u"M03_WeekdayStyle", u"F_WeekdayCode", u"F_WeekdayName", u"平日勤務形態", u"        平日勤務："},
    {u"F_Holiday", u"M04_HolidayStyle", u"F_HolidayCode", u"F_HolidayName", u"休日勤務形態", u"        休日勤務："},
    {u"F_AmHoliday", u"M05_AmHolidayStyle", u"F_AmHolidayCode", u"F_AmHolidayName", u"午前休日勤務形態",
     u"    午前休日勤務："},
    {u"F_PmHoliday", u"M06_PmHolidayStyle", u"F_PmHolidayCode", u"F_PmHolidayName", u"午後休日勤務形態",
     u"    午後休日勤務："},
    {u"F_AdjustHours", u"M07_AdjustHours", u"F_AdjustCode", u"F_AdjustName", u"時間調整方法", u"    時間調整方法："},
    {u"F_Access", u"M08_Access", u"F_AccessCode", u"F_AccessName", u"アクセス権", u"          ｱｸｾｽ権："},
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

void requireChoice(Connection& connection, const ChoiceRule& rule, int code) {
    const QString statement =
        QStringLiteral("SELECT %1 FROM %2 WHERE (%1 = ?);").arg(word(rule.code), word(rule.table));
    if (!connection.hasRow(statement, {code}))
        throw Complaint(word(rule.word) +
                        QStringLiteral("は他のユーザーによって削除されています。選択し直して下さい。"));
}

void requireStaff(Connection& connection, const QString& staff) {
    if (!connection.hasRow(QStringLiteral("SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffCode = ?);"), {staff}))
        throw Complaint(QStringLiteral("選択した社員は他のユーザーによって削除されています。"));
}

void setFields(Connection& connection, RecordSet& row, const StaffSettings& settings, const clsWorkTime& rules) {
    for (std::size_t i = 0; i < fieldRules.size(); ++i)
        row.set(word(fieldRules[i].field), fieldValue(static_cast<Field>(i), settings.texts[i].trimmed()));
    for (std::size_t i = 0; i < choiceRules.size(); ++i) {
        if (!isUsed(static_cast<Choice>(i), rules)) continue;
        const int code = settings.codes[i].toInt();
        requireChoice(connection, choiceRules[i], code);
        row.set(word(choiceRules[i].field), code);
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

bool isUsed(StaffSettings::Choice choice, const clsWorkTime& rules) {
    if (choice == StaffSettings::AmHoliday) return rules.plngAmHolidayWork > 0;
    return choice != StaffSettings::PmHoliday || rules.plngPmHolidayWork > 0;
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
    const ChoiceRule& rule = choiceRules[choice];
    Rows rows = connection.rows(QStringLiteral("SELECT DISTINCT %1, %2 FROM %3 WHERE (%1 > 0) ORDER BY %1;")
                                    .arg(word(rule.code), word(rule.name), word(rule.table)));
    QList<CodeName> entries;
    while (rows.next()) entries.append({rows.text(0), rows.text(1)});
    return entries;
}

StaffSettings ShowStaff(Connection& connection, const QString& staff, const clsWorkTime& rules) {
    const RecordSet row(connection,
                        QStringLiteral("SELECT F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, F_LeaveGain, "
                                       "F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday, F_AdjustHours, F_Access "
                                       "FROM M02_StaffInfo WHERE (F_StaffCode = ?);"),
                        {staff});
    StaffSettings settings;
    if (!row.atRow()) return settings;
    for (std::size_t i = 0; i < fieldRules.size(); ++i)
        settings.texts[i] = fieldText(static_cast<Field>(i), row.value(word(fieldRules[i].field)));
    for (std::size_t i = 0; i < choiceRules.size(); ++i)
        if (isUsed(static_cast<Choice>(i), rules)) settings.codes[i] = row.value(word(choiceRules[i].field)).text();
    return settings;
}

QString staffFieldRefusal(StaffSettings::Field field, const QString& text) {
    const FieldRule& rule = fieldRules[field];
    return rule.takes(text) ? QString() : QStringLiteral("不正な入力です。") + word(rule.rule);
}

void checkStaffSettings(const StaffSettings& settings, const clsWorkTime& rules) {
    for (std::size_t i = 0; i < fieldRules.size(); ++i) {
        const FieldRule& rule = fieldRules[i];
        const QString text = settings.texts[i].trimmed();
        if (text.isEmpty() && rule.missing) throw Complaint(word(rule.missing));
        if (!text.isEmpty() && !rule.takes(text))
            throw Complaint(word(rule.name) + QStringLiteral("が不正です。") + word(rule.rule));
    }
    for (std::size_t i = 0; i < choiceRules.size(); ++i)
        if (isUsed(static_cast<Choice>(i), rules) && settings.codes[i].isEmpty())
            throw Complaint(word(choiceRules[i].word) + QStringLiteral("が入力されていません。"));
}

void UpdateStaff(Connection& connection, const QString& staff, const StaffSettings& settings,
                 const clsWorkTime& rules) {
    Transaction transaction(connection);
    requireStaff(connection, staff);
    RecordSet row(connection, QStringLiteral("SELECT * FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
    if (!row.atRow()) {
        row.addNew();
        row.set(QStringLiteral("F_StaffCode"), staff);
    }
    setFields(connection, row, settings, rules);
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
    QStringList listing{QStringLiteral("  部課：%1 (%2)").arg(section.code, section.name),
                        QStringLiteral("  氏名：%1 (%2)").arg(staff.code, staff.name)};
    for (std::size_t i = 0; i < fieldRules.size(); ++i) {
        const QString& text = settings.texts[i];
        listing.append(word(fieldRules[i].label) + (i == Field::Password ? QString(text.size(), u'*') : text));
    }
    for (std::size_t i = 0; i < choiceRules.size(); ++i) listing.append(word(choiceRules[i].label) + settings.codes[i]);
    return listing;
}

} // namespace kurbo
