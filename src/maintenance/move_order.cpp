#include "maintenance/move_order.h"

#include "base/system/files.h"
#include "engine/hours.h"
#include "maintenance/move_place.h"
#include "store/readers.h"

#include <algorithm>

namespace kurbo {
namespace {

void require(bool holds, const QString& refusal) {
    if (!holds) throw Complaint(refusal);
}

QString yetToComeText() {
    return QStringLiteral("明日以降のデータ、すなわち未到来のデータを移動する事はできません。");
}

void checkDays(const MoveOrder& order, Day today) {
    constexpr std::chrono::days shortest{31};
    require(order.startDay && order.endDay, QStringLiteral("移動するデータの期間に年月日が設定されていません。"));
    require(order.endDay >= order.startDay,
            QStringLiteral("不正な入力です。終了年月日を開始年月日以降に設定して下さい。"));
    require(order.endDay <= today, yetToComeText());
    require(*order.endDay - *order.startDay >= shortest, QStringLiteral("移動するデータは31日以上必要です。"));
}

void checkMonths(const MoveOrder& order, Day today) {
    require(order.startMonth && order.endMonth, QStringLiteral("移動するデータの期間に年月が設定されていません。"));
    require(order.endMonth >= order.startMonth,
            QStringLiteral("不正な入力です。終了年月を開始年月以降に設定して下さい。"));
    require(order.endMonth <= today, yetToComeText());
}

// The card period in which the day lies.
std::optional<Period> runningPeriod(int closeDay, Day today) {
    const auto inMonth = [closeDay](Day day) { return periodOfMonth(monthOf(day), closeDay); };
    const auto period = inMonth(today);
    return period && period->to < today ? inMonth(addMonths(today, 1)) : period;
}

// What is still worked on isn't offered, unless there is nothing else.
Day lastOffered(const Context& context, Connection& connection, Day first) {
    const Day today = context.clock.today();
    const auto running = guarded(context, u"frmMaintainance", u"Form_Load", std::optional<Day>(),
                                 [&] { return firstRunningDay(connection, today); });
    return running && *running > first ? *running - std::chrono::days(1) : today;
}

} // namespace

std::optional<Day> firstRunningDay(Connection& connection, Day today) {
    std::optional<Day> first;
    Rows rows = connection.rows(
        QStringLiteral("SELECT DISTINCT F_CloseDay FROM M02_StaffInfo WHERE (F_StaffCode <> 'ADMIN');"));
    while (rows.next()) {
        const auto period = runningPeriod(static_cast<int>(rows.integer(0)), today);
        if (period) first = std::min(first.value_or(period->from), period->from);
    }
    return first;
}

std::optional<MoveOrder> firstMoveOrder(const Context& context, Connection& connection) {
    constexpr int months = 12;
    const auto day = GetFirstDate(context, connection);
    const auto month = day ? GetFirstMonth(context, connection) : std::nullopt;
    if (!month) return {};
    const Day today = context.clock.today();
    const Day thisMonth = today - std::chrono::days(dayOfMonth(today) - 1);
    MoveOrder order;
    order.startDay = day;
    order.endDay = std::min(addMonths(*day, months) - std::chrono::days(1), lastOffered(context, connection, *day));
    order.startMonth = month;
    order.endMonth = std::min(addMonths(*month, months - 1), thisMonth);
    return order;
}

bool isFilledIn(const MoveOrder& order) {
    const bool months = !order.withMonths || (order.startMonth && order.endMonth);
    return order.startDay && order.endDay && months && !order.destination.trimmed().isEmpty();
}

bool hasDestFolder(const QString& destination) {
    QString folder = FolderOf(destination.trimmed());
    if (folder.isEmpty() && destination.contains(u'/')) folder = u'/';
    return CheckPath(folder, true);
}

QString noDestFolderText() {
    return QStringLiteral("DBの移動先パスが見つかりません。");
}

void checkMove(const Context& context, const QString& database, const MoveOrder& order) {
    const Day today = context.clock.today();
    checkDays(order, today);
    if (order.withMonths) checkMonths(order, today);
    require(hasDestFolder(order.destination), noDestFolderText());
    checkPlace(context, database, order.destination.trimmed());
}

QString runningDaysText(Connection& connection, const MoveOrder& order, Day today) {
    const auto running = firstRunningDay(connection, today);
    if (!running || *order.endDay < *running) return {};
    return lines(
        QStringLiteral("この期間には、まだ締日が来ていない日(%1以降)が含まれています。").arg(slashDate(*running)),
        QStringLiteral("移動した日には打刻できなくなります。"));
}

} // namespace kurbo
