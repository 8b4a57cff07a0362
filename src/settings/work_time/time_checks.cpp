#include "settings/work_time/time_checks.h"

#include "base/failure.h"
#include "base/system/code_page.h"
#include "settings/settings_steps.h"
#include "settings/work_time/time_store.h"
#include "settings/work_time/time_texts.h"

namespace kurbo {
namespace {

QString nameWord(const TimePage& page) {
    return QString::fromUtf16(page.word) + QStringLiteral("名称");
}

QString lengthDemand(const TimePage& page) {
    return nameWord(page) + QStringLiteral("は全角15文字(半角30文字)以内で入力します。");
}

bool isTooLong(const QString& name) {
    constexpr int mostBytes = 30;
    return byteLength(name) > mostBytes;
}

FieldPlace nameBox(const TimePage& page) {
    return {QStringLiteral("txt") + QString::fromUtf16(page.name)};
}

FieldPlace cellOf(const TimeSheet& sheet, int row, int slot) {
    return {QStringLiteral("vfg") + QString::fromUtf16(sheet.page.name), row, 2 * slot + 1};
}

void checkName(Connection& connection, const TimeSheet& sheet, const QString& name) {
    const QString word = nameWord(sheet.page);
    if (name.isEmpty()) throw FieldComplaint(word + QStringLiteral("が入力されていません。"), nameBox(sheet.page));
    if (name == sheet.page.reserved)
        throw FieldComplaint(lines(word + QStringLiteral("を変更して下さい。"),
                                   QStringLiteral("名称「%1」は使用できません。").arg(name)),
                             nameBox(sheet.page));
    if (isTooLong(name))
        throw FieldComplaint(word + QStringLiteral("が不正です。") + lengthDemand(sheet.page), nameBox(sheet.page));
    if (sheet.code == 0) refuseTakenName(connection, sheet.page, name);
}

// The fourth slot of the flexible time doesn't count, nor, on a weekday, a text that is no time.
void checkFilled(const TimeSheet& sheet) {
    constexpr int mostCounted = 3;
    const bool flexible = sheet.style.*sheet.page.flex;
    const bool weekday = &sheet.page == &timePages()[weekdayPage];
    const int row = sheet.rowOf(flexible ? u"Flex" : u"Work");
    for (int slot = 0; slot < std::min(sheet.rowAt(row).slots, mostCounted); ++slot) {
        const QString start = sheet.start(row, slot);
        if (weekday ? minuteOfDay(start).has_value() : !start.isEmpty()) return;
    }
    throw FieldComplaint(flexible ? QStringLiteral("フレキシブルタイムが入力されていません。")
                                  : QStringLiteral("就業時間が入力されていません。"),
                         cellOf(sheet, row, 0));
}

// Why a slot with a start can't be stored; empty when it can.
QString slotRefusal(const QString& start, const QString& end, bool late) {
    if (end.isEmpty()) return QStringLiteral("終了時刻が入力されていません。");
    if (!minuteOfDay(start) || !minuteOfDay(end)) return timeDemand();
    return isBehind(end, start) ? QString() : orderDemand(start, end, late);
}

void checkSlots(const TimeSheet& sheet) {
    for (int row = sheet.page.firstRow; row < sheet.rowEnd(); ++row) {
        for (int slot = 0; slot < sheet.rowAt(row).slots; ++slot) {
            const QString start = sheet.start(row, slot);
            const QString refusal =
                start.isEmpty() ? QString() : slotRefusal(start, sheet.end(row, slot), sheet.isLate(row));
            if (!refusal.isEmpty())
                throw FieldComplaint(sheet.label(row) + QStringLiteral("が不正です。") + refusal,
                                     cellOf(sheet, row, slot));
        }
    }
}

// The limits themselves have been checked while they were typed.
void checkPairedWithWeekday(const TimeSheet& weekday) {
    for (int row = weekday.page.firstRow; row < weekday.rowEnd(); ++row) {
        const QString text = weekday.start(row, 0);
        if (!text.isEmpty() && !isLimit(text))
            throw FieldComplaint(weekday.label(row) +
                                     QStringLiteral("の調整時間が不正です。時間をhh:mm形式で入力して下さい。"),
                                 cellOf(weekday, row, 0));
    }
}

} // namespace

QString timeNameRefusal(const TimePage& page, const QString& name) {
    return isTooLong(name) ? QStringLiteral("不正な入力です。") + lengthDemand(page) : QString();
}

void checkTimes(Connection& connection, const TimeSheet& sheet, const QString& name, const TimeSheet& weekday) {
    checkName(connection, sheet, name);
    if (!sheet.page.isBands()) return checkPairedWithWeekday(weekday);
    if (sheet.page.flex) checkFilled(sheet);
    checkSlots(sheet);
}

} // namespace kurbo
