#include "card/edit/card_update.h"
#include "card/monthly.h"
#include "card/sheet.h"
#include "support/database_disaster.h"

namespace kurbo::test {
namespace {

constexpr int changedDays = 31;

class CardDisaster : public DatabaseDisaster {
  protected:
    // A month of rows, far apart in the file; its last days have none yet.
    CardDisaster() {
        constexpr int stored = 22;
        constexpr int rowsBetween = 20;
        drawDays(sheet, *makeDay(2026, 5, 1), changedDays);
        {
            Transaction transaction(connection);
            for (int id = 1; id <= stored * rowsBetween; ++id)
                addCard(id, *makeDay(2026, 5, 1) + std::chrono::days((id - 1) / rowsBetween), u"08:48"_q, u"18:12"_q,
                        {}, id % rowsBetween == 0 ? u"1001"_q : u"1002"_q);
            transaction.commit();
        }
        connection.close();
        for (int day = 0; day < changedDays; ++day) {
            if (day < stored) sheet.days[static_cast<std::size_t>(day)].day.kurboId = (day + 1) * rowsBetween;
            type(sheet, day, CardColumn::Plan, u"変更"_q);
        }
    }

    CardSheet sheet;
};

} // namespace

TEST_F(CardDisaster, AtEachCallAllDaysOrNone) {
    failAll([this](const Context& context, Connection& own) { return UpdateDayly(context, own, sheet, u"1001"_q); },
            {u"SELECT Count(*) FROM T02_Kurbo WHERE F_Plan = '変更'"_q}, changedDays, changedDays);
}

TEST_F(CardDisaster, AtEachCallTheMonthAndTheBalanceOrNeither) {
    sheet.finals[placeOf(Quantity::PaidTotal)].value = 12.5;
    const MonthOwner owner{u"1001"_q, u"S01"_q, {*makeDay(2026, 5, 1), *makeDay(2026, 5, 31)}};
    clsWorkTime rules;
    rules.psngPaidTotal = 20;
    failAll([&](const Context& context, Connection& own) { return UpdateMonthly(context, own, sheet, rules, owner); },
            {u"SELECT Count(*) FROM T05_Approved"_q, u"SELECT Count(*) FROM M02_StaffInfo WHERE F_PaidTotal = 12.5"_q},
            2, 3);
}

TEST_F(CardDisaster, FiveClientsAddRowsAtOnce) {
    constexpr int clients = 5;
    constexpr int rounds = 20;
    constexpr int days = 3;
    const auto work = [&](int number) {
        Connection own;
        own.open(path, databasePassword());
        int failures = 0;
        for (int round = 0; round < rounds; ++round) {
            drawDays(sheet, *makeDay(2026, 7, 1) + std::chrono::days(round * days), days);
            for (int day = 0; day < days; ++day) type(sheet, day, CardColumn::Plan, u"追加"_q);
            if (!UpdateDayly(desk.context, own, sheet, u"P%1"_q.arg(number))) ++failures;
        }
        return failures;
    };
    EXPECT_TRUE(runAtOnce(clients, work));
    EXPECT_TRUE(checkDatabase(path).isEmpty());
    connection.open(path, databasePassword());
    const QString added = u"FROM T02_Kurbo WHERE F_Plan = '追加'"_q;
    EXPECT_EQ(asked(u"SELECT Count(*) "_q + added).toInt(), clients * rounds * days);
    EXPECT_EQ(asked(u"SELECT Max(F_KurboID) - Min(F_KurboID) + 1 "_q + added).toInt(), clients * rounds * days)
        << "no gap";
    EXPECT_EQ(asked(u"SELECT Count(*) FROM (SELECT DISTINCT F_User, F_DateID "_q + added + u")"_q).toInt(),
              clients * rounds * days);
}

} // namespace kurbo::test
