#include "card/demo_site.h"

#include <QRegularExpression>

namespace kurbo::test {
namespace {

class DemoCards : public DemoSite {
  protected:
    using DemoSite::DemoSite;
    // Every month of everybody; where a month is saved, the days must add up to it.
    void compareAll() {
        int saved = 0;
        Rows people = connection.rows(u"SELECT F_StaffCode FROM M02_StaffInfo WHERE F_StaffCode <> 'ADMIN'"_q);
        while (people.next()) {
            for (int month = 1; month <= 12; ++month) {
                const auto made = monthOf(people.text(0), std::chrono::year(2026) / month);
                ASSERT_TRUE(made) << people.text(0) << " " << month;
                if (!made->saved) continue;
                ++saved;
                for (const int column : {3, 4, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20})
                    EXPECT_EQ(made->summary[1][column], made->summary[2][column])
                        << people.text(0) << " " << month << " " << made->headings[column];
            }
        }
        EXPECT_GT(saved, 30);
    }
};

class FlexibleDemoCards : public DemoCards {
  protected:
    FlexibleDemoCards() : DemoCards(true) {}
};

// Two weeks worked out by hand from the punches: rounding by 15 minutes, enter up and leave down. Each day is its leave
// time with legal overtime, overtime, late and early work, leave and working time; "-" for none.
struct Fortnight {
    const char16_t* staff;
    QStringList days;
    const char16_t* sum;
};

} // namespace

TEST_F(DemoCards, ThreeFortnightsWorkedOutByHand) {
    const QString none = u"- - - - - - -"_q;
    for (const auto& [staff, days, sum] :
         {Fortnight{u"1003",
                    {u"18:37 0:30 0:30 - - - 7:30"_q, u"18:07 0:30 - - - - 7:30"_q, u"18:35 0:30 0:30 - - - 7:30"_q,
                     u"17:44 - - - - - 7:30"_q, u"17:35 - - - - - 7:30"_q, none, none, u"18:25 0:30 0:15 - - - 7:30"_q,
                     u"18:19 0:30 0:15 - - - 7:30"_q, u"17:32 - - - - - 7:30"_q, u"19:29 0:30 1:15 - - - 7:30"_q,
                     u"17:31 - - - - 午前 4:30"_q},
                    u"10 72:00 3:00 2:45 0:00 0:00 0.5"},
          Fortnight{u"1010",
                    {u"(05/12)00:29 - - 2:15 1:15 - 8:00"_q, u"(05/13)00:30 - - 2:30 - - 8:00"_q,
                     u"(05/14)01:28 - - 3:15 - - 8:00"_q, u"(05/15)00:22 - - 2:15 - - 8:00"_q,
                     u"(05/16)00:24 - - 2:15 - - 8:00"_q, none, none, u"(05/19)00:11 - - 2:00 - - 8:00"_q,
                     u"(05/20)00:15 - - 2:15 - - 8:00"_q, u"(05/21)01:39 - - 3:30 - - 8:00"_q,
                     u"(05/22)03:18 - - 5:15 - - 8:00"_q, u"(05/23)00:40 - - 2:30 - - 8:00"_q},
                    u"10 80:00 0:00 0:00 28:00 1:15 0.0"},
          Fortnight{u"1005",
                    {u"17:42 - - - - - 7:30"_q, u"20:05 0:30 2:00 - - - 7:30"_q, u"18:34 0:30 0:30 - - - 7:30"_q,
                     u"19:01 0:30 1:00 - - - 7:30"_q, u"17:34 - - - - - 7:30"_q, none, none,
                     u"12:02 - - - - 代午後 3:00"_q, u"12:06 - - - - 代午後 3:00"_q, u"- - - - - 全日 -"_q,
                     u"17:44 - - - - - 7:30"_q, u"17:37 - - - - - 7:30"_q},
                    u"9 58:30 1:30 3:30 0:00 0:00 1.0"}}) {
        const QString code = QString::fromUtf16(staff);
        const auto made = cardOf(desk.context, connection, code, {*makeDay(2026, 5, 11), *makeDay(2026, 5, 22)});
        ASSERT_TRUE(made);
        for (qsizetype i = 0; i < days.size(); ++i) {
            const QStringList& row = made->days[i];
            const QString leave = row[15] + (row[17].isEmpty() ? QString() : u"代"_q + row[17]);
            QStringList figures{row[5], row[6], row[7], row[8], row[9], leave, row[21]};
            figures.replaceInStrings(QRegularExpression(u"^$"_q), u"-"_q);
            EXPECT_EQ(figures.join(u' '), days[i]) << code << " " << row[1];
        }
        const QStringList& sums = made->summary[1];
        EXPECT_EQ(QStringList({sums[3], sums[4], sums[6], sums[7], sums[8], sums[9], sums[15]}).join(u' '),
                  QString::fromUtf16(sum));
    }
}

TEST_F(DemoCards, EveryMonthOfEverybodyAddsUpToItsRecord) {
    compareAll();
}

TEST_F(FlexibleDemoCards, EveryMonthOfEverybodyAddsUpToItsRecord) {
    compareAll();
}

} // namespace kurbo::test
