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

} // namespace kurbo::test
