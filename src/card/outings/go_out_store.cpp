#include "card/outings/go_out_store.h"

#include "card/edit/card_times.h"
#include "store/engine_fault.h"

#include <vector>

namespace kurbo {
namespace {

struct Outing {
    int order;
    Value out;
    Value in;
    QString destination;
    Value expense;
};

// Of an edited cell "hh:nn", or of a stored moment with its seconds. Both stand on the card row's own day.
Value timeOf(Day day, const QString& cell) {
    if (cell.isEmpty()) return {};
    const auto stored = parseSlashMoment(cell);
    const auto time = stored ? Moment{day} + (*stored - dayOf(*stored)) : timeOn(day, cell);
    if (!time) throw storeFault(StoreError::BadValue);
    return *time;
}

Value expenseOf(const QString& cell) {
    if (cell.isEmpty()) return {};
    const auto money = moneyOf(cell);
    if (!money) throw storeFault(StoreError::BadValue);
    if (*money % moneyUnit == 0) return *money / moneyUnit;
    return static_cast<double>(*money) / static_cast<double>(moneyUnit);
}

std::vector<Outing> outingsOf(const GoOutSheet& sheet, Day day) {
    std::vector<Outing> outings;
    for (int row = firstGoOut; row < sheet.grid.Rows(); ++row)
        if (!sheet.isBlank(row))
            outings.push_back({row - 1, timeOf(day, sheet.text(row, GoOutColumn::Out)),
                               timeOf(day, sheet.text(row, GoOutColumn::In)), sheet.text(row, GoOutColumn::Destination),
                               expenseOf(sheet.text(row, GoOutColumn::Expense))});
    return outings;
}

// A deleted card row's key may have gone to another day, or to another person.
void checkCardRow(Connection& connection, const GoOutSheet& sheet, Day day) {
    if (!connection.hasRow(QStringLiteral("SELECT F_KurboID FROM T02_Kurbo WHERE (F_KurboID = ?) AND (F_User = ?) AND "
                                          "(F_DateID = ?);"),
                           {sheet.key, sheet.staff, dateId(day)}))
        throw storeFault(StoreError::RowGone);
}

// Asked within the transaction of the writing, so that no two people get one code.
std::int64_t nextDestCode(Connection& connection) {
    const auto last =
        connection.lastValue(QStringLiteral("SELECT F_DestCode FROM T04_Destination ORDER BY F_DestCode;"));
    return last ? last->integer() + 1 : 1;
}

Value destinationCode(Connection& connection, const QString& staff, const QString& name) {
    if (name.isEmpty()) return {};
    const auto known = connection.firstValue(
        QStringLiteral("SELECT F_DestCode FROM T04_Destination WHERE (F_User = ?) AND (F_DestName = ?);"),
        {staff, name});
    if (known) return *known;
    const std::int64_t code = nextDestCode(connection);
    connection.execute(QStringLiteral("INSERT INTO T04_Destination (F_DestCode, F_DestName, F_User) VALUES (?, ?, ?)"),
                       {code, name, staff});
    return code;
}

} // namespace

QList<QStringList> readOutings(Connection& connection, std::int64_t key) {
    const auto time = [](const Rows& rows, int column) {
        const auto moment = rows.moment(column);
        return moment ? slashMoment(*moment) : QString();
    };
    QList<QStringList> outings;
    Rows rows = connection.rows(
        QStringLiteral("SELECT T03_GoOut.F_KurboID, T03_GoOut.F_Order, T03_GoOut.F_Out, T03_GoOut.F_In, "
                       "T04_Destination.F_DestName, T03_GoOut.F_Expense FROM T03_GoOut LEFT JOIN T04_Destination "
                       "ON T03_GoOut.F_Destination = T04_Destination.F_DestCode WHERE (T03_GoOut.F_KurboID = ?) "
                       "ORDER BY T03_GoOut.F_Order;"),
        {key});
    while (rows.next())
        outings.append({{}, rows.text(0), rows.text(1), time(rows, 2), time(rows, 3), rows.text(4), rows.text(5)});
    return outings;
}

QString destinationList(Connection& connection, const QString& staff) {
    QStringList names;
    Rows rows = connection.rows(
        QStringLiteral("SELECT T04_Destination.F_DestCode, T04_Destination.F_DestName FROM T04_Destination "
                       "INNER JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination "
                       "WHERE (T04_Destination.F_User = ?) "
                       "GROUP BY T04_Destination.F_DestCode, T04_Destination.F_DestName "
                       "ORDER BY Count(T03_GoOut.F_KurboID) DESC, T04_Destination.F_DestName;"),
        {staff});
    while (rows.next()) {
        const QString name = rows.text(1);
        // The signs of a list can't be part of its entries; such a name can still be typed.
        if (!name.contains(u'|') && !name.startsWith(u'#')) names.append(name);
    }
    return names.isEmpty() ? QString() : u'|' + names.join(u'|');
}

std::int64_t lastExpense(Connection& connection, const QString& staff, const QString& destination) {
    const auto last = connection.lastValue(
        QStringLiteral("SELECT T03_GoOut.F_Expense FROM T04_Destination INNER JOIN T03_GoOut "
                       "ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T04_Destination.F_User = ?) "
                       "AND (T04_Destination.F_DestName = ?) ORDER BY T03_GoOut.F_KurboID, T03_GoOut.F_Order;"),
        {staff, destination});
    return last ? moneyOf(last->text()).value_or(0) : 0;
}

void writeOutings(Connection& connection, const GoOutSheet& sheet) {
    const auto day = dayOfRow(sheet.dateText);
    if (!day) throw storeFault(StoreError::BadValue);
    const std::vector<Outing> outings = outingsOf(sheet, *day);
    Transaction transaction(connection);
    checkCardRow(connection, sheet, *day);
    connection.execute(QStringLiteral("DELETE * FROM T03_GoOut WHERE (F_KurboID = ?);"), {sheet.key});
    for (const Outing& outing : outings)
        connection.execute(
            QStringLiteral("INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_In, F_Destination, F_Expense) "
                           "VALUES (?, ?, ?, ?, ?, ?)"),
            {sheet.key, outing.order, outing.out, outing.in,
             destinationCode(connection, sheet.staff, outing.destination), outing.expense});
    transaction.commit();
}

} // namespace kurbo
