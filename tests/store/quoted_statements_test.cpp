#include "base/system/files.h"
#include "store/dialect/criterion.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class QuotedStatements : public SampleCompany {
  protected:
    QuotedStatements() {
        for (int day = 1; day <= 14; ++day) addCard(day, *makeDay(2026, 4, day), u"08:55"_q, u"17:40"_q);
        insert("T03_GoOut", "KurboID, Order, Expense", u"1, 1, 500"_q);
        insert("T05_Approved", "Staff, Year, Month, PaidTotal", u"'1001', '2026', '03', 19.5"_q);
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

// Reads all rows of a statement; what writes is undone.
void run(Connection& connection, const QString& statement) {
    const Transaction undone(connection);
    Rows rows = connection.rows(statement);
    while (rows.next())
        for (int i = 0; i < rows.columns(); ++i) (void)rows.text(i);
}

} // namespace

TEST_F(QuotedStatements, AllRunAsTheyStand) {
    const QList<Quoted> all = quoted(KURBO_STATEMENTS);
    EXPECT_EQ(all.size(), 135);
    for (const auto& [use, text] : all) EXPECT_NO_THROW(run(connection, text)) << use << ": " << text;
}

TEST_F(QuotedStatements, AllCriteriaAreUnderstood) {
    const QList<Quoted> all = quoted(KURBO_CRITERIA);
    EXPECT_EQ(all.size(), 22);
    for (const auto& [use, text] : all)
        EXPECT_FALSE(Criterion(text).holds([](const QString&) { return Value(); })) << use << ": " << text;
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
