#include "base/system/files.h"
#include "store/dialect/criterion.h"
#include "store/record_set.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class QuotedStatements : public SampleCompany {
  protected:
    QuotedStatements() {
        for (int day = 1; day <= 14; ++day) addCard(day, *makeDay(2026, 4, day), u"08:55"_q, u"17:40"_q);
        connection.execute(
            u"INSERT INTO T04_Destination (F_DestCode, F_DestName, F_User) VALUES (1, '本社', '1001')"_q);
        connection.execute(
            u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Destination, F_Expense) VALUES (1, 1, 1, 500)"_q);
        connection.execute(u"INSERT INTO T05_Approved (F_Staff, F_Section, F_Year, F_Month, F_PaidTotal, F_Term) "
                           "VALUES ('1001', 'S01', '2026', '03', 19.5, '2026/03/01-2026/03/31')"_q);
    }
};

struct Quoted {
    QString use;
    QString text;
};

// The statements of a file: a line "-- use" before each, and lines "----" that part them.
QList<Quoted> quoted(const char* file) {
    QList<Quoted> all;
    for (const QString& line : QString::fromUtf8(readFile(QLatin1String(file))).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u"----"_q)) continue;
        if (line.startsWith(u"-- "_q))
            all.append({line.sliced(3), {}});
        else
            all.last().text = line;
    }
    return all;
}

// The rows of a statement as they stand; what writes is undone.
QString run(Connection& connection, const QString& statement) {
    const Transaction undone(connection);
    Rows rows = connection.rows(statement);
    QString result;
    while (rows.next()) {
        for (int i = 0; i < rows.columns(); ++i) result += rows.text(i) + u'|';
        result += u'\n';
    }
    return result;
}

} // namespace

TEST_F(QuotedStatements, AllRunAsTheyStand) {
    const QList<Quoted> all = quoted(KURBO_STATEMENTS);
    EXPECT_EQ(all.size(), 135);
    for (const auto& [use, text] : all) EXPECT_NO_THROW((void)run(connection, text)) << use << ": " << text;
}

TEST_F(QuotedStatements, AllCriteriaAreUnderstood) {
    const QList<Quoted> all = quoted(KURBO_CRITERIA);
    EXPECT_EQ(all.size(), 22);
    for (const auto& [use, text] : all)
        EXPECT_FALSE(Criterion(text).holds([](const QString&) { return Value(); })) << use << ": " << text;
}

TEST_F(QuotedStatements, GiveTheRowsThatTheyAskFor) {
    EXPECT_EQ(run(connection, u"SELECT F_Staff FROM T05_Approved WHERE (F_Staff = '1001') AND "
                              "(F_Year & F_Month BETWEEN '202602' AND '202603');"_q),
              u"1001|\n"_q);
    EXPECT_EQ(run(connection, u"SELECT F_Staff FROM T05_Approved WHERE (F_Year & F_Month NOT BETWEEN '202602' AND "
                              "'202603');"_q),
              QString());
    EXPECT_EQ(run(connection, u"SELECT Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') "
                              "FROM T05_Approved;"_q),
              u"2026年 03月|\n"_q);
    EXPECT_EQ(run(connection, u"SELECT CDate(Left(F_DateID, 4) & '/' & Mid(F_DateID,5, 2) & '/' & Right(F_DateID, 2)) "
                              "AS F_Date FROM T02_Kurbo WHERE (CLNG(F_DateID) BETWEEN 20260402 AND 20260403) "
                              "ORDER BY F_DateID;"_q),
              u"2026-04-02 00:00:00|\n2026-04-03 00:00:00|\n"_q);
    EXPECT_EQ(run(connection, u"SELECT F_Date FROM T01_CALENDAR WHERE (F_Date BETWEEN #2026/04/29# And "
                              "#2026/04/30#);"_q),
              u"2026-04-29 00:00:00|\n2026-04-30 00:00:00|\n"_q);
}

// A calendar day without a card row comes with Nulls, and the rows of the union are in the order of the days.
TEST_F(QuotedStatements, CardDaysCoverTheCalendar) {
    for (const auto& [use, statement] : quoted(KURBO_STATEMENTS)) {
        if (!statement.contains(u"UNION"_q) || !statement.contains(u"F_Plan"_q)) continue;
        const RecordSet set(connection, statement);
        EXPECT_EQ(set.size(), 31);
        RecordSet walked = set;
        walked.moveLast();
        EXPECT_EQ(walked.value(u"F_Date"_q), Value(*makeDay(2026, 5, 1)));
        EXPECT_TRUE(walked.value(u"F_KurboID"_q).isNull());
        walked.moveFirst();
        EXPECT_EQ(walked.value(u"F_KurboID"_q), Value(1));
        return;
    }
    FAIL() << "the statement of the card's days is missing";
}

TEST_F(QuotedStatements, DeletedAndRenumberedRowsTakeTheirOwnAlong) {
    connection.execute(u"UPDATE T02_Kurbo SET F_KurboID = F_KurboID + 100;"_q);
    EXPECT_EQ(asked(u"SELECT F_KurboID FROM T03_GoOut"_q), u"101"_q);
    connection.execute(u"UPDATE T02_Kurbo SET F_KurboID = F_KurboID - 100;"_q);
    connection.execute(u"DELETE * FROM T01_Calendar WHERE (F_DateID BETWEEN '20260401' AND '20260402');"_q);
    EXPECT_EQ(count(u"T02_Kurbo"_q), 12);
    EXPECT_EQ(count(u"T03_GoOut"_q), 0);
}

} // namespace kurbo::test
