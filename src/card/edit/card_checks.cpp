#include "card/edit/card_checks.h"

#include "card/card_grid.h"
#include "card/edit/card_demands.h"
#include "month/figure_texts.h"
#include "screen/files/card_file.h"

#include <array>

namespace kurbo {
namespace {

struct NamedColumn {
    CardColumn column;
    const char16_t* name;
};

constexpr std::array leaveNames{NamedColumn{CardColumn::Paid, u"有給休暇"},
                                NamedColumn{CardColumn::Special, u"特別休暇"},
                                NamedColumn{CardColumn::Compens, u"代休"}};
// Sums that are not called by their column's heading.
constexpr std::array sumNames{
    NamedColumn{CardColumn::Plan, u"出勤日数合計"}, NamedColumn{CardColumn::Enter, u"実働時間合計"},
    NamedColumn{CardColumn::Leave, u"有給休暇残数"}, NamedColumn{CardColumn::LegalOver, u"法定内残業合計"}};

Period periodOf(const QString& start, const QString& end) {
    const auto from = parseSlashDate(start);
    const auto to = parseSlashDate(end);
    if (!from || !to)
        throw Complaint(
            QStringLiteral("期間が不正です。開始日付と終了日付を西暦年でyyyy/mm/dd形式(半角)で入力して下さい。"));
    if (*to < *from) throw Complaint(QStringLiteral("開始日付が終了日付以降に設定されています。"));
    return {*from, *to};
}

[[noreturn]] void refuse(const CardEntry& day, const QString& why) {
    throw Complaint(shortDate(day.day.facts.date) + why);
}

void checkTimes(const CardEntry& day) {
    const DayFacts& facts = day.day.facts;
    if (!day.isReadable(CardColumn::Enter)) refuse(day, lines(QStringLiteral("の出社時刻が不正です。"), enterDemand()));
    if (!day.isReadable(CardColumn::Leave))
        refuse(day, lines(QStringLiteral("の退社時刻が不正です。"), leaveDemand(), QString(), nextDayDemand()));
    // As the cells show them: a punch that wasn't edited without its seconds.
    const auto shown = [](Moment time, bool edited) {
        return edited ? time : Moment{std::chrono::floor<std::chrono::minutes>(time)};
    };
    if (facts.enter && facts.leave && shown(*facts.leave, day.leaveEdited) < shown(*facts.enter, day.enterEdited))
        refuse(day, lines(QStringLiteral("の出退社時刻が不正です。"),
                          QStringLiteral("退社時刻は出社時刻以降に設定して下さい。")));
}

void checkDay(const CardEntry& day) {
    if (!day.isReadable(CardColumn::Plan)) refuse(day, QStringLiteral("の予定が不正です。") + planDemand());
    checkTimes(day);
    for (const auto& leave : leaveNames)
        if (!day.isReadable(leave.column))
            refuse(day, lines(u'の' + QString::fromUtf16(leave.name) + QStringLiteral("が不正です。"), listDemand()));
}

QString sumName(const GridModel& grid, CardColumn column) {
    for (const auto& sum : sumNames)
        if (sum.column == column) return QString::fromUtf16(sum.name);
    return cardText(grid, 0, column) + QStringLiteral("合計");
}

void checkSums(const CardSheet& sheet, const clsWorkTime& rules) {
    for (const QuantityFacts& facts : quantities) {
        // A time difference is never typed.
        const bool typed = facts.id != Quantity::LegalOver || !rules.pbleFlexTime;
        if (!typed || sheet.finals[placeOf(facts.id)].readable) continue;
        throw Complaint(sumName(sheet.grid, cardColumnOf(facts.id)) + QStringLiteral("が不正です。") +
                        sumDemand(sumForm(facts, rules.plngCountUnit)));
    }
}

} // namespace

std::optional<Period> checkedPeriod(const Context& context, const QString& start, const QString& end) {
    return guarded(context, u"frmKurbo", u"checkedPeriod", std::optional<Period>(),
                   [&] { return std::optional(periodOf(start, end)); });
}

bool CheckDayly(const Context& context, const CardSheet& sheet, const QString& start, const QString& end) {
    return guarded(context, u"frmKurbo", u"CheckDayly", false, [&] {
        if (sheet.blnFileMode) throw Complaint(fileModeText(QStringLiteral("更新")));
        (void)periodOf(start, end);
        for (const CardEntry* const day : sheet.changedDays()) checkDay(*day);
        return true;
    });
}

bool CheckMonthly(const Context& context, const CardSheet& sheet, const clsWorkTime& rules) {
    return guarded(context, u"frmKurbo", u"CheckMonthly", false, [&] {
        if (sheet.blnFileMode) throw Complaint(fileModeText(QStringLiteral("月次更新")));
        checkSums(sheet, rules);
        return true;
    });
}

QString ListMissingPunch(const CardSheet& sheet) {
    QStringList dates;
    for (const CardEntry& day : sheet.days) {
        const QString date = shortDate(day.day.facts.date);
        if (day.hasEnter() != day.hasLeave()) dates.append(date);
        if (day.absent) dates.append(date);
    }
    if (dates.isEmpty()) return {};
    QString list;
    for (qsizetype i = 0; i < dates.size(); ++i) {
        list += dates[i] + QStringLiteral(", ");
        if (i % 2 != 0) list += QStringLiteral("\r\n");
    }
    const bool wholeLine = dates.size() % 2 == 0;
    return lines(QStringLiteral("注意! 下記日付の打刻がありません。"), list.chopped(wholeLine ? 4 : 2));
}

} // namespace kurbo
