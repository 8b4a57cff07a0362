#include "settings/work_style/work_style.h"

#include "base/failure.h"
#include "base/field_tests.h"
#include "base/numbers.h"
#include "month/loaders.h"
#include "month/quantities.h"
#include "settings/settings_steps.h"
#include "store/record_set.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr auto displayFields = [] {
    std::array<const char16_t*, 1 + dayQuantities.size()> fields{u"F_Diff"};
    std::ranges::transform(dayQuantities, fields.begin() + 1, &QuantityFacts::field);
    return fields;
}();
static_assert(displayFields.size() == WorkStyle::displays, "the window needs a box for each");

bool isBlank(const QString& time) {
    return time == u"__:__";
}

// The fields of one kind of half holiday.
struct HalfDayFields {
    QString work;
    QString flex;
    QString standard;
};

HalfDayFields fieldsOf(QStringView half) {
    const QString prefix = QStringLiteral("F_") + half.toString();
    return {.work = prefix + QStringLiteral("HolidayWork"),
            .flex = prefix + QStringLiteral("Flex"),
            .standard = prefix + QStringLiteral("FlexStandard")};
}

void take(const RecordSet& row, const QString& field, int& number) {
    if (const Value value = row.value(field); !value.isNull()) number = static_cast<int>(value.integer());
}

void take(const RecordSet& row, const QString& field, QString& text) {
    if (const Value value = row.value(field); !value.isNull()) text = value.text();
}

void readHalfDay(const RecordSet& row, const HalfDayFields& fields, WorkStyle::HalfDay& half) {
    const Value work = row.value(fields.work);
    if (work.isNull()) return;
    half.exists = work.integer() > 0;
    if (!half.exists) return;
    half.work = static_cast<int>(work.integer()) - 1;
    half.flex = row.value(fields.flex).yes();
    if (half.flex) take(row, fields.standard, half.standard);
}

void readRounding(const RecordSet& row, WorkStyle& style) {
    if (const Value method = row.value(QStringLiteral("F_RoundMethod")); !method.isNull())
        style.byMonth = method.integer() != 0;
    if (style.byMonth) {
        take(row, QStringLiteral("F_RoundHour"), style.roundHour);
        style.countUnit = 1;
    } else {
        take(row, QStringLiteral("F_RoundEnter"), style.roundEnter);
        take(row, QStringLiteral("F_RoundLeave"), style.roundLeave);
        take(row, QStringLiteral("F_CountUnit"), style.countUnit);
    }
    take(row, QStringLiteral("F_RoundUnit"), style.roundUnit);
}

// The one of the two first boxes that is out of use keeps what it shows.
void readDisplay(const RecordSet& row, WorkStyle& style) {
    const std::size_t unused = style.flex ? WorkStyle::legalOver : WorkStyle::diff;
    for (std::size_t item = 0; item < displayFields.size(); ++item)
        if (item != unused) style.display[item] = row.value(QString::fromUtf16(displayFields[item])).yes();
}

void checkStandard(const QString& time, const QString& name, const QString& control) {
    if (isBlank(time)) throw FieldComplaint(name + QStringLiteral("の標準労働時間が入力されていません。"), {control});
    if (!isTimeText(time))
        throw FieldComplaint(name + QStringLiteral("の標準労働時間が不正です。時間をhh:mm形式で入力します。"),
                             {control});
}

bool isRoundUnit(const QString& text) {
    constexpr int most = 60;
    return IsIntegerText(text, IntegerMode::Positive) && *numberOf(text) <= most;
}

void writeHalfDay(RecordSet& row, const HalfDayFields& fields, const WorkStyle::HalfDay& half) {
    const bool flex = half.exists && half.flex;
    row.set(fields.work, half.exists ? half.work + 1 : 0);
    row.set(fields.flex, Value::yesNo(flex));
    row.set(fields.standard, flex ? Value(half.standard) : Value());
}

void writeRounding(RecordSet& row, const WorkStyle& style) {
    const auto only = [](bool used, int number) { return used ? Value(number) : Value(); };
    row.set(QStringLiteral("F_RoundMethod"), style.byMonth ? 1 : 0);
    row.set(QStringLiteral("F_RoundEnter"), only(!style.byMonth, style.roundEnter));
    row.set(QStringLiteral("F_RoundLeave"), only(!style.byMonth, style.roundLeave));
    row.set(QStringLiteral("F_CountUnit"), style.byMonth ? 1 : style.countUnit);
    row.set(QStringLiteral("F_RoundHour"), only(style.byMonth, style.roundHour));
    row.set(QStringLiteral("F_RoundUnit"), wholeOf<int>(*numberOf(style.roundUnit)));
}

} // namespace

WorkStyle readWorkStyle(Connection& connection, const WorkStyle& before) {
    const RecordSet row(connection, companyStyleStatement());
    WorkStyle style = before;
    if (!row.atRow()) {
        style.display.fill(true);
        return style;
    }
    if (const Value flex = row.value(QStringLiteral("F_WorkStyle")); !flex.isNull()) style.flex = flex.yes();
    if (style.flex) take(row, QStringLiteral("F_FlexStandard"), style.standard);
    readHalfDay(row, fieldsOf(u"Am"), style.am);
    readHalfDay(row, fieldsOf(u"Pm"), style.pm);
    readRounding(row, style);
    readDisplay(row, style);
    return style;
}

QString roundUnitRefusal(const QString& text) {
    return isRoundUnit(text) ? QString() : QStringLiteral("不正な入力です。1～60の整数を入力して下さい。");
}

void checkWorkStyle(const WorkStyle& style) {
    if (style.flex) checkStandard(style.standard, QStringLiteral("平日勤務"), QStringLiteral("mskTime"));
    if (style.am.exists && style.am.flex)
        checkStandard(style.am.standard, QStringLiteral("午前休日"), QStringLiteral("mskAmTime"));
    if (style.pm.exists && style.pm.flex)
        checkStandard(style.pm.standard, QStringLiteral("午後休日"), QStringLiteral("mskPmTime"));
    const QString unit = style.roundUnit.trimmed();
    const FieldPlace unitBox{QStringLiteral("txtUnit")};
    if (unit.isEmpty()) throw FieldComplaint(QStringLiteral("端数処理単位が入力されていません。"), unitBox);
    if (!isRoundUnit(unit))
        throw FieldComplaint(QStringLiteral("端数処理単位が不正です。端数処理単位は1～60の範囲で入力します。"),
                             unitBox);
}

void writeWorkStyle(Connection& connection, const WorkStyle& style) {
    Transaction transaction(connection);
    RecordSet row(connection, QStringLiteral("SELECT * FROM M01_CorpInfo;"));
    if (!row.atRow()) row.addNew();
    row.set(QStringLiteral("F_WorkStyle"), style.flex ? 1 : 0);
    row.set(QStringLiteral("F_FlexStandard"), style.flex ? Value(style.standard) : Value());
    writeHalfDay(row, fieldsOf(u"Am"), style.am);
    writeHalfDay(row, fieldsOf(u"Pm"), style.pm);
    writeRounding(row, style);
    const std::size_t unused = style.flex ? WorkStyle::legalOver : WorkStyle::diff;
    for (std::size_t item = 0; item < displayFields.size(); ++item)
        row.set(QString::fromUtf16(displayFields[item]), Value::yesNo(item != unused && style.display[item]));
    row.updateBatch();
    transaction.commit();
}

} // namespace kurbo
