#include "base/system/files.h"
#include "store/dialect/criterion.h"
#include "store/dialect/dialect.h"
#include "store/dialect/dialect_lexer.h"
#include "store/engine_fault.h"
#include "store/text_order.h"
#include "support/sample_company.h"
#include "support/table.h"

namespace kurbo::test {
namespace {

using Dialect = SampleCompany;

} // namespace

TEST_F(Dialect, ExpressionsHaveTheirValues) {
    for (const QStringList& row : rowsOf(R"(
'a' & Null & 'b'                                | ab
1 + 2 & 'x' & 2 * 3                             | 3x6
IIf('a' & Null = 'A' & '', 1, 2)                | 1
Right('漢字かな', 9)                            | 漢字かな
Left(F_Branch, 2)                               | -
CLng('20260401') + 1                            | 20260402
Mid('20260401', 5, 2)                           | 04
Format(-12345, '0000')                          | -12345
Format(#2026/04/01 08:05:09#, 'yyyy/mm/dd hh:nn:ss') | 2026/04/01 08:05:09
Format(#2026/04/01 08:05:09#, 'yy/m/d hh:mm')   | 26/4/1 08:05
IIf(Left('Abc', 1) = 'a' AND Mid('xB', 2) & '' = 'b', 'same', 'other') | same
)"))
        EXPECT_EQ(asked(u"SELECT %1 FROM C01_Corp;"_q.arg(row[0])), row[1]) << row[0];
    for (const QString& wrong : {u"CDate('2026/02/30')"_q, u"CLng('abc')"_q})
        EXPECT_THROW((void)asked(u"SELECT %1 FROM C01_Corp;"_q.arg(wrong)), Fault);
}

TEST_F(Dialect, TrueIsAnyValueButZero) {
    connection.execute(u"UPDATE C02_Section SET F_Display = 1 WHERE F_SectionCode = 'S01'"_q);
    EXPECT_EQ(asked(u"SELECT F_SectionCode FROM C02_Section WHERE (F_Display = True)AND (F_Order > 0)"_q), u"S01"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C02_Section WHERE F_Display <> True"_q), u"1"_q);
}

TEST_F(Dialect, TextComparesWithoutRegardToCaseAndKeepsNullApart) {
    connection.execute(u"UPDATE C01_Corp SET F_Branch = '', F_Title = 'ＡＢＣ', F_President = 'It''s \"x\"'"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Title = 'ａbc')"_q), u"0"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Title = 'ａｂｃ')"_q), u"1"_q);
    EXPECT_EQ(asked(u"SELECT Count(*) FROM C01_Corp WHERE (F_Branch = '') AND (F_Address1 Is Null)"_q), u"1"_q);
}

TEST_F(Dialect, SpellingsOfOtherToolsAreUnderstood) {
    EXPECT_EQ(asked(u"SELECT [C02_Section].[F_SectionCode] FROM [C02_Section] WHERE [C02_Section].F_Order = 1"_q),
              u"S01"_q);
    connection.execute(u"UPDATE C01_Corp SET C01_Corp.F_Tel = 'a=b', F_Fax = '1' WHERE C01_Corp.F_Corp = '見本商事'"_q);
    connection.execute(u"DELETE C01_Corp.* FROM C01_Corp WHERE C01_Corp.F_Fax = '1'"_q);
    EXPECT_EQ(count(u"C01_Corp"_q), 0);
}

TEST_F(Dialect, SyntaxErrorsAreFaults) {
    QStringList statements =
        u"SELECT 'open FROM C01_Corp|SELECT (1 FROM C01_Corp|SELECT 1) FROM C01_Corp|;||"
        "SELECT #2026/13/01# FROM C01_Corp|SELECT #x FROM C01_Corp|SELECT [F_Corp FROM C01_Corp|"
        "SELEKT F_Corp FROM C01_Corp|SELECT F_Corp ' FROM C01_Corp|SELECT @x FROM C01_Corp|ROLLBACK|"
        "COMMIT|PRAGMA foreign_keys = OFF|DROP TABLE C01_Corp"_q.split(u'|');
    statements.append(u"SELECT "_q + u"("_q.repeated(200000));
    for (const QString& statement : statements)
        EXPECT_EQ(refusalOf([&] { (void)asked(statement); }), QString::number(static_cast<int>(StoreError::Syntax)))
            << statement;
}

TEST(DialectText, StatementsAreSplitOutsideOfQuotes) {
    EXPECT_EQ(splitStatements(u"SELECT ';' FROM A; \n; DELETE * FROM B WHERE x = \"a;b\";  SELECT [a;b] FROM C"_q),
              QStringList({u"SELECT ';' FROM A"_q, u"DELETE * FROM B WHERE x = \"a;b\""_q, u"SELECT [a;b] FROM C"_q}));
}

TEST(DialectText, OrderIsTurnedRoundTermByTerm) {
    const auto turned = [](const QString& statement) { return QString::fromUtf8(translatedFromLast(statement).sql); };
    EXPECT_TRUE(turned(u"SELECT a FROM T ORDER BY a;"_q).endsWith(u"ORDER BY a DESC"_q));
    EXPECT_EQ(turned(u"SELECT a FROM (SELECT b FROM U ORDER BY b) ORDER BY Left(a, 2) DESC, b ASC, c & d"_q)
                  .section(u"ORDER BY"_q, -1)
                  .remove(u' '),
              u"(kurbo_left(a,2)COLLATENOCASE),bDESC,(ifnull(c,'')||ifnull(d,'')COLLATENOCASE)DESC"_q);
    EXPECT_THROW((void)turned(u"SELECT a FROM T"_q), Fault);
}

TEST(DialectText, OnlyAPlainSelectNamesItsTable) {
    const auto table = [](const QString& statement) { return translated(statement).table; };
    EXPECT_EQ(table(u"SELECT *, F_Year & F_Month AS X From T05_Approved;"_q), u"T05_Approved"_q);
    EXPECT_EQ(table(u"SELECT F_DateID FROM T01_Calendar WHERE F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo)"_q),
              u"T01_Calendar"_q);
    for (const QString& statement :
         {u"SELECT DISTINCT a FROM T"_q, u"SELECT a FROM T INNER JOIN U ON a = b"_q, u"SELECT a FROM T, U"_q,
          u"SELECT a FROM T UNION SELECT a FROM U"_q, u"SELECT a FROM T GROUP BY a"_q, u"DELETE * FROM T"_q})
        EXPECT_EQ(table(statement), QString()) << statement;
}

TEST(TextOrder, IsOneOrderForTheStoreAndForRecordSets) {
    const QStringList sorted{QString(), u"0"_q, u"a"_q, u"AB"_q, u"b"_q, u"あ"_q, u"い"_q, u"漢"_q, u"Ａ"_q, u"ｂ"_q};
    for (qsizetype i = 0; i < sorted.size(); ++i)
        for (qsizetype j = 0; j < sorted.size(); ++j)
            EXPECT_EQ(compareText(sorted[i], sorted[j]) < 0, i < j) << sorted[i] << " " << sorted[j];
}

namespace {

class QuotedStatements : public SampleCompany {
  protected:
    QuotedStatements() {
        for (int day = 1; day <= 14; ++day) addCard(day, *makeDay(2026, 4, day), u"08:55"_q, u"17:40"_q);
        insert("T03_GoOut", "KurboID, Order, Expense", u"1, 1, 500"_q);
        insert("T05_Approved", "Staff, Year, Month, PaidTotal", u"'1001', '2026', '03', 19.5"_q);
    }
};

// The statements of a file, without the lines between them that tell their use.
QStringList quoted(const char* file) {
    QStringList all = QString::fromUtf8(readFile(QLatin1String(file))).split(u'\n', Qt::SkipEmptyParts);
    all.removeIf([](const QString& line) { return line.startsWith(u"--"_q); });
    return all;
}

} // namespace

TEST_F(QuotedStatements, AllRunAsTheyStand) {
    const QStringList all = quoted(KURBO_STATEMENTS);
    EXPECT_EQ(all.size(), 135);
    for (const QString& text : all) {
        const Transaction undone(connection);
        Rows rows = connection.rows(text);
        while (rows.next())
            for (int i = 0; i < rows.columns(); ++i) (void)rows.text(i);
    }
}

TEST_F(QuotedStatements, AllCriteriaAreUnderstood) {
    const QStringList all = quoted(KURBO_CRITERIA);
    EXPECT_EQ(all.size(), 22);
    for (const QString& text : all) EXPECT_FALSE(Criterion(text).holds([](const QString&) { return Value(); })) << text;
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
