#include "card/edit/card_update.h"

#include "month/figure_texts.h"
#include "store/engine_fault.h"
#include "store/fresh_keys.h"
#include "store/readers.h"

namespace kurbo {
namespace {

Value codeOrNull(QChar code) {
    return leaveWord(code).isEmpty() ? Value() : Value(QString(code));
}

Value timeOrNull(std::optional<Moment> time) {
    return time ? Value(*time) : Value();
}

// A leave in the very minute of an enter that keeps its seconds must not fall before it: the card could not be
// calculated any more.
std::optional<Moment> leaveOf(const CardEntry& day) {
    const auto leave = day.day.facts.leave;
    const auto kept = day.enterEdited ? std::nullopt : day.storedEnter;
    const bool within = leave && kept && *leave < *kept && *leave >= std::chrono::floor<std::chrono::minutes>(*kept);
    return within ? kept : leave;
}

void refuseUnreadable(const CardEntry& day) {
    if (day.unreadable.any()) throw storeFault(StoreError::BadValue);
}

// A day has one row. Somebody may have punched since the card was drawn: two rows would count the day twice.
void checkStillEmpty(Connection& connection, Day date, const QString& staff) {
    if (connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID = ?);"),
                          {staff, dateId(date)}))
        throw Complaint(
            lines(slashDate(date) + QStringLiteral("のデータは、タイムカードの表示後に打刻又は更新されています。"),
                  QStringLiteral("再表示してから、追加・変更をやり直して下さい。")));
}

void add(Connection& connection, const CardEntry& entry, const QString& staff) {
    const DayFacts& day = entry.day.facts;
    checkStillEmpty(connection, day.date, staff);
    connection.execute(QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Plan, F_Enter, F_Leave, "
                                      "F_Paid, F_Special, F_Compens) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                       {nextKurboId(connection), dateId(day.date), staff, Value::textOrNull(entry.day.plan),
                        timeOrNull(day.enter), timeOrNull(day.leave), codeOrNull(day.paid), codeOrNull(day.special),
                        codeOrNull(day.compens)});
}

// A deleted row's number may have gone to another day.
void change(Connection& connection, const CardEntry& entry, const QString& staff) {
    const DayFacts& day = entry.day.facts;
    QString fields = QStringLiteral("F_Plan = ?, F_Paid = ?, F_Special = ?, F_Compens = ?");
    Values values{Value::textOrNull(entry.day.plan), codeOrNull(day.paid), codeOrNull(day.special),
                  codeOrNull(day.compens)};
    if (entry.enterEdited) {
        fields += QStringLiteral(", F_Enter = ?");
        values.append(timeOrNull(day.enter));
    }
    if (entry.leaveEdited) {
        fields += QStringLiteral(", F_Leave = ?");
        values.append(timeOrNull(leaveOf(entry)));
    }
    values << *entry.day.kurboId << staff << dateId(day.date);
    const QString statement = QStringLiteral("UPDATE T02_Kurbo SET ") + fields +
                              QStringLiteral(" WHERE (F_KurboID = ?) AND (F_User = ?) AND (F_DateID = ?)");
    if (connection.execute(statement, values) == 0) throw storeFault(StoreError::RowGone);
}

} // namespace

bool UpdateDayly(const Context& context, Connection& connection, const CardSheet& sheet, const QString& staff) {
    constexpr int mostAttempts = 4;
    return guarded(context, u"frmKurbo", u"UpdateDayly", false, [&] {
        const std::vector<const CardEntry*> days = sheet.changedDays();
        for (const CardEntry* const day : days) refuseUnreadable(*day);
        writeWithFreshKeys(connection, mostAttempts, [&] {
            for (const CardEntry* const day : days)
                day->day.kurboId ? change(connection, *day, staff) : add(connection, *day, staff);
        });
        return true;
    });
}

bool DeleteKurbo(const Context& context, Connection& connection, const QString& staff, Day start, Day end) {
    return guarded(context, u"frmKurbo", u"DeleteKurbo", false, [&] {
        connection.execute(QStringLiteral("DELETE * FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID BETWEEN ? AND ?);"),
                           {staff, dateId(start), dateId(end)});
        return true;
    });
}

} // namespace kurbo
