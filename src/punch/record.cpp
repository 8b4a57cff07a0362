#include "punch/record.h"

#include "store/engine_fault.h"
#include "store/fresh_keys.h"
#include "store/readers.h"
#include "store/record_set.h"

#include <array>

namespace kurbo {
namespace {

// No id was to be had. It is reported when the transaction has ended: no other client waits behind a box.
struct NoId {
    Fault fault;
};

struct NewCard {
    QString dateId;
    QString staff;
    Value enter;
    Value leave;
};

std::int64_t newId(Connection& connection) {
    try {
        return nextKurboId(connection);
    } catch (const Fault& fault) {
        throw NoId{fault};
    }
}

void addCard(Connection& connection, const NewCard& card) {
    const std::int64_t id = newId(connection);
    connection.execute(QStringLiteral("INSERT INTO T02_Kurbo (F_KurboID, F_DateID, F_User, F_Enter, F_Leave) "
                                      "VALUES (?, ?, ?, ?, ?)"),
                       {id, card.dateId, card.staff, card.enter, card.leave});
}

enum class CardTime { Enter, Leave };

// The first row of the person's day gets the time; the status has just seen that row.
void setTime(Connection& connection, const QString& staff, const QString& dateId, CardTime time, Moment when) {
    const auto id = connection.firstValue(
        QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = ?) AND (F_DateID = ?) ORDER BY F_KurboID;"),
        {staff, dateId});
    if (!id) throw storeFault(StoreError::RowGone);
    const QString statement = time == CardTime::Enter
                                  ? QStringLiteral("UPDATE T02_Kurbo SET F_Enter = ? WHERE (F_KurboID = ?)")
                                  : QStringLiteral("UPDATE T02_Kurbo SET F_Leave = ? WHERE (F_KurboID = ?)");
    connection.execute(statement, {when, *id});
}

template <typename Write>
bool written(const Context& context, Connection& connection, QStringView procedure, Write write) {
    constexpr int mostAttempts = 6;
    try {
        return guarded(context, u"frmLogin", procedure, false, [&] {
            writeWithFreshKeys(connection, mostAttempts, write);
            return true;
        });
    } catch (const NoId& none) {
        report(context, u"basKurbo", u"GenerateKurboID", none.fault);
        return false;
    }
}

} // namespace

bool RecordEnter(const Context& context, Connection& connection, const QString& staff, Moment when, bool newRow,
                 bool noEnterTime) {
    return written(context, connection, u"RecordEnter", [&] {
        if (newRow)
            addCard(connection, {dateId(dayOf(when)), staff, noEnterTime ? Value() : Value(when), Value()});
        else
            setTime(connection, staff, dateId(context.clock.today()), CardTime::Enter, when);
    });
}

bool RecordLeave(const Context& context, Connection& connection, const QString& staff, Moment when,
                 const QString& day) {
    return written(context, connection, u"RecordLeave", [&] {
        if (day.isEmpty())
            addCard(connection, {dateId(dayOf(when)), staff, Value(), when});
        else
            setTime(connection, staff, day, CardTime::Leave, when);
    });
}

namespace {

// The person's outings of one card row; stands on the last.
RecordSet outings(Connection& connection, std::int64_t cardId) {
    RecordSet set(connection, QStringLiteral("SELECT * FROM T03_GoOut WHERE (F_KurboID = ?) ORDER BY F_Order;"),
                  {cardId});
    set.moveLast();
    return set;
}

void addOuting(RecordSet& set, std::int64_t cardId, const QString& field, Moment when) {
    std::int64_t order = 1;
    if (set.atRow())
        order = set.value(QStringLiteral("F_Order")).isNull() ? 0 : set.value(QStringLiteral("F_Order")).integer() + 1;
    set.addNew();
    set.set(QStringLiteral("F_KurboID"), cardId);
    if (order > 0) set.set(QStringLiteral("F_Order"), order);
    set.set(field, when);
}

} // namespace

bool RecordGoOut(const Context& context, Connection& connection, std::int64_t cardId, Moment when) {
    return written(context, connection, u"RecordGoOut", [&] {
        RecordSet set = outings(connection, cardId);
        addOuting(set, cardId, QStringLiteral("F_Out"), when);
        set.updateBatch();
    });
}

bool RecordComeIn(const Context& context, Connection& connection, std::int64_t cardId, Moment when) {
    return written(context, connection, u"RecordComeIn", [&] {
        RecordSet set = outings(connection, cardId);
        const QString in = QStringLiteral("F_In");
        if (set.atRow() && set.value(in).isNull())
            set.set(in, when);
        else
            addOuting(set, cardId, in, when);
        set.updateBatch();
    });
}

} // namespace kurbo
