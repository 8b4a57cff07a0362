#pragma once

#include "maintenance/move_order.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

namespace kurbo::test {

// All rows that a move touches, each with all its columns as texts: calendar days, cards, outings, saved months.
struct Contents {
    QList<QStringList> days;
    QList<QStringList> cards;
    QList<QStringList> outings;
    QList<QStringList> months;
    friend bool operator==(const Contents&, const Contents&) = default;
};

inline Contents contentsOf(const QString& path) {
    EXPECT_TRUE(checkDatabase(path).isEmpty()) << path;
    Connection connection;
    connection.open(path, databasePassword());
    const auto all = [&connection](const QString& tableAndOrder) {
        QList<QStringList> found;
        for (Rows rows = connection.rows(u"SELECT * FROM "_q + tableAndOrder); rows.next();) {
            QStringList& row = found.emplaceBack();
            for (int i = 0; i < rows.columns(); ++i) row.append(rows.isNull(i) ? u"-"_q : rows.text(i));
        }
        return found;
    };
    return {all(u"T01_Calendar ORDER BY F_DateID"_q), all(u"T02_Kurbo ORDER BY F_KurboID"_q),
            all(u"T03_GoOut ORDER BY F_KurboID, F_Order"_q), all(u"T05_Approved ORDER BY F_Staff, F_Year, F_Month"_q)};
}

// What of `before` lies within the order, or outside of it, worked out row by row. `months` says which ends count for
// the monthly records; all of them stay where it is empty.
inline Contents partOf(const Contents& before, const MoveOrder& order, bool within,
                       const std::optional<MoveOrder>& months) {
    Contents part;
    QStringList ids;
    const auto dayMoves = [&](const QString& day) {
        return (day >= dateId(*order.startDay) && day <= dateId(*order.endDay)) == within;
    };
    for (const QStringList& day : before.days)
        if (dayMoves(day[0])) part.days.append(day);
    for (const QStringList& card : before.cards)
        if (dayMoves(card[1])) part.cards.append(card);
    for (const QStringList& card : part.cards) ids.append(card[0]);
    for (const QStringList& outing : before.outings)
        if (ids.contains(outing[0])) part.outings.append(outing);
    for (const QStringList& month : before.months) {
        const QString id = month[2] + month[3];
        if (!months || (id >= dateId(*months->startMonth).left(6) && id <= dateId(*months->endMonth).left(6)) == within)
            part.months.append(month);
    }
    return part;
}

inline Contents renumbered(Contents contents) {
    const int offset = contents.cards.isEmpty() ? 0 : contents.cards.first()[0].toInt() - 1;
    for (QList<QStringList>* const rows : {&contents.cards, &contents.outings})
        for (QStringList& row : *rows) row[0] = QString::number(row[0].toInt() - offset);
    return contents;
}

// The sample company with cards from January to 14 April 2026, outings, and saved months from December on. The card
// rows have numbers from 51 on, with gaps, so that the days that stay have to be renumbered.
class OldDays : public SampleCompany {
  protected:
    OldDays() {
        Transaction transaction(connection);
        int id = 51;
        for (Day day = *makeDay(2026, 1, 1); day < today; day += std::chrono::days(1), id += 3) {
            addCard(id, day, u"08:50"_q, u"18:10"_q, {}, id % 2 == 0 ? u"1001"_q : u"1002"_q);
            for (int order = 1; id % 4 == 0 && order <= 2; ++order)
                connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Out, F_Destination, F_Expense) "
                                   "VALUES (?, ?, ?, 1, 480)"_q,
                                   {id, order, at(day, 12 + order, 0)});
        }
        for (const char* month : {"'2025', '12'", "'2026', '01'", "'2026', '02'", "'2026', '03'"})
            for (const char* staff : {"'1001'", "'1002'"})
                insert("T05_Approved", "Staff, Section, Work, Year, Month",
                       u"%1, 'S01', 9000, %2"_q.arg(QLatin1String(staff), QLatin1String(month)));
        transaction.commit();
    }

    // From 5 January to 28 February; in month mode the monthly records up to January.
    [[nodiscard]] MoveOrder order(bool withMonths) const {
        return {makeDay(2026, 1, 5),  makeDay(2026, 2, 28), withMonths,
                makeDay(2025, 12, 1), makeDay(2026, 1, 1),  destination};
    }
    [[nodiscard]] static Contents moved(const Contents& before, const MoveOrder& order) {
        MoveOrder months = order;
        if (!order.withMonths) {
            months.startMonth = order.startDay;
            months.endMonth = order.endDay;
        }
        return partOf(before, order, true, months);
    }
    [[nodiscard]] static Contents left(const Contents& before, const MoveOrder& order) {
        return renumbered(partOf(before, order, false, order.withMonths ? std::optional(order) : std::nullopt));
    }

    QString destination = desk.file(u"old.mdb"_q);
};

} // namespace kurbo::test
