#include "card/edit/card_times.h"

#include "support/desk.h"
#include "support/table.h"

namespace kurbo::test {

TEST(CardTimes, DayOfRow) {
    EXPECT_TRUE(dayOfRow(u"79/12/31(日)"_q) == makeDay(2079, 12, 31) &&
                dayOfRow(u"80/01/01(火)"_q) == makeDay(1980, 1, 1));
    EXPECT_FALSE(dayOfRow(u"26/4/10(金)"_q) || dayOfRow(u"26/02/29(日)"_q));
}

TEST(CardTimes, EnterAndLeave) {
    const auto text = [](std::optional<Moment> moment) { return moment ? slashMoment(*moment) : QString(); };
    // The day, what is typed, and what it means as an enter and as a leave; empty where it is refused.
    for (const QStringList& row : rowsOf(R"(
2026/04/10 | 08:48           | 2026/04/10 08:48:00 | 2026/04/10 08:48:00
2026/04/10 | 8:48            | |
2026/04/10 | 24:00           | |
2026/04/10 | ０8:48           | |
2026/01/31 | (02/01)06:00    | | 2026/02/01 06:00:00
2026/01/31 | (13/01)06:00    | |
2026/01/31 | （02/01）06:00    | |
2026/01/31 | (02/01)06:00:30 | |
2003/12/31 | (01/01)02:00    | | 2004/01/01 02:00:00
2003/12/31 | (12/31)23:00    | | 2003/12/31 23:00:00
2003/12/31 | (02/29)02:00    | |
2024/12/31 | (02/29)02:00    | | 2025/02/28 02:00:00
)")) {
        const Day day = *parseSlashDate(row[0]);
        EXPECT_EQ(text(enterTime(day, row[1])), row[2]) << row[1];
        EXPECT_EQ(text(leaveTime(day, row[1])), row[3]) << row[1];
    }
    EXPECT_EQ(timeOn(*makeDay(2026, 4, 10), u"8:48"_q), at(*makeDay(2026, 4, 10), 8, 48));
}

} // namespace kurbo::test
