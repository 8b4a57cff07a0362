#include "card/edit/card_times.h"

#include "support/desk.h"

namespace kurbo::test {

TEST(CardTimes, DayOfRow) {
    EXPECT_EQ(dayOfRow(u"26/04/10(金)"_q), makeDay(2026, 4, 10));
    EXPECT_EQ(dayOfRow(u"79/12/31(日)"_q), makeDay(2079, 12, 31));
    EXPECT_EQ(dayOfRow(u"80/01/01(火)"_q), makeDay(1980, 1, 1));
    for (const QString& text : {u""_q, u"26/04"_q, u"26/4/10(金)"_q, u"26/02/29(日)"_q, u"2026/04/10"_q})
        EXPECT_FALSE(dayOfRow(text)) << text;
}

TEST(CardTimes, EnterAndLeave) {
    const struct {
        Day day;
        QString text;
        QString enter; // empty: refused
        QString leave;
    } cases[] = {
        {*makeDay(2026, 4, 10), u"08:48"_q, u"2026/04/10 08:48:00"_q, u"2026/04/10 08:48:00"_q},
        {*makeDay(2026, 4, 10), u"8:48"_q, {}, {}},
        {*makeDay(2026, 4, 10), u"24:00"_q, {}, {}},
        {*makeDay(2026, 4, 10), u"08:60"_q, {}, {}},
        {*makeDay(2026, 4, 10), u"０8:48"_q, {}, {}},
        {*makeDay(2026, 4, 10), u"08"_q, {}, {}},
        {*makeDay(2026, 1, 31), u"(02/01)06:00"_q, {}, u"2026/02/01 06:00:00"_q},
        {*makeDay(2026, 1, 31), u"(13/01)06:00"_q, {}, {}},
        {*makeDay(2026, 1, 31), u"（02/01）06:00"_q, {}, {}},
        {*makeDay(2026, 1, 31), u"(02/01)06:00:30"_q, {}, {}},
        {*makeDay(2026, 1, 31), u"(02/01)6:00"_q, {}, {}},
        {*makeDay(2003, 12, 31), u"(01/01)02:00"_q, {}, u"2004/01/01 02:00:00"_q},
        {*makeDay(2003, 12, 31), u"(12/31)23:00"_q, {}, u"2003/12/31 23:00:00"_q},
        {*makeDay(2003, 12, 31), u"(02/29)02:00"_q, {}, {}},
        {*makeDay(2024, 12, 31), u"(02/29)02:00"_q, {}, u"2025/02/28 02:00:00"_q},
        {*makeDay(1999, 12, 31), u"(01/01)00:30"_q, {}, u"2000/01/01 00:30:00"_q},
    };
    const auto text = [](std::optional<Moment> moment) { return moment ? slashMoment(*moment) : QString(); };
    for (const auto& c : cases) {
        EXPECT_EQ(text(enterTime(c.day, c.text)), c.enter) << c.text;
        EXPECT_EQ(text(leaveTime(c.day, c.text)), c.leave) << c.text;
    }
    EXPECT_EQ(timeOn(*makeDay(2026, 4, 10), u"8:48"_q), at(*makeDay(2026, 4, 10), 8, 48));
}

} // namespace kurbo::test
