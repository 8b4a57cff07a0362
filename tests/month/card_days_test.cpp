#include "month/card_days.h"

#include "card/demo_site.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

const QString unionStatement = QString::fromUtf8(R"(
SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T01_Calendar.F_Dummy AS F_Plan, T01_Calendar.F_Dummy AS F_Enter,
T01_Calendar.F_Dummy AS F_Leave, T01_Calendar.F_Dummy AS F_Paid, T01_Calendar.F_Dummy AS F_Special,
T01_Calendar.F_Dummy AS F_Compens, T01_Calendar.F_Dummy AS F_KurboID
FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date
BETWEEN ? And ?) AND (T01_Calendar.F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo WHERE (F_User = ?)))
UNION SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T02_Kurbo.F_Plan, T02_Kurbo.F_Enter, T02_Kurbo.F_Leave,
T02_Kurbo.F_Paid, T02_Kurbo.F_Special, T02_Kurbo.F_Compens, T02_Kurbo.F_KurboID
FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID
WHERE (T01_Calendar.F_Date BETWEEN ? And ?) AND (T02_Kurbo.F_User = ?);)");

QString code(QChar c) {
    return c.isNull() ? QString() : QString(c);
}

QString line(const CardDay& day) {
    const auto moment = [](const std::optional<Moment>& time) {
        return time ? QString::fromStdString(isoText(*time)) : QString();
    };
    return QStringList({moment(Moment{day.facts.date}), code(day.facts.type), day.plan, moment(day.facts.enter),
                        moment(day.facts.leave), code(day.facts.paid), code(day.facts.special), code(day.facts.compens),
                        day.kurboId ? QString::number(*day.kurboId) : QString()})
        .join(u'|');
}

} // namespace

TEST_F(DemoSite, CardDaysAreTheRowsOfTheUnion) {
    int compared = 0;
    Rows people = connection.rows(u"SELECT F_StaffCode FROM C03_Staff"_q);
    while (people.next()) {
        const QString staff = people.text(0);
        for (int month = 1; month <= 12; ++month) {
            const Day from = *makeDay(2026, month, 1);
            const Day to = addMonths(from, 1);
            QStringList expected;
            Rows rows = connection.rows(unionStatement, {from, to, staff, from, to, staff});
            while (rows.next()) {
                QStringList cells;
                for (int i = 0; i < rows.columns(); ++i) cells.append(rows.text(i));
                expected.append(cells.join(u'|'));
            }
            const CardDays read = readCardDays(connection, staff, {from, to - std::chrono::days(1)});
            EXPECT_EQ(code(read.next), expected.takeLast().section(u'|', 1, 1));
            QStringList lines;
            for (const CardDay& day : read.days) lines.append(line(day));
            EXPECT_EQ(lines, expected) << staff << " " << month;
            compared += static_cast<int>(lines.size());
        }
    }
    EXPECT_EQ(compared, 14 * 365);
}

TEST_F(SampleCompany, CardDaysKnowTheirEnds) {
    addCard(1, *makeDay(2026, 12, 31), u"09:00"_q, u"17:00"_q);
    addCard(2, *makeDay(2026, 12, 31), u"10:00"_q, QString());
    const CardDays end = readCardDays(connection, u"1001"_q, {*makeDay(2026, 12, 30), *makeDay(2027, 1, 5)});
    EXPECT_EQ(end.days.size(), 3U) << "two rows of one day both stand; the calendar ends with the year";
    EXPECT_TRUE(end.next.isNull());
    EXPECT_TRUE(readCardDays(connection, u"1001"_q, {*makeDay(2031, 1, 1), *makeDay(2031, 1, 31)}).days.empty());
}

} // namespace kurbo::test
